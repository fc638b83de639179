#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace korvale {

/// One row of a menu table. `depth` 0 is a menu of the menu bar, 1 an item of it, 2 an item of a
/// submenu. A caption of "-" is a separator; "&" marks the access key.
struct MenuRow {
  int depth;
  const char* name;
  int index;  ///< Position in a control array, or -1 when the item is not in one.
  const char* caption;
};

/// One live menu entry: what the user sees and, in `tag`, a text for the routines that use it.
struct MenuItem {
  std::string name;
  int index = -1;
  std::string caption;
  /// Stands in the menu instead of a caption that is too wide for the screen; "" = the caption.
  std::string shown;
  std::string tag;
  bool checked = false;
  bool enabled = true;
  bool visible = true;
  /// From this character on, "&" in the caption is shown as such, a control character as a blank;
  /// -1 = nowhere.
  int literalFrom = -1;
  std::vector<std::unique_ptr<MenuItem>> items;

  bool IsSeparator() const { return caption == "-"; }
};

/// A menu bar: the root has no caption, its items are the menus.
class MenuBar {
 public:
  explicit MenuBar(std::span<const MenuRow> rows);
  MenuBar() = default;

  MenuItem& Root() { return root_; }
  const MenuItem& Root() const { return root_; }
  /// The user sees at least one menu of it.
  bool AnyVisible() const;

  /// The entry of this name and array index; null when there is none.
  MenuItem* Find(std::string_view name, int index = -1);

 private:
  MenuItem root_;
};

/// The elements of one menu control array inside their menu, in ascending order of their index.
class MenuItemArray {
 public:
  /// `menu` is the entry whose items hold the array; both must outlive this view.
  MenuItemArray(MenuItem& menu, std::string name);

  MenuItem* Find(int index) const;
  /// Adds an invisible element without caption, placed after the elements with smaller indexes;
  /// error 360 when it exists.
  MenuItem& Load(int index) const;
  /// Removes an element; error 340 when it does not exist. Element 0 belongs to the design and
  /// stays: error 362.
  void Unload(int index) const;
  /// Visits the elements in ascending order of their index. The visitor must not load or unload.
  void ForEach(const std::function<void(MenuItem&)>& visit) const;
  /// The indexes in ascending order.
  std::vector<int> Indexes() const;

 private:
  MenuItem* menu_;
  std::string name_;
};

}  // namespace korvale

#pragma once

#include <optional>
#include <string>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// The Options dialog on the screen, used with the keyboard and the mouse.
class OptionsDialog {
 public:
  enum class Page { kGeneral = 1, kHotKeys, kWindowIdentification };

  /// The drop-down lists of the Hot Keys page in the order of the Tab key.
  enum class List {
    kTagModifier,
    kMinimizeModifier,
    kMinimizeKey,
    kMaximizeModifier,
    kMaximizeKey,
    kOptionsModifier,
    kOptionsKey,
    kMenuModifier,
    kMenuKey,
    kToggleModifier,
    kToggleKey,
  };

  OptionsDialog() = default;
  explicit OptionsDialog(Window form) : form_(form) {}

  Window form() const { return form_; }

  /// The page on the screen; throws when the tab strip and the visible page do not come to agree.
  Page CurrentPage() const;
  /// Goes on with Ctrl+Tab until that page is on the screen.
  bool GoTo(Page page) const;

  Window ListBox(List list) const;
  /// The text of the chosen entry, "" when none is chosen.
  std::string Chosen(List list) const { return ListBox(list).Text(); }
  /// Gives the list the focus with its frame's access key and the Tab key.
  bool Focus(List list) const;

  /// The check box of a Tag and the label that explains it.
  Window TagBox(int tag) const;
  Window TagLabel(int tag) const;
  /// A check box or button of the dialog by its caption; none when it is not on the screen.
  Window Button(const std::string& caption) const;
  /// The label on the screen that begins like this.
  Window Label(const std::string& beginning) const;
  /// The label that shows the colour of enabled hot keys.
  Window EnabledLegend() const { return Label(" indicates Hot Key is Enabled"); }
  /// The line that names refused hot keys, "" while there is none.
  std::string ConflictLine() const;

  /// Presses Enter, Esc or another chord, and waits until the dialog is gone.
  bool Confirm() const;
  bool Cancel() const;
  bool IsGone() const;

 private:
  Window VisiblePage() const;
  std::optional<Page> PageOnScreen() const;

  Window form_;
};

/// True when that check box is checked.
bool IsChecked(Window box);

/// True when the label has the border of an enabled hot key.
bool HasBorder(Window label);

}  // namespace korvale::endtoend

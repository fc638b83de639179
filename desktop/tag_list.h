#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "app/core/stored_tags.h"
#include "platform/menu_model.h"
#include "platform/types.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// The tag list: the Window menu's own entries 1-9 and the window class of each Tag.
struct TagList {
  /// The captions are TagCaption's; tag = decimal window handle or "0".
  MenuItemArray mnuWindowParentList;
  /// Element Tag-1: class of the window last matched, "" = any class.
  std::array<std::string, kTagCount> ParentWindowClass = {};
};

/// The identification text of a Tag entry's caption: what follows its first two characters,
/// trimmed.
std::string IdentificationText(const MenuItem& entry);

/// The window handle in a Tag entry's tag; 0 when unresolved or not a number.
WindowHandle TagHandle(const MenuItem& entry);

/// Whether the Tag has an entry whose caption marks an access key; Tag 0 is the Previous Window's.
bool HasTagCaption(const TagList& tags, int tag);

/// The class stored for a Tag, 1-9, or for the entry of one.
std::string& TagClass(TagList& tags, int tag);
std::string& TagClass(TagList& tags, const MenuItem& entry);
const std::string& TagClass(const TagList& tags, const MenuItem& entry);

/// Adds the entry of Tag `number`, which must have none: visible and unresolved.
MenuItem& AddTagEntry(TagList& tags, int number, const std::string& caption);

/// Mode 4, saving the list, is done by TagsToStore and Settings::SaveINI.
enum class TagListMode : std::int16_t {
  kExists = 1,     ///< 1 when Tag `tagNumber` has an entry (always for 0), else -1.
  kUnresolve = 2,  ///< Sets every entry's tag to "0".
  kMatch = 3,      ///< Matches window `hwnd` against every unresolved entry.
  kUnload = 5,     ///< Removes every entry from the menu.
};

class TagMatching;

/// Passes over the Tag entries 1-9.
class TagListPasses {
 public:
  TagListPasses(TagList& tags, WindowQueries& windows, VirtualDesktops& virtualDesktops);

  /// One pass in ascending order of the Tags; -1 unless `mode` says otherwise.
  std::int16_t TagListPass(TagListMode mode, std::int16_t tagNumber = 0, WindowHandle hwnd = 0);

  /// Mode 3 for many windows.
  TagMatching BeginMatching();

  /// Removes the entries whose window no longer exists (IsWindow).
  void RemoveClosed();

 private:
  TagList* tags_;
  WindowQueries* windows_;
  VirtualDesktops* virtualDesktops_;
};

}  // namespace korvale

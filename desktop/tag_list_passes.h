#pragma once

#include <cstdint>

#include "desktop/tag_list.h"
#include "desktop/tag_matching.h"
#include "platform/types.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// Mode 4, saving the list, is done by TagsToStore and Settings::SaveINI.
enum class TagListMode : std::int16_t {
  kExists = 1,     ///< 1 when Tag `tagNumber` has an entry (always for 0), else -1.
  kUnresolve = 2,  ///< Sets every entry's tag to "0".
  kMatch = 3,      ///< Matches window `hwnd` against every unresolved entry.
  kUnload = 5,     ///< Removes every entry from the menu.
};

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

#pragma once

#include <windows.h>

#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

// What a user sees of menus: another program's menus can be looked at, but not read. So far only
// Wine's own have been looked at.

/// The middles of the titles in the menu bar of a window, on the screen, from left to right.
std::vector<POINT> MenuTitles(Window window);

/// One entry of an open menu, separators left out.
struct SeenEntry {
  POINT middle{};  ///< On the screen.
  bool checked = false;
};

/// The entries that are drawn of an open menu, from top to bottom.
std::vector<SeenEntry> MenuEntries(Window menu);
/// The same once there are so many, or those drawn so far if that takes too long. Until a menu is
/// drawn, what lies under it can be seen there. Entries are drawn from top to bottom: with the last
/// one, all marks are there.
std::vector<SeenEntry> MenuEntries(Window menu, size_t count);

// How many entries the menus have.
inline constexpr size_t kViewEntries = 5;
inline constexpr size_t kToolsEntries = 2;
inline constexpr size_t kHelpEntries = 5;
/// Without Tags.
inline constexpr size_t kWindowEntries = 7;

}  // namespace korvale::endtoend

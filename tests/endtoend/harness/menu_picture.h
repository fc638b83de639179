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

/// The entries of an open menu, from top to bottom.
std::vector<SeenEntry> MenuEntries(Window menu);

}  // namespace korvale::endtoend

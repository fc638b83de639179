#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/contract/user_hands.h"

namespace korvale {

/// The entries of a menu as they are drawn.
std::vector<ShownMenuItem> ReadMenu(HMENU menu);
/// Position of the entry of this drawn caption, -1 = none.
int FindEntry(HMENU menu, const std::string& caption);
/// The windows of the open menus, in the order in which they were opened.
std::vector<HWND> OpenMenus();
HMENU MenuOf(HWND menuWindow);
/// True while the user is in a menu.
bool InMenu();

}  // namespace korvale

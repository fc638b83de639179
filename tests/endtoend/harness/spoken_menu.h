#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// What a screen reader says of the entries of an open menu, or of a window's menu bar, from the
/// first to the last:
///
///   entry '3 Alpha', checked, 3
///   entry 'Default Settings', with a menu, D
///   separator
///
/// Wine has no IAccessible of menus and tells other programs nothing of them, so they are read as
/// screen readers do where that fails: from within the program, by the calls of Windows.
std::vector<std::string> SpokenMenu(Window window);

}  // namespace korvale::endtoend

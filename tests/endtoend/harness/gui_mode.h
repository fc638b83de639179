#pragma once

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// The user moves or sizes a window of this one's thread.
bool IsMovedOrSized(Window window);

/// The user is in a menu of this one's thread.
bool IsInMenu(Window window);

}  // namespace korvale::endtoend

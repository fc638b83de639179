#pragma once

#include <string>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// What is wrong with the look of a window whose text is that high, in pixels: a text that is cut,
/// controls on top of each other, or a part outside of the work area. "" when all is well.
std::string FlawOf(Window form, int textHeight);

/// The size of a window on the screen.
SIZE SizeOf(Window window);

}  // namespace korvale::endtoend

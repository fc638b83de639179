#pragma once

#include <string>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// What is wrong with the look of a window whose text is that high, in pixels: a text that is cut,
/// controls on top of each other, or a part outside of the work area. "" when all is well.
std::string FlawOf(Window form, int textHeight);

/// Moves a window to a place in inches of 96 dots, whatever the screen's dots are.
void Place(Window window, int left, int top, int width, int height);

/// The size of a window on the screen.
SIZE SizeOf(Window window);

}  // namespace korvale::endtoend

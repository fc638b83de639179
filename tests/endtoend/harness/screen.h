#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// The pixels that a window covers on the screen, row by row; blue is the lowest byte of each.
std::vector<COLORREF> PictureOf(Window window);

/// The same of an icon or pointer as it looks on a ground of this color.
std::vector<COLORREF> PictureOf(HICON icon, int size, COLORREF ground);

/// What the icon of a program looks like on such a ground.
std::vector<COLORREF> PictureOfProgramIcon(HMODULE program, int size, COLORREF ground);

/// The pointer that the mouse has at the moment; only good for comparing.
HCURSOR PointerOnScreen();

/// The text on the clipboard, "" when there is none.
std::string ClipboardText();

}  // namespace korvale::endtoend

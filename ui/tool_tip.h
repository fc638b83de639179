#pragma once

#include <string>

namespace korvale {

/// A tool tip is no wider than this many pixels at so many dots per inch; a longer one takes
/// several lines.
int WidestToolTip(int dpi);

/// How long a tool tip stays, so that it can be read.
inline constexpr int kToolTipMilliseconds = 20000;

/// A tool tip's text, of this width in pixels, as it is shown: without the blanks around a text of
/// several lines, which would appear only before the first.
std::string ShownToolTip(const std::string& text, int width, int dpi);

}  // namespace korvale

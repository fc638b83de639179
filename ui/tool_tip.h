#pragma once

#include <string>

#include "platform/types.h"

namespace korvale {

/// A tool tip is no wider than this; a longer one takes several lines.
inline constexpr Twips kWidestToolTip = 6000;
/// How long a tool tip stays, so that it can be read.
inline constexpr int kToolTipMilliseconds = 20000;

/// A tool tip's text of this width as it is shown: without the blanks around a text of several
/// lines, which would appear only before the first.
std::string ShownToolTip(const std::string& text, Twips width);

}  // namespace korvale

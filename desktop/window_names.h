#pragma once

#include <string>

namespace korvale {

/// How a message names a window by its title or identification text: on one line, and shortened
/// when it is very long.
std::string NameInMessage(const std::string& text);
/// The same behind "Window:", as most messages begin.
std::string InBrackets(const std::string& text);

}  // namespace korvale

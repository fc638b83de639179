#pragma once

#include <string>
#include <string_view>

#include "platform/menu_model.h"

namespace korvale {

/// A text as part of a caption that shows it as it is and on one line: each "&" becomes "&&".
std::string LiteralMenuText(std::string_view text);

/// The caption as Windows' menus take it: "&" marks the access key, "&&" stands for itself. Hosts
/// show this text, never the caption itself.
std::string MenuText(const MenuItem& item);

}  // namespace korvale

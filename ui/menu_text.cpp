#include "ui/menu_text.h"

#include <cstddef>

#include "util/text.h"

namespace korvale {

std::string LiteralMenuText(std::string_view text) {
  // Windows takes what follows a tab or another control character for a column of its own.
  return ReplaceText(OnOneLine(text), "&", "&&", false, true);
}

std::string MenuText(const MenuItem& item) {
  const std::string& caption = item.shown.empty() ? item.caption : item.shown;
  if (item.literalFrom < 0) return caption;
  // The part before literalFrom is "&" and a digit: as many bytes as characters.
  const auto from = static_cast<std::size_t>(item.literalFrom);
  return caption.substr(0, from) + LiteralMenuText(std::string_view(caption).substr(from));
}

}  // namespace korvale

#include <string>

#include "platform/menu_model.h"

namespace korvale {

std::string MenuText(const MenuItem& item) {
  const std::string& caption = item.shown.empty() ? item.caption : item.shown;
  if (item.literalFrom < 0) return caption;
  // The part before literalFrom is "&" and a digit: as many bytes as characters.
  const auto from = static_cast<std::size_t>(item.literalFrom);
  std::string text = caption.substr(0, from);
  for (std::size_t i = from; i < caption.size(); ++i) {
    // Windows takes what follows a tab or another control character for a column of its own.
    const bool control = static_cast<unsigned char>(caption[i]) < 0x20 || caption[i] == 0x7F;
    text.append(caption[i] == '&' ? 2U : 1U, control ? ' ' : caption[i]);
  }
  return text;
}

}  // namespace korvale

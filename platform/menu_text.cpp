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
    text.append(caption[i] == '&' ? 2U : 1U, caption[i]);
  }
  return text;
}

}  // namespace korvale

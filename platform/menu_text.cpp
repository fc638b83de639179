#include <string>

#include "platform/menu_model.h"

namespace korvale {

std::string MenuText(const MenuItem& item) {
  if (item.literalFrom < 0) {
    return item.caption;
  }
  // The part before literalFrom is "&" and a digit: as many bytes as characters.
  const auto from = static_cast<std::size_t>(item.literalFrom);
  std::string text = item.caption.substr(0, from);
  for (std::size_t i = from; i < item.caption.size(); ++i) {
    text.append(item.caption[i] == '&' ? 2U : 1U, item.caption[i]);
  }
  return text;
}

}  // namespace korvale

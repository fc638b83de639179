#include "ui/tool_tip.h"

#include "util/text.h"

namespace korvale {

std::string ShownToolTip(const std::string& text, Twips width) {
  return width <= kWidestToolTip ? text : Trim(text);
}

}  // namespace korvale

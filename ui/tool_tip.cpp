#include "ui/tool_tip.h"

#include "platform/types.h"
#include "util/text.h"

namespace korvale {

int WidestToolTip(int dpi) {
  constexpr Twips kWidest = 6000;
  return (kWidest * dpi + kTwipsPerInch / 2) / kTwipsPerInch;
}

std::string ShownToolTip(const std::string& text, int width, int dpi) {
  return width <= WidestToolTip(dpi) ? text : Trim(text);
}

}  // namespace korvale

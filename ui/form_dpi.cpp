#include "ui/form_dpi.h"

#include <algorithm>
#include <cstdint>

namespace korvale {
namespace {

constexpr int kUsualTextPoints = 9;
constexpr int kPointsPerInch = 72;
/// The accessibility settings of Windows go up to 2.25.
constexpr int kBiggestText = 3;

/// With more dots per inch so long a stretch is longer than the room.
int DpiThatFits(Twips length, int room, int wanted) {
  if (length <= 0) return wanted;
  const std::int64_t most = std::int64_t{kTwipsPerInch} * room / length;
  return static_cast<int>(std::min<std::int64_t>(wanted, most));
}

}  // namespace

int UsualTextHeight(int dpi) {
  return (dpi * kUsualTextPoints + kPointsPerInch / 2) / kPointsPerInch;
}

int FormDpi(int dpi, int textHeight, const TwipsSize& content, int roomWidth, int roomHeight) {
  if (textHeight <= UsualTextHeight(dpi)) return dpi;
  const int highest = UsualTextHeight(kBiggestText * dpi);
  const int wanted = std::min(textHeight, highest) * kPointsPerInch / kUsualTextPoints;
  return std::max(dpi, std::min(DpiThatFits(content.width, roomWidth, wanted),
                                DpiThatFits(content.height, roomHeight, wanted)));
}

}  // namespace korvale

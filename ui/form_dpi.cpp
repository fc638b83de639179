#include "ui/form_dpi.h"

#include <algorithm>
#include <cstdint>

namespace korvale {
namespace {

constexpr int kUsualTextPoints = 9;
constexpr int kPointsPerInch = 72;
/// The accessibility settings of Windows go up to 2.25.
constexpr int kBiggestText = 3;
/// Text of fewer dots cannot be read.
constexpr int kFewestDots = 64;

/// With more dots per inch so long a stretch is longer than the room.
int DpiThatFits(Twips length, int room, int wanted) {
  if (length <= 0) return wanted;
  const std::int64_t most = std::int64_t{kTwipsPerInch} * room / length;
  return static_cast<int>(std::min<std::int64_t>(wanted, most));
}

int WantedDpi(int dpi, int textHeight) {
  if (textHeight <= UsualTextHeight(dpi)) return dpi;
  const int highest = UsualTextHeight(kBiggestText * dpi);
  return std::max(dpi, std::min(textHeight, highest) * kPointsPerInch / kUsualTextPoints);
}

}  // namespace

int UsualTextHeight(int dpi) {
  return (dpi * kUsualTextPoints + kPointsPerInch / 2) / kPointsPerInch;
}

int FormDpi(int dpi, int textHeight, const TwipsSize& content, int roomWidth, int roomHeight) {
  const int wanted = WantedDpi(dpi, textHeight);
  const int fitting = std::min(DpiThatFits(content.width, roomWidth, wanted),
                               DpiThatFits(content.height, roomHeight, wanted));
  return std::max(fitting, std::min(dpi, kFewestDots));
}

int FormTextHeight(int dpi, int formDpi, int textHeight) {
  // What the monitor's own dots are rounded to, the designs can bear.
  const int highest =
      formDpi == dpi ? UsualTextHeight(dpi) : formDpi * kUsualTextPoints / kPointsPerInch;
  return std::min(textHeight, highest);
}

}  // namespace korvale

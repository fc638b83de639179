#include "ui/menu_width.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "util/graphemes.h"
#include "util/text.h"

namespace korvale {
namespace {

/// What check mark, margins and border take beside the text at the most while the text has its
/// usual size; with bigger text, as much as this text takes.
constexpr Twips kBesideText = 2400;
constexpr const char* kAsWideAsBesideText = "mmmmmmmmmmmmmmmm";

/// The longest beginning of the caption that fits with "..." after it; the caption when all fits.
std::string Fitting(ScreenQueries& screen, WindowHandle hwnd, const std::string& caption,
                    Twips room) {
  const auto fits = [&](const std::string& text) {
    const Twips width = screen.GetTextExtentPoint32W(hwnd, text);
    return width <= room && (width > 0 || text.empty());
  };
  if (fits(caption)) return caption;
  std::size_t shortest = 0;
  const std::vector<std::string_view> clusters = SplitClusters(caption);
  std::size_t tooLong = clusters.size();
  const auto beginning = [&](std::size_t count) {
    std::string text;
    for (const std::string_view cluster : std::span(clusters).first(count)) text += cluster;
    return text + kEllipsis;
  };
  while (tooLong - shortest > 1) {
    const std::size_t middle = (shortest + tooLong) / 2;
    (fits(beginning(middle)) ? shortest : tooLong) = middle;
  }
  return beginning(shortest);
}

}  // namespace

void FitMenuToScreen(ScreenQueries& screen, WindowHandle hwnd, MenuItem& menu) {
  // The pop-up is drawn with the dots of the monitor that it comes up on, but measured with those
  // of the form.
  const Twips underPointer =
      screen.MonitorFromPoint().width * screen.GetDpiForWindow(hwnd) / screen.GetDpiForMonitor();
  const Twips narrowest = std::min(screen.GetMonitorInfoW(hwnd).width, underPointer);
  const Twips beside =
      std::max(kBesideText, screen.GetTextExtentPoint32W(hwnd, kAsWideAsBesideText));
  for (const auto& item : menu.items) {
    const std::string text = Fitting(screen, hwnd, item->caption, narrowest - beside);
    item->shown = text == item->caption ? "" : text;
  }
}

}  // namespace korvale

#include "tests/endtoend/harness/menu_picture.h"

#include "tests/endtoend/harness/screen.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

/// Pixels of a window, counted from its left upper corner.
class Picture {
 public:
  explicit Picture(Window window) : pixels_(PictureOf(window)) {
    GetWindowRect(window.handle(), &area_);
  }

  int Width() const { return area_.right - area_.left; }
  int Height() const { return area_.bottom - area_.top; }
  POINT OnScreen(int x, int y) const { return {area_.left + x, area_.top + y}; }

  /// Something is drawn there: not all pixels of the line are the same.
  bool RowIsDrawn(int y, int left, int right) const {
    return Differ(right - left, [&](int i) { return At(left + i, y); });
  }
  bool ColumnIsDrawn(int x, int top, int bottom) const {
    return Differ(bottom - top, [&](int i) { return At(x, top + i); });
  }

 private:
  COLORREF At(int x, int y) const {
    const auto index = static_cast<size_t>(y) * static_cast<size_t>(Width());
    return pixels_.at(index + static_cast<size_t>(x));
  }
  template <typename Pixel>
  static bool Differ(int count, Pixel pixel) {
    for (int i = 1; i < count; ++i) {
      if (pixel(i) != pixel(0)) return true;
    }
    return false;
  }

  RECT area_{};
  std::vector<COLORREF> pixels_;
};

struct Span {
  int first;
  int last;
  int Middle() const { return (first + last) / 2; }
};

/// Where something is drawn from `first` to `end`. Gaps of up to `gap` lines do not part it, and
/// what is thinner than `least` is not counted.
template <typename Drawn>
std::vector<Span> Spans(int first, int end, int gap, int least, Drawn drawn) {
  std::vector<Span> spans;
  for (int line = first; line < end; ++line) {
    if (!drawn(line)) continue;
    if (spans.empty() || line - spans.back().last > gap + 1) spans.push_back({line, line});
    spans.back().last = line;
  }
  std::erase_if(spans, [&](const Span& span) { return span.last - span.first + 1 < least; });
  return spans;
}

/// The frame of a menu, and the least height of a line of text and of a check mark.
constexpr int kFrame = 4;
constexpr int kLeastHeight = 4;

}  // namespace

std::vector<POINT> MenuTitles(Window window) {
  constexpr int kGapBetweenWords = 5;
  const Picture picture(window);
  POINT client{};
  ClientToScreen(window.handle(), &client);
  const POINT corner = picture.OnScreen(0, 0);
  const int bottom = client.y - corner.y - 1;
  const int top = bottom - GetSystemMetrics(SM_CYMENU) + 2;
  const int frame = client.x - corner.x + 1;
  std::vector<POINT> titles;
  // A minimized window has no bar.
  if (top < 0) return titles;
  for (const Span& title : Spans(frame, picture.Width() - frame, kGapBetweenWords, kLeastHeight,
                                 [&](int x) { return picture.ColumnIsDrawn(x, top, bottom); })) {
    titles.push_back(picture.OnScreen(title.Middle(), (top + bottom) / 2));
  }
  return titles;
}

std::vector<SeenEntry> MenuEntries(Window menu) {
  constexpr int kGapInLetters = 2;
  const Picture picture(menu);
  const int marks = kFrame + GetSystemMetrics(SM_CXMENUCHECK) - 2;
  std::vector<SeenEntry> entries;
  for (const Span& line :
       Spans(kFrame, picture.Height() - kFrame, kGapInLetters, kLeastHeight,
             [&](int y) { return picture.RowIsDrawn(y, kFrame, picture.Width() - kFrame); })) {
    const auto mark = Spans(line.first, line.last + 1, kGapInLetters, kLeastHeight,
                            [&](int y) { return picture.RowIsDrawn(y, kFrame, marks); });
    entries.push_back({picture.OnScreen(picture.Width() / 2, line.Middle()), !mark.empty()});
  }
  return entries;
}

std::vector<SeenEntry> MenuEntries(Window menu, size_t count) {
  std::vector<SeenEntry> entries;
  WaitFor([&] { return (entries = MenuEntries(menu)).size() == count; });
  return entries;
}

}  // namespace korvale::endtoend

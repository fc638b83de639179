#include <gtest/gtest.h>
#include <windows.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/windows/text.h"
#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/screen.h"
#include "ui/windows/window_classes.h"

namespace korvale {
namespace {

constexpr int kSize = 32;

/// A white C in a black circle with a white rim: "#" black, "o" white, "." nothing, "+" an edge.
constexpr std::string_view kLetterInACircle = R"(
................................
...........+++oooo+++...........
.........+oooooooooooo+.........
.......+oooo++####++oooo+.......
......+ooo+##########++oo+......
.....+oo+##############+oo+.....
....+oo+################+oo+....
...+oo+######+oooo++#####+oo+...
...oo+#####+ooooooooo#####+oo...
..+oo#####oooooooooooo+####oo+..
..oo+####ooooooooooooo+####+oo..
.+oo####+oooo++###+oo+######oo+.
.+o+####oooo+######++#######+o+.
.+o+###+oooo################+o+.
.oo####+ooo+#################oo.
.oo####oooo##################oo.
.oo####oooo##################oo.
.oo####+ooo+#################oo.
.+o+###+oooo################+o+.
.+o+####oooo+######++#######+o+.
.+oo####+oooo++###+oo+######oo+.
..oo+####ooooooooooooo+####+oo..
..+oo#####oooooooooooo+####oo+..
...oo+#####+ooooooooo#####+oo...
...+oo+######+oooo++#####+oo+...
....+oo+################+oo+....
.....+oo+##############+oo+.....
......+ooo+##########++oo+......
.......+oooo++####++oooo+.......
.........+oooooooooooo+.........
...........+++oooo+++...........
................................
)";

/// The pointers of the Korvale.exe under test.
class WindowsPointerTest : public testing::Test {
 protected:
  WindowsPointerTest()
      : program_(LoadLibraryExW(ToUtf16(endtoend::KorvaleProgram()).c_str(), nullptr,
                                LOAD_LIBRARY_AS_DATAFILE)) {}
  ~WindowsPointerTest() override { FreeLibrary(program_); }

  HCURSOR Pointer(MousePointer pointer) const { return LoadPointer(program_, pointer); }

  /// Draws the pointer on a green ground, row by row.
  static std::vector<std::string> Drawn(HCURSOR pointer) {
    const std::vector<COLORREF> pixels = endtoend::PictureOf(pointer, kSize, RGB(0, 255, 0));
    std::vector<std::string> rows(kSize);
    for (std::size_t at = 0; at < pixels.size(); ++at) rows[at / kSize] += Sign(pixels[at]);
    return rows;
  }

 private:
  static char Sign(COLORREF pixel) {
    const int blue = GetRValue(pixel);
    const int green = GetGValue(pixel);
    if (blue < 60 && green > 200) return '.';
    if (blue > 200 && green > 200) return 'o';
    return blue < 60 && green < 60 ? '#' : '+';
  }

  HMODULE program_;
};

TEST_F(WindowsPointerTest, CustomizesColorsWithALetterCInABlackCircle) {
  std::vector<std::string> drawn = Drawn(Pointer(MousePointer::kCustom));
  ASSERT_EQ(kLetterInACircle.size(), 1U + kSize * (kSize + 1U));
  for (std::size_t y = 0; y < kSize; ++y) {
    const std::string_view row = kLetterInACircle.substr(1 + y * (kSize + 1), kSize);
    for (std::size_t x = 0; x < row.size(); ++x) {
      // How an edge is smoothed depends on the system.
      if (row[x] == '+') drawn[y][x] = '+';
    }
    EXPECT_EQ(drawn[y], row) << y;
  }
}

TEST_F(WindowsPointerTest, PointsWithTheMiddleOfTheCircle) {
  ICONINFO info{};
  ASSERT_TRUE(GetIconInfo(Pointer(MousePointer::kCustom), &info));
  EXPECT_EQ(info.xHotspot, 16U);
  EXPECT_EQ(info.yHotspot, 16U);
  DeleteObject(info.hbmColor);
  DeleteObject(info.hbmMask);
}

TEST_F(WindowsPointerTest, OtherwiseHasThePointersOfWindows) {
  EXPECT_EQ(Pointer(MousePointer::kDefault), LoadCursorW(nullptr, MAKEINTRESOURCEW(32512)));
  EXPECT_EQ(Pointer(MousePointer::kHourglass), LoadCursorW(nullptr, MAKEINTRESOURCEW(32514)));
}

}  // namespace
}  // namespace korvale

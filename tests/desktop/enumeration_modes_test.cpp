#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "desktop/window_enumeration.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

struct ModeCase {
  const char* name;
  std::int32_t mode;
  bool handsOver;
  bool tag;
};

void PrintTo(const ModeCase& modeCase, std::ostream* out) { *out << modeCase.name; }

class EnumerationOfMode : public DesktopCase, public testing::WithParamInterface<ModeCase> {};

TEST_P(EnumerationOfMode, DoesThatAlone) {
  AddTag(1, "Alpha");
  const WindowHandle alpha = desktop.Open("Alpha");
  std::vector<WindowHandle> handedOver;
  log.Clear();
  enumeration.EnumWindowsProc(alpha, GetParam().mode,
                              [&](SeenWindow& window) { handedOver.push_back(window.Handle()); });
  const std::vector<WindowHandle> expected(GetParam().handsOver ? 1 : 0, alpha);
  EXPECT_EQ(handedOver, expected);
  EXPECT_EQ(HandleOfTag(1), GetParam().tag ? alpha : 0);
  EXPECT_EQ(log.Take(),
            GetParam().mode == 1 ? Calls{"ShowWindowAsync(Alpha, SW_MINIMIZE)"} : Calls{});
}

INSTANTIATE_TEST_SUITE_P(
    Modes, EnumerationOfMode,
    testing::Values(ModeCase{"MinimizeAll", 1, false, false},
                    ModeCase{"RestoreAll", 2, false, false}, ModeCase{"TagRefresh", 3, true, true},
                    ModeCase{"TitleAndClass", 4, true, false}, ModeCase{"Nothing", 5, false, false},
                    ModeCase{"TopWindow", 6, true, false}, ModeCase{"Title", 7, true, false},
                    ModeCase{"PastTheLast", 8, false, false}),
    [](const auto& param) { return param.param.name; });

}  // namespace
}  // namespace korvale

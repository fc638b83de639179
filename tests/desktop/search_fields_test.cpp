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
  bool title;
  bool titleAndClass;
  bool top;
  bool tag;
};

void PrintTo(const ModeCase& modeCase, std::ostream* out) { *out << modeCase.name; }

class SearchFieldsOfMode : public DesktopCase, public testing::WithParamInterface<ModeCase> {};

TEST_P(SearchFieldsOfMode, AreTheOnlyOnesThatChange) {
  AddTag(1, "Alpha");
  const WindowHandle alpha = desktop.Open("Alpha");
  SearchFields& fields = enumeration.Fields();
  fields.searchTitle = fields.titleSearchText = "Alpha";
  fields.searchClass = "Window";
  log.Clear();
  enumeration.EnumWindowsProc(alpha, GetParam().mode);
  EXPECT_EQ(fields.titleSearchResult, GetParam().title ? alpha : 0);
  EXPECT_EQ(fields.searchResult, GetParam().titleAndClass ? alpha : 0);
  EXPECT_EQ(fields.topWindowResult, GetParam().top ? alpha : 0);
  EXPECT_EQ(HandleOfTag(1), GetParam().tag ? alpha : 0);
  EXPECT_EQ(fields.instanceResult, 0);
  EXPECT_EQ(log.Take(),
            GetParam().mode == 1 ? Calls{"ShowWindowAsync(Alpha, SW_MINIMIZE)"} : Calls{});
}

INSTANTIATE_TEST_SUITE_P(Modes, SearchFieldsOfMode,
                         testing::Values(ModeCase{"MinimizeAll", 1, false, false, false, false},
                                         ModeCase{"RestoreAll", 2, false, false, false, false},
                                         ModeCase{"TagRefresh", 3, false, false, false, true},
                                         ModeCase{"TitleAndClass", 4, false, true, false, false},
                                         ModeCase{"Nothing", 5, false, false, false, false},
                                         ModeCase{"TopWindow", 6, false, false, true, false},
                                         ModeCase{"Title", 7, true, false, false, false},
                                         ModeCase{"PastTheLast", 8, false, false, false, false}),
                         [](const auto& param) { return param.param.name; });

}  // namespace
}  // namespace korvale

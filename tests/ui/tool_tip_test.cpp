#include "ui/tool_tip.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

TEST(ToolTipTest, BlanksStayAroundOneLineAndGoFromSeveral) {
  EXPECT_EQ(ShownToolTip("  Closes  the dialog ", 400, 96), "  Closes  the dialog ");
  EXPECT_EQ(ShownToolTip("  Closes  the dialog ", 401, 96), "Closes  the dialog");
  EXPECT_EQ(ShownToolTip("   ", 401, 96), "");
}

TEST(ToolTipTest, ATipOfExactlyTheWidestTakesOneLineAtEveryScale) {
  struct Case {
    int dpi;
    int widest;
  };
  for (const Case& each : {Case{96, 400}, Case{100, 417}, Case{101, 421}, Case{110, 458},
                           Case{120, 500}, Case{144, 600}, Case{192, 800}, Case{480, 2000}}) {
    EXPECT_EQ(WidestToolTip(each.dpi), each.widest) << each.dpi;
    EXPECT_EQ(ShownToolTip(" a ", each.widest, each.dpi), " a ") << each.dpi;
    EXPECT_EQ(ShownToolTip(" a ", each.widest + 1, each.dpi), "a") << each.dpi;
  }
}

}  // namespace
}  // namespace korvale

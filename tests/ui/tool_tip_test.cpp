#include "ui/tool_tip.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

TEST(ToolTipTest, BlanksStayAroundOneLineAndGoFromSeveral) {
  EXPECT_EQ(ShownToolTip("  Closes  the dialog ", 6000), "  Closes  the dialog ");
  EXPECT_EQ(ShownToolTip("  Closes  the dialog ", 6001), "Closes  the dialog");
  EXPECT_EQ(ShownToolTip("   ", 6001), "");
}

}  // namespace
}  // namespace korvale

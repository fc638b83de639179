#include "ui/form_dpi.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

constexpr TwipsSize kAnySize{};
/// 500 by 400 pixels at 96 dots per inch.
constexpr TwipsSize kDialog{7500, 6000};

TEST(FormDpiTest, TextOfTheUsualSizeLeavesTheDotsOfTheMonitor) {
  EXPECT_EQ(FormDpi(96, 12, kAnySize, 1366, 728), 96);
  EXPECT_EQ(FormDpi(144, 18, kAnySize, 1366, 728), 144);
  // 13.75 pixels, rounded.
  EXPECT_EQ(FormDpi(110, 14, kAnySize, 1366, 728), 110);
}

TEST(FormDpiTest, SmallerTextMakesNoFormSmaller) {
  EXPECT_EQ(FormDpi(96, 11, kAnySize, 1366, 728), 96);
  EXPECT_EQ(FormDpi(144, 16, kAnySize, 1366, 728), 144);
  EXPECT_EQ(FormDpi(96, 0, kAnySize, 1366, 728), 96);
}

TEST(FormDpiTest, BiggerTextEnlargesAFormAsMuchAsItself) {
  EXPECT_EQ(FormDpi(96, 18, kAnySize, 1366, 728), 144);
  EXPECT_EQ(FormDpi(96, 27, kAnySize, 1366, 728), 216);
  EXPECT_EQ(FormDpi(192, 54, kAnySize, 3840, 2080), 432);
}

TEST(FormDpiTest, TextBeyondWhatAnyoneChoosesEnlargesThreefold) {
  EXPECT_EQ(FormDpi(96, 37, kAnySize, 1366, 728), 288);
  EXPECT_EQ(FormDpi(96, 2'000'000'000, kAnySize, 1366, 728), 288);
}

TEST(FormDpiTest, AFormIsEnlargedOnlyAsFarAsItsContentFits) {
  EXPECT_EQ(FormDpi(96, 27, kDialog, 1366, 900), 216);
  // 600 pixels are room for the height of 400 one and a half times.
  EXPECT_EQ(FormDpi(96, 27, kDialog, 1366, 600), 144);
  EXPECT_EQ(FormDpi(96, 27, kDialog, 625, 900), 120);
}

TEST(FormDpiTest, WithoutRoomAFormKeepsItsUsualSize) {
  EXPECT_EQ(FormDpi(96, 27, kDialog, 400, 900), 96);
  EXPECT_EQ(FormDpi(96, 27, kDialog, -20, 0), 96);
}

}  // namespace
}  // namespace korvale

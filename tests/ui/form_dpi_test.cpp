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

TEST(FormDpiTest, WithoutRoomAFormIsShrunkAsLongAsItsTextCanBeRead) {
  EXPECT_EQ(FormDpi(96, 27, kDialog, 400, 900), 76);
  EXPECT_EQ(FormDpi(96, 12, kDialog, 400, 900), 76);
  // The options, 14010 twips wide, on a screen of 1366 by 768 pixels scaled to 150 %.
  EXPECT_EQ(FormDpi(144, 18, {13920, 8000}, 1366 - 6, 720), 129);
  EXPECT_EQ(FormDpi(144, 18, {13920, 7000}, 1366 - 6, 720), 140);
  EXPECT_EQ(FormDpi(96, 27, kDialog, 100, 900), 64);
  EXPECT_EQ(FormDpi(96, 27, kDialog, -20, 0), 64);
}

TEST(FormDpiTest, TheTextOfAFormIsNeverHigherThanItsLayoutHasRoomFor) {
  EXPECT_EQ(FormTextHeight(96, 96, 12), 12);
  EXPECT_EQ(FormTextHeight(96, 96, 11), 11);
  EXPECT_EQ(FormTextHeight(96, 216, 27), 27);
  // 13.5 and 13.1 pixels.
  EXPECT_EQ(FormTextHeight(96, 108, 27), 13);
  EXPECT_EQ(FormTextHeight(96, 105, 27), 13);
  EXPECT_EQ(FormTextHeight(96, 76, 12), 9);
  // Windows itself rounds 13.75.
  EXPECT_EQ(FormTextHeight(110, 110, 14), 14);
}

TEST(FormDpiTest, AtEverySizeTheTextFitsItsFormAndTheFormItsRoom) {
  for (int percent = 105; percent <= 225; ++percent) {
    const int text = 12 * percent / 100;
    for (int room = 400; room <= 1600; room += 7) {
      const int dpi = FormDpi(96, text, kDialog, room, 900);
      EXPECT_LE(500 * dpi, room * 96) << percent << " %, " << room;
      EXPECT_LE(FormTextHeight(96, dpi, text) * 96, 12 * dpi) << percent << " %, " << room;
    }
  }
}

}  // namespace
}  // namespace korvale

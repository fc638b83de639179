#include "util/contrast.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

TEST(ContrastTest, IsThatOfTheAccessibilityGuidelines) {
  EXPECT_NEAR(ContrastRatio(0x000000, 0xFFFFFF), 21.0, 0.01);
  EXPECT_NEAR(ContrastRatio(0xFFFFFF, 0xFFFFFF), 1.0, 0.01);
  EXPECT_NEAR(ContrastRatio(0x767676, 0xFFFFFF), 4.54, 0.01);
  EXPECT_NEAR(ContrastRatio(0x0000FF, 0xFFFFFF), 4.00, 0.01) << "red";
  EXPECT_NEAR(ContrastRatio(0xFFFFFF, 0xFF0000), 8.59, 0.01) << "blue";
  EXPECT_NEAR(ContrastRatio(0x0A0A0A, 0x000000), 1.06, 0.005) << "the darkest are linear";
  EXPECT_NEAR(ContrastRatio(0x0B0B0B, 0x000000), 1.07, 0.005);
}

TEST(ContrastTest, TextIsBlackOnLightColorsAndWhiteOnDarkOnes) {
  EXPECT_EQ(ReadableTextColor(0x9FFFFF), 0x000000);
  EXPECT_EQ(ReadableTextColor(0xAEFFAE), 0x000000);
  EXPECT_EQ(ReadableTextColor(0xFFFFFF), 0x000000);
  EXPECT_EQ(ReadableTextColor(0x000000), 0xFFFFFF);
  EXPECT_EQ(ReadableTextColor(0x800000), 0xFFFFFF);
  EXPECT_EQ(ReadableTextColor(0x0000FF), 0x000000) << "on pure red";
}

TEST(ContrastTest, TextCanBeReadOnColorsOfEveryKind) {
  for (Color blue = 0; blue < 256; blue += 15) {
    for (Color green = 0; green < 256; green += 15) {
      for (Color red = 0; red < 256; red += 15) {
        const Color color = blue * 0x10000 + green * 0x100 + red;
        EXPECT_GE(ContrastRatio(ReadableTextColor(color), color), 4.5) << color;
      }
    }
  }
}

}  // namespace
}  // namespace korvale

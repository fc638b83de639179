#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

/// The main window under frames and menu bars of other heights.
using MainWindowFrameTest = MainWindowTest;

TEST_F(MainWindowFrameTest, UnderAHigherFrameItIsHigherAndNothingIsCut) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.SetFrame({120, 480, 240, 600}, 390);
  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(korvale.user.Place(korvale.Handle(), Field(korvale)).height, 285);
  EXPECT_EQ(Height(korvale), 600 + 390 + 285 + 115);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Height(korvale), 600 + 390);
  HideMenu(korvale);
  EXPECT_EQ(Height(korvale), 600);
}

TEST_F(MainWindowFrameTest, AFrameThatIsHigherByRoundingOnlyLeavesTheClassicHeights) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  // 27 and 20 pixels of 15 twips.
  korvale.host.SetFrame({60, 345, 120, 405}, 300);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(Height(korvale), 1100);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Height(korvale), 700);
}

TEST_F(MainWindowFrameTest, OnAFineScreenEveryPixelOfTheFrameCounts) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  // 54 and 40 pixels of 7.5 twips.
  korvale.host.SetDpi(192);
  korvale.host.SetFrame({60, 345, 120, 405}, 300);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(Height(korvale), 1105);
}

TEST_F(MainWindowFrameTest, UnderALowerFrameTheFieldsKeepTheirHeight) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.SetFrame({45, 300, 90, 345}, 285);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(Height(korvale), 1100);
}
TEST_F(MainWindowFrameTest, AnotherDpiGivesItTheHeightOfTheOtherFrame) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.SetFrame({90, 600, 180, 660}, 400);
  korvale.Form().OnDpiChanged();
  EXPECT_EQ(Height(korvale), 660 + 400 + 285 + 115);
  EXPECT_EQ(korvale.user.Place(korvale.Handle(), Field(korvale)).height, 285);
}

}  // namespace
}  // namespace korvale

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

  for (const char* const field : {"txtWindow", "txtWindowClass"}) {
    const TwipsRect place = korvale.user.Place(korvale.Handle(), Field(korvale, field));
    EXPECT_EQ(place.height, 285) << field;
    EXPECT_LE(place.top + place.height, 285 + 115) << field;
    EXPECT_LT(place.left + place.width, Place(korvale).width - 240) << field;
  }
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

TEST_F(MainWindowFrameTest, NearlyHalfAPixelMoreIsARoundingToo) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  // 47 and 35 pixels of 8.57 twips.
  korvale.host.SetDpi(168);
  korvale.host.SetFrame({60, 343, 120, 403}, 300);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(Height(korvale), 1100);
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
  for (const char* const field : {"txtWindow", "txtWindowClass"}) {
    EXPECT_EQ(korvale.user.Place(korvale.Handle(), Field(korvale, field)).height, 285);
  }
}

TEST_F(MainWindowFrameTest, AnotherDpiGivesItTheHeightOfTheOtherFrame) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.SetFrame({90, 600, 180, 660}, 400);
  korvale.Form().OnDpiChanged();
  EXPECT_EQ(Height(korvale), 660 + 400 + 285 + 115);
  EXPECT_EQ(korvale.user.Place(korvale.Handle(), Field(korvale)).height, 285);
}

TEST_F(MainWindowFrameTest, BiggerTextEnlargesItAndLeavesTheStoredSize) {
  Store("Width", "6000");
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.ChangeTextSize(150);
  // Title bar and menu have grown as well.
  korvale.host.SetFrame({45, 555, 90, 600}, 450);
  EXPECT_TRUE(korvale.Start());
  const auto onScreen = [&] { return korvale.host.GetWindowRect(korvale.Handle()); };
  EXPECT_EQ(onScreen().width, 9000);
  EXPECT_EQ(onScreen().height, 1650);
  korvale.host.SetFrame({45, 355, 90, 400}, 300);
  korvale.host.ChangeTextSize(100);
  EXPECT_EQ(onScreen().width, 6000);
  EXPECT_EQ(onScreen().height, 1100);
  Choose(korvale, {"Help", "Display Tip Messages"});
  EXPECT_EQ(Stored("Width"), "6000");
  EXPECT_EQ(Stored("Height"), "1100");
}

TEST_F(MainWindowFrameTest, WithBiggerTextAClassicFrameLeavesNoRoomBehind) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.ChangeTextSize(225);
  EXPECT_TRUE(korvale.Start());
  EXPECT_NEAR(korvale.host.GetWindowRect(korvale.Handle()).height, 400 + 300 + 900, 3);
}

TEST_F(MainWindowFrameTest, WithBiggerTextItComesUpOnTheScreenAndKeepsItsStoredPlace) {
  Store("Left", "9000");
  Store("Width", "6000");
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.ChangeTextSize(150);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.host.GetWindowRect(korvale.Handle()).left, 15360 - 9000);
  EXPECT_EQ(korvale.host.GetWindowRect(korvale.Handle()).width, 9000);
  korvale.Exit();
  EXPECT_EQ(Stored("Left"), "9000");
  EXPECT_EQ(Stored("Width"), "6000");
}

TEST_F(MainWindowFrameTest, WiderThanTheScreenItIsNarrowedAndKeepsItsStoredWidth) {
  Store("Left", "3000");
  Store("Width", "9000");
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.ChangeTextSize(225);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.host.GetWindowRect(korvale.Handle()).left, 0);
  EXPECT_NEAR(korvale.host.GetWindowRect(korvale.Handle()).width, 15360, 2);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Stored("Left"), "3000");
  EXPECT_EQ(Stored("Width"), "9000");
  korvale.host.ChangeTextSize(100);
  EXPECT_EQ(Place(korvale).left, 3000);
  EXPECT_EQ(Place(korvale).width, 9000);
}

TEST_F(MainWindowFrameTest, WithBiggerTextEveryPixelOfTheFrameCounts) {
  KorvaleCopy& korvale = NewCopy();
  StoreOption("SplashScreen", "False");
  korvale.host.ChangeTextSize(200);
  // A pixel higher than twice the classic frame.
  korvale.host.SetFrame({60, 765, 120, 814}, 600);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.host.GetWindowRect(korvale.Handle()).height, 814 + 600 + 2 * (285 + 115));
}

}  // namespace
}  // namespace korvale

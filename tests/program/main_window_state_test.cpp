#include <string>

#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

/// Starts with a stored place and state.
class MainWindowStateTest : public MainWindowTest {
 protected:
  KorvaleCopy& UnstartedCopy() {
    StoreOption("SplashScreen", "False");
    return NewCopy();
  }
};

TEST_F(MainWindowStateTest, AMinimizedWindowComesUpSoAndIsStoredSo) {
  Store("WindowState", "1");
  Store("Left", "600");
  Store("Width", "6000");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_TRUE(desktop.IsIconic(korvale.Handle()));
  EXPECT_TRUE(desktop.IsWindowVisible(korvale.Handle()));

  korvale.Form().RefreshMenus("mnu");
  EXPECT_EQ(Stored("WindowState"), "1");
  EXPECT_EQ(Stored("Left"), "600");
  EXPECT_EQ(Stored("Width"), "6000");

  desktop.UserRestores(korvale.Handle());
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(Place(korvale).left, 600);
  EXPECT_EQ(Place(korvale).width, 6000);
  korvale.Exit();
  EXPECT_EQ(Stored("WindowState"), "0");
  EXPECT_EQ(Stored("Height"), "1100");
}

TEST_F(MainWindowStateTest, RestoredOnASmallerScreenAfterAMinimizedStartItIsWhole) {
  Store("WindowState", "1");
  Store("Left", "9000");
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.SetWorkArea({0, 0, 12000, 9000});
  desktop.UserRestores(korvale.Handle());
  EXPECT_EQ(Place(korvale).left, 12000 - 4500);
}

TEST_F(MainWindowStateTest, AMinimizedStartLeavesTheUserWhereTheyAreAndKnowsIt) {
  Store("WindowState", "1");
  Store("AlwaysOnTop", "True");
  WorkIn(Open("Alpha"));
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  LetTick();
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");

  WorkIn(Open("Beta"));
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(MainWindowStateTest, RestoredAfterAMinimizedStartItStaysInFront) {
  Store("WindowState", "1");
  StoreOption("SelectPrevWinOnStart", "True");
  WorkIn(Open("Alpha"));
  KorvaleCopy& korvale = StartedCopy();
  desktop.UserRestores(korvale.Handle());
  WorkIn(korvale.Handle());
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
}

TEST_F(MainWindowStateTest, TheStateAtTheExitIsStoredWithTheNormalPlace) {
  for (const auto& [command, state] :
       {std::pair(win32::kSwMinimize, "1"), std::pair(win32::kSwMaximize, "2")}) {
    KorvaleCopy& korvale = StartedCopy();
    desktop.UserRestores(korvale.Handle());
    korvale.user.Drag(korvale.Handle(), {600, 900, 6000, 1100});
    desktop.ShowWindow(korvale.Handle(), command);
    korvale.Form().OnCloseRequested(CloseReason::kUser);
    EXPECT_EQ(Stored("WindowState"), state);
    EXPECT_EQ(Stored("Left"), "600");
    EXPECT_EQ(Stored("Top"), "900");
    EXPECT_EQ(Stored("Width"), "6000");
    EndCopy(korvale);
  }
}

TEST_F(MainWindowStateTest, AMaximizedWindowIsStoredSoAfterEveryStart) {
  Store("WindowState", "2");
  for (int start = 0; start < 2; ++start) {
    KorvaleCopy& korvale = StartedCopy();
    EXPECT_TRUE(desktop.IsZoomed(korvale.Handle()));
    korvale.Exit();
    EXPECT_EQ(Stored("WindowState"), "2");
    EndCopy(korvale);
  }
}

TEST_F(MainWindowStateTest, AMaximizedWindowComesUpSoAndIsStoredSo) {
  Store("WindowState", "2");
  Store("Left", "600");
  Store("Width", "6000");
  KorvaleCopy& korvale = UnstartedCopy();
  korvale.host.SetWorkArea({0, 0, 20000, 12000});
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(desktop.IsZoomed(korvale.Handle()));
  EXPECT_EQ(korvale.Form().Place().width, 20000);
  EXPECT_EQ(korvale.Form().Place().height, 1100);

  Choose(korvale, {"Help", "web:  Help"});
  EXPECT_EQ(Stored("WindowState"), "2");
  EXPECT_EQ(Stored("Left"), "600");
  EXPECT_EQ(Stored("Width"), "6000");

  desktop.UserRestores(korvale.Handle());
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(Place(korvale).width, 6000);
  korvale.Exit();
  EXPECT_EQ(Stored("WindowState"), "0");
  EXPECT_EQ(Stored("Height"), "1100");
}

TEST_F(MainWindowStateTest, ItKeepsItsSizeUntilTheStartHasFinished) {
  Store("Height", "3000");
  Store("AlwaysOnTop", "True");
  KorvaleCopy& korvale = UnstartedCopy();
  log.WhenCalled("RegisterHotKey", [&] {
    log.Clear();
    korvale.Form().Form_Resize();
    EXPECT_TRUE(log.Calls().empty());
    EXPECT_EQ(korvale.Form().Place().height, 3000);
    EXPECT_EQ(korvale.Startup().Height, 3000);
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(korvale.Startup().Height, 1100);
}

TEST_F(MainWindowStateTest, AnUnreachablePlaceIsLeftForOneThatShowsTheWholeWindow) {
  for (const char* const state : {"0", "1", "2"}) {
    for (const char* const height : {"0", "1100", "9000"}) {
      Store("WindowState", state);
      Store("Left", "-100000");
      Store("Top", "100000");
      Store("Height", height);
      KorvaleCopy& korvale = UnstartedCopy();
      korvale.host.SetWorkArea({0, 0, 20000, 12000});
      ASSERT_TRUE(korvale.Start());
      desktop.UserRestores(korvale.Handle());
      EXPECT_EQ(Height(korvale), 1100);
      const TwipsRect place = Place(korvale);
      EXPECT_GE(place.left, 0) << state << " " << height;
      EXPECT_LE(place.left + place.width, 20000) << state << " " << height;
      EXPECT_GE(place.top, 0) << state << " " << height;
      EXPECT_LE(place.top + place.height, 12000) << state << " " << height;
      korvale.Exit();
      EndCopy(korvale);
    }
  }
}

}  // namespace
}  // namespace korvale

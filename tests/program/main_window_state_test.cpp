#include <string>

#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

/// Starts with a stored place and state.
class MainWindowStateTest : public MainWindowTest {
 protected:
  KorvaleCopy& UnstartedCopy() {
    store.SaveSetting("Korvale - Work", "Options", "SplashScreen", "False");
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

TEST_F(MainWindowStateTest, AMinimizedStartIsActivatedForTheFirstTimeWhenItIsRestored) {
  Store("WindowState", "1");
  WorkIn(Open("Alpha"));
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_FALSE(korvale.Parts().state.firstActivation);

  desktop.UserRestores(korvale.Handle());

  EXPECT_TRUE(korvale.Parts().state.firstActivation);
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
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
    EXPECT_EQ(korvale.Parts().startup.Height, 3000);
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(korvale.Parts().startup.Height, 1100);
}

}  // namespace
}  // namespace korvale

#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

class StartedMainWindow : public MainWindowTest {
 protected:
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(StartedMainWindow, WithMenuAndFieldsItIsAsHighAsTheyAre) {
  EXPECT_EQ(Height(korvale), 700 + korvale.Form().Find("txtWindow").Place().height + 115);
  EXPECT_EQ(Height(korvale), 1100);
}

TEST_F(StartedMainWindow, WithTheMenuAloneItIs700TwipsHigh) {
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Height(korvale), 700);
  EXPECT_FALSE(IsShown(korvale, "txtWindow"));
  EXPECT_FALSE(IsShown(korvale, "txtWindowClass"));
}

TEST_F(StartedMainWindow, WithTheFieldsAloneItIs300TwipsLower) {
  HideMenu(korvale);
  EXPECT_EQ(Height(korvale), 800);
  EXPECT_TRUE(IsShown(korvale, "txtWindow"));
}

TEST_F(StartedMainWindow, WithoutMenuAndFieldsItIs400TwipsHigh) {
  Choose(korvale, {"View", "Target Window"});
  HideMenu(korvale);
  EXPECT_EQ(Height(korvale), 400);
}

TEST_F(MainWindowTest, WithoutMenuAndFieldsItComesUpSoAgain) {
  Store("Menu", "False");
  Store("WindowInfo", "False");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(Height(korvale), 400);
  EXPECT_FALSE(MenuIsShown(korvale));
  EXPECT_FALSE(IsShown(korvale, "txtWindow"));
}

TEST_F(StartedMainWindow, OnlyItsWidthCanBeChanged) {
  Resize(korvale, 6000, 3000);
  EXPECT_EQ(Place(korvale).width, 6000);
  EXPECT_EQ(Height(korvale), 1100);
}

TEST_F(StartedMainWindow, TheUserCannotMakeItLowerOrNarrowerForAMoment) {
  const SizeLimits& limits = korvale.Form().State().limits;
  EXPECT_EQ(limits.height, 1100);
  EXPECT_EQ(limits.minimumWidth, 2640);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(limits.height, 700);
}

TEST_F(StartedMainWindow, AWidthOf2000TwipsIsRaisedTo2640) {
  Resize(korvale, 2000, 1100);
  EXPECT_EQ(Place(korvale).width, 2640);
  Resize(korvale, 2640, 1100);
  EXPECT_EQ(Place(korvale).width, 2640);
}

TEST_F(StartedMainWindow, AWidthThatIsTooNarrowIsRaisedWhoeverHasSetIt) {
  TwipsRect place = Place(korvale);
  place.width = 2000;
  korvale.Form().SetPlace(place);
  korvale.Form().Form_Resize();
  EXPECT_EQ(Place(korvale).width, 2640);
  EXPECT_EQ(korvale.Startup().Width, 2640);
}

TEST_F(StartedMainWindow, AWidthSetPastTheLimitsIsRaised) {
  TwipsRect place = Place(korvale);
  place.width = 2000;
  korvale.host.Tell(korvale.Handle(),
                    [&](FormEvents& events) { events.OnPlaced(ShowState::kNormal, place); });
  EXPECT_EQ(Place(korvale).width, 2640);
  EXPECT_EQ(korvale.Startup().Width, 2640);
}

TEST_F(StartedMainWindow, TheFieldsShareTheWidthSideBySide) {
  const auto place = [&](const char* field) {
    return korvale.user.Place(korvale.Handle(), Field(korvale, field));
  };
  Resize(korvale, 2640, 1100);
  EXPECT_EQ(place("txtWindow"), (TwipsRect{45, 45, 1449, 285}));
  EXPECT_EQ(place("txtWindowClass"), (TwipsRect{1539, 45, 966, 285}));
  Resize(korvale, 6225, 1100);
  EXPECT_EQ(place("txtWindow"), (TwipsRect{45, 45, 3600, 285}));
  EXPECT_EQ(place("txtWindowClass"), (TwipsRect{3690, 45, 2400, 285}));
}

TEST_F(StartedMainWindow, BothFieldsStandInsideTheClientArea) {
  // Of the window, the frame and the menu bar take 90 by 700 twips.
  for (const Twips width : {2640, 2641, 4000, 9000, 30000}) {
    Resize(korvale, width, 1100);
    for (const char* const field : {"txtWindow", "txtWindowClass"}) {
      const TwipsRect place = korvale.user.Place(korvale.Handle(), Field(korvale, field));
      EXPECT_GT(place.left, 0) << width;
      EXPECT_LT(place.left + place.width, width - 90) << field << width;
      EXPECT_GT(place.top, 0) << width;
      EXPECT_LT(place.top + place.height, 400) << width;
    }
  }
}

TEST_F(StartedMainWindow, TheNewWidthIsStoredByTheNextMenuCommand) {
  Resize(korvale, 6000, 1100);
  Choose(korvale, {"View", "Target Window"});
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Stored("Width"), "6000");
  EXPECT_EQ(Stored("Height"), "700");
  Choose(korvale, {"Help", "web:  Help"});
  EXPECT_EQ(Stored("Height"), "1100");
}

TEST_F(StartedMainWindow, ThePlaceToWhichItWasDraggedIsStoredAtTheEnd) {
  TwipsRect place = Place(korvale);
  place.left = 4500;
  place.top = 3000;
  korvale.user.Drag(korvale.Handle(), place);
  korvale.Exit();
  EXPECT_EQ(Stored("Left"), "4500");
  EXPECT_EQ(Stored("Top"), "3000");
}

TEST_F(MainWindowTest, APlaceOnAFarMonitorIsStoredAndComesBack) {
  KorvaleCopy& first = StartedCopy();
  first.host.SetWorkArea({57600, 0, 115200, 30000});
  first.user.Drag(first.Handle(), {60000, 33000, 90000, 1100});
  first.Exit();
  EXPECT_EQ(Stored("Left"), "60000");
  EXPECT_EQ(Stored("Top"), "33000");
  EXPECT_EQ(Stored("Width"), "90000");
  EXPECT_EQ(Stored("Height"), "1100");
  EndCopy(first);

  KorvaleCopy& second = NewCopy();
  second.host.SetWorkArea({57600, 0, 115200, 60000});
  EXPECT_TRUE(second.Start());
  EXPECT_EQ(Place(second), (TwipsRect{60000, 33000, 90000, 1100}));
}

TEST_F(StartedMainWindow, APlaceBeyondAllScreensIsStoredAsTheFarthestThatIsReadAgain) {
  korvale.user.Drag(korvale.Handle(), {600000, -600000, 4500, 1100});
  korvale.Exit();
  EXPECT_EQ(Stored("Left"), "491505");
  EXPECT_EQ(Stored("Top"), "-491505");
}

TEST_F(StartedMainWindow, ThePlaceToWhichItWasDraggedIsKeptWhileItIsMaximized) {
  TwipsRect place = Place(korvale);
  place.left = 4500;
  korvale.user.Drag(korvale.Handle(), place);
  place.top = 3000;
  korvale.user.Drag(korvale.Handle(), place);
  desktop.ShowWindow(korvale.Handle(), win32::kSwMaximize);
  korvale.Exit();
  EXPECT_EQ(Stored("Left"), "4500");
  EXPECT_EQ(Stored("Top"), "3000");
}

TEST_F(StartedMainWindow, ARefusedSaveIsToldAndTheCommandGoesOn) {
  korvale.ExpectBox("VB ERROR 70 - Permission denied\r\rKorvale Error #5", win32::kIdOk);
  store.RefuseWrites(true);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Height(korvale), 700);
}

TEST_F(StartedMainWindow, MaximizedItRemembersTheSizeThatItHadBefore) {
  Resize(korvale, 6000, 1100);
  desktop.ShowWindow(korvale.Handle(), win32::kSwMaximize);
  EXPECT_EQ(korvale.Startup().WindowState, 2);
  EXPECT_EQ(korvale.Startup().Width, 6000);
  EXPECT_EQ(korvale.Startup().Height, 1100);
}

TEST_F(StartedMainWindow, MaximizedItIsAsWideAsTheMonitorAndNoHigher) {
  korvale.host.SetWorkArea({0, 0, 20000, 12000});
  desktop.ShowWindow(korvale.Handle(), win32::kSwMaximize);
  EXPECT_EQ(korvale.Form().Place().width, 20000);
  EXPECT_EQ(korvale.Form().Place().height, 1100);
}

TEST_F(StartedMainWindow, MaximizedItsHeightFollowsWhatItShows) {
  desktop.ShowWindow(korvale.Handle(), win32::kSwMaximize);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Height(korvale), 700);
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(korvale.Form().WindowState(), ShowState::kMaximized);
}

TEST_F(MainWindowTest, AnyResizePutsItOnTopAnew) {
  Store("AlwaysOnTop", "True");
  KorvaleCopy& korvale = StartedCopy();
  Resize(korvale, 6000, 1100);
  EXPECT_FALSE(log.CallsOf("SetWindowPos(frmMain, HWND_TOPMOST, 0, 0, 0, 0, 3)").empty());
}

TEST_F(StartedMainWindow, AResizeLeavesItsRankAloneWhenItIsNotAlwaysOnTop) {
  Resize(korvale, 6000, 1100);
  EXPECT_TRUE(log.CallsOf("SetWindowPos").empty());
}

TEST_F(MainWindowTest, MinimizingIsNoResize) {
  Store("AlwaysOnTop", "True");
  KorvaleCopy& korvale = StartedCopy();
  desktop.ShowWindow(korvale.Handle(), win32::kSwMinimize);
  EXPECT_TRUE(log.CallsOf("SetWindowPos").empty());
  EXPECT_EQ(korvale.Startup().Height, 1100);
}

TEST_F(StartedMainWindow, HidingTheMenuAsksFirst) {
  korvale.ExpectBox(
      "CAUTION:  This will hide the menu.  The only way of accessing the hidden menu is by "
      "(Alt+V), (Alt+T), (Alt+W) or (Alt+H).",
      "Korvale", 257, win32::kIdOk);
  Choose(korvale, {"View", "Menu"});
  EXPECT_FALSE(MenuIsShown(korvale));
  EXPECT_EQ(Stored("Menu"), "False");
}

TEST_F(StartedMainWindow, CancelKeepsTheMenuAndTheHeight) {
  korvale.host.AnswerNext(win32::kIdCancel);
  Choose(korvale, {"View", "Menu"});
  EXPECT_TRUE(MenuIsShown(korvale));
  EXPECT_TRUE(IsChecked(korvale, "View", "Menu"));
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(Stored("Menu"), "(missing)") << "nothing was stored so far";
}

TEST_F(MainWindowTest, ShowingTheMenuAsksNothing) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.PressKey(korvale.Handle(), 'V', kAlt);
  korvale.user.PressKey(korvale.Handle(), 'M');
  EXPECT_TRUE(MenuIsShown(korvale));
  EXPECT_TRUE(korvale.host.Messages().empty());
  EXPECT_TRUE(IsChecked(korvale, "View", "Menu"));
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(Stored("Menu"), "True");
}

TEST_F(MainWindowTest, AMenuShownForAMomentHasRoomWhileItIsShown) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(Height(korvale), 800);
  korvale.user.PressKey(korvale.Handle(), 'V', kAlt);
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(korvale.user.Place(korvale.Handle(), Field(korvale)).height, 285);
  korvale.user.PressKey(korvale.Handle(), 'T');
  EXPECT_EQ(Height(korvale), 400);
  korvale.user.PressKey(korvale.Handle(), 'V', kAlt);
  EXPECT_EQ(Height(korvale), 700);
  EXPECT_EQ(Stored("Menu"), "False");
}

TEST_F(StartedMainWindow, TheTargetWindowCommandTogglesCheckFieldsAndSetting) {
  EXPECT_TRUE(IsChecked(korvale, "View", "Target Window"));
  Choose(korvale, {"View", "Target Window"});
  EXPECT_FALSE(IsChecked(korvale, "View", "Target Window"));
  EXPECT_EQ(Stored("WindowInfo"), "False");
  Choose(korvale, {"View", "Target Window"});
  EXPECT_TRUE(IsShown(korvale, "txtWindow"));
  EXPECT_EQ(Height(korvale), 1100);
  EXPECT_EQ(Stored("WindowInfo"), "True");
}

TEST_F(StartedMainWindow, TheFieldsAreNamedForScreenReadersAndReadOnly) {
  const auto before = [&](const char* field) {
    return korvale.user.Look(korvale.Handle(), Field(korvale, field) - 1);
  };
  EXPECT_EQ(before("txtWindow").text, "Target Window");
  EXPECT_EQ(before("txtWindowClass").text, "Class of Target Window");
  EXPECT_FALSE(before("txtWindow").visible);
  EXPECT_FALSE(before("txtWindowClass").visible);
  const ControlState& title = korvale.user.Look(korvale.Handle(), Field(korvale));
  EXPECT_EQ(title.toolTip, " Target Window ");
  EXPECT_NE(title.flags & kReadOnly, 0U);
  const ControlState& name = korvale.user.Look(korvale.Handle(), Field(korvale, "txtWindowClass"));
  EXPECT_EQ(name.toolTip, " Class of Target Window ");
  EXPECT_NE(name.flags & kReadOnly, 0U);
}

}  // namespace
}  // namespace korvale

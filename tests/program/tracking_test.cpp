#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

class TrackingTest : public KorvaleWorld {
 protected:
  void ExpectPrevious(KorvaleCopy& korvale, const std::string& title, bool enabled = true) {
    EXPECT_EQ(korvale.TargetWindow(), title);
    EXPECT_EQ(korvale.Form().Menu("mnuWindowPreviousWindowAlwaysOnTop").enabled, enabled);
    EXPECT_EQ(korvale.Form().Menu("mnuWindowParentList", 0).enabled, enabled);
    EXPECT_EQ(korvale.Form().Menu("mnuWindowAddToList", 2).enabled, enabled);
  }

  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  const WindowHandle beta = Open("Beta", {.className = "B"});
};

/// The user begins in Alpha.
class TrackingFromAlpha : public TrackingTest {
 protected:
  TrackingFromAlpha() { WorkIn(alpha); }

  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(TrackingFromAlpha, TheStripShowsWhereTheUserCameFrom) {
  EXPECT_EQ(korvale.Form().FocusTag(), "");
  WorkIn(korvale.Handle());
  EXPECT_EQ(korvale.Form().FocusTag(), kGotFocus);
  ExpectPrevious(korvale, "Alpha");
  EXPECT_EQ(korvale.TargetClass(), "A");
}

TEST_F(TrackingTest, KorvaleInBetweenLeavesTheWindowThePreviousOne) {
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(beta);
  WorkIn(alpha);
  WorkIn(korvale.Handle());
  EXPECT_EQ(korvale.Record().alternate, (WindowTriple{beta, "Beta", "B"}));
  WorkIn(alpha);
  ExpectPrevious(korvale, "Alpha");
  EXPECT_EQ(korvale.Form().FocusTag(), "");

  PressTag(0);

  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(TrackingFromAlpha, Alt0InAWindowThatTheUserReachedFromKorvaleGoesBackToKorvale) {
  WorkIn(korvale.Handle());
  WorkIn(beta);
  EXPECT_EQ(korvale.Record().alternate,
            (WindowTriple{korvale.Handle(), "Korvale - Work", "Korvale.frmMain"}));

  ExpectTagLeadsTo(0, "Korvale - Work");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(TrackingTest, AQuickWayBackByATagLeavesKorvaleReachableFromThere) {
  StoreTag(1, "Alpha", "A");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);
  desktop.UserActivates(beta);
  PressTag(1);
  WorkIn(korvale.Handle());
  WorkIn(alpha);
  EXPECT_EQ(korvale.Form().FocusTag(), "");

  PressTag(0);

  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(TrackingTest, AnUntitledWindowIsNotFollowedUnlessTheOptionAllowsIt) {
  const WindowHandle untitled = desktop.Open("", {.className = "Bare"});
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);
  WorkIn(untitled);
  ExpectPrevious(korvale, "Alpha");

  korvale.Options().booAllowNoTextWindow = true;
  LetTick();

  ExpectPrevious(korvale, "(window without a title)");
  EXPECT_EQ(korvale.TargetClass(), "Bare");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(TrackingTest, AToolWindowIsFollowedWhenTheOptionAllowsIt) {
  const WindowHandle palette = desktop.Open("Palette", {.exStyle = win32::kWsExToolWindow});
  StoreOption("AllowToolbarWindow", "True");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);
  WorkIn(palette);
  ExpectPrevious(korvale, "Palette");
}

TEST_F(TrackingTest, AToolWindowIsFollowedOnceItIsTagged) {
  const WindowHandle tagged =
      desktop.Open("Palette", {.className = "P", .exStyle = win32::kWsExToolWindow});
  const WindowHandle other =
      desktop.Open("Colors", {.className = "P", .exStyle = win32::kWsExToolWindow});
  StoreTag(4, "Palette", "P");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);
  WorkIn(other);
  ExpectPrevious(korvale, "Alpha");
  WorkIn(tagged);
  ExpectPrevious(korvale, "Palette");
  EXPECT_EQ(TagHandle(korvale.Form().Menu("mnuWindowParentList", 4)), tagged);
}

TEST_F(TrackingFromAlpha, AModalDialogOfAnotherProgramIsAVisitToItsWindow) {
  WorkIn(beta);
  const WindowHandle dialog = desktop.OpenModalDialog(alpha, "Save As");
  WorkIn(dialog);
  EXPECT_EQ(Front(), "Save As");
  ExpectPrevious(korvale, "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(TrackingFromAlpha, ADialogThatDisablesNoWindowIsNotFollowed) {
  WorkIn(beta);
  const WindowHandle dialog =
      desktop.Open("Find", {.className = "#32770", .owner = alpha, .style = win32::kDsModalFrame});
  WorkIn(dialog);
  EXPECT_EQ(Front(), "Find");
  ExpectPrevious(korvale, "Beta");
}

TEST_F(TrackingFromAlpha, KorvalesOwnOptionsDialogIsFollowed) {
  PressHotKey(win32::kModWin, 'O');
  const WindowHandle dialog = korvale.Loaded("frmOptions").Handle();
  EXPECT_NE(desktop.GetWindowLongA(dialog, win32::kGwlStyle) & win32::kDsModalFrame, 0);
  ExpectPrevious(korvale, "Korvale - Options");
}

TEST_F(TrackingFromAlpha, TheAboutBoxIsNotFollowed) {
  WorkIn(korvale.Handle());
  korvale.Form().mnuHelpAbout_Click();
  const WindowHandle about = korvale.Loaded("frmMsgBox2").Handle();
  WorkIn(about);
  EXPECT_EQ(desktop.GetForegroundWindow(), about);
  ExpectPrevious(korvale, "Alpha");
}

TEST_F(TrackingTest, TaskbarDesktopAndHiddenOwnerAreNotFollowedWhateverTheOptionsAllow) {
  StoreOption("AllowNoTextWindow", "True");
  StoreOption("AllowToolbarWindow", "True");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(beta);
  WorkIn(alpha);
  const WindowHandle owner = korvale.bridge.Owner();
  EXPECT_EQ(desktop.GetWindow(korvale.Handle(), win32::kGwOwner), owner);
  desktop.Reveal(owner);
  for (const WindowHandle hwnd :
       {desktop.FindWindowA("Program Manager"), desktop.FindWindowA(""), owner}) {
    WorkIn(hwnd);
    EXPECT_EQ(desktop.GetForegroundWindow(), hwnd);
    ExpectPrevious(korvale, "Alpha");
    EXPECT_EQ(korvale.Record().alternate.handle, beta);
  }
}

TEST_F(TrackingFromAlpha, WhenThePreviousWindowClosesTheOneBeforeItTakesOver) {
  WorkIn(beta);
  WorkIn(korvale.Handle());
  desktop.Close(beta);
  EXPECT_EQ(korvale.WindowMenuItems()[1].caption, "[Alpha]  Always On Top");
  ExpectPrevious(korvale, "Alpha");
  EXPECT_EQ(korvale.TargetClass(), "A");

  desktop.Close(alpha);
  EXPECT_EQ(korvale.WindowMenuItems()[1].caption, "[]  Always On Top");
  ExpectPrevious(korvale, "", false);
  EXPECT_EQ(korvale.TargetClass(), "");
}

TEST_F(TrackingFromAlpha, WhenOnlyKorvaleIsLeftThereIsNoPreviousWindow) {
  WorkIn(korvale.Handle());
  WorkIn(beta);
  desktop.UserActivates(korvale.Handle());
  desktop.Close(beta);
  LetTick();
  ExpectPrevious(korvale, "Alpha");
  desktop.Close(alpha);
  LetTick();
  ExpectPrevious(korvale, "", false);
  EXPECT_EQ(korvale.Record().alternate, WindowTriple{});
}

TEST_F(TrackingFromAlpha, ARenamedPreviousWindowStaysThePreviousWindow) {
  WorkIn(beta);
  desktop.Rename(alpha, "Ämter");
  ExpectTagLeadsTo(0, "Ämter");
  ExpectPrevious(korvale, "Ämter");
  desktop.Rename(alpha, "無題");
  WorkIn(korvale.Handle());
  ExpectPrevious(korvale, "無題");
}

TEST_F(TrackingFromAlpha, AHungPreviousWindowHoldsNothingUp) {
  WorkIn(beta);
  desktop.SetHung(alpha, true);
  desktop.SetHung(beta, true);
  ExpectTagLeadsTo(0, "Alpha");
  WorkIn(korvale.Handle());
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "[Alpha]  Always On Top"});
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

}  // namespace
}  // namespace korvale

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// Alt+0 goes to the window worked in before the one in front, whatever has happened.
class WayBackTest : public KorvaleWorld {
 protected:
  /// A copy with Tag 1 for Alpha and Tag 2 for Beta, both not found yet; the user has worked in
  /// Gamma, Beta and Alpha.
  KorvaleCopy& InAlpha() {
    StoreTag(1, "Alpha", "A");
    StoreTag(2, "Beta", "B");
    KorvaleCopy& copy = StartedCopy();
    for (const WindowHandle hwnd : {gamma, beta, alpha}) WorkIn(hwnd);
    return copy;
  }

  /// Pops the Window menu up by its hot key and chooses the entry that begins so; "" closes it.
  void PopUpAndChoose(KorvaleCopy& korvale, const std::string& beginning) {
    korvale.host.WhenPopupMenu(
        [=](const std::vector<ShownMenuItem>& items) { return EntryThatBegins(items, beginning); });
    PressHotKey(win32::kModWin, 'W');
  }

  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  const WindowHandle beta = Open("Beta", {.className = "B"});
  const WindowHandle gamma = Open("Gamma", {.className = "G"});
};

class WayBackFromAlpha : public WayBackTest {
 protected:
  KorvaleCopy& korvale = InAlpha();
};

TEST_F(WayBackFromAlpha, TheTagOfTheWindowInFrontChangesNothingAlsoWhenItHadToBeFound) {
  ExpectTagLeadsTo(1, "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(WayBackFromAlpha, TheTagOfTheRecordedWindowFromAnUntrackedOneChangesNothing) {
  for (const WindowHandle untracked :
       {desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow}),
        desktop.Open("Find", {.className = "#32770", .style = win32::kDsModalFrame}),
        desktop.FindWindowA("Program Manager")}) {
    WorkIn(untracked);
    ExpectTagLeadsTo(1, "Alpha");
    ExpectTagLeadsTo(0, "Beta");
    ExpectTagLeadsTo(0, "Alpha");
  }
}

TEST_F(WayBackFromAlpha, TwoQuickKeysLoseNothing) {
  PressTagQuickly(0);
  PressTagQuickly(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(WayBackFromAlpha, TwoQuickTagsLoseNothing) {
  PressTagQuickly(2);
  PressTagQuickly(1);
  PressTagQuickly(0);
  EXPECT_EQ(Front(), "Beta");
  PressTagQuickly(0);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(WayBackFromAlpha, QuickKeysLoseNothingWhenTheWindowsComeForwardLate) {
  desktop.DelayForegroundFor(50);
  PressTagQuickly(0);
  PressTagQuickly(1);
  clock.Advance(50);
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(WayBackFromAlpha, ATickBeforeTheWindowComesForwardLosesNothing) {
  desktop.DelayForeground(true);
  PressTagQuickly(0);
  clock.Advance(100);
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_EQ(Front(), "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(WayBackFromAlpha, AClickAndAQuickKeyLoseNothing) {
  desktop.UserActivates(gamma);
  PressTagQuickly(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Gamma");
}

TEST_F(WayBackFromAlpha, MinimizingAndAQuickTagLoseNothing) {
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  EXPECT_EQ(Front(), "Beta");
  PressTagQuickly(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(WayBackFromAlpha, AMomentInTheWindowThatMinimizingBroughtForwardCounts) {
  desktop.UserMinimizes(alpha);
  LetTick();
  ASSERT_EQ(Front(), "Beta");
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  ASSERT_EQ(Front(), "Gamma");
  WorkIn(alpha);
  ExpectTagLeadsTo(0, "Gamma");
}

TEST_F(WayBackFromAlpha, MinimizingRightAfterASelectionMinimizesTheSelectedWindow) {
  desktop.DelayForegroundFor(50);
  PressTagQuickly(2);
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  clock.Advance(50);
  LetTick();
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(WayBackFromAlpha, MaximizingRightAfterASelectionMaximizesTheSelectedWindow) {
  desktop.DelayForeground(true);
  PressTagQuickly(2);
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkUp));
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_TRUE(desktop.IsZoomed(beta));
  EXPECT_FALSE(desktop.IsZoomed(alpha));
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WayBackFromAlpha, MinimizingRightAfterThePopUpClosedMinimizesTheWindowInFrontBefore) {
  korvale.host.WhenPopupMenu([this](const std::vector<ShownMenuItem>& /*items*/) {
    desktop.DelayForeground(true);
    return std::string();
  });
  EXPECT_TRUE(hotKeys.Press(win32::kModWin, 'W'));
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(korvale.Handle()));
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WayBackFromAlpha, WhenTheWindowInFrontClosesTheOneBeforeItsSuccessorIsNext) {
  desktop.Close(alpha);
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Gamma");
}

TEST_F(WayBackFromAlpha, WhenTheWindowInFrontClosesTheNextKeyNeedsNoTick) {
  desktop.Close(alpha);
  desktop.UserActivates(beta);
  PressTagQuickly(0);
  EXPECT_EQ(Front(), "Gamma");
}

TEST_F(WayBackFromAlpha, WhenTheDesktopIsLeftTheLastWindowStillOpenIsNext) {
  desktop.Close(alpha);
  WorkIn(desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(korvale.TargetWindow(), "Beta");
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Gamma");
}

TEST_F(WayBackFromAlpha, AHiddenWindowIsPassedOver) {
  desktop.Hide(beta);
  ExpectTagLeadsTo(0, "Gamma");
  desktop.Reveal(beta);
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(WayBackFromAlpha, AnEntryOfThePopUpIsNoVisitToTheMainWindow) {
  PopUpAndChoose(korvale, "2  ");
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale.Form().FocusTag(), "");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(WayBackFromAlpha, TheEntryOfTheWindowInFrontBeforeThePopUpChangesNothing) {
  PopUpAndChoose(korvale, "1  ");
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(WayBackFromAlpha, ThePreviousWindowOfThePopUpIsTheOneBeforeTheWindowInFront) {
  PopUpAndChoose(korvale, "0  ");
  EXPECT_EQ(Front(), "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(WayBackFromAlpha, ThePopUpSeesTheWindowThatWasJustClicked) {
  desktop.UserActivates(gamma);
  PopUpAndChoose(korvale, "2  ");
  ExpectTagLeadsTo(0, "Gamma");
}

TEST_F(WayBackFromAlpha, ThePopUpOverTheMainWindowIsStillOverTheMainWindow) {
  WorkIn(korvale.Handle());
  PopUpAndChoose(korvale, "0  ");
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Korvale - Work");
}

TEST_F(WayBackTest, TheMainWindowChosenFromThePopUpIsAVisit) {
  StoreTag(3, "Korvale - Work", "Korvale.frmMain");
  KorvaleCopy& korvale = InAlpha();
  PopUpAndChoose(korvale, "3  ");
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(korvale.Form().FocusTag(), kGotFocus);
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(WayBackTest, TheSelectionOnStartLeavesTheMainWindowOneKeyAway) {
  StoreOption("SelectPrevWinOnStart", "True");
  StartedCopy();
  EXPECT_EQ(Front(), "Gamma");
  ExpectTagLeadsTo(0, "Korvale - Work");
}

}  // namespace
}  // namespace korvale

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// Alt+0 goes to the window worked in before the one in front, whatever has happened.
class WayBackTest : public KorvaleWorld {
 protected:
  void SetUp() override {
    alpha = Open("Alpha", {.className = "A"});
    beta = Open("Beta", {.className = "B"});
    gamma = Open("Gamma", {.className = "G"});
  }

  void StoreTag(int tag, const std::string& text, const std::string& className) {
    const std::string key = std::to_string(tag);
    store.SaveSetting("Korvale - Work", "ParentWindowList", key, "&" + key + "  " + text);
    store.SaveSetting("Korvale - Work", "ParentWindowClass", key, className);
  }

  /// A copy with Tag 1 for Alpha and Tag 2 for Beta, both not found yet; the user has worked in
  /// Gamma, Beta and Alpha.
  KorvaleCopy& InAlpha() {
    StoreTag(1, "Alpha", "A");
    StoreTag(2, "Beta", "B");
    KorvaleCopy& korvale = StartedCopy();
    for (const WindowHandle hwnd : {gamma, beta, alpha}) WorkIn(hwnd);
    return korvale;
  }

  /// The key without the time that a tick takes.
  void PressQuickly(int tag) {
    EXPECT_TRUE(hotKeys.Press(win32::kModAlt, static_cast<std::uint32_t>('0' + tag)));
  }

  /// Pops the Window menu up by its hot key and chooses the entry that begins so; "" closes it.
  void PopUpAndChoose(KorvaleCopy& korvale, const std::string& beginning) {
    korvale.host.WhenPopupMenu([beginning](const std::vector<ShownMenuItem>& items) {
      for (const ShownMenuItem& item : items) {
        if (!beginning.empty() && item.caption.starts_with(beginning)) return item.caption;
      }
      return std::string();
    });
    PressHotKey(win32::kModWin, 'W');
  }

  void ExpectWayBack(const std::string& title) {
    PressTag(0);
    EXPECT_EQ(Front(), title);
  }

  WindowHandle alpha = 0;
  WindowHandle beta = 0;
  WindowHandle gamma = 0;
};

TEST_F(WayBackTest, TheTagOfTheWindowInFrontChangesNothingAlsoWhenItHadToBeFound) {
  InAlpha();
  PressTag(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Beta");
}

TEST_F(WayBackTest, TheTagOfTheRecordedWindowFromAnUntrackedOneChangesNothing) {
  InAlpha();
  for (const WindowHandle untracked :
       {desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow}),
        desktop.Open("Find", {.className = "#32770", .style = win32::kDsModalFrame}),
        desktop.FindWindowA("Program Manager")}) {
    WorkIn(untracked);
    PressTag(1);
    EXPECT_EQ(Front(), "Alpha");
    ExpectWayBack("Beta");
    ExpectWayBack("Alpha");
  }
}

TEST_F(WayBackTest, TwoQuickKeysLoseNothing) {
  InAlpha();
  PressQuickly(0);
  PressQuickly(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Beta");
}

TEST_F(WayBackTest, TwoQuickTagsLoseNothing) {
  InAlpha();
  PressQuickly(2);
  PressQuickly(1);
  PressQuickly(0);
  EXPECT_EQ(Front(), "Beta");
  PressQuickly(0);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(WayBackTest, QuickKeysLoseNothingWhenTheWindowsComeForwardLate) {
  InAlpha();
  desktop.DelayForeground(true);
  PressQuickly(0);
  PressQuickly(1);
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Beta");
}

TEST_F(WayBackTest, ATickBeforeTheWindowComesForwardLosesNothing) {
  InAlpha();
  desktop.DelayForeground(true);
  PressQuickly(0);
  clock.Advance(100);
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_EQ(Front(), "Beta");
  ExpectWayBack("Alpha");
}

TEST_F(WayBackTest, AClickAndAQuickKeyLoseNothing) {
  InAlpha();
  desktop.UserActivates(gamma);
  PressQuickly(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Gamma");
}

TEST_F(WayBackTest, MinimizingAndAQuickTagLoseNothing) {
  InAlpha();
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  EXPECT_EQ(Front(), "Beta");
  PressQuickly(1);
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Beta");
}

TEST_F(WayBackTest, AMomentInTheWindowThatMinimizingBroughtForwardCounts) {
  InAlpha();
  desktop.UserMinimizes(alpha);
  LetTick();
  ASSERT_EQ(Front(), "Beta");
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  ASSERT_EQ(Front(), "Gamma");
  WorkIn(alpha);
  ExpectWayBack("Gamma");
}

TEST_F(WayBackTest, MinimizingRightAfterASelectionMinimizesTheSelectedWindow) {
  InAlpha();
  desktop.DelayForeground(true);
  PressQuickly(2);
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkDown));
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Beta");
}

TEST_F(WayBackTest, MaximizingRightAfterASelectionMaximizesTheSelectedWindow) {
  InAlpha();
  desktop.DelayForeground(true);
  PressQuickly(2);
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, win32::kVkUp));
  desktop.DelayForeground(false);
  LetTick();
  EXPECT_TRUE(desktop.IsZoomed(beta));
  EXPECT_FALSE(desktop.IsZoomed(alpha));
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WayBackTest, MinimizingRightAfterThePopUpClosedMinimizesTheWindowInFrontBefore) {
  KorvaleCopy& korvale = InAlpha();
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

TEST_F(WayBackTest, WhenTheWindowInFrontClosesTheOneBeforeItsSuccessorIsNext) {
  InAlpha();
  desktop.Close(alpha);
  WorkIn(beta);
  ExpectWayBack("Gamma");
}

TEST_F(WayBackTest, WhenTheWindowInFrontClosesTheNextKeyNeedsNoTick) {
  InAlpha();
  desktop.Close(alpha);
  desktop.UserActivates(beta);
  PressQuickly(0);
  EXPECT_EQ(Front(), "Gamma");
}

TEST_F(WayBackTest, WhenTheDesktopIsLeftTheLastWindowStillOpenIsNext) {
  KorvaleCopy& korvale = InAlpha();
  desktop.Close(alpha);
  WorkIn(desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(korvale.TargetWindow(), "Beta");
  ExpectWayBack("Beta");
  ExpectWayBack("Gamma");
}

TEST_F(WayBackTest, AHiddenWindowIsPassedOver) {
  InAlpha();
  desktop.Hide(beta);
  ExpectWayBack("Gamma");
  desktop.Reveal(beta);
  ExpectWayBack("Alpha");
}

TEST_F(WayBackTest, AnEntryOfThePopUpIsNoVisitToTheMainWindow) {
  KorvaleCopy& korvale = InAlpha();
  PopUpAndChoose(korvale, "2  ");
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale.Form().FocusTag(), "");
  ExpectWayBack("Alpha");
}

TEST_F(WayBackTest, TheEntryOfTheWindowInFrontBeforeThePopUpChangesNothing) {
  KorvaleCopy& korvale = InAlpha();
  PopUpAndChoose(korvale, "1  ");
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Beta");
}

TEST_F(WayBackTest, ThePreviousWindowOfThePopUpIsTheOneBeforeTheWindowInFront) {
  KorvaleCopy& korvale = InAlpha();
  PopUpAndChoose(korvale, "0  ");
  EXPECT_EQ(Front(), "Beta");
  ExpectWayBack("Alpha");
}

TEST_F(WayBackTest, ThePopUpSeesTheWindowThatWasJustClicked) {
  KorvaleCopy& korvale = InAlpha();
  desktop.UserActivates(gamma);
  PopUpAndChoose(korvale, "2  ");
  ExpectWayBack("Gamma");
}

TEST_F(WayBackTest, ThePopUpOverTheMainWindowIsStillOverTheMainWindow) {
  KorvaleCopy& korvale = InAlpha();
  WorkIn(korvale.Handle());
  PopUpAndChoose(korvale, "0  ");
  EXPECT_EQ(Front(), "Alpha");
  ExpectWayBack("Korvale - Work");
}

TEST_F(WayBackTest, TheMainWindowChosenFromThePopUpIsAVisit) {
  StoreTag(3, "Korvale - Work", "Korvale.frmMain");
  KorvaleCopy& korvale = InAlpha();
  PopUpAndChoose(korvale, "3  ");
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(korvale.Form().FocusTag(), kGotFocus);
  ExpectWayBack("Alpha");
}

TEST_F(WayBackTest, TheSelectionOnStartLeavesTheMainWindowOneKeyAway) {
  store.SaveSetting("Korvale - Work", "Options", "SelectPrevWinOnStart", "True");
  StartedCopy();
  EXPECT_EQ(Front(), "Gamma");
  ExpectWayBack("Korvale - Work");
}

}  // namespace
}  // namespace korvale

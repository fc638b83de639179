#include "platform/win32_constants.h"
#include "tests/program/window_menu_test.h"

namespace korvale {
namespace {

using TagSelectionTest = WindowMenuTest;

TEST_F(TagSelectionTest, ASelectedTagMovesThePreviousWindowOn) {
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta", {.className = "B"}));
  PressTag(1);
  EXPECT_EQ(korvale.Record().current, (WindowTriple{alpha, "Alpha", "A"}));
  EXPECT_EQ(korvale.Record().alternate.text, "Beta");
  EXPECT_EQ(korvale.Record().alternate.className, "B");
}

/// Alpha is Tag 1; the user works in Beta.
class TagOfAlphaTest : public WindowMenuTest {
 protected:
  TagOfAlphaTest() {
    korvale.TagPrevious();
    WorkIn(Open("Beta"));
  }

  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
};

TEST_F(TagOfAlphaTest, Alt0AfterATagGoesBackAndThereAgain) {
  PressTag(1);
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(TagOfAlphaTest, SelectingFromTheMainWindowMakesItTheAlternate) {
  WorkIn(korvale.Handle());
  PressTag(1);
  EXPECT_EQ(korvale.Record().current.handle, alpha);
  EXPECT_EQ(korvale.Record().alternate.handle, korvale.Handle());
  EXPECT_EQ(korvale.Form().FocusTag(), "");
}

TEST_F(TagOfAlphaTest, TheWindowInFrontIsOnlyRestored) {
  WorkIn(alpha);
  const WindowTriple alternate = korvale.Record().alternate;
  log.Clear();
  PressTag(1);
  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
  EXPECT_TRUE(log.CallsOf("ShowWindow").empty());
  EXPECT_EQ(korvale.Record().alternate, alternate);
}

TEST_F(TagOfAlphaTest, TheWindowInFrontIsThatOfItsTagWhateverItsTitleIsByNow) {
  WorkIn(alpha);
  desktop.Rename(alpha, "Another");
  hotKeys.Press(win32::kModAlt, '1');
  EXPECT_TRUE(korvale.host.Messages().empty());
  EXPECT_EQ(Front(), "Another");
  EXPECT_EQ(korvale.TargetWindow(), "Another") << "before the next tick";
}

TEST_F(TagOfAlphaTest, TheWindowInFrontIsSelectedWithoutAMessageEvenIfItIsDisabled) {
  WorkIn(alpha);
  desktop.SetEnabled(alpha, false);
  hotKeys.Press(win32::kModAlt, '1');
  EXPECT_TRUE(korvale.host.Messages().empty());
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(TagOfAlphaTest, TheMessageOfAFailureIsShownOverAStripOfWindowsThatExist) {
  const WindowHandle gamma = Open("Gamma");
  WorkIn(gamma);
  WorkIn(korvale.Handle());
  desktop.Close(alpha);
  desktop.Close(gamma);
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, "Window:  [Alpha]  is not open.");
    EXPECT_EQ(korvale.TargetWindow(), "Beta");
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(TagOfAlphaTest, NothingTicksWhileTheMessageOfAFailureIsShown) {
  desktop.Close(alpha);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    clock.Advance(kTrackingInterval);
    EXPECT_FALSE(clock.AnyTimerOf(korvale.Handle()));
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(clock.IntervalOf(korvale.Handle(), korvale.Id(korvale.Form(), "tmrWindow")),
            kTrackingInterval);
}

TEST_F(TagOfAlphaTest, NothingTicksWhileAPoppedUpMenuIsOpen) {
  korvale.host.WhenPopupMenu([&](const auto& /*items*/) {
    clock.Advance(kTrackingInterval);
    EXPECT_FALSE(clock.AnyTimerOf(korvale.Handle()));
    return std::string();
  });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(clock.IntervalOf(korvale.Handle(), korvale.Id(korvale.Form(), "tmrWindow")),
            kTrackingInterval);
}

TEST_F(TagOfAlphaTest, AMinimizedWindowIsRestored) {
  desktop.UserMinimizes(alpha);
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_FALSE(desktop.IsIconic(alpha));
}

TEST_F(TagSelectionTest, Tag0InTheMainWindowSelectsTheCurrentPreviousWindow) {
  const WindowHandle alpha = Open("Alpha");
  WorkIn(Open("Beta"));
  StartedAfter(alpha);
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(TagSelectionTest, AClosedTagWindowIsReportedAsNotOpen) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  const WindowHandle beta = Open("Beta");
  WorkIn(beta);
  desktop.Close(alpha);
  WorkIn(beta);
  const PreviousWindow before = korvale.Record();
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale.Record().current, before.current);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(TagOfAlphaTest, ADisabledTagWindowIsReportedAsNotEnabled) {
  desktop.SetEnabled(alpha, false);
  ExpectMessage(korvale, "Window:  [Alpha]  is not enabled, and currently cannot be selected.",
                win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(TagOfAlphaTest, AFailedActivationIsReportedOnce) {
  korvale.Selection().windowSearch = true;
  desktop.Rename(alpha, "Another");
  ExpectMessage(korvale, "The window operation was not successful.  Please try again.",
                win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(TagSelectionTest, AReopenedWindowIsFoundAgain) {
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.Close(alpha);
  const WindowHandle again = Open("Alpha", {.className = "A"});
  WorkIn(Open("Gamma"));
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(korvale.TagEntry(1)->tag, std::to_string(again));
}

TEST_F(TagSelectionTest, AWindowOfAnotherClassIsFoundByItsTitleAloneAndTeachesItsClass) {
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  desktop.Close(alpha);
  Open("Alpha", {.className = "New"});
  WorkIn(Open("Beta"));
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(korvale.Tags().ParentWindowClass[0], "New");
}

TEST_F(TagSelectionTest, AWindowWithoutChildrenIsFoundByTitleAndTheLastMatchWins) {
  KorvaleCopy& korvale = StartedAfter(Open("Clock", {.children = 0}));
  korvale.TagPrevious();
  EXPECT_EQ(korvale.TagEntry(1)->tag, "0");
  EXPECT_EQ(korvale.Tags().ParentWindowClass[0], "");
  const WindowHandle upper = Open("Clock 2", {.className = "C2", .children = 0});
  WorkIn(Open("Beta"));
  ExpectTagLeadsTo(1, "Clock");
  EXPECT_NE(desktop.GetForegroundWindow(), upper);
}

TEST_F(TagOfAlphaTest, WhileASearchIsForbiddenATagIsTriedOnlyOnce) {
  desktop.Close(alpha);
  Open("Alpha");
  WorkIn(Open("Gamma"));
  korvale.Selection().windowSearch = true;
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", win32::kMbSetForeground);
  log.IncludeReads(true);
  log.Clear();
  korvale.ChooseLate("mnuWindowParentList", 1);
  EXPECT_TRUE(log.CallsOf("EnumWindows").empty());
}

TEST_F(TagOfAlphaTest, ASearchThatIsForbiddenMeanwhileEndsBeforeTheTitleAlone) {
  desktop.Close(alpha);
  Open("Alpha", {.className = "New"});
  WorkIn(Open("Gamma"));
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", win32::kMbSetForeground);
  log.WhenCalled("EnumWindows", [&] { korvale.Selection().windowSearch = true; });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Front(), "Gamma");
  EXPECT_EQ(korvale.Tags().ParentWindowClass[0], "Window");

  korvale.Selection().windowSearch = false;
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(TagOfAlphaTest, Tag0SaysNothingOfAWindowThatCannotBeSelected) {
  const WindowHandle beta = desktop.FindWindowA("Beta");
  WorkIn(alpha);
  WorkIn(beta);
  desktop.SetEnabled(alpha, false);
  PressTag(0);
  EXPECT_NE(Front(), "Alpha");

  desktop.SetEnabled(alpha, true);
  WorkIn(alpha);
  WorkIn(beta);
  log.WhenCalled("SetForegroundWindow(Alpha", [&] { desktop.Close(alpha); });
  PressTag(0);
  EXPECT_FALSE(desktop.IsWindow(alpha));
  EXPECT_TRUE(korvale.host.Messages().empty());
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(TagOfAlphaTest, TimersRestDuringASelection) {
  bool running = true;
  log.WhenCalled("SetForegroundWindow", [&] { running = korvale.Form().tmrWindow().Enabled(); });
  PressTag(1);
  EXPECT_FALSE(running);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

}  // namespace
}  // namespace korvale

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/window_menu_test.h"

namespace korvale {
namespace {

using WindowMenuOpeningTest = WindowMenuTest;

TEST_F(WindowMenuOpeningTest, ATitleIsShortenedBeforeItsAmpersandsAreDoubled) {
  const std::string thirty = "&&&&&&&&&&&&&&& 78901234567890";
  const WindowHandle alpha = Open(thirty);
  KorvaleCopy& korvale = StartedAfter(alpha);
  std::vector<ShownMenuItem> items = korvale.WindowMenuItems();
  EXPECT_EQ(items[1].caption, "[" + thirty + "]  Always On Top");
  EXPECT_EQ(items.back().caption, "Add  [" + thirty + "]  to Window menu...");

  desktop.Rename(alpha, thirty + "1");
  items = korvale.WindowMenuItems();
  EXPECT_EQ(items[1].caption, "[&&&&&&&&&&&&&&& 78901234567...]  Always On Top");
  EXPECT_EQ(items.back().caption, "Add  [&&&&&&&&&&&&&&& 78901234567...]  to Window menu...");
}

TEST_F(WindowMenuOpeningTest, AnEntryTooWideForTheScreenIsShownShortenedAndStaysWhole) {
  const std::string title = "Q&A " + std::string(60, 'x') + "日本";
  const WindowHandle alpha = Open(title);
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "1  " + title);

  // Forty characters of 100 twips and what stands beside them.
  korvale.host.SetWorkArea({0, 0, 6400, 8000});
  const ShownMenuItem entry = korvale.WindowMenuItems()[7];
  EXPECT_EQ(entry.caption, "1  Q&A " + std::string(29, 'x') + "...");
  EXPECT_EQ(entry.accessKey, "1");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "1"), "&1  " + title);
  WorkIn(Open("Beta"));
  PressTag(1);
  EXPECT_EQ(desktop.GetForegroundWindow(), alpha);

  korvale.host.SetWorkArea({0, 0, 15360, 8000});
  EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "1  " + title);
}

TEST_F(WindowMenuOpeningTest, FollowsTheTitleOfThePreviousWindow) {
  const WindowHandle alpha = Open("Счёт");
  KorvaleCopy& korvale = StartedAfter(alpha);
  EXPECT_EQ(korvale.WindowMenuItems()[1].caption, "[Счёт]  Always On Top");
  desktop.Rename(alpha, "会計 🧮");
  EXPECT_EQ(korvale.WindowMenuItems()[1].caption, "[会計 🧮]  Always On Top");
  EXPECT_EQ(korvale.TargetWindow(), "会計 🧮");
}

TEST_F(WindowMenuOpeningTest, KnowsTheWindowInFrontBeforeTheNextTick) {
  const WindowHandle alpha = Open("Alpha");
  WorkIn(Open("Beta"));
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);
  desktop.UserActivates(korvale.Handle());
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "0  Previous Window"});
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(WindowMenuOpeningTest, MarksAWindowThatHasMadeItselfTopmost) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.SetWindowPos(alpha, win32::kHwndTopmost, 0, 0, 0, 0, 3 | win32::kSwpNoActivate);
  EXPECT_TRUE(korvale.WindowMenuItems()[1].checked);
  desktop.SetWindowPos(alpha, win32::kHwndNoTopmost, 0, 0, 0, 0, 3 | win32::kSwpNoActivate);
  EXPECT_FALSE(korvale.WindowMenuItems()[1].checked);
}

TEST_F(WindowMenuOpeningTest, TheMinimizedWindowInFrontIsRestoredAndNothingElse) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  WorkIn(alpha);
  const PreviousWindow before = korvale.Record();
  desktop.UserMinimizes(alpha);
  desktop.SetForegroundWindow(alpha);
  log.Clear();

  PressTag(1);

  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(log.CallsOf("ShowWindow"),
            std::vector<std::string>{"ShowWindowAsync(Alpha, SW_RESTORE)"});
  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
  EXPECT_EQ(korvale.Record().current, before.current);
  EXPECT_EQ(korvale.Record().alternate, before.alternate);
}

TEST_F(WindowMenuOpeningTest, AnUnresolvedTagIsSearchedForEvenWhenNothingIsInFront) {
  KorvaleCopy& korvale = StartedAfter(Open("Clock", {.children = 0}));
  korvale.TagPrevious();
  desktop.LoseForeground();
  ExpectTagLeadsTo(1, "Clock");
}

TEST_F(WindowMenuOpeningTest, EverySelectionStoresWhatHasChangedAlsoAFailedOne) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  for (const bool enabled : {true, false}) {
    desktop.SetEnabled(alpha, enabled);
    WorkIn(Open("Beta"));
    if (!enabled) korvale.host.AnswerNext(win32::kIdOk);
    ++korvale.Startup().LastColorSelected;
    log.Clear();
    PressTag(1);
    EXPECT_FALSE(log.CallsOf("SaveSetting(Korvale - Work, ParentWindowList").empty()) << enabled;
  }
}

TEST_F(WindowMenuOpeningTest, TimersRestWhileAnEntrySelectsItsWindow) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.TagPrevious();
  bool running = true;
  log.WhenCalled("SetForegroundWindow(Alpha",
                 [&] { running = korvale.Form().tmrWindow().Enabled(); });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "1  Alpha"});
  EXPECT_FALSE(running);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(WindowMenuOpeningTest, ASelectionShowsTheNewTargetAtOnce) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha", {.className = "A"}));
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  hotKeys.Press(win32::kModAlt, '1');
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  EXPECT_EQ(korvale.TargetClass(), "A");
}

TEST_F(WindowMenuOpeningTest, AHotKeyLeavesAnEntryWithoutTheMarkOfAnAccessKeyAlone) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.TagPrevious();
  korvale.TagEntry(1)->caption = "1  Alpha";
  WorkIn(Open("Beta"));
  ExpectTagLeadsTo(1, "Beta");
}

TEST_F(WindowMenuOpeningTest, ATitleOfAmpersandsIsShownAsItIsInTheMessages) {
  const WindowHandle alpha = Open("Q&A");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.Close(alpha);
  korvale.ExpectBox("Window:  [Q&A]  is not open.", win32::kIdOk);
  PressTag(1);
}

}  // namespace
}  // namespace korvale

#include "forms/window_menu.h"

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

class WindowMenuTest : public KorvaleWorld {
 protected:
  /// A started copy; the user has come from `title` to its main window.
  KorvaleCopy& StartedAfter(WindowHandle window) {
    KorvaleCopy& korvale = StartedCopy();
    WorkIn(window);
    WorkIn(korvale.Handle());
    return korvale;
  }

  std::vector<std::string> Captions(const std::vector<ShownMenuItem>& items) {
    std::vector<std::string> captions;
    for (const ShownMenuItem& item : items) captions.push_back(item.caption);
    return captions;
  }

  void ExpectMessage(KorvaleCopy& korvale, const std::string& text, std::int32_t style) {
    korvale.host.WhenMessageBox([text, style](const ShownMessage& box) {
      EXPECT_EQ(box.text, text);
      EXPECT_EQ(box.title, "Korvale");
      EXPECT_EQ(box.style, style);
      return win32::kIdOk;
    });
  }
};

TEST_F(WindowMenuTest, ShowsItsEntriesInTheirOrder) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.TagPrevious();
  EXPECT_EQ(Captions(korvale.WindowMenuItems()),
            (std::vector<std::string>{"Korvale  Always On Top", "[Alpha]  Always On Top", "-",
                                      "Minimize All", "Restore All", "-", "0  Previous Window",
                                      "1  Alpha", "-", "Add  Korvale  to Window menu...",
                                      "Add  [Alpha]  to Window menu..."}));
}

TEST_F(WindowMenuTest, HasTheAccessKeysOfItsCaptions) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  std::string keys;
  for (const ShownMenuItem& item : korvale.WindowMenuItems()) keys += item.accessKey;
  EXPECT_EQ(keys, "OTMR0uW");
}

TEST_F(WindowMenuTest, ATitleOf30CharactersIsShownWhole) {
  EXPECT_EQ(ShortTitle("123456789012345678901234567890"), "123456789012345678901234567890");
}

TEST_F(WindowMenuTest, ATitleOf31CharactersIsShownAsItsFirst27AndDots) {
  EXPECT_EQ(ShortTitle("1234567890123456789012345678901"), "123456789012345678901234567...");
}

TEST_F(WindowMenuTest, ShortTitlesAreCountedInCharacters) {
  const std::string japanese = "一二三四五六七八九十一二三四五六七八九十一二三四五六七八九十";
  EXPECT_EQ(ShortTitle(japanese), japanese);
  EXPECT_EQ(ShortTitle(japanese + "😀"),
            "一二三四五六七八九十一二三四五六七八九十一二三四五六七...");
}

TEST_F(WindowMenuTest, AmpersandsOfTheTitleAreShownLiterally) {
  KorvaleCopy& korvale = StartedAfter(Open("Tom & Jerry && Co"));
  korvale.TagPrevious();
  const std::vector<ShownMenuItem> items = korvale.WindowMenuItems();
  EXPECT_EQ(items[1], (ShownMenuItem{"[Tom & Jerry && Co]  Always On Top", "T", false, true}));
  EXPECT_EQ(items[7], (ShownMenuItem{"1  Tom & Jerry && Co", "1", false, true}));
  EXPECT_EQ(items.back().accessKey, "W");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "1"), "&1  Tom & Jerry && Co");
}

TEST_F(WindowMenuTest, ThePopUpPadsItsFirstAddEntryAndTheNextOpeningTrimsIt) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  std::vector<ShownMenuItem> popUp;
  korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>& items) {
    popUp = items;
    return std::string();
  });
  PressHotKey(win32::kModWin, 'W');
  ASSERT_GT(popUp.size(), 2U);
  EXPECT_EQ(popUp[popUp.size() - 2].caption,
            std::string(27, ' ') + "Add  Korvale  to Window menu...");
  const auto items = korvale.WindowMenuItems();
  EXPECT_EQ(items[items.size() - 2].caption, "Add  Korvale  to Window menu...");
}

TEST_F(WindowMenuTest, ThePopUpComesToTheFrontAndAChoiceSelectsTheWindow) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  log.Clear();
  korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>&) {
    EXPECT_EQ(Front(), "Korvale - Work");
    return "1  Alpha";
  });

  PressHotKey(win32::kModWin, 'W');

  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(log.CallsOf("PostMessageW").size(), 1U);
}

TEST_F(WindowMenuTest, PreviousWindowItemsAreDisabledWithoutAPreviousWindow) {
  KorvaleCopy& korvale = StartedCopy();
  const auto items = korvale.WindowMenuItems();
  EXPECT_FALSE(items[1].enabled);
  EXPECT_FALSE(items[6].enabled);
  EXPECT_FALSE(items.back().enabled);
  EXPECT_EQ(korvale.TargetWindow(), "");
}

TEST_F(WindowMenuTest, OpeningTheMenuNoticesAWindowThatHasClosed) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.Close(alpha);
  EXPECT_FALSE(korvale.WindowMenuItems()[6].enabled);
}

TEST_F(WindowMenuTest, ASelectedTagMovesThePreviousWindowOn) {
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta", {.className = "B"}));
  PressTag(1);
  EXPECT_EQ(korvale.Parts().previous.current, (WindowTriple{alpha, "Alpha", "A"}));
  EXPECT_EQ(korvale.Parts().previous.alternate.text, "Beta");
  EXPECT_EQ(korvale.Parts().previous.alternate.className, "B");
}

TEST_F(WindowMenuTest, Alt0AfterATagGoesBackAndThereAgain) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  PressTag(1);
  PressTag(0);
  EXPECT_EQ(Front(), "Beta");
  PressTag(0);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(WindowMenuTest, SelectingFromTheMainWindowMakesItTheAlternate) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  WorkIn(korvale.Handle());
  PressTag(1);
  EXPECT_EQ(korvale.Parts().previous.current.handle, alpha);
  EXPECT_EQ(korvale.Parts().previous.alternate.handle, korvale.Handle());
  EXPECT_EQ(korvale.Form().FocusTag(), "");
}

TEST_F(WindowMenuTest, TheWindowInFrontIsOnlyRestored) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  WorkIn(alpha);
  const WindowTriple alternate = korvale.Parts().previous.alternate;
  log.Clear();
  PressTag(1);
  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
  EXPECT_TRUE(log.CallsOf("ShowWindow").empty());
  EXPECT_EQ(korvale.Parts().previous.alternate, alternate);
}

TEST_F(WindowMenuTest, AMinimizedWindowIsRestored) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.UserMinimizes(alpha);
  PressTag(1);
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_FALSE(desktop.IsIconic(alpha));
}

TEST_F(WindowMenuTest, Tag0InTheMainWindowSelectsTheCurrentPreviousWindow) {
  const WindowHandle alpha = Open("Alpha");
  WorkIn(Open("Beta"));
  StartedAfter(alpha);
  PressTag(0);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(WindowMenuTest, AClosedTagWindowIsReportedAsNotOpen) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  const WindowHandle beta = Open("Beta");
  WorkIn(beta);
  desktop.Close(alpha);
  WorkIn(beta);
  const PreviousWindow before = korvale.Parts().previous;
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale.Parts().previous.current, before.current);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(WindowMenuTest, ADisabledTagWindowIsReportedAsNotEnabled) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.SetEnabled(alpha, false);
  ExpectMessage(korvale, "Window:  [Alpha]  is not enabled, and currently cannot be selected.",
                win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WindowMenuTest, AFailedActivationIsReportedOnce) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.LockForeground(true);
  // The window is there at each of the three attempts and changes its title at the last one.
  log.WhenCalled("SetForegroundWindow", [&] {
    log.WhenCalled("SetForegroundWindow", [&] {
      log.WhenCalled("SetForegroundWindow", [&] { desktop.Rename(alpha, "Another"); });
    });
  });
  ExpectMessage(korvale, "The window operation was not successful.  Please try again.",
                win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AWindowThatWindowsKeepsInTheBackgroundIsNoReasonForAMessage) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.LockForeground(true);
  log.Clear();
  PressTag(1);
  EXPECT_EQ(log.CallsOf("SetForegroundWindow").size(), 3U);
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(WindowMenuTest, AReopenedWindowIsFoundAgain) {
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.Close(alpha);
  const WindowHandle again = Open("Alpha", {.className = "A"});
  WorkIn(Open("Gamma"));
  PressTag(1);
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.Parts().tags.mnuWindowParentList.Find(1)->tag, std::to_string(again));
}

TEST_F(WindowMenuTest, AWindowOfAnotherClassIsFoundByItsTitleAloneAndTeachesItsClass) {
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  desktop.Close(alpha);
  Open("Alpha", {.className = "New"});
  WorkIn(Open("Beta"));
  PressTag(1);
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.Parts().tags.ParentWindowClass[0], "New");
}

TEST_F(WindowMenuTest, AWindowWithoutChildrenIsFoundByTitleAndTheLastMatchWins) {
  KorvaleCopy& korvale = StartedAfter(Open("Clock", {.children = 0}));
  korvale.TagPrevious();
  EXPECT_EQ(korvale.Parts().tags.mnuWindowParentList.Find(1)->tag, "0");
  EXPECT_EQ(korvale.Parts().tags.ParentWindowClass[0], "");
  const WindowHandle upper = Open("Clock 2", {.className = "C2", .children = 0});
  WorkIn(Open("Beta"));
  PressTag(1);
  EXPECT_EQ(Front(), "Clock");
  EXPECT_NE(desktop.GetForegroundWindow(), upper);
}

TEST_F(WindowMenuTest, WhileASearchIsForbiddenATagIsTriedOnlyOnce) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  desktop.Close(alpha);
  Open("Alpha");
  WorkIn(Open("Gamma"));
  korvale.Form().TheWindowMenu().windowSearch = true;
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", win32::kMbSetForeground);
  log.IncludeReads(true);
  log.Clear();
  korvale.Form().mnuWindowParentList_Click(1);
  EXPECT_TRUE(log.CallsOf("EnumWindows").empty());
}

TEST_F(WindowMenuTest, TimersRestDuringASelection) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  bool running = true;
  log.WhenCalled("SetForegroundWindow", [&] { running = korvale.Form().tmrWindow().Enabled(); });
  PressTag(1);
  EXPECT_FALSE(running);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(WindowMenuTest, AddingWithoutAPreviousWindowAsksForOne) {
  KorvaleCopy& korvale = StartedCopy();
  ExpectMessage(
      korvale,
      "Please select a 'Previous' window to add to the list, then try this operation again.", 0);
  korvale.Form().TheWindowMenu().mnuWindowAddToList_Click(2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AddingADisabledPreviousWindowIsRefused) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.SetEnabled(alpha, false);
  ExpectMessage(korvale, "Window:  [Alpha]  is not enabled.", 0);
  korvale.Form().TheWindowMenu().mnuWindowAddToList_Click(2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AddingAClosedPreviousWindowIsRefused) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.Close(alpha);
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", 0);
  korvale.Form().TheWindowMenu().mnuWindowAddToList_Click(2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AddingAPreviousWindowThatChangedItsClassShowsTheFailure) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.Parts().previous.current.className = "Another";
  ExpectMessage(korvale, "The window operation was not successful.  Please try again.",
                win32::kMbSetForeground);
  korvale.Form().TheWindowMenu().mnuWindowAddToList_Click(2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, TheMainWindowItselfCanBeTagged) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    EXPECT_EQ(dialog.Caption(), "Korvale - Add Window");
    EXPECT_EQ(dialog.Place().height, 3465);
    EXPECT_EQ(dialog.Find("cmdOK").Place().top, 2700);
    EXPECT_EQ(dialog.Find("txtWindow").Text(), "Korvale - Work");
    korvale.user.Click(dialog.Handle(), dialog.Find("cmdOK").Id());
  });
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  Korvale  to Window menu..."});
  WorkIn(Open("Beta"));
  const PreviousWindow before = korvale.Parts().previous;
  PressTag(1);
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(korvale.Parts().previous.current, before.current);
}

TEST_F(WindowMenuTest, EveryCommandIsStoredAtOnce) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "1"), "&1  Alpha");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowClass", "1"), "Window");
}

}  // namespace
}  // namespace korvale

#include "tests/program/window_menu_test.h"

#include "forms/window_menu.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

TEST_F(WindowMenuTest, ShowsItsEntriesInTheirOrder) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.TagPrevious();
  EXPECT_EQ(Captions(korvale.WindowMenuItems()),
            (std::vector<std::string>{"Korvale  Always On Top", "[Alpha]  Always On Top", "-",
                                      "Minimize All", "Restore All", "-", "0  Previous Window",
                                      "1  Alpha", "-", "Add  Korvale  to Window menu...",
                                      "Add  [Alpha]  to Window menu..."}));
}

TEST_F(WindowMenuTest, HasItsCaptionsBeforeItIsOpened) {
  frmMain& form = StartedCopy().Form();
  EXPECT_EQ(form.Menu("mnuWindow").caption, "&Window");
  EXPECT_EQ(form.Menu("mnuWindowAlwaysOnTop").caption, "Korvale  Always &On Top");
  EXPECT_EQ(form.Menu("mnuWindowMinimizeAll").caption, "&Minimize All");
  EXPECT_EQ(form.Menu("mnuWindowRestoreAll").caption, "&Restore All");
  EXPECT_EQ(form.Menu("mnuWindowParentList", 0).caption, "&0  Previous Window");
  EXPECT_EQ(form.Menu("mnuWindowAddToList", 1).caption, "Add  Korvale  to Window men&u...");
  for (const auto& item : form.Menu("mnuWindow").items) {
    EXPECT_EQ(item->caption.find('*'), std::string::npos) << item->name;
  }
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

TEST_F(WindowMenuTest, ShortTitlesEndBetweenWhatReadersTakeForCharacters) {
  const std::string letters(26, 'x');
  EXPECT_EQ(ShortTitle(letters + "e\u0301" + "abc"), letters + "...");
  EXPECT_EQ(ShortTitle(letters + "ae\u0301" + "bc"), letters + "a...");
  EXPECT_EQ(ShortTitle(letters + "👩‍💻👩‍💻"), letters + "...");
  EXPECT_EQ(ShortTitle(letters + "🇩🇪🇫🇷🇯🇵"), letters + "...");
  EXPECT_EQ(ShortTitle(letters + "स्ते हि"), letters + "...");
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

TEST_F(WindowMenuTest, EachPopUpPadsItsFirstAddEntryAndTheNextOpeningTrimsIt) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  for (int i = 0; i < 2; ++i) {
    std::vector<ShownMenuItem> popUp;
    korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>& items) {
      popUp = items;
      return std::string();
    });
    PressHotKey(win32::kModWin, 'W');
    ASSERT_GT(popUp.size(), 2U);
    EXPECT_EQ(popUp[popUp.size() - 2].caption,
              std::string(27, ' ') + "Add  Korvale  to Window menu...");
  }
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

TEST_F(WindowMenuTest, AddingWithoutAPreviousWindowAsksForOne) {
  KorvaleCopy& korvale = StartedCopy();
  ExpectMessage(
      korvale,
      "Please select a 'Previous' window to add to the list, then try this operation again.", 0);
  korvale.ChooseLate("mnuWindowAddToList", 2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AddingADisabledPreviousWindowIsRefused) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.SetEnabled(alpha, false);
  ExpectMessage(korvale, "Window:  [Alpha]  is not enabled.", 0);
  korvale.ChooseLate("mnuWindowAddToList", 2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AddingAClosedPreviousWindowIsRefused) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.Close(alpha);
  ExpectMessage(korvale, "Window:  [Alpha]  is not open.", 0);
  korvale.ChooseLate("mnuWindowAddToList", 2);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(WindowMenuTest, AddingAPreviousWindowThatChangedItsClassShowsTheFailure) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.Record().current.className = "Another";
  ExpectMessage(korvale, "The window operation was not successful.  Please try again.",
                win32::kMbSetForeground);
  korvale.ChooseLate("mnuWindowAddToList", 2);
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
  const PreviousWindow before = korvale.Record();
  ExpectTagLeadsTo(1, "Korvale - Work");
  EXPECT_EQ(korvale.Record().current, before.current);
}

TEST_F(WindowMenuTest, ATagIsStoredAtOnce) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowList", "1"), "&1  Alpha");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "ParentWindowClass", "1"), "Window");
}

}  // namespace
}  // namespace korvale

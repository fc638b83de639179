#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

class MainWindowKeysTest : public MainWindowTest {
 protected:
  static bool AboutIsOpen(KorvaleCopy& copy) { return copy.FindForm("frmMsgBox2") != nullptr; }
  /// About is open, and the user is in the main window.
  KorvaleCopy& BehindAbout() {
    KorvaleCopy& copy = StartedCopy();
    Choose(copy, {"Help", "About Korvale"});
    EXPECT_TRUE(AboutIsOpen(copy));
    desktop.UserActivates(copy.Handle());
    clock.Advance(50);
    return copy;
  }
  void ExpectAboutClosedNow(KorvaleCopy& copy) {
    EXPECT_FALSE(AboutIsOpen(copy));
    EXPECT_EQ(copy.Form().About().AboutClosed(), clock.GetTickCount64());
  }
};

TEST_F(MainWindowKeysTest, AKeyClosesAboutAndNotesTheTime) {
  KorvaleCopy& korvale = BehindAbout();
  korvale.user.PressKey(korvale.Handle(), win32::kVkLeft);
  ExpectAboutClosedNow(korvale);
}

TEST_F(MainWindowKeysTest, AnyKeyClosesAboutWhateverElseItDoes) {
  const std::pair<int, unsigned> keys[] = {
      {win32::kVkF1, kNoShift}, {'V', kAlt}, {'X', kNoShift}, {win32::kVkReturn, kNoShift}};
  KorvaleCopy& korvale = BehindAbout();
  for (const auto& [key, shift] : keys) {
    korvale.user.PressKey(korvale.Handle(), key, shift);
    EXPECT_FALSE(AboutIsOpen(korvale)) << key;
    korvale.host.EndMenu();
    Choose(korvale, {"Help", "About Korvale"});
    desktop.UserActivates(korvale.Handle());
  }
}

TEST_F(MainWindowKeysTest, TheMouseOverTheWindowClosesAbout) {
  KorvaleCopy& korvale = BehindAbout();
  korvale.user.MoveMouse(korvale.Handle(), 0, 10, 10);
  ExpectAboutClosedNow(korvale);
}

TEST_F(MainWindowKeysTest, TheMouseOverEitherFieldClosesAbout) {
  KorvaleCopy& korvale = BehindAbout();
  korvale.user.MoveMouse(korvale.Handle(), Field(korvale), 10, 10);
  ExpectAboutClosedNow(korvale);
  Choose(korvale, {"Help", "About Korvale"});
  korvale.user.MoveMouse(korvale.Handle(), Field(korvale, "txtWindowClass"), 10, 10);
  ExpectAboutClosedNow(korvale);
}

TEST_F(MainWindowKeysTest, F1OpensTheHelpMenu) {
  KorvaleCopy& korvale = StartedCopy();
  desktop.UserActivates(korvale.Handle());
  log.Clear();
  korvale.user.PressKey(korvale.Handle(), win32::kVkF1);
  EXPECT_EQ(log.CallsOf("SendInput"), std::vector<std::string>{"SendInput(frmMain, 72, 4)"});
  EXPECT_EQ(korvale.user.OpenMenuItems().front().caption, "Display Tip Messages");
}

TEST_F(MainWindowKeysTest, F1OpensTheHiddenHelpMenuToo) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.PressKey(korvale.Handle(), win32::kVkF1);
  EXPECT_EQ(korvale.user.OpenMenuItems().front().caption, "Display Tip Messages");
}

TEST_F(MainWindowKeysTest, F1WithAModifierOpensNothing) {
  KorvaleCopy& korvale = StartedCopy();
  for (const unsigned shift : {unsigned{kShift}, unsigned{kCtrl}, unsigned{kAlt}, kShift | kCtrl}) {
    korvale.user.PressKey(korvale.Handle(), win32::kVkF1, shift);
    EXPECT_TRUE(log.CallsOf("SendInput").empty()) << shift;
    EXPECT_TRUE(korvale.user.OpenMenuItems().empty()) << shift;
  }
}

TEST_F(MainWindowKeysTest, AltAndLetterOpenTheHiddenMenus) {
  const std::vector<std::pair<char, std::string>> menus = {{'H', "Display Tip Messages"},
                                                           {'W', "Korvale  Always On Top"},
                                                           {'T', "Deactivate Hot Keys"},
                                                           {'V', "Menu"}};
  Store("Menu", "False");
  for (const auto& [letter, first] : menus) {
    KorvaleCopy& korvale = StartedCopy();
    korvale.user.PressKey(korvale.Handle(), letter, kAlt);
    ASSERT_FALSE(korvale.user.OpenMenuItems().empty()) << letter;
    EXPECT_EQ(korvale.user.OpenMenuItems().front().caption, first);
    EXPECT_FALSE(korvale.Form().Menu("mnuViewMenu").checked);
    korvale.Form().mnuFileExit_Click();
    EndCopy(korvale);
  }
}

TEST_F(MainWindowKeysTest, OtherKeysLeaveTheMenuHidden) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.PressKey(korvale.Handle(), 'F', kAlt);
  korvale.user.PressKey(korvale.Handle(), 'V');
  korvale.user.PressKey(korvale.Handle(), 'V', kAlt | kShift);
  EXPECT_FALSE(MenuIsShown(korvale));
}

TEST_F(MainWindowKeysTest, TheMenuHidesAgainAfterItsCommand) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  const Twips height = Height(korvale);
  korvale.user.PressKey(korvale.Handle(), 'H', kAlt);
  EXPECT_TRUE(MenuIsShown(korvale));
  EXPECT_EQ(Stored("Menu"), "False");
  korvale.user.PressKey(korvale.Handle(), 'H');
  EXPECT_FALSE(MenuIsShown(korvale));
  EXPECT_EQ(Height(korvale), height);
}

TEST_F(MainWindowKeysTest, TheMenuOfAMomentDoesNotCoverTheFields) {
  Store("Menu", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.PressKey(korvale.Handle(), 'V', kAlt);
  EXPECT_EQ(korvale.user.Place(korvale.Handle(), Field(korvale)).height, 285);
  EXPECT_EQ(Height(korvale), 400 + 300 + 285 + 115);
}

TEST_F(MainWindowKeysTest, AltF4Exits) {
  KorvaleCopy& korvale = StartedCopy();
  desktop.UserActivates(korvale.Handle());
  korvale.user.PressKey(korvale.Handle(), win32::kVkF4, kAlt);
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_TRUE(korvale.host.QuitPosted());
}

TEST_F(MainWindowKeysTest, F4WithoutAltDoesNotExit) {
  KorvaleCopy& korvale = StartedCopy();
  desktop.UserActivates(korvale.Handle());
  for (const unsigned shift : {unsigned{kNoShift}, unsigned{kShift}, unsigned{kCtrl}}) {
    korvale.user.PressKey(korvale.Handle(), win32::kVkF4, shift);
    EXPECT_TRUE(korvale.Form().IsLoaded()) << shift;
  }
}

TEST_F(MainWindowKeysTest, TurningTipsOffKeepsTheSilencedOnes) {
  Store("Tips", "0");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_TRUE(IsChecked(korvale, "Help", "Display Tip Messages"));
  Choose(korvale, {"Help", "Display Tip Messages"});
  EXPECT_FALSE(IsChecked(korvale, "Help", "Display Tip Messages"));
  EXPECT_EQ(Stored("DisplayTips"), "False");
  EXPECT_EQ(Stored("Tips"), "0");
}

TEST_F(MainWindowKeysTest, TurningTipsOnAsksWhetherToShowAllOfThem) {
  Store("Tips", "0110");
  Store("DisplayTips", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.ExpectBox(
      "Tip Messages are now set to be displayed.\r\rDo you want to Reset Tip Messages "
      "(show all messages that you have previously chosen not to show) ?",
      "Korvale", 260, win32::kIdYes);
  Choose(korvale, {"Help", "Display Tip Messages"});
  EXPECT_EQ(Stored("Tips"), "");
  EXPECT_EQ(Stored("DisplayTips"), "True");
  EXPECT_EQ(korvale.State().lastAnswer, 6);
}

TEST_F(MainWindowKeysTest, NoKeepsTheSilencedTips) {
  Store("Tips", "0110");
  Store("DisplayTips", "False");
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  Choose(korvale, {"Help", "Display Tip Messages"});
  EXPECT_EQ(Stored("Tips"), "0110");
  EXPECT_EQ(Stored("DisplayTips"), "True");
  EXPECT_EQ(korvale.State().lastAnswer, 7);
}

TEST_F(MainWindowKeysTest, WebPagesOpenFromTheFolderOfTheProgram) {
  KorvaleCopy& korvale = StartedCopy();
  for (const char* page : {"web:  Help", "web:  Korvale Home Page", "web:  Readme"}) {
    Choose(korvale, {"Help", page});
  }
  const std::string start = "ShellExecuteA(frmMain, \"Open\", \"C:\\Programs\\Work\\web\\";
  EXPECT_EQ(log.CallsOf("ShellExecuteA"),
            (std::vector<std::string>{start + "help.html\", SW_SHOWNORMAL)",
                                      start + "index.html\", SW_SHOWNORMAL)",
                                      start + "readme.html\", SW_SHOWNORMAL)"}));
}

TEST_F(MainWindowKeysTest, AboutStaysAwayWhenTheSessionEndsBeforeIt) {
  KorvaleCopy& korvale = StartedCopy();
  Resize(korvale, 6000, 1100);
  store.RefuseWrites(true);
  korvale.EndSessionAtBox(win32::kIdOk);
  Choose(korvale, {"Help", "About Korvale"});
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_FALSE(AboutIsOpen(korvale));
}

TEST_F(MainWindowKeysTest, AboutShowsTheHomePageAndOpensIt) {
  KorvaleCopy& korvale = StartedCopy();
  Choose(korvale, {"Help", "About Korvale"});
  class Form& about = korvale.Loaded("frmMsgBox2");
  EXPECT_EQ(about.Find("lblWebSite").Text(), "web\\index.html");
  korvale.user.Click(about.Handle(), korvale.Id(about, "lblWebSite"));
  EXPECT_EQ(log.CallsOf("ShellExecuteA"),
            std::vector<std::string>{"ShellExecuteA(frmMain, \"Open\", "
                                     "\"C:\\Programs\\Work\\web\\index.html\", SW_SHOWNORMAL)"});
}

}  // namespace
}  // namespace korvale

#include "tests/endtoend/harness/spoken.h"
#include "tests/endtoend/harness/spoken_menu.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

/// What a screen reader says of the menus.
class ScreenReaderInMenus : public KorvaleTest {
 protected:
  static std::string ReadMenu(Window window) { return Table(SpokenMenu(window)); }
  /// Opens a menu of the bar by its letter, reads it and closes it.
  std::string ReadMenuOfLetter(UINT letter) {
    Press({MOD_ALT, letter});
    const Window menu = korvale_->OpenMenu();
    if (!menu) return "the menu does not open";
    std::string read = ReadMenu(menu);
    // The second leaves the bar.
    Press({0, VK_ESCAPE});
    Press({0, VK_ESCAPE});
    return WaitFor([this] { return !korvale_->HasMenu(); }) ? read : "the menu does not close";
  }
};

TEST_F(ScreenReaderInMenus, ReadsTheMenuBar) {
  Start();
  EXPECT_EQ(ReadMenu(main()), R"(
entry 'File', with a menu, F
entry 'View', with a menu, V
entry 'Tools', with a menu, T
entry 'Window', with a menu, W
entry 'Help', with a menu, H)");
}

TEST_F(ScreenReaderInMenus, ReadsTheMenusOfTheBar) {
  installation_.settings().Set("Startup", "DisplayTips", "False");
  Start();
  EXPECT_EQ(ReadMenuOfLetter('F'), R"(
entry 'Exit', X)");
  EXPECT_EQ(ReadMenuOfLetter('V'), R"(
entry 'Menu', checked, M
entry 'Target Window', checked, T
separator
entry 'Customize Colors - C', C
entry 'Default Settings', with a menu, D
separator
entry 'Options...', P)");
  EXPECT_EQ(ReadMenuOfLetter('T'), R"(
entry 'Deactivate Hot Keys', H
entry 'Options...', O)");
  EXPECT_EQ(ReadMenuOfLetter('H'), R"(
entry 'Display Tip Messages', D
separator
entry 'web: Help', H
entry 'web: Korvale Home Page', P
entry 'web: Readme', R
separator
entry 'About Korvale', A)");
}

TEST_F(ScreenReaderInMenus, ReadsTheWindowMenuWithItsCheckMarks) {
  installation_.StoreTag(3, "Q&A", "Test.Window");
  installation_.settings().Set("Startup", "AlwaysOnTop", "True");
  Start();
  WorkInNew({.title = "Q&A", .extended_style = WS_EX_TOPMOST});
  ASSERT_TRUE(BringToFront(main()));
  EXPECT_EQ(ReadMenuOfLetter('W'), R"(
entry 'Korvale Always On Top', checked, O
entry '[Q&A] Always On Top', checked, T
separator
entry 'Minimize All', M
entry 'Restore All', R
separator
entry '0 Previous Window', 0
entry '3 Q&A', 3
separator
entry 'Add Korvale to Window menu...', U
entry 'Add [Q&A] to Window menu...', W)");
}

TEST_F(ScreenReaderInMenus, ReadsWhatTheWindowMenuCannotDoWithoutAPreviousWindow) {
  Start();
  EXPECT_EQ(ReadMenuOfLetter('W'), R"(
entry 'Korvale Always On Top', O
entry '[] Always On Top', unavailable, T
separator
entry 'Minimize All', M
entry 'Restore All', R
separator
entry '0 Previous Window', unavailable, 0
separator
entry 'Add Korvale to Window menu...', U
entry 'Add [] to Window menu...', unavailable, W)");
}

TEST_F(ScreenReaderInMenus, ReadsTheWindowMenuThatPopsUp) {
  installation_.StoreTag(2, "Notes", "Test.Window");
  Start();
  WorkInNew("Letter");
  ASSERT_TRUE(PopUpWindowMenu());
  EXPECT_EQ(ReadMenu(korvale_->OpenMenu()), R"(
entry 'Korvale Always On Top', O
entry '[Letter] Always On Top', T
separator
entry 'Minimize All', M
entry 'Restore All', R
separator
entry '0 Previous Window', 0
entry '2 Notes', 2
separator
entry 'Add Korvale to Window menu...', U
entry 'Add [Letter] to Window menu...', W)");
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
}

}  // namespace
}  // namespace korvale::endtoend

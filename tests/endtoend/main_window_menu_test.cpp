#include <algorithm>
#include <vector>

#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kCaution[] =
    "CAUTION:  This will hide the menu.  The only way of accessing the hidden menu is by (Alt+V), "
    "(Alt+T), (Alt+W) or (Alt+H).";

class MainWindowMenu : public KorvaleTest {
 protected:
  MainWindow window() { return MainWindow(main()); }

  /// Chooses View, Menu, and returns the question whether the menu should really go.
  Window AskToHide() {
    EXPECT_TRUE(Choose('V', {'M'}));
    return korvale_->MessageBox();
  }

  void StartWithHiddenMenu() {
    installation_.settings().Set("Startup", "Menu", "False");
    Start();
  }

  bool MenuBarComes() {
    return WaitFor([this] { return window().HasMenuBar(); });
  }
  bool MenuBarGoes() {
    return WaitFor([this] { return !window().HasMenuBar(); });
  }
};

TEST_F(MainWindowMenu, StaysWhenTheCautionIsAnsweredByEnter) {
  Start();
  const int height = window().Height();
  const Window caution = AskToHide();
  ASSERT_TRUE(caution);
  EXPECT_EQ(caution.Title(), "Korvale");
  EXPECT_EQ(LabelText(caution), kCaution);
  ASSERT_TRUE(InFront(caution));
  Press({0, VK_RETURN});
  EXPECT_TRUE(InFront(main()));
  EXPECT_TRUE(StaysInFront(main()));
  EXPECT_TRUE(window().HasMenuBar());
  EXPECT_EQ(window().Height(), height);
  // Nothing has changed, so nothing is saved before the end.
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(Stored("Menu", "True"));
}

TEST_F(MainWindowMenu, OpensNothingForAWebPageThatIsMissingAndGoesOn) {
  Start();
  for (const UINT page : {'H', 'P', 'R'}) {
    ASSERT_TRUE(Choose('H', {page}));
    EXPECT_TRUE(StaysInFront(main()));
  }
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(Stored("WindowInfo", "False"));
}

TEST_F(MainWindowMenu, HidesAfterTheCautionAndComesBackWithoutAQuestion) {
  Start();
  const int height = window().Height();
  const Window caution = AskToHide();
  ASSERT_TRUE(caution);
  EXPECT_TRUE(AnswerBox(caution, IDOK));
  EXPECT_TRUE(MenuBarGoes());
  EXPECT_TRUE(WaitFor([&] { return window().Height() < height; }));
  EXPECT_TRUE(Stored("Menu", "False"));
  ASSERT_TRUE(Exit());
  Start();
  EXPECT_FALSE(window().HasMenuBar());
  ASSERT_TRUE(Choose('V', {'M'}));
  EXPECT_TRUE(MenuBarComes());
  EXPECT_TRUE(WaitFor([&] { return window().Height() == height; }));
  EXPECT_TRUE(Stored("Menu", "True"));
  EXPECT_FALSE(korvale_->HasMessageBox());
}

TEST_F(MainWindowMenu, HiddenOpensItsViewMenuByAltVAndHidesAgain) {
  StartWithHiddenMenu();
  ASSERT_TRUE(BringToFront(main()));
  Press({MOD_ALT, 'V'});
  ASSERT_TRUE(korvale_->OpenMenu());
  EXPECT_TRUE(window().HasMenuBar());
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([this] { return !window().ShowsBoxes(); }));
  EXPECT_TRUE(MenuBarGoes());
  EXPECT_TRUE(Stored("WindowInfo", "False"));
}

TEST_F(MainWindowMenu, HiddenOpensItsToolsMenuByAltTAndHidesAgain) {
  StartWithHiddenMenu();
  ASSERT_TRUE(Choose('T', {'O'}));
  EXPECT_TRUE(korvale_->Form("frmOptions"));
  EXPECT_TRUE(MenuBarGoes());
}

TEST_F(MainWindowMenu, HiddenOpensItsWindowMenuByAltWAndHidesAgain) {
  StartWithHiddenMenu();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const AddWindowDialog dialog = OpenAddWindow();
  EXPECT_TRUE(dialog.Cancel());
  EXPECT_TRUE(MenuBarGoes());
}

TEST_F(MainWindowMenu, HiddenOpensItsHelpMenuByAltHAndByF1AndHidesAgain) {
  StartWithHiddenMenu();
  for (const Chord chord : {Chord{MOD_ALT, 'H'}, Chord{0, VK_F1}}) {
    ASSERT_TRUE(BringToFront(main()));
    Press(chord);
    ASSERT_TRUE(korvale_->OpenMenu());
    Press({0, 'A'});
    const Window about = korvale_->Form("frmMsgBox2");
    ASSERT_TRUE(InFront(about));
    EXPECT_TRUE(MenuBarGoes());
    Press({0, VK_ESCAPE});
    EXPECT_TRUE(WaitFor([this] { return !korvale_->HasForm("frmMsgBox2"); }));
  }
}

TEST_F(MainWindowMenu, OpensItsHelpMenuByF1Alone) {
  Start();
  for (const UINT modifier : {MOD_SHIFT, MOD_CONTROL, MOD_ALT}) {
    Press({modifier, VK_F1});
    EXPECT_TRUE(HoldsFor([this] { return !korvale_->HasMenu(); })) << modifier;
  }
  Press({0, VK_F1});
  ASSERT_TRUE(korvale_->OpenMenu());
  Press({0, 'A'});
  EXPECT_TRUE(korvale_->Form("frmMsgBox2"));
}

TEST_F(MainWindowMenu, HiddenLeavesAltF4TheWayToTheEnd) {
  StartWithHiddenMenu();
  ASSERT_TRUE(Exit());
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  EXPECT_TRUE(Stored("Menu", "False"));
}

TEST_F(MainWindowMenu, EndsTheProgramByFileExit) {
  Start();
  ASSERT_TRUE(Choose('F', {'X'}));
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
}

/// As when the user has taken the pages out of the folder.
TEST_F(MainWindowMenu, ADocumentThatCannotBeOpenedDisturbsNothing) {
  Start();
  const Window alpha = WorkInNew("Alpha");
  const std::vector<Window> before = TopLevelWindows();
  const auto is_new = [&](Window window) {
    return window.Visible() && std::ranges::find(before, window) == before.end();
  };
  for (const UINT page : {'H', 'P', 'R'}) {
    ASSERT_TRUE(Choose('H', {page}));
    EXPECT_TRUE(StaysInFront(main()));
    EXPECT_TRUE(HoldsFor([&] { return !FindTopLevel(is_new); })) << Describe(FindTopLevel(is_new));
  }
  EXPECT_TRUE(Target("Alpha"));
  ASSERT_TRUE(Choose('V', {'T'}));
  EXPECT_TRUE(WaitFor([this] { return !window().ShowsBoxes(); }));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha));
}

}  // namespace
}  // namespace korvale::endtoend

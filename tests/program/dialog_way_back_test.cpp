#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// Alt+0 among windows that are disabled by a dialog of theirs.
class DialogWayBackTest : public KorvaleWorld {
 protected:
  DialogWayBackTest() {
    for (const WindowHandle hwnd : {gamma, beta, alpha}) WorkIn(hwnd);
  }

  /// The user opens a dialog in the window.
  WindowHandle OpenDialog(WindowHandle window, const std::string& title) {
    const WindowHandle dialog = desktop.OpenModalDialog(window, title);
    LetTick();
    return dialog;
  }

  const WindowHandle gamma = Open("Gamma", {.className = "G"});
  const WindowHandle beta = Open("Beta", {.className = "B"});
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(DialogWayBackTest, LeadsToTheDialogAndBack) {
  OpenDialog(alpha, "Save As");
  WorkIn(beta);
  for (int i = 0; i < 2; ++i) {
    ExpectTagLeadsTo(0, "Save As");
    ExpectTagLeadsTo(0, "Beta");
  }
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(DialogWayBackTest, LeadsToTheInnermostDialog) {
  OpenDialog(OpenDialog(alpha, "Save As"), "Replace it?");
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Replace it?");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(DialogWayBackTest, LeadsFromTheDialogToTheWindowBefore) {
  OpenDialog(alpha, "Save As");
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Save As");
}

TEST_F(DialogWayBackTest, LeadsFromTheMainWindowToWhereTheUserWas) {
  const WindowHandle dialog = OpenDialog(alpha, "Save As");
  WorkIn(korvale.Handle());
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  ExpectTagLeadsTo(0, "Save As");
  ExpectTagLeadsTo(0, "Korvale - Work");
  WorkIn(alpha);
  desktop.CloseModalDialog(dialog);
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  ExpectTagLeadsTo(0, "Korvale - Work");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(DialogWayBackTest, CountsAVisitToTheDialogAsOneToItsWindow) {
  OpenDialog(alpha, "Save As");
  WorkIn(gamma);
  WorkIn(beta);
  WorkIn(alpha);
  ASSERT_EQ(Front(), "Save As");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Save As");
}

TEST_F(DialogWayBackTest, KnowsTheWindowOfADialogThatWasThereFirst) {
  const WindowHandle late = desktop.Open("Late", {.className = "L", .activate = false});
  OpenDialog(late, "Welcome");
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Welcome");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(DialogWayBackTest, TakesADialogThatIsFollowedItselfForAWindowOfItsOwn) {
  desktop.SetEnabled(alpha, false);
  const WindowHandle dialog = desktop.Open("Wizard", {.owner = alpha});
  LetTick();
  EXPECT_EQ(korvale.TargetWindow(), "Wizard");
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Wizard");
  desktop.CloseModalDialog(dialog);
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(DialogWayBackTest, UnfoldsAWindowThatWasMinimizedWithItsDialog) {
  OpenDialog(alpha, "Save As");
  desktop.UserMinimizes(alpha);
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Save As");
  EXPECT_FALSE(desktop.IsIconic(alpha));
}

TEST_F(DialogWayBackTest, PassesOverAWindowThatNothingMakesUsable) {
  desktop.SetEnabled(beta, false);
  ExpectTagLeadsTo(0, "Gamma");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(DialogWayBackTest, MinimizingBringsTheDialogForward) {
  OpenDialog(alpha, "Save As");
  WorkIn(beta);
  PressHotKey(win32::kModAlt, win32::kVkDown);
  EXPECT_EQ(Front(), "Save As");
  EXPECT_TRUE(desktop.IsIconic(beta));
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(DialogWayBackTest, ClosingTheOptionsGivesTheDialogTheForegroundBack) {
  OpenDialog(alpha, "Save As");
  PressHotKey(win32::kModWin, 'O');
  class Form& options = korvale.Loaded("frmOptions");
  korvale.user.Click(options.Handle(), korvale.Id(options, "cmdCancel"));
  EXPECT_EQ(Front(), "Save As");
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(DialogWayBackTest, UnfoldsTheOwnerOfTheWindowBefore) {
  const WindowHandle owned = Open("Owned", {.owner = alpha});
  LetTick();
  desktop.UserMinimizes(alpha);
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Owned");
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_TRUE(desktop.IsWindowVisible(owned));
}

TEST_F(DialogWayBackTest, PassesOverAWindowWhoseDialogStaysHiddenWhenItIsRestored) {
  const WindowHandle dialog = OpenDialog(alpha, "Save As");
  desktop.Hide(dialog);
  desktop.UserMinimizes(alpha);
  WorkIn(gamma);
  WorkIn(beta);
  desktop.Close(gamma);
  ExpectTagLeadsTo(0, "Korvale - Work");
}

TEST_F(DialogWayBackTest, PassesOverAMinimizedWindowThatHangs) {
  OpenDialog(alpha, "Save As");
  desktop.UserMinimizes(alpha);
  desktop.SetHung(alpha, true);
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Gamma");
}

TEST_F(DialogWayBackTest, PassesOverAWindowWhoseOwnerIsHidden) {
  Open("Owned", {.owner = alpha});
  desktop.UserMinimizes(alpha);
  desktop.Hide(alpha);
  WorkIn(beta);
  ExpectTagLeadsTo(0, "Gamma");
}

}  // namespace
}  // namespace korvale

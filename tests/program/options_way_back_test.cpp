#include <functional>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// What a visit to the Options dialog leaves behind: nothing.
class OptionsWayBackTest : public KorvaleWorld {
 protected:
  using Close = std::function<void(KorvaleCopy&)>;

  void SetUp() override {
    beta = Open("Beta");
    alpha = Open("Alpha");
  }

  KorvaleCopy& InAlpha() {
    KorvaleCopy& korvale = StartedCopy();
    WorkIn(beta);
    WorkIn(alpha);
    return korvale;
  }

  static WindowHandle Dialog(KorvaleCopy& korvale) { return korvale.Loaded("frmOptions").Handle(); }

  void OpenByHotKey() { PressHotKey(win32::kModWin, 'O'); }

  static void Click(KorvaleCopy& korvale, const char* button) {
    class Form& dialog = korvale.Loaded("frmOptions");
    korvale.user.Click(dialog.Handle(), korvale.Id(dialog, button));
  }

  static std::vector<Close> WaysToClose() {
    return {[](KorvaleCopy& korvale) { Click(korvale, "cmdOK"); },
            [](KorvaleCopy& korvale) { Click(korvale, "cmdCancel"); },
            [](KorvaleCopy& korvale) { korvale.user.PressKey(Dialog(korvale), win32::kVkEscape); },
            [](KorvaleCopy& korvale) { korvale.user.PressCloseBox(Dialog(korvale)); }};
  }

  WindowHandle alpha = 0;
  WindowHandle beta = 0;
};

TEST_F(OptionsWayBackTest, FromTheMainWindowEndsInTheMainWindow) {
  KorvaleCopy& korvale = InAlpha();
  for (const Close& close : WaysToClose()) {
    WorkIn(korvale.Handle());
    korvale.user.ChooseMenu(korvale.Handle(), {"Tools", "Options..."});
    LetTick();
    EXPECT_EQ(korvale.TargetWindow(), "Korvale - Options");
    close(korvale);
    EXPECT_EQ(Front(), "Korvale - Work");
    LetTick();
    EXPECT_EQ(korvale.TargetWindow(), "Alpha");
    PressTag(0);
    EXPECT_EQ(Front(), "Alpha");
  }
}

TEST_F(OptionsWayBackTest, ByHotKeyEndsWhereTheUserWorked) {
  KorvaleCopy& korvale = InAlpha();
  for (const Close& close : WaysToClose()) {
    OpenByHotKey();
    close(korvale);
    EXPECT_EQ(Front(), "Alpha");
    PressTag(0);
    EXPECT_EQ(Front(), "Beta");
    PressTag(0);
  }
}

TEST_F(OptionsWayBackTest, ByHotKeyFromAWindowThatIsNotFollowedLeavesTheWayBackAsItWas) {
  const WindowHandle tool = Open("Tool", {.exStyle = win32::kWsExToolWindow});
  KorvaleCopy& korvale = InAlpha();
  for (const Close& close : WaysToClose()) {
    WorkIn(tool);
    OpenByHotKey();
    close(korvale);
    EXPECT_EQ(Front(), "Tool");
    PressTag(0);
    EXPECT_EQ(Front(), "Beta");
    WorkIn(alpha);
  }
}

TEST_F(OptionsWayBackTest, ByHotKeyLeavesTheMainWindowMinimized) {
  KorvaleCopy& korvale = InAlpha();
  desktop.UserMinimizes(korvale.Handle());
  WorkIn(alpha);
  OpenByHotKey();
  Click(korvale, "cmdCancel");
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_TRUE(desktop.IsIconic(korvale.Handle()));
}

TEST_F(OptionsWayBackTest, EndsInTheDialogThatWasInFront) {
  KorvaleCopy& korvale = InAlpha();
  WorkIn(desktop.OpenModalDialog(alpha, "Save As"));
  OpenByHotKey();
  Click(korvale, "cmdCancel");
  EXPECT_EQ(Front(), "Save As");
}

TEST_F(OptionsWayBackTest, EndsInTheWindowVisitedMeanwhile) {
  KorvaleCopy& korvale = InAlpha();
  OpenByHotKey();
  WorkIn(beta);
  WorkIn(Dialog(korvale));
  Click(korvale, "cmdCancel");
  LetTick();
  EXPECT_EQ(Front(), "Beta");
  PressTag(0);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(OptionsWayBackTest, EndsInTheWindowBeforeOneThatHasClosed) {
  KorvaleCopy& korvale = InAlpha();
  OpenByHotKey();
  desktop.Close(alpha);
  Click(korvale, "cmdCancel");
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(OptionsWayBackTest, ClosedFromBehindLeavesTheFrontAlone) {
  KorvaleCopy& korvale = InAlpha();
  OpenByHotKey();
  WorkIn(beta);
  korvale.Loaded("frmOptions").OnCloseRequested(CloseReason::kUser);
  LetTick();
  EXPECT_EQ(Front(), "Beta");
  PressTag(0);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(OptionsWayBackTest, IsOneKeyAwayWhileItIsOpen) {
  KorvaleCopy& korvale = InAlpha();
  OpenByHotKey();
  WorkIn(alpha);
  PressTag(0);
  EXPECT_EQ(Front(), "Korvale - Options");
  Click(korvale, "cmdCancel");
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(OptionsWayBackTest, FromTheBareDesktopEndsThere) {
  KorvaleCopy& korvale = InAlpha();
  const WindowHandle shell = desktop.FindWindowA("Program Manager");
  for (const Close& close : WaysToClose()) {
    WorkIn(shell);
    OpenByHotKey();
    close(korvale);
    EXPECT_EQ(Front(), "Program Manager");
    LetTick();
    EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  }
}

}  // namespace
}  // namespace korvale

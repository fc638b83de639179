#include <functional>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// What a visit to the Options dialog leaves behind: nothing.
class OptionsWayBackTest : public KorvaleWorld {
 protected:
  using Close = std::function<void()>;

  OptionsWayBackTest() {
    WorkIn(beta);
    WorkIn(alpha);
  }

  WindowHandle Dialog() { return korvale.Loaded("frmOptions").Handle(); }

  void OpenByHotKey() { PressHotKey(win32::kModWin, 'O'); }

  void Click(const char* button) {
    class Form& dialog = korvale.Loaded("frmOptions");
    korvale.user.Click(dialog.Handle(), korvale.Id(dialog, button));
  }

  std::vector<Close> WaysToClose() {
    return {[&] { Click("cmdOK"); }, [&] { Click("cmdCancel"); },
            [&] { korvale.user.PressKey(Dialog(), win32::kVkEscape); },
            [&] { korvale.user.PressCloseBox(Dialog()); }};
  }

  const WindowHandle beta = Open("Beta");
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(OptionsWayBackTest, FromTheMainWindowEndsInTheMainWindow) {
  for (const Close& close : WaysToClose()) {
    WorkIn(korvale.Handle());
    korvale.user.ChooseMenu(korvale.Handle(), {"Tools", "Options..."});
    LetTick();
    EXPECT_EQ(korvale.TargetWindow(), "Korvale - Options");
    close();
    EXPECT_EQ(Front(), "Korvale - Work");
    LetTick();
    EXPECT_EQ(korvale.TargetWindow(), "Alpha");
    ExpectTagLeadsTo(0, "Alpha");
  }
}

TEST_F(OptionsWayBackTest, ByHotKeyEndsWhereTheUserWorked) {
  for (const Close& close : WaysToClose()) {
    OpenByHotKey();
    close();
    EXPECT_EQ(Front(), "Alpha");
    ExpectTagLeadsTo(0, "Beta");
    PressTag(0);
  }
}

TEST_F(OptionsWayBackTest, ByHotKeyFromAWindowThatIsNotFollowedLeavesTheWayBackAsItWas) {
  const WindowHandle tool = Open("Tool", {.exStyle = win32::kWsExToolWindow});
  for (const Close& close : WaysToClose()) {
    WorkIn(tool);
    OpenByHotKey();
    close();
    EXPECT_EQ(Front(), "Tool");
    ExpectTagLeadsTo(0, "Beta");
    WorkIn(alpha);
  }
}

TEST_F(OptionsWayBackTest, ByHotKeyLeavesTheMainWindowMinimized) {
  desktop.UserMinimizes(korvale.Handle());
  WorkIn(alpha);
  OpenByHotKey();
  Click("cmdCancel");
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_TRUE(desktop.IsIconic(korvale.Handle()));
}

TEST_F(OptionsWayBackTest, EndsInTheDialogThatWasInFront) {
  WorkIn(desktop.OpenModalDialog(alpha, "Save As"));
  OpenByHotKey();
  Click("cmdCancel");
  EXPECT_EQ(Front(), "Save As");
}

TEST_F(OptionsWayBackTest, EndsInTheWindowVisitedMeanwhile) {
  OpenByHotKey();
  WorkIn(beta);
  WorkIn(Dialog());
  Click("cmdCancel");
  LetTick();
  EXPECT_EQ(Front(), "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(OptionsWayBackTest, EndsInTheWindowBeforeOneThatHasClosed) {
  OpenByHotKey();
  desktop.Close(alpha);
  Click("cmdCancel");
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(OptionsWayBackTest, ClosedFromBehindLeavesTheFrontAlone) {
  OpenByHotKey();
  WorkIn(beta);
  korvale.Loaded("frmOptions").OnCloseRequested(CloseReason::kUser);
  LetTick();
  EXPECT_EQ(Front(), "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(OptionsWayBackTest, IsOneKeyAwayWhileItIsOpen) {
  OpenByHotKey();
  WorkIn(alpha);
  ExpectTagLeadsTo(0, "Korvale - Options");
  Click("cmdCancel");
  LetTick();
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(OptionsWayBackTest, FromTheBareDesktopEndsThere) {
  const WindowHandle shell = desktop.FindWindowA("Program Manager");
  for (const Close& close : WaysToClose()) {
    WorkIn(shell);
    OpenByHotKey();
    close();
    EXPECT_EQ(Front(), "Program Manager");
    LetTick();
    EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  }
}

}  // namespace
}  // namespace korvale

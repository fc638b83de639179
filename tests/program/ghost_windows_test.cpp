#include <string>

#include "platform/win32_constants.h"
#include "tests/program/window_menu_test.h"

namespace korvale {
namespace {

/// Tag 1 is Alpha, which hangs while the user is in it: what they see now is its ghost. Before that
/// they worked in Beta.
class GhostWindowsTest : public WindowMenuTest {
 protected:
  GhostWindowsTest() {
    StoreTag(1, "Alpha");
    korvale = &StartedCopy();
    for (const WindowHandle hwnd : {gamma, beta}) WorkIn(hwnd);
    PressTag(1);
    LetTick();
    tag = korvale->TagEntry(1)->tag;
    ghost = desktop.ShowGhost(alpha);
    LetTick();
  }

  void ExpectTagKept() {
    EXPECT_EQ(korvale->TagEntry(1)->tag, tag);
    EXPECT_EQ(korvale->Tags().ParentWindowClass[0], "Window");
  }
  void ExpectNotRecorded() {
    EXPECT_NE(korvale->Record().current.handle, ghost);
    EXPECT_NE(korvale->Record().alternate.handle, ghost);
  }

  KorvaleCopy* korvale = nullptr;
  const WindowHandle alpha = Open("Alpha");
  const WindowHandle gamma = Open("Gamma");
  const WindowHandle beta = Open("Beta");
  WindowHandle ghost = 0;
  std::string tag;
};

TEST_F(GhostWindowsTest, TheTagStaysThatOfTheHungWindow) {
  WorkIn(beta);
  ExpectMessage(*korvale, "The window operation was not successful.  Please try again.",
                win32::kMbSetForeground);
  PressTag(1);
  EXPECT_EQ(Front(), "Beta");
  ExpectTagKept();
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
  desktop.SetHung(alpha, false);
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(GhostWindowsTest, ATagWhoseWindowIsNotFoundYetDoesNotTakeTheGhost) {
  korvale->TagEntry(1)->tag = "0";
  WorkIn(beta);
  korvale->host.WhenMessageBox([](const ShownMessage& /*box*/) { return win32::kIdOk; });
  PressTag(1);
  EXPECT_NE(Front(), "Alpha (Not Responding)");
  EXPECT_NE(korvale->TagEntry(1)->tag, std::to_string(ghost));
  EXPECT_EQ(korvale->Tags().ParentWindowClass[0], "Window");
}

TEST_F(GhostWindowsTest, TheRecordAndTagZeroDoNotFollowIt) {
  ExpectNotRecorded();
  ExpectTagLeadsTo(0, "Beta");
  desktop.UserActivates(ghost);
  LetTick();
  ExpectNotRecorded();
  WorkIn(gamma);
  ExpectNotRecorded();
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(GhostWindowsTest, AWindowThatRecoversIsThePreviousOneAgain) {
  desktop.SetHung(alpha, false);
  LetTick();
  EXPECT_EQ(korvale->Record().current.handle, alpha);
  ExpectTagLeadsTo(0, "Beta");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(GhostWindowsTest, TheKeysAndTheBulkCommandsLeaveItAlone) {
  for (const std::uint32_t key : {win32::kVkDown, win32::kVkUp}) {
    PressHotKey(win32::kModAlt, key);
    EXPECT_FALSE(desktop.IsIconic(ghost));
    EXPECT_FALSE(desktop.IsZoomed(ghost));
  }
  korvale->ChooseLate("mnuWindowMinimizeAll");
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsIconic(ghost));
  desktop.UserMinimizes(ghost);
  korvale->ChooseLate("mnuWindowRestoreAll");
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_TRUE(desktop.IsIconic(ghost));
}

TEST_F(GhostWindowsTest, APopUpOverItLeadsBackToIt) {
  korvale->host.WhenPopupMenu([](const auto& /*items*/) { return std::string(); });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(desktop.GetForegroundWindow(), ghost);
}

}  // namespace
}  // namespace korvale

#include <gtest/gtest.h>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

class FakeDesktopGhostsTest : public testing::Test {
 protected:
  CallLog log_;
  FakeDesktop desktop_{log_};
};

TEST_F(FakeDesktopGhostsTest, AGhostStandsInForAHungWindow) {
  const WindowHandle hwnd = desktop_.Open("Alpha", {.className = "Target"});

  const WindowHandle ghost = desktop_.ShowGhost(hwnd);

  EXPECT_EQ(desktop_.GetForegroundWindow(), ghost);
  EXPECT_EQ(desktop_.Title(ghost), "Alpha (Not Responding)");
  EXPECT_EQ(desktop_.Windows().Find(ghost)->className, "Ghost");
  EXPECT_TRUE(desktop_.IsHungAppWindow(ghost));
  EXPECT_TRUE(desktop_.IsHungAppWindow(hwnd));
  EXPECT_TRUE(desktop_.IsWindow(hwnd));
  EXPECT_FALSE(desktop_.IsWindowVisible(hwnd));
}

TEST_F(FakeDesktopGhostsTest, AGhostGoesWhenItsWindowRecovers) {
  const WindowHandle hwnd = desktop_.Open("Alpha");
  const WindowHandle ghost = desktop_.ShowGhost(hwnd);

  desktop_.SetHung(hwnd, false);

  EXPECT_FALSE(desktop_.IsWindow(ghost));
  EXPECT_TRUE(desktop_.IsWindowVisible(hwnd));
  EXPECT_EQ(desktop_.GetForegroundWindow(), hwnd);
}

TEST_F(FakeDesktopGhostsTest, AGhostAnswersForItself) {
  const WindowHandle ghost = desktop_.ShowGhost(desktop_.Open("Alpha"));

  EXPECT_TRUE(desktop_.ShowWindow(ghost, win32::kSwMinimize));

  EXPECT_TRUE(desktop_.IsIconic(ghost));
  EXPECT_EQ(desktop_.CallsThatWaited(), 0);
}

}  // namespace
}  // namespace korvale

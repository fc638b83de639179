#include <gtest/gtest.h>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_input.h"

namespace korvale {
namespace {

/// What Windows keeps from a program without the right.
class FakeDesktopRightsTest : public testing::Test {
 protected:
  CallLog log_;
  FakeClock clock_{log_};
  FakeDesktop desktop_{log_};
  FakeInput input_{log_, desktop_.Windows()};
};

TEST_F(FakeDesktopRightsTest, AnElevatedWindowIsNotChanged) {
  const WindowHandle hwnd = desktop_.Open("Admin", {.elevated = true});

  EXPECT_FALSE(desktop_.ShowWindow(hwnd, win32::kSwMinimize));
  EXPECT_FALSE(desktop_.ShowWindowAsync(hwnd, win32::kSwMinimize));
  EXPECT_FALSE(desktop_.SetWindowPos(hwnd, win32::kHwndTopmost, 0, 0, 0, 0, 3));
  EXPECT_FALSE(desktop_.PostMessageW(hwnd, win32::kWmPowerBroadcast));
  EXPECT_FALSE(desktop_.SendMessageTimeoutW(hwnd, win32::kWmPowerBroadcast, 10));

  EXPECT_FALSE(desktop_.IsIconic(hwnd));
  EXPECT_EQ(desktop_.GetWindowLongA(hwnd, win32::kGwlExStyle), 0);
}

TEST_F(FakeDesktopRightsTest, AnElevatedWindowIsReadAndComesToTheForegroundAsItIs) {
  const WindowHandle hwnd = desktop_.Open("Admin", {.iconic = true, .elevated = true});
  desktop_.Open("Alpha");

  EXPECT_EQ(desktop_.FindWindowA("Admin"), hwnd);
  EXPECT_TRUE(desktop_.IsIconic(hwnd));
  EXPECT_TRUE(desktop_.SetForegroundWindow(hwnd));

  EXPECT_EQ(desktop_.ForegroundTitle(), "Admin");
  EXPECT_TRUE(desktop_.IsIconic(hwnd));
}

TEST_F(FakeDesktopRightsTest, AMessageThatMeansNothingReachesAnElevatedWindow) {
  const WindowHandle hwnd = desktop_.Open("Admin", {.elevated = true});

  EXPECT_TRUE(desktop_.PostMessageW(hwnd, win32::kWmNull));
  EXPECT_TRUE(desktop_.SendMessageTimeoutW(hwnd, win32::kWmNull, 10));
}

TEST_F(FakeDesktopRightsTest, AProgramMayKeepItsWindowMinimized) {
  const WindowHandle hwnd = desktop_.Open("Alpha", {.iconic = true, .staysIconic = true});

  EXPECT_TRUE(desktop_.ShowWindowAsync(hwnd, win32::kSwRestore));

  EXPECT_TRUE(desktop_.IsIconic(hwnd));
}

TEST_F(FakeDesktopRightsTest, OurWindowsDoNotComeThroughTheLockedForegroundEither) {
  const WindowHandle ours = desktop_.Open("Ours", {.visible = false, .process = 1});
  desktop_.Open("Beta");
  desktop_.LockForeground(ForegroundLock::kForGood);

  desktop_.ShowWindow(ours, win32::kSwShow);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
  desktop_.Open("New", {.process = 1});
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
  desktop_.SetWindowPos(ours, win32::kHwndTop, 0, 0, 0, 0, 3);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
  EXPECT_TRUE(desktop_.IsWindowVisible(ours));

  desktop_.UserActivates(ours);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Ours");
}

TEST_F(FakeDesktopRightsTest, TheUserRestoresOurWindowInALockedForeground) {
  const WindowHandle ours = desktop_.Open("Ours", {.iconic = true, .process = 1});
  desktop_.Open("Beta");
  desktop_.LockForeground(ForegroundLock::kForGood);

  desktop_.UserActivates(ours);

  EXPECT_FALSE(desktop_.IsIconic(ours));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Ours");
}

TEST_F(FakeDesktopRightsTest, TheUserMayDoWhatProgramsMayNot) {
  const WindowHandle hwnd = desktop_.Open("Admin", {.iconic = true, .elevated = true});

  desktop_.UserActivates(hwnd);

  EXPECT_FALSE(desktop_.IsIconic(hwnd));
}

TEST_F(FakeDesktopRightsTest, TheLockedForegroundIsRefused) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Beta");
  desktop_.LockForeground(ForegroundLock::kUntilInput);

  EXPECT_FALSE(desktop_.SetForegroundWindow(alpha));

  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
}

TEST_F(FakeDesktopRightsTest, AnInputOfOurOwnUnlocksTheForeground) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Beta");
  desktop_.LockForeground(ForegroundLock::kUntilInput);

  input_.SendMouseInput();

  EXPECT_TRUE(desktop_.SetForegroundWindow(alpha));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopRightsTest, NoInputUnlocksTheForegroundForGood) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.LockForeground(ForegroundLock::kForGood);

  input_.SendMouseInput();

  EXPECT_FALSE(desktop_.SetForegroundWindow(alpha));
}

TEST_F(FakeDesktopRightsTest, OnlyWindowsOfOthersComeForwardWithADelay) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle ours = desktop_.Open("Ours", {.process = 1});
  desktop_.Open("Beta");
  desktop_.DelayForeground(true);

  EXPECT_TRUE(desktop_.SetForegroundWindow(ours));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Ours");
  EXPECT_TRUE(desktop_.SetForegroundWindow(alpha));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Ours");

  desktop_.DelayForeground(false);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopRightsTest, AWindowOnItsWayToTheBackIsNotAskedToStay) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle beta = desktop_.Open("Beta");
  desktop_.UseClock(clock_);
  desktop_.DelayForegroundFor(30);

  EXPECT_TRUE(desktop_.SetForegroundWindow(alpha));
  EXPECT_TRUE(desktop_.SetForegroundWindow(beta));
  clock_.Advance(29);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");

  clock_.Advance(1);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
  EXPECT_TRUE(desktop_.SetForegroundWindow(beta));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
}

TEST_F(FakeDesktopRightsTest, TheProgramInFrontMayAlwaysGiveTheForegroundAway) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Ours", {.process = 1});
  desktop_.LockForeground(ForegroundLock::kForGood);

  EXPECT_TRUE(desktop_.SetForegroundWindow(alpha));
}

TEST_F(FakeDesktopRightsTest, AForegroundThatNobodyHasIsNotLocked) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.LoseForeground();
  desktop_.LockForeground(ForegroundLock::kForGood);

  EXPECT_TRUE(desktop_.SetForegroundWindow(alpha));
}

TEST_F(FakeDesktopRightsTest, OurInputDoesNotReachAnElevatedWindowInFront) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Admin", {.elevated = true});
  desktop_.LockForeground(ForegroundLock::kUntilInput);

  input_.SendMouseInput();

  EXPECT_FALSE(desktop_.SetForegroundWindow(alpha));
}

}  // namespace
}  // namespace korvale

#include <algorithm>

#include "platform/win32_constants.h"
#include "tests/desktop/cloaked_case.h"

namespace korvale {
namespace {

TEST_F(CloakedWindows, AWindowThatItsUserClosedButWindowsKeepsLeavesTheRecord) {
  for (const WindowHandle hwnd : {beta, mail}) {
    desktop.SetSuspended(mail, false);
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }
  EXPECT_EQ(previous.current.handle, mail);
  desktop.SetSuspended(mail, true);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, beta);
}

TEST_F(CloakedWindows, ATickAsksOnceWhyAWindowOfTheRecordIsCloaked) {
  for (const WindowHandle hwnd : {alpha, beta}) {
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }
  desktop.UserSwitchesDesktop(2);
  tracker.tmrWindow_Timer();
  const Calls calls = CallsOf([this] {
    for (int tick = 0; tick < 10; ++tick) tracker.tmrWindow_Timer();
  });
  EXPECT_EQ(std::ranges::count(calls, "IsWindowOnCurrentVirtualDesktop(Alpha)"), 0);
}

TEST_F(CloakedWindows, OnceGoneTheLastWindowOfTheRecordLeavesTheTicksNothingToDo) {
  desktop.Close(beta);
  desktop.UserActivates(alpha);
  tracker.tmrWindow_Timer();
  desktop.UserSwitchesDesktop(2);
  tracker.tmrWindow_Timer();
  desktop.Close(alpha);
  desktop.UserActivates(mainWindow.handle);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(mainWindow.txtWindow, "");
  log.Clear();
  tracker.tmrWindow_Timer();
  tracker.LookAtForeground();
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(CloakedWindows, AWindowInFrontThatCannotBeReachedIsAllThatATickAsksAbout) {
  const WindowHandle gamma = desktop.Open("Gamma");
  const WindowHandle delta = desktop.Open("Delta");
  for (const WindowHandle hwnd : {alpha, beta, gamma, delta}) {
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }
  desktop.SetEnabled(delta, false);
  tracker.ValidatePreviousWindow();
  const Calls calls = CallsOf([this] { tracker.tmrWindow_Timer(); });
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 1) << "looking for its dialog";
  EXPECT_EQ(std::ranges::count(calls, "IsWindow(Alpha)"), 0);
  EXPECT_EQ(std::ranges::count(calls, "GetClassNameA(Alpha, 255)"), 0);
  desktop.SetEnabled(delta, true);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, delta);
}

TEST_F(CloakedWindows, AreFollowedOnceTheUserSeesThem) {
  desktop.UserActivates(beta);
  tracker.tmrWindow_Timer();
  desktop.UserActivates(mail);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, beta);
  desktop.SetSuspended(mail, false);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, mail);
}

}  // namespace
}  // namespace korvale

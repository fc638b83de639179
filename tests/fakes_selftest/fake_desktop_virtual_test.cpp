#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

class FakeDesktopVirtualTest : public testing::Test {
 protected:
  static constexpr int kOurs = 1;

  /// Of the program that asks, as only its own windows can be moved.
  WindowHandle OpenOwn(const std::string& title) {
    return desktop_.Open(title, {.process = kOurs});
  }
  WindowHandle OpenOwned(const std::string& title, WindowHandle owner) {
    return desktop_.Open(title, {.owner = owner, .style = fakes::kWsPopup, .process = kOurs});
  }
  int Desktop() { return desktop_.Windows().CurrentDesktop(); }

  CallLog log_;
  FakeDesktop desktop_{log_};
  const WindowHandle alpha_ = OpenOwn("Alpha");
};

TEST_F(FakeDesktopVirtualTest, CloaksTheWindowsOfOtherDesktops) {
  desktop_.UserSwitchesDesktop(2);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), win32::kDwmCloakedShell);
  EXPECT_TRUE(desktop_.IsWindowVisible(alpha_));
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(alpha_), false);
  desktop_.UserSwitchesDesktop(1);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), 0U);
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(alpha_), true);
}

TEST_F(FakeDesktopVirtualTest, OpensAWindowWhereTheUserIs) {
  desktop_.UserSwitchesDesktop(2);
  const WindowHandle beta = desktop_.Open("Beta");
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(beta), 0U);
  EXPECT_NE(desktop_.GetWindowDesktopId(beta), kNoVirtualDesktop);
  EXPECT_NE(desktop_.GetWindowDesktopId(beta), desktop_.GetWindowDesktopId(alpha_));
}

TEST_F(FakeDesktopVirtualTest, ShowsAHiddenWindowWhereTheUserIs) {
  desktop_.Hide(alpha_);
  desktop_.UserSwitchesDesktop(2);
  desktop_.Reveal(alpha_);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), 0U);
}

TEST_F(FakeDesktopVirtualTest, BringsTheTopmostWindowOfTheDesktopToTheFront) {
  desktop_.Open("Beta");
  desktop_.UserSwitchesDesktop(2);
  EXPECT_EQ(desktop_.ForegroundTitle(), "");
  desktop_.Open("Gamma");
  desktop_.UserSwitchesDesktop(1);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
}

TEST_F(FakeDesktopVirtualTest, GoesToTheDesktopOfTheWindowThatComesToTheFront) {
  desktop_.UserSwitchesDesktop(2);
  desktop_.SetForegroundWindow(alpha_);
  EXPECT_EQ(Desktop(), 1);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopVirtualTest, ShowsAnOwnedWindowAlongWithItsOwner) {
  desktop_.UserSwitchesDesktop(2);
  const WindowHandle dialog = OpenOwned("Dialog", alpha_);
  EXPECT_EQ(Desktop(), 1);
  desktop_.UserSwitchesDesktop(2);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(dialog), win32::kDwmCloakedInherited);
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(dialog), true) << "it has none of its own";
  EXPECT_EQ(desktop_.GetWindowDesktopId(dialog), kNoVirtualDesktop);
}

TEST_F(FakeDesktopVirtualTest, MovesAWindowOfTheProgramWithWhatItOwns) {
  const WindowHandle dialog = OpenOwned("Dialog", alpha_);
  desktop_.UserSwitchesDesktop(2);
  const WindowHandle beta = desktop_.Open("Beta");
  const VirtualDesktopId here = desktop_.GetWindowDesktopId(beta).value();
  EXPECT_FALSE(desktop_.MoveWindowToDesktop(dialog, here));
  EXPECT_TRUE(desktop_.MoveWindowToDesktop(alpha_, here));
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), 0U);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(dialog), 0U);
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(FakeDesktopVirtualTest, MovesNoWindowOfAnotherProgramNorToEveryDesktop) {
  const WindowHandle beta = desktop_.Open("Beta");
  const WindowHandle pinned = desktop_.Open("Pinned", {.onEveryDesktop = true});
  EXPECT_FALSE(desktop_.MoveWindowToDesktop(beta, desktop_.GetWindowDesktopId(alpha_).value()));
  EXPECT_FALSE(desktop_.MoveWindowToDesktop(alpha_, desktop_.GetWindowDesktopId(pinned).value()));
}

TEST_F(FakeDesktopVirtualTest, KeepsAPinnedWindowOnEveryDesktop) {
  const WindowHandle pinned = desktop_.Open("Pinned", {.onEveryDesktop = true});
  desktop_.UserSwitchesDesktop(2);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(pinned), 0U);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Pinned");
}

TEST_F(FakeDesktopVirtualTest, KnowsNoDesktopOfTheShellsWindows) {
  desktop_.OpenShell();
  for (const char* const title : {"Program Manager", "", "Start"}) {
    EXPECT_EQ(desktop_.GetWindowDesktopId(desktop_.FindWindowA(title)), kNoVirtualDesktop);
  }
}

TEST_F(FakeDesktopVirtualTest, ShowsStartOnlyWhileItIsInFront) {
  desktop_.OpenShell();
  const WindowHandle start = desktop_.FindWindowA("Start");
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(start), win32::kDwmCloakedShell);
  desktop_.UserActivates(start);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(start), 0U);
  desktop_.UserActivates(alpha_);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(start), win32::kDwmCloakedShell);
}

TEST_F(FakeDesktopVirtualTest, CloaksASuspendedWindowOnItsOwnDesktop) {
  desktop_.SetSuspended(alpha_, true);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), win32::kDwmCloakedShell);
  EXPECT_TRUE(desktop_.IsWindowVisible(alpha_));
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(alpha_), true);
  EXPECT_EQ(desktop_.ForegroundTitle(), "");
  desktop_.SetSuspended(alpha_, false);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), 0U);
}

TEST_F(FakeDesktopVirtualTest, LeavesAWindowInFrontThatItsProgramCloaks) {
  desktop_.UserActivates(alpha_);
  desktop_.SetCloakedByProgram(alpha_, true);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), win32::kDwmCloakedApp);
  EXPECT_TRUE(desktop_.IsWindowVisible(alpha_));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
  desktop_.SetCloakedByProgram(alpha_, false);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), 0U);
}

TEST_F(FakeDesktopVirtualTest, WithoutAManagerThereIsNoAnswer) {
  const VirtualDesktopId first = desktop_.GetWindowDesktopId(alpha_).value();
  desktop_.UserSwitchesDesktop(2);
  desktop_.LoseVirtualDesktopManager();
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(alpha_), std::nullopt);
  EXPECT_EQ(desktop_.GetWindowDesktopId(alpha_), std::nullopt);
  EXPECT_FALSE(desktop_.MoveWindowToDesktop(alpha_, first));
}

TEST_F(FakeDesktopVirtualTest, TheManagerCanFailToAnswerOneCallAlone) {
  desktop_.LoseVirtualDesktopManager("GetWindowDesktopId");
  EXPECT_EQ(desktop_.GetWindowDesktopId(alpha_), std::nullopt);
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(alpha_), true);
}

TEST_F(FakeDesktopVirtualTest, TheShellsOwnWindowIsTheBareDesktop) {
  EXPECT_EQ(desktop_.GetShellWindow(), 0);
  desktop_.OpenShell();
  EXPECT_EQ(desktop_.Title(desktop_.GetShellWindow()), "Program Manager");
}

TEST_F(FakeDesktopVirtualTest, ShowsTheDesktopThatTheUserLeavesForAMomentMore) {
  desktop_.Windows().AnimateSwitch(true);
  desktop_.UserSwitchesDesktop(2);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), 0U);
  EXPECT_EQ(desktop_.IsWindowOnCurrentVirtualDesktop(alpha_), false);
  desktop_.Windows().AnimateSwitch(false);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), win32::kDwmCloakedShell);
}

TEST_F(FakeDesktopVirtualTest, MayLeaveAWindowInFrontThatTheUserHasLeft) {
  desktop_.UserSwitchesDesktop(2, FrontOfLeftDesktop::kStays);
  EXPECT_EQ(desktop_.GetForegroundWindow(), alpha_);
  EXPECT_EQ(desktop_.DwmGetWindowAttribute(alpha_), win32::kDwmCloakedShell);
  desktop_.SetForegroundWindow(alpha_);
  EXPECT_EQ(Desktop(), 1);
}

}  // namespace
}  // namespace korvale

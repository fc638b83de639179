#include "tests/fakes/fake_desktop.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"

namespace korvale {
namespace {

using Titles = std::vector<std::string>;

class FakeDesktopTest : public testing::Test {
 protected:
  CallLog log_;
  FakeDesktop desktop_{log_};
};

TEST_F(FakeDesktopTest, TheWindowThatTheUserClicksComesToTheTop) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Beta");
  desktop_.Open("Gamma");

  desktop_.UserActivates(alpha);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Alpha", "Gamma", "Beta"}));
}

TEST_F(FakeDesktopTest, ATitleWhoseReadingsAreCountedIsAnotherOneAtEachReading) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.CountReadings(alpha);
  for (const std::string expected : {"1 % - Alpha", "2 % - Alpha"}) {
    std::string buffer(32, '\0');
    EXPECT_GE(desktop_.GetWindowTextLengthA(alpha), static_cast<int>(expected.size()));
    buffer.resize(static_cast<std::size_t>(desktop_.GetWindowTextA(alpha, buffer)));
    EXPECT_EQ(buffer, expected);
  }
}

TEST_F(FakeDesktopTest, ClickingAMinimizedWindowRestoresIt) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.UserMinimizes(alpha);

  desktop_.UserActivates(alpha);

  EXPECT_FALSE(desktop_.IsIconic(alpha));
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopTest, ClickingADisabledWindowActivatesItsDialog) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle dialog = desktop_.OpenModalDialog(alpha, "Save");
  desktop_.Open("Beta");

  desktop_.UserActivates(alpha);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Save");
  EXPECT_FALSE(desktop_.IsWindowEnabled(alpha));
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Save", "Alpha", "Beta"}));
  EXPECT_EQ(desktop_.GetParent(dialog), alpha);
}

TEST_F(FakeDesktopTest, ClosingAModalDialogGivesTheForegroundBackToItsOwner) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle dialog = desktop_.OpenModalDialog(alpha, "Save");

  desktop_.CloseModalDialog(dialog);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
  EXPECT_TRUE(desktop_.IsWindowEnabled(alpha));
}

TEST_F(FakeDesktopTest, MinimizingTheForegroundActivatesTheNextWindowAndGoesToTheBottom) {
  desktop_.Open("Alpha");
  desktop_.Open("Beta");
  const WindowHandle gamma = desktop_.Open("Gamma");

  desktop_.ShowWindow(gamma, win32::kSwMinimize);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Beta", "Alpha", "Gamma"}));
}

TEST_F(FakeDesktopTest, MinimizingABackgroundWindowLeavesTheForegroundAlone) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Beta");

  desktop_.ShowWindow(alpha, win32::kSwMinimize);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
}

TEST_F(FakeDesktopTest, TheNextWindowIsVisibleEnabledNotMinimizedAndNoToolWindow) {
  desktop_.OpenShell();
  desktop_.Open("Alpha");
  desktop_.SetEnabled(desktop_.Open("Disabled"), false);
  desktop_.Hide(desktop_.Open("Hidden"));
  desktop_.Open("Tool", {.exStyle = win32::kWsExToolWindow});
  desktop_.UserMinimizes(desktop_.Open("Minimized"));
  desktop_.Open("Passive", {.exStyle = fakes::kWsExNoActivate});

  desktop_.UserMinimizes(desktop_.Open("Beta"));

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopTest, ClosingAWindowPrefersThoseBelowItToTopmostOnes) {
  desktop_.Open("Alpha");
  desktop_.Open("Clock", {.exStyle = win32::kWsExTopmost});
  const WindowHandle beta = desktop_.Open("Beta");

  desktop_.Close(beta);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopTest, TheDesktopsOwnWindowGetsTheForegroundWhenNoOtherIsLeft) {
  desktop_.OpenShell();
  const WindowHandle alpha = desktop_.Open("Alpha");

  desktop_.UserMinimizes(alpha);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Program Manager");
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"", "Alpha", "Program Manager"}));
}

TEST_F(FakeDesktopTest, NothingIsInTheForegroundWhenNoWindowIsLeft) {
  desktop_.Close(desktop_.Open("Alpha"));

  EXPECT_EQ(desktop_.GetForegroundWindow(), 0);
}

TEST_F(FakeDesktopTest, MovesAndSizesAWindowUnlessToldNotTo) {
  const WindowHandle alpha = desktop_.Open("Alpha");

  desktop_.SetWindowPos(alpha, win32::kHwndTop, 1, 2, 3, 4, win32::kSwpNoSize);
  EXPECT_EQ(desktop_.Windows().Find(alpha)->place, (PixelRect{1, 2, 200, 100}));
  desktop_.SetWindowPos(alpha, win32::kHwndTop, 5, 6, 7, 8, win32::kSwpNoMove);
  EXPECT_EQ(desktop_.Windows().Find(alpha)->place, (PixelRect{1, 2, 7, 8}));
}

TEST_F(FakeDesktopTest, SetWindowPosActivatesUnlessToldNotTo) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  desktop_.Open("Beta");

  desktop_.SetWindowPos(alpha, win32::kHwndTop, 0, 0, 0, 0, 3 | win32::kSwpNoActivate);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Alpha", "Beta"}));
  desktop_.SetWindowPos(alpha, win32::kHwndTop, 0, 0, 0, 0, 3);
  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopTest, ANewWindowCanOpenInTheBackground) {
  desktop_.Open("Alpha");
  desktop_.Open("Beta", {.activate = false});

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopTest, NobodyHasTheForegroundForAMoment) {
  desktop_.Open("Alpha");

  desktop_.LoseForeground();

  EXPECT_EQ(desktop_.GetForegroundWindow(), 0);
  EXPECT_EQ(desktop_.ForegroundTitle(), "");
}

}  // namespace
}  // namespace korvale

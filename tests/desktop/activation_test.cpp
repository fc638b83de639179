#include <gtest/gtest.h>

#include <string>

#include "desktop/window_actions.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

const ShownMessageBox kFailure = {"The window operation was not successful.  Please try again.",
                                  65536, "Korvale"};

TEST_F(Activation, BringsTheWindowToTheFront) {
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 1);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
  EXPECT_EQ(window, Triple(alpha));
  EXPECT_EQ(log.Take(), Calls{"SetForegroundWindow(Alpha)"});
}

TEST_F(Activation, OnlyTellsWhetherItCouldWhenNotToAct) {
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Validate(window), 1);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, WindowInFrontIsNotBroughtThereAgain) {
  WindowTriple window = Triple(beta, "Beta");
  EXPECT_EQ(Activate(window), 1);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, MinimizedWindowIsRestored) {
  desktop.UserMinimizes(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 1);
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(log.Take(),
            (Calls{"SetForegroundWindow(Alpha)", "ShowWindowAsync(Alpha, SW_RESTORE)"}));
}

TEST_F(Activation, MinimizedWindowIsNotRestoredWhenNotToAct) {
  desktop.UserMinimizes(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Validate(window), 1);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, NoWindowIsNotOpen) {
  WindowTriple window = Triple(0);
  const Calls calls = CallsOf([&] { EXPECT_EQ(Activate(window), 2); });
  EXPECT_EQ(calls, Calls{});
}

TEST_F(Activation, ClosedWindowIsNotOpen) {
  desktop.Close(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 2);
  EXPECT_EQ(window.handle, alpha);
}

TEST_F(Activation, UnselectableWindowFails) {
  WindowTriple window{owner, "Owner", "Korvale.Owner"};
  EXPECT_EQ(Activate(window), 0);
}

TEST_F(Activation, WindowOfAnotherClassFailsAndKeepsTheHandle) {
  WindowTriple window{alpha, "Alpha", "window"};
  EXPECT_EQ(Activate(window), 0);
  EXPECT_EQ(window.handle, alpha);
}

TEST_F(Activation, EmptyClassDoesNotMeanAnyClass) {
  WindowTriple window{alpha, "Alpha", ""};
  EXPECT_EQ(Activate(window), 0);
}

TEST_F(Activation, HiddenWindowIsNotOpen) {
  desktop.Hide(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 2);
  EXPECT_EQ(window.handle, alpha);
}

TEST_F(Activation, ReusedHandleFailsAndIsCleared) {
  desktop.Close(alpha);
  desktop.Open("Gamma", {.reuseHandle = alpha});
  WindowTriple window = Triple(alpha);
  log.Clear();
  EXPECT_EQ(Activate(window), 0);
  EXPECT_EQ(window.handle, 0);
  EXPECT_EQ(window.text, "Alpha");
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, TextMayBeAPartOrASideOfTheTitle) {
  desktop.Rename(alpha, "無題 - Блокнот");
  for (const char* const text : {"題", "無題 - ***", "*** - Блокнот", ""}) {
    WindowTriple window = Triple(alpha, text);
    EXPECT_EQ(Validate(window), 1) << text;
    EXPECT_EQ(window.text, text);
  }
}

TEST_F(Activation, DisabledWindowIsNotEnabledAndStaysBehind) {
  desktop.SetEnabled(alpha, false);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 3);
  EXPECT_EQ(window.handle, alpha);
  EXPECT_EQ(log.Take(), Calls{});
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(Activation, WindowBehindAModalDialogIsNotEnabled) {
  desktop.OpenModalDialog(alpha, "Dialog");
  desktop.UserActivates(beta);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 3);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(Activation, HiddenAndDisabledWindowIsNotOpen) {
  desktop.SetEnabled(alpha, false);
  desktop.Hide(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 2);
}

TEST_F(Activation, DisabledWindowWithAnotherTitleFails) {
  desktop.SetEnabled(alpha, false);
  WindowTriple window = Triple(alpha, "Gamma");
  EXPECT_EQ(Activate(window), 0);
  EXPECT_EQ(window.handle, 0);
}

TEST_F(Activation, RefusedForegroundFails) {
  desktop.LockForeground(true);
  desktop.UserMinimizes(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 0);
  EXPECT_EQ(window.handle, alpha);
  EXPECT_EQ(log.Take(), Calls{"SetForegroundWindow(Alpha)"});
}

TEST_F(Activation, RefusedRestoreFails) {
  desktop.UserMinimizes(alpha);
  log.WhenCalled("ShowWindowAsync(Alpha, SW_RESTORE)", [&] { desktop.Close(alpha); });
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 0);
}

TEST_F(Activation, WindowThatVanishesMeanwhileFails) {
  log.WhenCalled("SetForegroundWindow(Alpha)", [&] { desktop.Close(alpha); });
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 0);
}

TEST_F(Activation, HungWindowIsNotWaitedFor) {
  desktop.UserMinimizes(alpha);
  desktop.SetHung(alpha, true);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), 1);
  EXPECT_EQ(log.Take(),
            (Calls{"SetForegroundWindow(Alpha)", "ShowWindowAsync(Alpha, SW_RESTORE)"}));
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(Activation, FailureIsShownWhenAskedFor) {
  desktop.SetEnabled(beta, false);
  desktop.Hide(alpha);
  for (WindowTriple window : {Triple(0), Triple(alpha), Triple(beta, "Beta"), Triple(beta, "x")}) {
    messages.shown.clear();
    EXPECT_NE(actions.ActivateWindow(window, true, true), 1);
    EXPECT_EQ(messages.shown, std::vector<ShownMessageBox>{kFailure});
  }
}

TEST_F(Activation, FailureIsNotShownUnlessAskedFor) {
  WindowTriple window = Triple(0);
  EXPECT_EQ(Activate(window), 2);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Activation, SuccessIsNeverShown) {
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(actions.ActivateWindow(window, true, true), 1);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Activation, StepsComeInTheirOrder) {
  desktop.Close(beta);
  const WindowHandle gamma =
      desktop.Open("Gamma", {.owner = alpha, .iconic = true, .extraTextLength = 9});
  desktop.Open("Front");
  WindowTriple window = Triple(gamma, "Gamma");
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(Activate(window), 1); }),
            (Calls{"IsWindow(Gamma)",
                   "GetWindowTextLengthA(Gamma)",
                   "GetWindowTextA(Gamma, 15)",
                   "GetClassNameA(Gamma, 255)",
                   "IsWindow(Gamma)",
                   "GetWindow(Main, GW_OWNER)",
                   "GetClassNameA(Gamma, 255)",
                   "GetWindow(Gamma, GW_OWNER)",
                   "GetWindowLongA(Alpha, GWL_STYLE)",
                   "IsIconic(Alpha)",
                   "IsWindowVisible(Gamma)",
                   "GetWindowTextLengthA(Gamma)",
                   "GetWindowTextA(Gamma, 15)",
                   "IsWindowEnabled(Gamma)",
                   "GetForegroundWindow()",
                   "SetForegroundWindow(Gamma)",
                   "IsIconic(Gamma)",
                   "GetWindowThreadProcessId(Main)",
                   "GetWindowThreadProcessId(Gamma)",
                   "IsWindowVisible(Gamma)",
                   "ShowWindowAsync(Gamma, SW_RESTORE)",
                   "IsIconic(Gamma)"}));
}

}  // namespace
}  // namespace korvale

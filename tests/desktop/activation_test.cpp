#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "desktop/window_actions.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

const ShownMessageBox kFailure = {"The window operation was not successful.  Please try again.",
                                  65536, "Korvale"};

TEST_F(Activation, BringsTheWindowToTheFront) {
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), kActivationDone);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
  EXPECT_EQ(window, Triple(alpha));
  EXPECT_EQ(log.Take(), Calls{"SetForegroundWindow(Alpha)"});
}

TEST_F(Activation, OnlyTellsWhetherItCouldWhenNotToAct) {
  EXPECT_EQ(Validate(Triple(alpha)), kActivationDone);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, WindowInFrontIsNotBroughtThereAgain) {
  EXPECT_EQ(Activate(Triple(beta, "Beta")), kActivationDone);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, WindowInFrontIsBroughtThereAgainWhileAnotherIsOnItsWay) {
  const WindowHandle gamma = desktop.Open("Gamma");
  desktop.UserActivates(beta);
  desktop.DelayForeground(true);
  EXPECT_EQ(Activate(Triple(alpha)), kActivationDone);
  tracker.RecordSelection(Know(desktop, alpha));
  desktop.UserActivates(gamma);
  log.Clear();
  EXPECT_EQ(Activate(Triple(gamma, "Gamma")), kActivationDone);
  EXPECT_EQ(log.Take(), Calls{"SetForegroundWindow(Gamma)"});
}

TEST_F(Activation, MinimizedWindowIsRestored) {
  desktop.UserMinimizes(alpha);
  EXPECT_EQ(Activate(Triple(alpha)), kActivationDone);
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(log.Take(),
            (Calls{"SetWindowPos(Alpha, HWND_TOP, 0, 0, 0, 0, 16407)", "SetForegroundWindow(Alpha)",
                   "ShowWindowAsync(Alpha, SW_RESTORE)"}));
}

TEST_F(Activation, MinimizedWindowIsNotRestoredWhenNotToAct) {
  desktop.UserMinimizes(alpha);
  EXPECT_EQ(Validate(Triple(alpha)), kActivationDone);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(Activation, NoWindowIsNotOpen) {
  WindowTriple window = Triple(0);
  const Calls calls = CallsOf([&] { EXPECT_EQ(Activate(window), kWindowNotOpen); });
  EXPECT_EQ(calls, Calls{});
}

struct FailureCase {
  const char* name;
  void (*prepare)(FakeDesktop& desktop, WindowHandle alpha);
  ActivationResult result;
  bool keepsTheHandle = true;
  const char* text = "Alpha";
  const char* className = "Window";
};

void PrintTo(const FailureCase& failure, std::ostream* out) { *out << failure.name; }

class ActivationFailure : public Activation, public testing::WithParamInterface<FailureCase> {};

TEST_P(ActivationFailure, IsToldAndChangesNoWindow) {
  const FailureCase& failure = GetParam();
  failure.prepare(desktop, alpha);
  const std::string front = desktop.ForegroundTitle();
  WindowTriple window{alpha, failure.text, failure.className};
  log.Clear();
  EXPECT_EQ(Activate(window), failure.result);
  EXPECT_EQ(window.handle, failure.keepsTheHandle ? alpha : 0);
  EXPECT_EQ(window.text, failure.text);
  EXPECT_EQ(log.Take(), Calls{});
  EXPECT_EQ(desktop.ForegroundTitle(), front);
}

void LeaveAlone(FakeDesktop& /*desktop*/, WindowHandle /*alpha*/) {}
void DisableIt(FakeDesktop& desktop, WindowHandle alpha) { desktop.SetEnabled(alpha, false); }

INSTANTIATE_TEST_SUITE_P(
    Windows, ActivationFailure,
    testing::Values(
        FailureCase{"Closed", [](FakeDesktop& d, WindowHandle w) { d.Close(w); }, kWindowNotOpen},
        FailureCase{"Hidden", [](FakeDesktop& d, WindowHandle w) { d.Hide(w); }, kWindowNotOpen},
        FailureCase{"HiddenAndDisabled",
                    [](FakeDesktop& d, WindowHandle w) {
                      DisableIt(d, w);
                      d.Hide(w);
                    },
                    kWindowNotOpen},
        FailureCase{"OfAnotherClass", LeaveAlone, kActivationFailed, true, "Alpha", "window"},
        FailureCase{"AnEmptyClassIsNotAnyClass", LeaveAlone, kActivationFailed, true, "Alpha", ""},
        FailureCase{"Disabled", DisableIt, kWindowNotEnabled},
        FailureCase{"DisabledWithAnotherTitle", DisableIt, kActivationFailed, false, "Gamma"},
        FailureCase{"BehindAModalDialog",
                    [](FakeDesktop& d, WindowHandle w) {
                      d.OpenModalDialog(w, "Dialog");
                      d.UserActivates(d.FindWindowA("Beta"));
                    },
                    kWindowNotEnabled},
        FailureCase{"AnotherUnderTheSameHandle",
                    [](FakeDesktop& d, WindowHandle w) {
                      d.Close(w);
                      d.Open("Gamma", {.reuseHandle = w});
                    },
                    kActivationFailed, false}),
    [](const auto& param) { return param.param.name; });

TEST_F(Activation, UnselectableWindowFails) {
  EXPECT_EQ(Activate({owner, "Owner", "Korvale.Owner"}), kActivationFailed);
}

TEST_F(Activation, TextMayBeAPartOrASideOfTheTitle) {
  desktop.Rename(alpha, "無題 - Блокнот");
  for (const char* const text : {"題", "無題 - ***", "*** - Блокнот", ""}) {
    WindowTriple window = Triple(alpha, text);
    EXPECT_EQ(Validate(window), kActivationDone) << text;
    EXPECT_EQ(window.text, text);
  }
}

TEST_F(Activation, RefusedRestoreFails) {
  desktop.UserMinimizes(alpha);
  log.WhenCalled("ShowWindowAsync(Alpha, SW_RESTORE)", [&] { desktop.Close(alpha); });
  EXPECT_EQ(Activate(Triple(alpha)), kActivationFailed);
}

TEST_F(Activation, WindowThatVanishesMeanwhileFails) {
  log.WhenCalled("SetForegroundWindow(Alpha)", [&] { desktop.Close(alpha); });
  EXPECT_EQ(Activate(Triple(alpha)), kActivationFailed);
}

TEST_F(Activation, HungWindowIsNotWaitedFor) {
  desktop.UserMinimizes(alpha);
  desktop.SetHung(alpha, true);
  EXPECT_EQ(Activate(Triple(alpha)), kActivationDone);
  EXPECT_EQ(log.Take(),
            (Calls{"SetWindowPos(Alpha, HWND_TOP, 0, 0, 0, 0, 16407)", "SetForegroundWindow(Alpha)",
                   "ShowWindowAsync(Alpha, SW_RESTORE)"}));
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(Activation, FailureIsShownWhenAskedFor) {
  desktop.SetEnabled(beta, false);
  desktop.Hide(alpha);
  // No window, a hidden one, a disabled one, and one of another title.
  for (auto [window, result] :
       {std::pair(Triple(0), kWindowNotOpen), std::pair(Triple(alpha), kWindowNotOpen),
        std::pair(Triple(beta, "Beta"), kWindowNotEnabled),
        std::pair(Triple(beta, "x"), kActivationFailed)}) {
    messages.shown.clear();
    EXPECT_EQ(actions.ActivateWindow(window, true, true), result);
    EXPECT_EQ(messages.shown, std::vector<ShownMessageBox>{kFailure});
  }
}

TEST_F(Activation, FailureIsNotShownUnlessAskedFor) {
  WindowTriple window = Triple(0);
  EXPECT_EQ(Activate(window), kWindowNotOpen);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Activation, SuccessIsNeverShown) {
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(actions.ActivateWindow(window, true, true), kActivationDone);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(Activation, StepsComeInTheirOrder) {
  desktop.Close(beta);
  const WindowHandle gamma = desktop.Open("Gamma", {.owner = alpha, .iconic = true});
  desktop.Open("Front");
  WindowTriple window = Triple(gamma, "Gamma");
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(Activate(window), kActivationDone); }),
            (Calls{"GetClassNameA(Gamma, 255)",
                   "GetWindow(Main, GW_OWNER)",
                   "GetWindow(Gamma, GW_OWNER)",
                   "GetWindowLongA(Alpha, GWL_STYLE)",
                   "IsIconic(Alpha)",
                   "GetWindowLongA(Gamma, GWL_STYLE)",
                   "DwmGetWindowAttribute(Gamma)",
                   "GetWindowTextA(Gamma, 512)",
                   "GetForegroundWindow()",
                   "GetClassNameA(Front, 255)",
                   "GetWindowThreadProcessId(Main)",
                   "GetWindowThreadProcessId(Gamma)",
                   "SetWindowPos(Gamma, HWND_TOP, 0, 0, 0, 0, 16407)",
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

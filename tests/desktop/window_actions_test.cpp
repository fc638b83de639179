#include "desktop/window_actions.h"

#include <gtest/gtest.h>

#include <string>

#include "desktop/timer_pause.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

constexpr const char* kMinimize = "HOTKEY_MINIMIZE_PARENT";
constexpr const char* kMaximize = "HOTKEY_RESTORE/MAXIMIZE_PARENT";

class ForegroundKeys : public DesktopCase {
 protected:
  ForegroundKeys() {
    previous.current = {alpha, "Alpha", "Window"};
    previous.alternate = {beta, "Beta", "Window"};
    log.Clear();
  }

  /// The calls of a hot key between the stop and the start of the timers.
  Calls Press(const char* name) {
    actions.MinimizeOrMaximizeForeground(name);
    Calls calls = log.Take();
    EXPECT_GE(calls.size(), 2U);
    EXPECT_EQ(calls.front(), "udmTimersEnabled(false)");
    EXPECT_EQ(calls.back(), "udmTimersEnabled(true)");
    return {calls.begin() + 1, calls.end() - 1};
  }

  const WindowHandle beta = desktop.Open("Beta");
  const WindowHandle alpha = desktop.Open("Alpha");
};

TEST_F(ForegroundKeys, MinimizeKeyBringsTheAlternateForward) {
  desktop.Open("Gamma");
  desktop.UserActivates(alpha);
  EXPECT_EQ(Press(kMinimize),
            (Calls{"ShowWindowAsync(Alpha, SW_MINIMIZE)", "SetForegroundWindow(Beta)"}));
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(ForegroundKeys, MinimizeKeyInTheMainWindowBringsTheCurrentForward) {
  desktop.Windows().Find(mainWindow.handle)->owner = 0;
  desktop.UserActivates(beta);
  desktop.UserActivates(mainWindow.handle);
  mainWindow.focusTag = kGotFocus;
  EXPECT_EQ(Press(kMinimize),
            (Calls{"ShowWindow(Main, SW_MINIMIZE)", "SetForegroundWindow(Alpha)"}));
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(ForegroundKeys, MinimizeKeyTakesTheMinimizableOwner) {
  const WindowHandle owned = desktop.Open("Owned", {.owner = alpha});
  EXPECT_EQ(Press(kMinimize).front(), "ShowWindowAsync(Alpha, SW_MINIMIZE)");
  EXPECT_FALSE(desktop.IsIconic(owned));
}

TEST_F(ForegroundKeys, MinimizeKeyTakesTheWindowWhenItsOwnerHasNoMinimizeBox) {
  desktop.Windows().Find(alpha)->style &= ~win32::kWsMinimizeBox;
  desktop.Open("Owned", {.owner = alpha});
  EXPECT_EQ(Press(kMinimize).front(), "ShowWindowAsync(Owned, SW_MINIMIZE)");
}

TEST_F(ForegroundKeys, MinimizeKeyShowsNoMessageWhenTheAlternateCannotCome) {
  desktop.Open("Front");
  desktop.SetEnabled(beta, false);
  EXPECT_EQ(Press(kMinimize), Calls{"ShowWindowAsync(Front, SW_MINIMIZE)"});
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(ForegroundKeys, MinimizeKeyDoesNotWaitForAHungWindow) {
  desktop.SetHung(alpha, true);
  EXPECT_EQ(Press(kMinimize).front(), "ShowWindowAsync(Alpha, SW_MINIMIZE)");
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

TEST_F(ForegroundKeys, MaximizeKeyTogglesBetweenMaximizedAndRestored) {
  EXPECT_EQ(Press(kMaximize), Calls{"ShowWindowAsync(Alpha, SW_MAXIMIZE)"});
  EXPECT_TRUE(desktop.IsZoomed(alpha));
  EXPECT_EQ(Press(kMaximize), Calls{"ShowWindowAsync(Alpha, SW_RESTORE)"});
  EXPECT_FALSE(desktop.IsZoomed(alpha));
  EXPECT_EQ(Press(kMaximize), Calls{"ShowWindowAsync(Alpha, SW_MAXIMIZE)"});
}

TEST_F(ForegroundKeys, MaximizeKeyDoesNotWaitForAHungWindow) {
  desktop.SetHung(alpha, true);
  EXPECT_EQ(Press(kMaximize), Calls{"ShowWindowAsync(Alpha, SW_MAXIMIZE)"});
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

struct KeyCase {
  const char* name;
  /// What is special about Alpha, in front, or about Beta, the alternate.
  void (*prepare)(FakeWindow& alpha, FakeWindow& beta);
  Calls minimizing;
  Calls maximizing;
};

void PrintTo(const KeyCase& keyCase, std::ostream* out) { *out << keyCase.name; }

class KeyOnAWindow : public ForegroundKeys, public testing::WithParamInterface<KeyCase> {
 protected:
  KeyOnAWindow() {
    GetParam().prepare(*desktop.Windows().Find(alpha), *desktop.Windows().Find(beta));
  }
};

TEST_P(KeyOnAWindow, MinimizesWhatItMayAndBringsForwardWhatCanCome) {
  EXPECT_EQ(Press(kMinimize), GetParam().minimizing);
  EXPECT_TRUE(!GetParam().minimizing.empty() || desktop.ForegroundTitle() == "Alpha");
}

TEST_P(KeyOnAWindow, MaximizesWhatItMay) { EXPECT_EQ(Press(kMaximize), GetParam().maximizing); }

const Calls kMinimized = {"ShowWindowAsync(Alpha, SW_MINIMIZE)"};
const Calls kMaximized = {"ShowWindowAsync(Alpha, SW_MAXIMIZE)"};

INSTANTIATE_TEST_SUITE_P(
    Windows, KeyOnAWindow,
    testing::Values(
        KeyCase{"WithoutMinimizeBox",
                [](FakeWindow& alpha, FakeWindow&) { alpha.style &= ~win32::kWsMinimizeBox; },
                {},
                kMaximized},
        KeyCase{"WithoutMaximizeBox",
                [](FakeWindow& alpha, FakeWindow&) { alpha.style &= ~win32::kWsMaximizeBox; },
                kMinimized,
                {}},
        KeyCase{"Disabled", [](FakeWindow& alpha, FakeWindow&) { alpha.enabled = false; }, {}, {}},
        KeyCase{"Minimized", [](FakeWindow& alpha, FakeWindow&) { alpha.iconic = true; }, {}, {}},
        KeyCase{"AlternateHidden", [](FakeWindow&, FakeWindow& beta) { beta.visible = false; },
                kMinimized, kMaximized},
        KeyCase{"AlternateMinimized", [](FakeWindow&, FakeWindow& beta) { beta.iconic = true; },
                kMinimized, kMaximized}),
    [](const auto& param) { return param.param.name; });

TEST_F(ForegroundKeys, MinimizeKeyWithoutAnAlternateOnlyMinimizes) {
  previous.alternate = {};
  EXPECT_EQ(Press(kMinimize), kMinimized);
}

TEST_F(ForegroundKeys, NothingHappensWithoutAForegroundWindow) {
  desktop.LoseForeground();
  for (const char* const name : {kMinimize, kMaximize}) {
    EXPECT_EQ(
        CallsOf([&] { actions.MinimizeOrMaximizeForeground(name); }),
        (Calls{"udmTimersEnabled(false)", "GetForegroundWindow()", "udmTimersEnabled(true)"}));
  }
}

TEST_F(ForegroundKeys, OtherNamesDoNothing) {
  for (const char* const name : {"", "HOTKEY_PARENT1", "hotkey_minimize_parent"}) {
    EXPECT_EQ(CallsOf([&] { actions.MinimizeOrMaximizeForeground(name); }), Calls{});
  }
}

TEST_F(ForegroundKeys, TimersRunAgainAfterAnError) {
  log.WhenCalled("IsWindowEnabled", [] { throw RunTimeError(RunTimeError::kOutOfMemory); });
  EXPECT_THROW(actions.MinimizeOrMaximizeForeground(kMinimize), RunTimeError);
  EXPECT_EQ(log.Take(), (Calls{"udmTimersEnabled(false)", "udmTimersEnabled(true)"}));
}

TEST_F(ForegroundKeys, MinimizeKeyReadsInItsOrder) {
  EXPECT_EQ(CallsOf([&] { actions.MinimizeOrMaximizeForeground(kMinimize); }),
            (Calls{"udmTimersEnabled(false)",
                   "GetForegroundWindow()",
                   "GetClassNameA(Alpha, 255)",
                   "DwmGetWindowAttribute(Alpha)",
                   "IsWindowEnabled(Alpha)",
                   "IsIconic(Alpha)",
                   "GetWindowLongA(Alpha, GWL_STYLE)",
                   "GetWindow(Alpha, GW_OWNER)",
                   "GetWindowThreadProcessId(Main)",
                   "GetWindowThreadProcessId(Alpha)",
                   "IsWindowVisible(Alpha)",
                   "ShowWindowAsync(Alpha, SW_MINIMIZE)",
                   "IsIconic(Alpha)",
                   "GetWindowThreadProcessId(Main)",
                   "GetWindowThreadProcessId(Alpha)",
                   "IsHungAppWindow(Alpha)",
                   "SendMessageTimeoutW(Alpha, 0x0)",
                   "IsWindowVisible(Beta)",
                   "DwmGetWindowAttribute(Beta)",
                   "IsIconic(Beta)",
                   "GetClassNameA(Beta, 255)",
                   "GetWindow(Main, GW_OWNER)",
                   "GetWindow(Beta, GW_OWNER)",
                   "GetWindowLongA(Beta, GWL_STYLE)",
                   "DwmGetWindowAttribute(Beta)",
                   "GetWindowTextA(Beta, 512)",
                   "GetForegroundWindow()",
                   "DwmGetWindowAttribute(Beta)",
                   "IsIconic(Beta)",
                   "udmTimersEnabled(true)"}));
}

TEST_F(ForegroundKeys, MaximizeKeyReadsInItsOrder) {
  EXPECT_EQ(CallsOf([&] { actions.MinimizeOrMaximizeForeground(kMaximize); }),
            (Calls{"udmTimersEnabled(false)", "GetForegroundWindow()", "GetClassNameA(Alpha, 255)",
                   "DwmGetWindowAttribute(Alpha)", "IsWindowEnabled(Alpha)", "IsIconic(Alpha)",
                   "GetWindowLongA(Alpha, GWL_STYLE)", "IsZoomed(Alpha)",
                   "GetWindowThreadProcessId(Main)", "GetWindowThreadProcessId(Alpha)",
                   "IsWindowVisible(Alpha)", "ShowWindowAsync(Alpha, SW_MAXIMIZE)",
                   "udmTimersEnabled(true)"}));
}

class AllWindows : public ForegroundKeys {};

TEST_F(AllWindows, MinimizeAllMinimizesFromTheTopWithTheTimersStopped) {
  actions.MinimizeAll();
  EXPECT_EQ(log.Take(), (Calls{"udmTimersEnabled(false)", "ShowWindowAsync(Alpha, SW_MINIMIZE)",
                               "ShowWindowAsync(Beta, SW_MINIMIZE)", "udmTimersEnabled(true)"}));
}

TEST_F(AllWindows, RestoreAllEndsInTheMainWindow) {
  desktop.UserMinimizes(alpha);
  desktop.UserMinimizes(beta);
  actions.RestoreAll();
  const Calls calls = log.Take();
  ASSERT_EQ(calls.size(), 5U);
  EXPECT_EQ(calls.front(), "udmTimersEnabled(false)");
  EXPECT_EQ(calls[3], "SetForegroundWindow(Main)");
  EXPECT_EQ(calls.back(), "udmTimersEnabled(true)");
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_EQ(desktop.ForegroundTitle(), "Main");
}

TEST_F(AllWindows, TimersRunAgainAfterAnErrorInMinimizeAll) {
  log.WhenCalled("EnumWindows", [] { throw RunTimeError(RunTimeError::kOutOfMemory); });
  EXPECT_THROW(actions.MinimizeAll(), RunTimeError);
  EXPECT_EQ(log.Take().back(), "udmTimersEnabled(true)");
}

TEST_F(AllWindows, TimersThatAreSwitchedOffStayOff) {
  mainWindow.timer.tag = "OFF";
  { const TimerPause pause(mainWindow); }
  EXPECT_FALSE(mainWindow.timer.enabled);
  mainWindow.timer.tag = "ON";
  {
    const TimerPause pause(mainWindow);
    EXPECT_FALSE(mainWindow.timer.enabled);
  }
  EXPECT_TRUE(mainWindow.timer.enabled);
}

class Topmost : public ForegroundKeys {};

TEST_F(Topmost, IsSetAndTakenBackWithoutMovingTheWindow) {
  requests.SetTopmost(beta, true);
  EXPECT_EQ(log.Take(), Calls{"SetWindowPos(Beta, HWND_TOPMOST, 0, 0, 0, 0, 16403)"});
  EXPECT_EQ(desktop.GetWindowLongA(beta, win32::kGwlExStyle), win32::kWsExTopmost);
  requests.SetTopmost(beta, false);
  EXPECT_EQ(log.Take(), Calls{"SetWindowPos(Beta, HWND_NOTOPMOST, 0, 0, 0, 0, 16403)"});
  EXPECT_EQ(desktop.GetWindowLongA(beta, win32::kGwlExStyle), 0);
}

TEST_F(Topmost, DoesNotWaitForAHungWindow) {
  desktop.SetHung(beta, true);
  requests.SetTopmost(beta, true);
  EXPECT_EQ(log.Take(), Calls{"SetWindowPos(Beta, HWND_TOPMOST, 0, 0, 0, 0, 16403)"});
  EXPECT_EQ(desktop.CallsThatWaited(), 0);
}

class ShowDesktopWindowTest : public ForegroundKeys {};

TEST_F(ShowDesktopWindowTest, TellsWhetherTheWindowWasVisible) {
  EXPECT_EQ(requests.Show(beta, win32::kSwRestore), RequestResult::kDone);
  desktop.Hide(beta);
  EXPECT_EQ(requests.Show(beta, win32::kSwRestore), RequestResult::kFailed);
  EXPECT_EQ(requests.Show(beta, win32::kSwRestore), RequestResult::kDone);
  desktop.SetHung(beta, true);
  EXPECT_EQ(requests.Show(beta, win32::kSwRestore), RequestResult::kDone);
  EXPECT_EQ(requests.Show(0x7777, win32::kSwRestore), RequestResult::kFailed);
}

}  // namespace
}  // namespace korvale

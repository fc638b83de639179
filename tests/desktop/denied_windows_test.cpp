#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "desktop/window_actions.h"
#include "platform/win32_constants.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

const std::vector<ShownMessageBox> kToldOnce = {
    {"The window operation was not successful.  Please try again.", 65536, "Korvale"}};

/// Alpha stands behind Beta. Admin is minimized, and its program runs as administrator.
class DeniedWindows : public Activation {
 protected:
  DeniedWindows() {
    desktop.UserActivates(beta);
    log.Clear();
  }

  const WindowHandle admin = desktop.Open("Admin", {.iconic = true, .elevated = true});
};

TEST_F(DeniedWindows, AMinimizedOneIsNotAskedToComeForward) {
  WindowTriple window = Triple(admin, "Admin");
  EXPECT_EQ(Activate(window), kWindowDenied);
  EXPECT_EQ(window, Triple(admin, "Admin"));
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
  EXPECT_EQ(log.Take(), Calls{"SetWindowPos(Admin, HWND_TOP, 0, 0, 0, 0, 16407)"});
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(DeniedWindows, OneThatStaysMinimizedGivesTheForegroundBack) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.iconic = true, .staysIconic = true});
  EXPECT_EQ(Activate(Triple(stubborn, "Stubborn")), kWindowDenied);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
  EXPECT_EQ(
      log.Take(),
      (Calls{"SetWindowPos(Stubborn, HWND_TOP, 0, 0, 0, 0, 16407)", "SetForegroundWindow(Stubborn)",
             "ShowWindowAsync(Stubborn, SW_RESTORE)", "SetForegroundWindow(Beta)"}));
}

TEST_F(DeniedWindows, OneThatStaysMinimizedGivesTheForegroundBackBeforeItComesForward) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.iconic = true, .staysIconic = true});
  desktop.DelayForegroundFor(50);
  EXPECT_EQ(Activate(Triple(stubborn, "Stubborn")), kWindowDenied);
  clock.Advance(50);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(DeniedWindows, OneThatMinimizesItselfOnItsWayGivesTheForegroundBack) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.activate = false, .staysIconic = true});
  log.WhenCalled("SetForegroundWindow(Stubborn",
                 [&] { desktop.Windows().Find(stubborn)->iconic = true; });
  EXPECT_EQ(Activate(Triple(stubborn, "Stubborn")), kWindowDenied);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(DeniedWindows, TheForegroundGoesBackToTheWindowThatWasOnItsWay) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.iconic = true, .staysIconic = true});
  desktop.DelayForeground(true);
  EXPECT_EQ(Activate(Triple(alpha)), kActivationDone);
  tracker.RecordSelection(Know(desktop, alpha));
  EXPECT_EQ(Activate(Triple(stubborn, "Stubborn")), kWindowDenied);
  desktop.DelayForeground(false);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(DeniedWindows, TheForegroundDoesNotGoBackToAnotherWindowUnderTheHandle) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.iconic = true, .staysIconic = true});
  log.WhenCalled("ShowWindowAsync(Stubborn", [&] {
    desktop.Close(beta);
    desktop.Open("Newcomer", {.className = "Another", .activate = false, .reuseHandle = beta});
  });
  EXPECT_EQ(Activate(Triple(stubborn, "Stubborn")), kWindowDenied);
  EXPECT_EQ(desktop.ForegroundTitle(), "Stubborn");
}

TEST_F(DeniedWindows, AMinimizedOneInFrontStaysThere) {
  desktop.SetForegroundWindow(admin);
  log.Clear();
  EXPECT_EQ(Activate(Triple(admin, "Admin")), kWindowDenied);
  EXPECT_EQ(log.Take(), Calls{"SetWindowPos(Admin, HWND_TOP, 0, 0, 0, 0, 16407)"});
}

TEST_F(DeniedWindows, OneThatIsNotMinimizedComesForward) {
  desktop.UserRestores(admin);
  desktop.UserActivates(beta);
  EXPECT_EQ(Activate(Triple(admin, "Admin")), kActivationDone);
  EXPECT_EQ(desktop.ForegroundTitle(), "Admin");
}

TEST_F(DeniedWindows, ADialogOfAMinimizedOneIsNotReached) {
  desktop.UserRestores(admin);
  const WindowHandle dialog =
      desktop.Open("Dialog", {.owner = admin, .style = fakes::kWsPopup, .elevated = true});
  desktop.UserMinimizes(admin);
  desktop.UserActivates(beta);
  log.Clear();
  EXPECT_EQ(Activate(Triple(dialog, "Dialog")), kWindowDenied);
  EXPECT_EQ(log.Take(), Calls{"ShowWindowAsync(Admin, SW_RESTORE)"});
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(DeniedWindows, AMinimizedOneBehindItsDialogIsNotReached) {
  desktop.UserRestores(admin);
  desktop.OpenModalDialog(admin, "Dialog");
  desktop.UserMinimizes(admin);
  desktop.UserActivates(beta);
  WindowTriple window = Triple(admin, "Admin");
  EXPECT_EQ(actions.ActivatePreviousWindow(window), kWindowDenied);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(DeniedWindows, ADialogOfOneThatStaysMinimizedIsNotReached) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.staysIconic = true});
  const WindowHandle dialog = desktop.Open("Dialog", {.owner = stubborn, .style = fakes::kWsPopup});
  desktop.UserMinimizes(stubborn);
  desktop.UserActivates(beta);
  log.Clear();
  EXPECT_EQ(Activate(Triple(dialog, "Dialog")), kWindowDenied);
  EXPECT_EQ(log.Take(), Calls{"ShowWindowAsync(Stubborn, SW_RESTORE)"});
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(DeniedWindows, OneThatStaysMinimizedBehindItsDialogIsNotReached) {
  const WindowHandle stubborn = desktop.Open("Stubborn", {.staysIconic = true});
  desktop.OpenModalDialog(stubborn, "Dialog");
  desktop.UserMinimizes(stubborn);
  desktop.UserActivates(beta);
  log.Clear();
  WindowTriple window = Triple(stubborn, "Stubborn");
  EXPECT_EQ(actions.ActivatePreviousWindow(window), kWindowDenied);
  EXPECT_EQ(log.Take(), Calls{"ShowWindowAsync(Stubborn, SW_RESTORE)"});
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(DeniedWindows, TheKeysForTheWindowInFrontTellTheUser) {
  desktop.UserRestores(admin);
  previous.alternate = Triple(alpha);
  for (const char* const key : {"HOTKEY_MINIMIZE_PARENT", "HOTKEY_RESTORE/MAXIMIZE_PARENT"}) {
    messages.shown.clear();
    EXPECT_EQ(actions.MinimizeOrMaximizeForeground(key), WindowTriple{});
    EXPECT_EQ(messages.shown, kToldOnce) << key;
    EXPECT_EQ(desktop.ForegroundTitle(), "Admin");
  }
}

TEST_F(DeniedWindows, MinimizeAllTellsOnceAndMinimizesTheOthers) {
  desktop.UserRestores(admin);
  desktop.Open("Admin 2", {.elevated = true});
  actions.MinimizeAll();
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsIconic(admin));
  EXPECT_EQ(messages.shown, kToldOnce);
}

TEST_F(DeniedWindows, RestoreAllTellsOnceAndRestoresTheOthers) {
  desktop.Open("Admin 2", {.iconic = true, .elevated = true});
  desktop.UserMinimizes(alpha);
  std::string front;
  messages.whileShown = [&](const auto&) { front = desktop.ForegroundTitle(); };
  actions.RestoreAll();
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(messages.shown, kToldOnce);
  EXPECT_EQ(front, "Main");
}

TEST_F(DeniedWindows, OneThatClosesMeanwhileIsNoFailureOfABulkCommand) {
  desktop.UserRestores(admin);
  log.WhenCalled("ShowWindowAsync(Admin, SW_MINIMIZE)", [&] { desktop.Close(admin); });
  actions.MinimizeAll();
  EXPECT_TRUE(messages.shown.empty());
}

class RefusedForeground : public Activation {};

TEST_F(RefusedForeground, IsAskedForOnceMoreAfterAnInputOfOurOwn) {
  desktop.LockForeground(ForegroundLock::kUntilInput);
  EXPECT_EQ(Activate(Triple(alpha)), kActivationDone);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
  EXPECT_EQ(log.Take(), (Calls{"SetForegroundWindow(Alpha)", "SendMouseInput()",
                               "SetForegroundWindow(Alpha)"}));
}

TEST_F(RefusedForeground, ThatStaysRefusedIsDenied) {
  desktop.LockForeground(ForegroundLock::kForGood);
  desktop.UserMinimizes(alpha);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), kWindowDenied);
  EXPECT_EQ(window.handle, alpha);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
  EXPECT_EQ(log.Take(),
            (Calls{"SetWindowPos(Alpha, HWND_TOP, 0, 0, 0, 0, 16407)", "SetForegroundWindow(Alpha)",
                   "SendMouseInput()", "SetForegroundWindow(Alpha)"}));
}

TEST_F(RefusedForeground, OfAWindowThatHasGoneIsNotAskedForAgain) {
  log.WhenCalled("SetForegroundWindow(Alpha)", [&] { desktop.Close(alpha); });
  EXPECT_EQ(Activate(Triple(alpha)), kActivationFailed);
  EXPECT_EQ(log.Take(), Calls{"SetForegroundWindow(Alpha)"});
}

TEST_F(RefusedForeground, OfAWindowThatGoesMeanwhileIsNoDenial) {
  desktop.LockForeground(ForegroundLock::kUntilInput);
  log.WhenCalled("SendMouseInput", [&] { desktop.Close(alpha); });
  EXPECT_EQ(Activate(Triple(alpha)), kActivationFailed);
}

TEST_F(RefusedForeground, OfTheMainWindowAfterRestoreAllIsAskedForOnceMore) {
  desktop.LockForeground(ForegroundLock::kUntilInput);
  actions.RestoreAll();
  EXPECT_EQ(desktop.ForegroundTitle(), "Main");
  EXPECT_TRUE(messages.shown.empty());
}

}  // namespace
}  // namespace korvale

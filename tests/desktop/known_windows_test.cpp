#include <gtest/gtest.h>

#include "desktop/foreground_return.h"
#include "desktop/window_readers.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

/// Another window gets the handle of Alpha.
class KnownWindows : public Activation {
 protected:
  void GiveHandleOfAlphaAway() {
    desktop.Close(alpha);
    desktop.Open("Newcomer", {.className = "Another", .activate = false, .reuseHandle = alpha});
  }
};

TEST_F(KnownWindows, AnotherClassMakesAnotherWindow) {
  const KnownWindow known = Know(desktop, alpha);
  EXPECT_TRUE(StillExists(desktop, known));
  desktop.Rename(alpha, "Renamed");
  EXPECT_TRUE(StillExists(desktop, known));
  GiveHandleOfAlphaAway();
  EXPECT_FALSE(StillExists(desktop, known));
  EXPECT_FALSE(StillExists(desktop, {}));
}

TEST_F(KnownWindows, TheForegroundIsNotGivenBackToAnother) {
  const KnownWindow known = Know(desktop, alpha);
  GiveHandleOfAlphaAway();
  EXPECT_EQ(ReturnForegroundTo(desktop, requests, known), RequestResult::kFailed);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(KnownWindows, TheWindowBehindAClosingOneIsNotAnotherUnderItsHandle) {
  for (const WindowHandle hwnd : {beta, alpha, mainWindow.handle}) {
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }
  GiveHandleOfAlphaAway();
  desktop.UserActivates(mainWindow.handle);
  EXPECT_EQ(tracker.WindowBehind(mainWindow.handle).handle, beta);
}

TEST_F(KnownWindows, ADisabledWindowThatGoesWhileItIsAskedIsNotOpen) {
  desktop.SetEnabled(alpha, false);
  log.WhenCalled("IsWindow(Alpha)", [&] { desktop.Close(alpha); });
  EXPECT_EQ(Validate(Triple(alpha)), kWindowNotOpen);
}

TEST_F(KnownWindows, ADisabledWindowThatIsEnabledWhileItsDialogIsSoughtComesForward) {
  desktop.SetEnabled(alpha, false);
  WindowTriple window = Triple(alpha);
  log.WhenCalled("IsWindowEnabled(Alpha)", [&] { desktop.SetEnabled(alpha, true); });
  EXPECT_EQ(actions.ActivatePreviousWindow(window), kActivationDone);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(KnownWindows, AWindowThatIsNotTheDialogOfADisabledOneStaysBehind) {
  desktop.SetEnabled(alpha, false);
  WindowTriple window = Triple(alpha);
  log.WhenCalled("IsWindowEnabled(Alpha)", [&] { GiveHandleOfAlphaAway(); });
  EXPECT_EQ(actions.ActivatePreviousWindow(window), kActivationFailed);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(KnownWindows, ATagDoesNotLearnTheClassOfAWindowThatTookTheHandleOfTheFoundOne) {
  AddTag(1, "Alpha", "Old");
  log.WhenCalled("EnumWindows", [&] {
    // The search ends with the windows below Alpha.
    log.WhenCalled("GetClassNameA(Main", [&] {
      log.WhenCalled("GetClassNameA(Alpha", [&] { GiveHandleOfAlphaAway(); });
    });
  });
  routines.selection.SelectTag(1);
  EXPECT_EQ(ClassOfTag(1), "Old");
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

}  // namespace
}  // namespace korvale

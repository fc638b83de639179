#include <gtest/gtest.h>

#include "desktop/foreground_tracker.h"
#include "platform/win32_constants.h"
#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

class RecordMoves : public ForegroundTracking {
 protected:
  void Follow(WindowHandle hwnd) {
    SeenWindow window(desktop, hwnd);
    EXPECT_TRUE(tracker.FollowIfAccepted(window));
  }
};

TEST_F(RecordMoves, WindowBeforeBecomesTheAlternate) {
  WorkIn(alpha);
  Follow(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(RecordMoves, MainWindowBecomesTheAlternateWhileItIsInFront) {
  WorkIn(alpha);
  WorkIn(mainWindow.handle);
  Follow(beta);
  ExpectRecord(Triple(beta), Triple(mainWindow.handle));
  EXPECT_EQ(mainWindow.focusTag, "");
}

TEST_F(RecordMoves, AlternateItselfMayBecomeTheCurrentOne) {
  WorkIn(alpha);
  WorkIn(beta);
  Follow(previous.alternate.handle);
  ExpectRecord(Triple(alpha), Triple(beta));
}

class RecordMovedBySelection : public ForegroundTracking {
 protected:
  /// What a selection does: the window comes to the front, then the record moves.
  void Select(WindowHandle hwnd) {
    desktop.UserActivates(hwnd);
    tracker.RecordSelection(Know(desktop, hwnd));
  }
  /// The same while Windows takes its time to bring the window to the front.
  void SelectLate(WindowHandle hwnd) { tracker.RecordSelection(Know(desktop, hwnd)); }
};

class RecordMovedFromAlpha : public RecordMovedBySelection {
 protected:
  RecordMovedFromAlpha() { WorkIn(alpha); }
};

TEST_F(RecordMovedFromAlpha, IsNotMovedOnceMoreByTheTick) {
  Select(beta);
  tracker.tmrWindow_Timer();
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(RecordMovedFromAlpha, FromTheMainWindowKeepsItAsTheAlternate) {
  WorkIn(mainWindow.handle);
  Select(beta);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.alternate, Triple(mainWindow.handle));
}

TEST_F(DesktopCase, TheOnlyWindowWorkedInIsNotItsOwnWayBackWhileItComesForward) {
  const WindowHandle alpha = desktop.Open("Alpha");
  desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow});
  tracker.tmrWindow_Timer();
  tracker.RecordSelection(Know(desktop, alpha));
  EXPECT_EQ(previous.current.handle, alpha);
  EXPECT_EQ(previous.OfTagZero(false).handle, 0);
}

TEST_F(RecordMovedBySelection, HasItsMarkRefreshed) {
  desktop.Windows().Find(beta)->exStyle = win32::kWsExTopmost;
  Select(beta);
  EXPECT_TRUE(mainWindow.previousAlwaysOnTop);
}

TEST_F(RecordMovedFromAlpha, IsMovedByTheTickWhenAnotherWindowCameToTheFront) {
  Select(beta);
  WorkIn(gamma);
  ExpectRecord(Triple(gamma), Triple(beta));
  EXPECT_FALSE(previous.menuSelection);
}

TEST_F(RecordMovedBySelection, IsMovedByTheNextChangeAfterIt) {
  Select(alpha);
  tracker.tmrWindow_Timer();
  WorkIn(beta);
  WorkIn(alpha);
  ExpectRecord(Triple(alpha), Triple(beta));
}

TEST_F(RecordMovedFromAlpha, LetsTheUserLeaveTheMainWindowForTheSelectedOne) {
  desktop.UserActivates(beta);
  Select(alpha);
  tracker.tmrWindow_Timer();
  WorkIn(mainWindow.handle);
  WorkIn(alpha);
  EXPECT_EQ(mainWindow.focusTag, "");
  EXPECT_EQ(previous.alternate, Triple(mainWindow.handle));
}

TEST_F(RecordMovedFromAlpha, IsMovedBackWhenTheUserReturnedBeforeTheTick) {
  Select(beta);
  WorkIn(alpha);
  ExpectRecord(Triple(alpha), Triple(beta));
}

TEST_F(RecordMovedFromAlpha, IsNotMovedBackByATickBeforeTheWindowHasComeForward) {
  SelectLate(beta);
  tracker.LookAtForeground();
  tracker.tmrWindow_Timer();
  ExpectRecord(Triple(beta), Triple(alpha));
  WorkIn(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(RecordMovedFromAlpha, IsMovedBackWhenTheWindowNeverComesForward) {
  SelectLate(beta);
  tracker.tmrWindow_Timer();
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current, Triple(alpha));
}

TEST_F(RecordMovedFromAlpha, ToTheMainWindowCountsAsItsFocusAtOnce) {
  WorkIn(mainWindow.handle);
  WorkIn(beta);
  Select(mainWindow.handle);
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
  EXPECT_EQ(previous.current, Triple(beta));
}

TEST_F(RecordMovedFromAlpha, OfTheCurrentWindowChangesNothing) {
  WorkIn(beta);
  Select(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
}

/// The windows worked in that lie behind those of the record.
class WindowsWorkedInBefore : public ForegroundTracking {
 protected:
  WindowsWorkedInBefore() {
    WorkIn(alpha);
    WorkIn(beta);
  }
  WindowTriple OfTagZero() { return previous.OfTagZero(mainWindow.focusTag == kGotFocus); }
};

TEST_F(WindowsWorkedInBefore, TakeThePlaceOfAClosedOne) {
  WorkIn(gamma);
  desktop.Close(gamma);
  WorkIn(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(WindowsWorkedInBefore, AreMissedByNoneThatClosesBehindTheScenes) {
  WorkIn(gamma);
  desktop.Close(beta);
  tracker.tmrWindow_Timer();
  ExpectRecord(Triple(gamma), Triple(alpha));
}

TEST_F(WindowsWorkedInBefore, AreOneKeyAwayFromTheDesktopAfterTheWindowInFrontClosed) {
  WorkIn(gamma);
  desktop.Close(gamma);
  WorkIn(desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(previous.current, Triple(beta));
  EXPECT_EQ(OfTagZero().handle, beta);
}

TEST_F(WindowsWorkedInBefore, CountFromTheRecordedWindowWhileAnotherKindIsInFront) {
  WorkIn(desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(OfTagZero().handle, alpha);
}

TEST_F(WindowsWorkedInBefore, AreShownAtOnceWhenThePreviousWindowCloses) {
  WorkIn(mainWindow.handle);
  desktop.Close(beta);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(mainWindow.txtWindow, "Alpha");
}

TEST_F(WindowsWorkedInBefore, HoldNoneTwice) {
  WorkIn(alpha);
  WorkIn(beta);
  desktop.Close(beta);
  tracker.ValidatePreviousWindow();
  ExpectRecord(Triple(alpha), WindowTriple{});
}

class WindowMenuPoppedUp : public ForegroundTracking {
 protected:
  WindowMenuPoppedUp() {
    WorkIn(alpha);
    WorkIn(beta);
    desktop.UserActivates(mainWindow.handle);
    mainWindow.windowMenuPoppedUp = true;
    tracker.tmrWindow_Timer();
  }

  void CloseMenu() {
    mainWindow.windowMenuPoppedUp = false;
    tracker.PopUpClosed();
  }
};

TEST_F(WindowMenuPoppedUp, GivesTheMainWindowNoFocus) {
  EXPECT_EQ(mainWindow.focusTag, "");
  EXPECT_EQ(previous.current, Triple(beta));
  EXPECT_EQ(tracker.WindowInFront(), 0);
}

TEST_F(WindowMenuPoppedUp, StaysTheWindowInFrontWhereTheUserWasInItBefore) {
  CloseMenu();
  WorkIn(alpha);
  WorkIn(mainWindow.handle);
  mainWindow.windowMenuPoppedUp = true;
  tracker.tmrWindow_Timer();
  CloseMenu();
  EXPECT_EQ(tracker.WindowInFront(), mainWindow.handle);
}

TEST_F(WindowMenuPoppedUp, LeavesNoTraceWhenTheForegroundGoesBackAMomentLate) {
  CloseMenu();
  tracker.tmrWindow_Timer();
  WorkIn(beta);
  EXPECT_EQ(mainWindow.focusTag, "");
  EXPECT_EQ(previous.alternate, Triple(alpha));
}

TEST_F(WindowMenuPoppedUp, GivesTheMainWindowTheFocusWhenItStaysInFront) {
  CloseMenu();
  tracker.tmrWindow_Timer();
  tracker.tmrWindow_Timer();
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
}

}  // namespace
}  // namespace korvale

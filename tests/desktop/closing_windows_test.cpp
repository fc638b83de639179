#include <gtest/gtest.h>

#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

/// The user worked in Gamma, Alpha and Beta, which is about to close as a window of ours does.
class ClosingWindow : public ForegroundTracking {
 protected:
  ClosingWindow() {
    for (const WindowHandle hwnd : {gamma, alpha, beta}) WorkIn(hwnd);
  }

  WindowHandle Behind() { return tracker.WindowBehind(beta).handle; }
};

TEST_F(ClosingWindow, LeavesNoTraceInTheRecord) {
  tracker.ForgetVisit(beta);
  tracker.UpdateRecord();
  ExpectRecord(Triple(alpha), Triple(gamma));
  EXPECT_EQ(previous.OfTagZero(false).handle, gamma) << "the user is in Alpha again";
}

TEST_F(ClosingWindow, ThatIsNotInFrontTakesTheUserNowhere) {
  tracker.ForgetVisit(alpha);
  tracker.UpdateRecord();
  ExpectRecord(Triple(beta), Triple(gamma));
  EXPECT_EQ(previous.OfTagZero(false).handle, gamma);
  EXPECT_EQ(tracker.WindowBehind(alpha).handle, 0);
}

TEST_F(ClosingWindow, BehindTheMainWindowMakesTheNextTickTakeThatAnew) {
  WorkIn(mainWindow.handle);
  WorkIn(beta);
  tracker.ForgetVisit(beta);
  WorkIn(mainWindow.handle);
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
}

TEST_F(ClosingWindow, HasTheOneThatWasInFrontBeforeBehindIt) {
  EXPECT_EQ(Behind(), alpha);
  EXPECT_EQ(tracker.WindowBehind(beta).className, "Notepad");
}

TEST_F(ClosingWindow, HasTheOneWorkedInBeforeBehindItWhenThatOneCannotBeInFront) {
  desktop.UserMinimizes(alpha);
  desktop.UserActivates(beta);
  EXPECT_EQ(Behind(), gamma);
}

TEST_F(ClosingWindow, HasNoHiddenDisabledOrClosedWindowBehindIt) {
  desktop.Hide(alpha);
  EXPECT_EQ(Behind(), gamma);
  desktop.SetEnabled(gamma, false);
  EXPECT_EQ(Behind(), 0);
  desktop.SetEnabled(gamma, true);
  EXPECT_EQ(Behind(), gamma);
  desktop.Close(gamma);
  EXPECT_EQ(Behind(), 0);
}

TEST_F(ClosingWindow, HasTheDialogBehindItThatTakesTheInput) {
  const WindowHandle dialog = desktop.OpenModalDialog(alpha, "Save");
  desktop.UserActivates(beta);
  EXPECT_EQ(Behind(), dialog);
  EXPECT_EQ(tracker.LastWorkedIn(beta).handle, dialog);
}

TEST_F(ClosingWindow, IsNotTheOneLastWorkedInWhenItIsLeftOut) {
  EXPECT_EQ(tracker.LastWorkedIn().handle, beta);
  EXPECT_EQ(tracker.LastWorkedIn(beta).handle, alpha);
}

}  // namespace
}  // namespace korvale

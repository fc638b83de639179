#include <gtest/gtest.h>

#include "desktop/foreground_tracker.h"
#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

/// The user stays in Beta; before, they worked in Gamma and in Alpha.
class QuietTicks : public ForegroundTracking {
 protected:
  QuietTicks() {
    WorkIn(gamma);
    WorkIn(alpha);
    WorkIn(beta);
    Tick();
  }
  void Tick() { tracker.tmrWindow_Timer(); }
};

TEST_F(QuietTicks, NoticeThatTheWindowInFrontIsCloakedAndShownAgain) {
  desktop.SetCloakedByProgram(beta, true);
  Tick();
  EXPECT_EQ(mainWindow.txtWindow, "Alpha");
  Tick();
  EXPECT_EQ(mainWindow.txtWindow, "Alpha");
  desktop.SetCloakedByProgram(beta, false);
  Tick();
  EXPECT_EQ(mainWindow.txtWindow, "Beta");
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(QuietTicks, LeaveAnotherWindowUnderTheHandleOfTheOneInFrontToTheNextUse) {
  desktop.Close(beta);
  desktop.Open("Another", {.className = "Another", .reuseHandle = beta});
  Tick();
  tracker.LookAtForeground();
  ExpectRecord({beta, "Another", "Another"}, Triple(alpha));
}

TEST_F(QuietTicks, LeaveAnAlternateThatIsPutAwayToTheNextUse) {
  desktop.SetSuspended(alpha, true);
  Tick();
  EXPECT_EQ(previous.alternate.handle, alpha);
  tracker.LookAtForeground();
  ExpectRecord(Triple(beta), Triple(gamma));
}

TEST_F(QuietTicks, LookAtTheWholeRecordAfterAKey) {
  tracker.FollowForeground();
  desktop.SetSuspended(alpha, true);
  Tick();
  ExpectRecord(Triple(beta), Triple(gamma));
}

TEST_F(QuietTicks, LookAtTheWholeRecordAfterAKeyWhenNothingIsInFront) {
  desktop.LoseForeground();
  Tick();
  tracker.FollowForeground();
  desktop.SetSuspended(alpha, true);
  Tick();
  ExpectRecord(Triple(beta), Triple(gamma));
}

}  // namespace
}  // namespace korvale

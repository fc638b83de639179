#include <gtest/gtest.h>

#include <cstdint>

#include "desktop/foreground_tracker.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

/// Alpha was selected in Beta, and then Beta at once, while Windows had yet to bring Alpha forward.
class QuickSelections : public Activation {
 protected:
  /// Returns how many ms it has taken.
  std::uint64_t Select(WindowHandle hwnd) {
    const std::uint64_t start = clock.GetTickCount64();
    EXPECT_EQ(Activate(Triple(hwnd, desktop.Title(hwnd))), kActivationDone);
    tracker.RecordSelection(Know(desktop, hwnd));
    return clock.GetTickCount64() - start;
  }
};

TEST_F(QuickSelections, LeadToTheLastOne) {
  desktop.DelayForegroundFor(30);
  EXPECT_EQ(Select(alpha), 0U);
  clock.Advance(10);
  EXPECT_EQ(Select(beta), 20U);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(QuickSelections, WaitOnlyBrieflyForAWindowThatDoesNotCome) {
  desktop.DelayForeground(true);
  Select(alpha);
  EXPECT_EQ(Select(beta), 80U);
}

TEST_F(QuickSelections, DoNotWaitForAWindowThatHangs) {
  desktop.SetHung(alpha, true);
  desktop.DelayForeground(true);
  Select(alpha);
  EXPECT_EQ(Select(beta), 0U);
}

TEST_F(QuickSelections, DoNotWaitForAWindowThatCameAtOnce) {
  Select(alpha);
  desktop.UserActivates(beta);
  EXPECT_EQ(Select(beta), 0U);
}

TEST_F(QuickSelections, DoNotWaitForAWindowThatHasGone) {
  desktop.DelayForeground(true);
  Select(alpha);
  desktop.Close(alpha);
  EXPECT_EQ(Select(beta), 0U);
}

TEST_F(QuickSelections, DoNotWaitInAWindowThatWasOpenedMeanwhile) {
  desktop.DelayForeground(true);
  Select(alpha);
  EXPECT_EQ(Select(desktop.Open("Gamma")), 0U);
}

TEST_F(QuickSelections, DoNotWaitOnceATickHasSeenWhatIsInFront) {
  desktop.DelayForeground(true);
  Select(alpha);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(Select(beta), 0U);
}

}  // namespace
}  // namespace korvale

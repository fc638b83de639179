#include "desktop/window_requests.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

/// A window asked back to the front while another, asked for before it, is still coming.
class QuickRequests : public DesktopCase {
 protected:
  RequestResult Ask(WindowHandle hwnd) { return requests.SetForegroundWindow(hwnd); }

  /// Asks for Alpha, so long ago, and then for Beta, which is in front. Returns how many ms the
  /// second request has taken.
  std::uint64_t AskBothApart(std::uint64_t milliseconds) {
    EXPECT_EQ(Ask(alpha), RequestResult::kDone);
    clock.Advance(milliseconds);
    return TimeToAsk(beta);
  }

  std::uint64_t TimeToAsk(WindowHandle hwnd) {
    const std::uint64_t start = clock.GetTickCount64();
    EXPECT_EQ(Ask(hwnd), RequestResult::kDone);
    return clock.GetTickCount64() - start;
  }

  WindowRequests& requests = routines.requests;
  const WindowHandle alpha = desktop.Open("Alpha");
  const WindowHandle beta = desktop.Open("Beta");
};

TEST_F(QuickRequests, TheLastOneWins) {
  desktop.DelayForegroundFor(30);
  EXPECT_EQ(AskBothApart(10), 20U);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(QuickRequests, AWindowThatDoesNotComeIsWaitedForBriefly) {
  desktop.DelayForeground(true);
  EXPECT_EQ(AskBothApart(499), 80U);
}

TEST_F(QuickRequests, AWindowAskedForHalfASecondAgoIsNotWaitedFor) {
  desktop.DelayForeground(true);
  EXPECT_EQ(AskBothApart(500), 0U);
}

TEST_F(QuickRequests, AWindowThatHangsIsNotWaitedFor) {
  desktop.SetHung(alpha, true);
  desktop.DelayForeground(true);
  EXPECT_EQ(AskBothApart(0), 0U);
}

TEST_F(QuickRequests, AWindowThatMayNotComeIsNotWaitedFor) {
  desktop.LockForeground(ForegroundLock::kForGood);
  EXPECT_EQ(Ask(alpha), RequestResult::kDenied);
  desktop.LockForeground(ForegroundLock::kNone);
  EXPECT_EQ(TimeToAsk(beta), 0U);
}

TEST_F(QuickRequests, TheSameWindowIsAskedTwiceWithoutAWait) {
  EXPECT_EQ(Ask(beta), RequestResult::kDone);
  EXPECT_EQ(TimeToAsk(beta), 0U);
}

TEST_F(QuickRequests, AWindowBehindOthersIsAskedWithoutAWait) {
  const WindowHandle gamma = desktop.Open("Gamma");
  desktop.DelayForegroundFor(30);
  EXPECT_EQ(Ask(alpha), RequestResult::kDone);
  EXPECT_EQ(TimeToAsk(beta), 0U);
  clock.Advance(30);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
  EXPECT_EQ(TimeToAsk(gamma), 0U);
}

}  // namespace
}  // namespace korvale

#include "desktop/worked_windows.h"

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

constexpr WindowHandle kMost = 64;

class WorkedWindowsTest : public testing::Test {
 protected:
  void PutFirst(WindowHandle hwnd) {
    worked.PutFirst({hwnd, "Window"},
                    [this](const KnownWindow& window) { return IsGone(window.handle); });
  }
  bool IsGone(WindowHandle hwnd) const { return hwnd >= firstGone && hwnd <= lastGone; }
  /// Puts the windows of these numbers, such that the first is the latest.
  void PutAll(const std::vector<WindowHandle>& windows) {
    for (std::size_t i = windows.size(); i > 0; --i) PutFirst(windows[i - 1]);
  }
  /// All that are visited, while `change` happens during the visit of `during`.
  std::vector<WindowHandle> Visited(
      WindowHandle during = 0, const std::function<void()>& change = [] {}) {
    std::vector<WindowHandle> visited;
    worked.ForEach([&](const KnownWindow& window) {
      visited.push_back(window.handle);
      if (window.handle == during) change();
      return true;
    });
    return visited;
  }

  using Handles = std::vector<WindowHandle>;
  WorkedWindows worked;
  WindowHandle firstGone = 1;
  WindowHandle lastGone = 0;
};

TEST_F(WorkedWindowsTest, TheLatestIsVisitedFirst) {
  PutAll({1, 2, 3});
  PutFirst(3);
  EXPECT_EQ(worked.Latest(), 3);
  EXPECT_EQ(Visited(), (Handles{3, 1, 2}));
}

TEST_F(WorkedWindowsTest, AVisitEndsWhenItIsToldSo) {
  PutAll({1, 2, 3});
  Handles visited;
  worked.ForEach([&](const KnownWindow& window) {
    visited.push_back(window.handle);
    return window.handle != 2;
  });
  EXPECT_EQ(visited, (Handles{1, 2}));
}

TEST_F(WorkedWindowsTest, OneThatIsPutFirstMeanwhileIsStillVisited) {
  PutAll({1, 2, 3});
  EXPECT_EQ(Visited(2, [this] { PutFirst(3); }), (Handles{1, 2, 3}));
}

TEST_F(WorkedWindowsTest, OneThatStandsBehindRemovedOnesIsStillVisited) {
  PutAll({1, 2, 3, 4});
  const auto removeOneAndThree = [this] {
    worked.Remove(1);
    worked.Remove(3);
  };
  EXPECT_EQ(Visited(3, removeOneAndThree), (Handles{1, 2, 3, 4}));
}

TEST_F(WorkedWindowsTest, NoneIsVisitedTwiceWhenTheVisitedOneIsPutFirst) {
  PutAll({1, 2, 3});
  EXPECT_EQ(Visited(2, [this] { PutFirst(2); }), (Handles{1, 2, 3}));
}

TEST_F(WorkedWindowsTest, OneThatIsRemovedMeanwhileIsNotVisited) {
  PutAll({1, 2, 3});
  EXPECT_EQ(Visited(1, [this] { worked.Remove(2); }), (Handles{1, 3}));
}

class TooManyWorkedWindows : public WorkedWindowsTest {
 protected:
  TooManyWorkedWindows() {
    for (WindowHandle hwnd = 1; hwnd <= kMost; ++hwnd) PutFirst(hwnd);
  }
};

TEST_F(TooManyWorkedWindows, LoseTheEarliest) {
  EXPECT_EQ(Visited().size(), 64U);
  PutFirst(1);
  EXPECT_EQ(Visited().size(), 64U);
  PutFirst(100);
  EXPECT_EQ(Visited().size(), 64U);
  EXPECT_TRUE(worked.Holds(1));
  EXPECT_FALSE(worked.Holds(2));
}

TEST_F(TooManyWorkedWindows, LoseThoseThatAreGoneFirst) {
  firstGone = 10;
  lastGone = 12;
  PutFirst(100);
  EXPECT_EQ(Visited().size(), 62U);
  EXPECT_TRUE(worked.Holds(1));
  EXPECT_FALSE(worked.Holds(11));
}

TEST_F(TooManyWorkedWindows, AskForGoneOnesOnlyThen) {
  firstGone = 10;
  lastGone = 12;
  PutFirst(kMost);
  EXPECT_TRUE(worked.Holds(11));
}

TEST_F(ForegroundTracking, ClosedWindowsMakeRoomBeforeOneThatIsStillThere) {
  const auto workInMany = [this] {
    std::vector<WindowHandle> windows(40);
    for (WindowHandle& hwnd : windows) WorkIn(hwnd = desktop.Open("Many"));
    return windows;
  };
  const auto close = [this](const std::vector<WindowHandle>& windows) {
    for (const WindowHandle hwnd : windows) desktop.Close(hwnd);
  };
  WorkIn(alpha);
  const std::vector<WindowHandle> early = workInMany();
  WorkIn(beta);
  WorkIn(gamma);
  close(early);
  const std::vector<WindowHandle> late = workInMany();
  WorkIn(mainWindow.handle);
  close(late);
  close({beta, gamma});
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current, Triple(alpha));
}

}  // namespace
}  // namespace korvale

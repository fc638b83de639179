#include <algorithm>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/program/window_menu_test.h"

namespace korvale {
namespace {

/// What Windows is asked and told, of the windows and their forms, by what the user does most. The
/// user has worked in Gamma and then in Beta; Alpha is Tag 1. Each look at the record asks whether
/// the two windows that they worked in before are still there.
class CallCountsTest : public WindowMenuTest {
 protected:
  CallCountsTest() {
    korvale.TagPrevious();
    beta = Open("Beta");
    WorkIn(gamma);
    WorkIn(beta);
  }

  std::vector<std::string> CallsOf(const std::function<void()>& action) {
    return log.TakeAllOf(action);
  }

  std::vector<std::string> CallsOfKey(std::uint32_t modifiers, std::uint32_t key) {
    return CallsOf([&] { hotKeys.Press(modifiers, key); });
  }
  std::vector<std::string> CallsOfTag(int tag) {
    return CallsOfKey(win32::kModAlt, static_cast<std::uint32_t>('0' + tag));
  }
  std::vector<std::string> CallsOfATick() {
    return CallsOf([&] { clock.AdvanceToNextTick(); });
  }

  /// How many of the calls come before the first that begins so.
  static std::size_t Before(const std::vector<std::string>& calls, std::string_view prefix) {
    const auto found = std::ranges::find_if(
        calls, [&](const std::string& call) { return call.starts_with(prefix); });
    return static_cast<std::size_t>(found - calls.begin());
  }

  const std::vector<std::string> kQuietTick = {"GetForegroundWindow()", "IsWindow(Gamma)",
                                               "DwmGetWindowAttribute(Beta)"};
  const WindowHandle gamma = Open("Gamma");
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  WindowHandle beta = 0;
};

TEST_F(CallCountsTest, ALiveTagIsInFrontAfterWhatDecides) {
  const std::vector<std::string> calls = CallsOfTag(1);
  ASSERT_EQ(Front(), "Alpha");
  EXPECT_EQ(Before(calls, "SetForegroundWindow"), 7U) << testing::PrintToString(calls);
  EXPECT_EQ(calls.size(), 29U) << testing::PrintToString(calls);
}

TEST_F(CallCountsTest, TagZeroAsksForTheWindowBeforeItsWayThere) {
  const std::vector<std::string> calls = CallsOfTag(0);
  ASSERT_EQ(Front(), "Gamma");
  EXPECT_EQ(Before(calls, "SetForegroundWindow"), 20U) << testing::PrintToString(calls);
  EXPECT_EQ(calls.size(), 42U) << testing::PrintToString(calls);
}

TEST_F(CallCountsTest, AQuietTickAsksWhatIsInFrontAndWhetherTheRecordHolds) {
  EXPECT_EQ(CallsOfATick(), kQuietTick);
}

TEST_F(CallCountsTest, ATitleThatChangesIsNothingToATick) {
  desktop.CountReadings(beta);
  EXPECT_EQ(CallsOfATick(), kQuietTick);
  EXPECT_EQ(korvale.TargetWindow(), "Beta");
}

TEST_F(CallCountsTest, AQuietTickInTheMainWindowLooksAtTheOneThatTheStripShows) {
  WorkIn(korvale.Handle());
  EXPECT_EQ(CallsOfATick(),
            (std::vector<std::string>{"GetForegroundWindow()", "GetClassNameA(Beta, 255)",
                                      "IsWindow(Gamma)", "DwmGetWindowAttribute(Beta)"}));
}

TEST_F(CallCountsTest, ATickOverTheBareDesktopReadsItsClass) {
  WorkIn(desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(CallsOfATick().size(), 5U);
}

TEST_F(CallCountsTest, ATickOverAWindowThatIsNotFollowedReadsItOnce) {
  WorkIn(desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow}));
  EXPECT_EQ(CallsOfATick().size(), 12U);
}

TEST_F(CallCountsTest, ATickReadsAWindowThatHasComeToTheFrontTwice) {
  desktop.UserActivates(gamma);
  const std::vector<std::string> calls = CallsOfATick();
  EXPECT_EQ(calls.size(), 27U) << testing::PrintToString(calls);
}

TEST_F(CallCountsTest, TheWindowMenuReadsEachWindowOfTheRecordOnce) {
  const std::vector<std::string> calls =
      CallsOf([&] { korvale.Form().OnMenuOpened(korvale.Form().Menu("mnuWindow")); });
  EXPECT_EQ(calls.size(), 15U) << testing::PrintToString(calls);
}

TEST_F(CallCountsTest, AltDownMakesSureOfTheRecordFirst) {
  const std::vector<std::string> calls = CallsOfKey(win32::kModAlt, win32::kVkDown);
  ASSERT_TRUE(desktop.IsIconic(beta));
  EXPECT_EQ(Before(calls, "ShowWindowAsync"), 15U) << testing::PrintToString(calls);
  EXPECT_EQ(calls.size(), 52U) << testing::PrintToString(calls);
}

TEST_F(CallCountsTest, TheTimerIsNeitherStoppedNorSetBeforeTheWindowIsInFront) {
  // The user has changed windows since the last tick.
  desktop.UserActivates(gamma);
  const std::vector<std::string> calls = CallsOfTag(1);
  ASSERT_EQ(Front(), "Alpha");
  const std::size_t inFront = Before(calls, "SetForegroundWindow");
  EXPECT_GT(Before(calls, "SetTimer"), inFront);
  EXPECT_EQ(Before(calls, "KillTimer"), calls.size());
}

TEST_F(CallCountsTest, TheTimerIsStartedAnewOnceByAPress) {
  const std::vector<std::string> calls = CallsOfTag(1);
  EXPECT_EQ(std::ranges::count_if(
                calls, [](const std::string& call) { return call.starts_with("SetTimer"); }),
            1);
}

}  // namespace
}  // namespace korvale

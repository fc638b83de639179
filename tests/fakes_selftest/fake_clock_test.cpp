#include "tests/fakes/fake_clock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace korvale {
namespace {

class FakeClockTest : public testing::Test {
 protected:
  FakeClockTest() {
    clock_.SetTickHandler([this](WindowHandle hwnd, int id) {
      ticks_.push_back(std::to_string(hwnd) + "." + std::to_string(id) + " at " +
                       std::to_string(clock_.GetTickCount64() - start_));
    });
  }

  FakeClock clock_;
  std::uint64_t start_ = clock_.GetTickCount64();
  std::vector<std::string> ticks_;
};

TEST_F(FakeClockTest, TimersTickWhenTheyAreDueTheEarliestFirst) {
  clock_.SetTimer(1, 1, 100);
  clock_.SetTimer(2, 7, 150);

  clock_.Advance(310);

  EXPECT_EQ(ticks_, (std::vector<std::string>{"1.1 at 100", "2.7 at 150", "1.1 at 200",
                                              "1.1 at 300", "2.7 at 300"}));
  EXPECT_EQ(clock_.GetTickCount64(), start_ + 310);
}

TEST_F(FakeClockTest, TimePassesWithoutTimers) {
  clock_.Advance(50);

  EXPECT_EQ(clock_.GetTickCount64(), start_ + 50);
  EXPECT_FALSE(clock_.AdvanceToNextTick());
}

TEST_F(FakeClockTest, AKilledTimerDoesNotTick) {
  clock_.SetTimer(1, 1, 100);
  clock_.SetTimer(1, 2, 100);
  clock_.KillTimer(1, 1);

  clock_.Advance(100);

  EXPECT_EQ(ticks_, std::vector<std::string>{"1.2 at 100"});
}

TEST_F(FakeClockTest, ATimerThatIsSetAgainStartsAnew) {
  clock_.SetTimer(1, 1, 100);
  clock_.Advance(60);
  clock_.SetTimer(1, 1, 80);
  EXPECT_EQ(clock_.IntervalOf(1, 1), 80U);

  clock_.Advance(90);

  EXPECT_EQ(ticks_, std::vector<std::string>{"1.1 at 140"});
}

TEST_F(FakeClockTest, ATickCanStopItsOwnTimer) {
  clock_.SetTickHandler([this](WindowHandle hwnd, int id) {
    ticks_.push_back("tick");
    clock_.KillTimer(hwnd, id);
  });
  clock_.SetTimer(1, 1, 100);

  clock_.Advance(500);

  EXPECT_EQ(ticks_, std::vector<std::string>{"tick"});
  EXPECT_FALSE(clock_.AnyTimerOf(1));
  EXPECT_EQ(clock_.IntervalOf(1, 1), std::nullopt);
}

TEST_F(FakeClockTest, JumpsToTheNextTick) {
  clock_.SetTimer(1, 1, 700);

  EXPECT_TRUE(clock_.AdvanceToNextTick());

  EXPECT_EQ(ticks_, std::vector<std::string>{"1.1 at 700"});
}

TEST_F(FakeClockTest, TellsTheLocalTimeThatWasSet) {
  clock_.SetLocalTime({2001, 12, 15, 14, 3, 27, 6});

  EXPECT_EQ(clock_.GetLocalTime().hour, 14);
}

TEST_F(FakeClockTest, TheLogTellsOfTimersThatStartAndStop) {
  CallLog log;
  log.NameWindow(1, "frmMain");
  log.IncludeReads(true);
  FakeClock clock(log);
  clock.SetTimer(1, 5, 100);
  clock.KillTimer(1, 5);
  EXPECT_EQ(log.Calls(),
            (std::vector<std::string>{"SetTimer(frmMain, 5, 100)", "KillTimer(frmMain, 5)"}));
}

}  // namespace
}  // namespace korvale

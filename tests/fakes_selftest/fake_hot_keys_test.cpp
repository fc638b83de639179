#include "tests/fakes/fake_hot_keys.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"

namespace korvale {
namespace {

using Calls = std::vector<std::string>;
constexpr WindowHandle kMain = 0x100;
constexpr WindowHandle kGone = 0x200;
constexpr std::uint32_t kDigit3 = 0x33;

class RecordingProcedure : public WindowProcedure {
 public:
  std::intptr_t Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                     std::intptr_t lParam) override {
    calls.push_back(std::to_string(hwnd) + " " + std::to_string(message) + " " +
                    std::to_string(wParam) + " " + std::to_string(lParam));
    return handle ? handle() : 1;
  }
  void OnUncaught() noexcept override { ++uncaught; }

  std::function<std::intptr_t()> handle;
  Calls calls;
  int uncaught = 0;
};

class FakeHotKeysTest : public testing::Test {
 protected:
  CallLog log_;
  FakeHotKeys hot_keys_{log_, [](WindowHandle hwnd) { return hwnd != kGone; }};
  RecordingProcedure procedure_;
};

TEST_F(FakeHotKeysTest, APressReachesTheProcedureWithIdentifierAndCombination) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 4, win32::kModAlt, kDigit3));

  EXPECT_TRUE(hot_keys_.Press(win32::kModAlt, kDigit3));

  EXPECT_EQ(procedure_.calls, Calls{"256 786 4 " + std::to_string(0x330001)});
}

TEST_F(FakeHotKeysTest, APressOfAnotherCombinationReachesNobody) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.RegisterHotKey(kMain, 4, win32::kModAlt, kDigit3);

  EXPECT_FALSE(hot_keys_.Press(win32::kModControl, kDigit3));
  EXPECT_FALSE(hot_keys_.Press(win32::kModAlt, kDigit3 + 1));
  EXPECT_FALSE(hot_keys_.Press(win32::kModAlt | win32::kModShift, kDigit3));

  EXPECT_EQ(procedure_.calls, Calls{});
}

TEST_F(FakeHotKeysTest, ACombinationBelongsToOneProgram) {
  EXPECT_TRUE(hot_keys_.RegisterForeign(win32::kModAlt, kDigit3));
  EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3));
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 2, win32::kModControl, kDigit3));
  EXPECT_FALSE(hot_keys_.RegisterForeign(win32::kModControl, kDigit3));
  EXPECT_FALSE(hot_keys_.Press(win32::kModAlt, kDigit3));

  hot_keys_.ReleaseForeign(win32::kModAlt, kDigit3);

  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3));
}

TEST_F(FakeHotKeysTest, TheShellOwnsMostCombinationsWithTheWindowsKey) {
  hot_keys_.StartShell();
  for (const std::uint32_t key : {'O', 'W', '1'}) {
    EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModWin, key));
  }
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModWin, 'J'));
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 2, win32::kModAlt, 'W'));
}

TEST_F(FakeHotKeysTest, ACombinationIsRegisteredOnceOnly) {
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3));
  EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3));
  EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain + 1, 1, win32::kModAlt, kDigit3));
}

TEST_F(FakeHotKeysTest, AnIdentifierThatIsRegisteredAgainHasTwoHotKeys) {
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3));
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModControl, kDigit3));
  EXPECT_TRUE(hot_keys_.Press(win32::kModAlt, kDigit3));
  EXPECT_TRUE(hot_keys_.Press(win32::kModControl, kDigit3));

  EXPECT_TRUE(hot_keys_.UnregisterHotKey(kMain, 1));

  EXPECT_EQ(hot_keys_.Registered(),
            (std::vector<FakeHotKeys::Registration>{{kMain, 1, win32::kModAlt, kDigit3}}));
  EXPECT_TRUE(hot_keys_.UnregisterHotKey(kMain, 1));
  EXPECT_FALSE(hot_keys_.UnregisterHotKey(kMain, 1));
}

TEST_F(FakeHotKeysTest, UnregisteringLooksAtWindowAndIdentifier) {
  hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3);

  EXPECT_FALSE(hot_keys_.UnregisterHotKey(kMain, 2));
  EXPECT_FALSE(hot_keys_.UnregisterHotKey(kMain + 1, 1));
  EXPECT_EQ(hot_keys_.Registered().size(), 1U);
}

TEST_F(FakeHotKeysTest, RefusesUnknownWindowsAndIdentifiersOutOfRange) {
  EXPECT_FALSE(hot_keys_.RegisterHotKey(kGone, 1, win32::kModAlt, kDigit3));
  EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain, -1, win32::kModAlt, kDigit3));
  EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain, 0xC000, win32::kModAlt, kDigit3));
  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 0xBFFF, win32::kModAlt, kDigit3));
  EXPECT_EQ(hot_keys_.SetWindowLongPtrA(kGone, procedure_), 0);
  EXPECT_FALSE(hot_keys_.IsHooked(kGone));
}

TEST_F(FakeHotKeysTest, EveryWindowHearsOfTheEndOfAClassicSleep) {
  hot_keys_.modernStandby = false;
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.SetWindowLongPtrA(kMain + 1, procedure_);
  hot_keys_.EndSleep();
  EXPECT_EQ(procedure_.calls,
            (Calls{"256 536 18 0", "257 536 18 0", "256 536 7 0", "257 536 7 0"}));
}

TEST_F(FakeHotKeysTest, AWindowHearsOfModernStandbyWhileItIsRegistered) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.EndSleep();
  EXPECT_TRUE(procedure_.calls.empty());
  EXPECT_FALSE(hot_keys_.RegisterSuspendResumeNotification(kGone));
  EXPECT_TRUE(hot_keys_.RegisterSuspendResumeNotification(kMain));
  EXPECT_TRUE(hot_keys_.RegisterSuspendResumeNotification(kMain));
  hot_keys_.EndSleep();
  EXPECT_EQ(procedure_.calls, (Calls{"256 536 18 0", "256 536 7 0"}));
  hot_keys_.UnregisterSuspendResumeNotification(kMain);
  hot_keys_.EndSleep();
  EXPECT_EQ(procedure_.calls.size(), 2U);
  hot_keys_.RegisterSuspendResumeNotification(kMain);
  hot_keys_.ForgetWindow(kMain);
  EXPECT_FALSE(hot_keys_.HearsOfSleep(kMain));
}

TEST_F(FakeHotKeysTest, TellsNobodyWhileNotificationsAreRefused) {
  hot_keys_.refuseNotifications = true;
  EXPECT_FALSE(hot_keys_.WTSRegisterSessionNotification(kMain));
  EXPECT_FALSE(hot_keys_.RegisterSuspendResumeNotification(kMain));
  EXPECT_EQ(hot_keys_.SessionWatches(kMain), 0U);
  EXPECT_FALSE(hot_keys_.HearsOfSleep(kMain));
}

TEST_F(FakeHotKeysTest, AWindowHearsOfItsSessionAsOftenAsItAskedFor) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.ChangeSession(8);
  EXPECT_TRUE(procedure_.calls.empty());
  EXPECT_TRUE(hot_keys_.WTSRegisterSessionNotification(kMain));
  EXPECT_TRUE(hot_keys_.WTSRegisterSessionNotification(kMain));
  EXPECT_FALSE(hot_keys_.WTSRegisterSessionNotification(kGone));
  hot_keys_.WTSUnRegisterSessionNotification(kMain);
  hot_keys_.ChangeSession(8);
  EXPECT_EQ(procedure_.calls, Calls{"256 689 8 1"});
  hot_keys_.ForgetWindow(kMain);
  EXPECT_EQ(hot_keys_.SessionWatches(kMain), 0U);
}

TEST_F(FakeHotKeysTest, TheFlagAgainstRepeatingIsNoPartOfTheCombination) {
  constexpr std::uint32_t kModNoRepeat = 0x4000;

  EXPECT_TRUE(hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt | kModNoRepeat, kDigit3));

  EXPECT_FALSE(hot_keys_.RegisterHotKey(kMain, 2, win32::kModAlt, kDigit3));
  EXPECT_TRUE(hot_keys_.Press(win32::kModAlt, kDigit3));
}

TEST_F(FakeHotKeysTest, ProceduresFormAChainDownToTheWindowsOwn) {
  RecordingProcedure second;
  const PreviousProcedure own = hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  const PreviousProcedure first = hot_keys_.SetWindowLongPtrA(kMain, second);
  hot_keys_.answer = 77;
  second.handle = [&] { return hot_keys_.CallWindowProcA(first, kMain, 8, 9, 10); };
  procedure_.handle = [&] { return hot_keys_.CallWindowProcA(own, kMain, 11, 12, 13); };

  EXPECT_EQ(hot_keys_.Deliver(kMain, 5, 6, 7), 77);

  EXPECT_EQ(second.calls, Calls{"256 5 6 7"});
  EXPECT_EQ(procedure_.calls, Calls{"256 8 9 10"});
  EXPECT_EQ(log_.CallsOf("Call"),
            (Calls{"CallWindowProcA(0x100, 0x8, 9, 10)", "CallWindowProcA(0x100, 0xb, 12, 13)"}));
}

TEST_F(FakeHotKeysTest, APostedMessageComesBehindWhatWaits) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3);
  hot_keys_.PressWhileBusy(win32::kModAlt, kDigit3);
  hot_keys_.PostMessageW(kMain, 5, 6, 7);

  hot_keys_.DeliverQueued();

  ASSERT_EQ(procedure_.calls.size(), 2U);
  EXPECT_EQ(procedure_.calls.back(), "256 5 6 7");
}

TEST_F(FakeHotKeysTest, ALongQueueIsDeliveredWithoutNesting) {
  constexpr std::size_t kMany = 10'000;
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  for (std::size_t i = 0; i < kMany; ++i) hot_keys_.PostMessageW(kMain, 5, 6, 7);

  hot_keys_.DeliverQueued();

  EXPECT_EQ(procedure_.calls.size(), kMany);
}

TEST_F(FakeHotKeysTest, AMessageTakenOutTellsWhatCameWithIt) {
  hot_keys_.PostMessageW(kMain, 5, 6, 7);
  hot_keys_.PostMessageW(kMain, 5, 8, 9);

  EXPECT_EQ(hot_keys_.PeekMessageW(kMain, 4), std::nullopt);
  EXPECT_EQ(hot_keys_.PeekMessageW(kMain, 5), (QueuedMessage{6, 7}));
  EXPECT_EQ(hot_keys_.PeekMessageW(kMain, 5), (QueuedMessage{8, 9}));
  EXPECT_EQ(hot_keys_.PeekMessageW(kMain, 5), std::nullopt);
}

TEST_F(FakeHotKeysTest, APutBackProcedureIsNotCalled) {
  const PreviousProcedure own = hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  EXPECT_TRUE(hot_keys_.IsHooked(kMain));

  hot_keys_.SetWindowLongPtrA(kMain, own);

  EXPECT_FALSE(hot_keys_.IsHooked(kMain));
  hot_keys_.Deliver(kMain, 5);
  EXPECT_EQ(procedure_.calls, Calls{});
}

TEST_F(FakeHotKeysTest, AnErrorInAProcedureIsHandedOver) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  procedure_.handle = []() -> std::intptr_t { throw std::runtime_error("broken"); };

  EXPECT_EQ(hot_keys_.Deliver(kMain, 5), 0);

  EXPECT_EQ(procedure_.uncaught, 1);
}

TEST_F(FakeHotKeysTest, ADestroyedWindowLosesItsHotKeysAndHook) {
  hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.RegisterHotKey(kMain, 1, win32::kModAlt, kDigit3);

  hot_keys_.ForgetWindow(kMain);

  EXPECT_FALSE(hot_keys_.Press(win32::kModAlt, kDigit3));
  EXPECT_FALSE(hot_keys_.IsHooked(kMain));
}

TEST_F(FakeHotKeysTest, LogsTheCallsInTheirOrder) {
  const PreviousProcedure own = hot_keys_.SetWindowLongPtrA(kMain, procedure_);
  hot_keys_.RegisterHotKey(kMain, 3, 1, kDigit3);
  hot_keys_.UnregisterHotKey(kMain, 3);
  hot_keys_.SetWindowLongPtrA(kMain, own);

  EXPECT_EQ(log_.Calls(),
            (Calls{"SetWindowLongPtrA(0x100, procedure)", "RegisterHotKey(0x100, 3, 1, 51)",
                   "UnregisterHotKey(0x100, 3)", "SetWindowLongPtrA(0x100, previous)"}));
}

}  // namespace
}  // namespace korvale

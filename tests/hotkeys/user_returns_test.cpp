#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/hotkeys/window_proc_hook_fixture.h"

namespace korvale {
namespace {

using Message = std::pair<std::uint32_t, std::uintptr_t>;

const Message kReturns[] = {{win32::kWmPowerBroadcast, 0x12},
                            {win32::kWmPowerBroadcast, 7},
                            {win32::kWmWtsSessionChange, 1},
                            {win32::kWmWtsSessionChange, 3},
                            {win32::kWmWtsSessionChange, 8}};

/// Another program has Alt+1 from the start.
class UserReturns : public WindowProcHookTest {
 protected:
  UserReturns() {
    table.SetHotKeys("REMOVE");
    hotKeys.RegisterForeign(win32::kModAlt, '1');
    table.SetHotKeys("SET");
    log.Clear();
  }
  bool AltAndOneIsOurs() { return table.Registered().at(1).accepted; }
};

TEST_F(UserReturns, RegistersARefusedHotKeyThatIsFreeNowAndTellsTheForms) {
  for (const auto& [message, event] : kReturns) {
    table.SetHotKeys("REMOVE");
    hotKeys.RegisterForeign(win32::kModAlt, '1');
    table.SetHotKeys("SET");
    hotKeys.ReleaseForeign(win32::kModAlt, '1');
    actions.log.clear();
    log.Clear();

    EXPECT_EQ(hook.HotKeyWindowProc(kMain, message, event, 0), 77);

    EXPECT_TRUE(AltAndOneIsOurs()) << message << " " << event;
    EXPECT_EQ(actions.log, std::vector<std::string>{"HotKeysRegistered"});
    EXPECT_EQ(log.Calls(),
              (Calls{"RegisterHotKey(main, 2, 1, 49)", "CallWindowProcA(main, " + HexText(message) +
                                                           ", " + std::to_string(event) + ", 0)"}));
  }
}

TEST_F(UserReturns, SaysNothingWhenNothingIsFree) {
  hotKeys.EndSleep();
  EXPECT_FALSE(AltAndOneIsOurs());
  EXPECT_TRUE(actions.log.empty());
}

TEST_F(UserReturns, OnlyByTheEventsThatSaySo) {
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  for (const auto& [message, event] :
       {Message{win32::kWmPowerBroadcast, 4}, Message{win32::kWmPowerBroadcast, 10},
        Message{win32::kWmPowerBroadcast, 0x8013}, Message{win32::kWmWtsSessionChange, 2},
        Message{win32::kWmWtsSessionChange, 4}, Message{win32::kWmWtsSessionChange, 5},
        Message{win32::kWmWtsSessionChange, 6}, Message{win32::kWmWtsSessionChange, 7},
        Message{win32::kWmNull, 7}, Message{0x11A, 8}}) {
    EXPECT_EQ(hook.HotKeyWindowProc(kMain, message, event, 0), 77);
    EXPECT_FALSE(AltAndOneIsOurs()) << message << " " << event;
  }
  EXPECT_EQ(hook.HotKeyWindowProc(kMain + 1, win32::kWmPowerBroadcast, 7, 0), 77);
  EXPECT_FALSE(AltAndOneIsOurs());
}

TEST_F(UserReturns, AsOftenAsAStrangerClaimsChangesNothing) {
  const auto registered = hotKeys.Registered();
  for (int time = 0; time < 10'000; ++time) {
    for (const auto& [message, event] : kReturns) hook.HotKeyWindowProc(kMain, message, event, -1);
  }
  EXPECT_EQ(hotKeys.Registered(), registered);
  EXPECT_TRUE(actions.log.empty());
}

TEST_F(UserReturns, AndAFailingFormIsReported) {
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  actions.onCall = [](const std::string&) { throw RunTimeError(RunTimeError::kOutOfMemory); };
  EXPECT_EQ(hook.HotKeyWindowProc(kMain, win32::kWmPowerBroadcast, 7, 0), 77);
  EXPECT_EQ(log.CallsOf("uncaught"), Calls{"uncaught 7"});
  EXPECT_TRUE(AltAndOneIsOurs());
}

TEST_F(UserReturns, ToldBySessionsForAsLongAsTheHookIsThere) {
  EXPECT_EQ(hotKeys.SessionWatches(kMain), 1U);
  hook.HookWindowProc("SET", kMain);
  EXPECT_EQ(hotKeys.SessionWatches(kMain), 1U);
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  hotKeys.ChangeSession(win32::kWtsSessionUnlock);
  EXPECT_TRUE(AltAndOneIsOurs());
  hook.HookWindowProc("REMOVE", kMain);
  hook.HookWindowProc("REMOVE", kMain);
  EXPECT_EQ(hotKeys.SessionWatches(kMain), 0U);
}

TEST_F(UserReturns, FromModernStandbyForAsLongAsTheHookIsThere) {
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  hotKeys.EndSleep();
  EXPECT_TRUE(AltAndOneIsOurs());
  hook.HookWindowProc("REMOVE", kMain);
  EXPECT_FALSE(hotKeys.HearsOfSleep(kMain));
}

TEST_F(UserReturns, FromAClassicSleepAlsoWhenWindowsRefusedToTell) {
  hook.HookWindowProc("REMOVE", kMain);
  hotKeys.refuseNotifications = true;
  hotKeys.modernStandby = false;
  hook.HookWindowProc("SET", kMain);
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  hotKeys.EndSleep();
  EXPECT_TRUE(AltAndOneIsOurs());
}

}  // namespace
}  // namespace korvale

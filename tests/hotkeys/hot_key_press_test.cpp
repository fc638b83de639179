#include <gtest/gtest.h>

#include <cstdint>
#include <iterator>

#include "platform/win32_constants.h"
#include "tests/hotkeys/window_proc_hook_fixture.h"

namespace korvale {
namespace {

using HotKeyPress = WindowProcHookTest;

TEST_F(HotKeyPress, ReceivesTheKeysThatTheUserPresses) {
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '3'));
  EXPECT_TRUE(hotKeys.Press(0, win32::kVkPause));

  EXPECT_EQ(log.CallsOf("process"),
            (Calls{"process HOTKEY_PARENT3", "process HOTKEY_TOGGLE_HOTKEYS"}));
  EXPECT_EQ(log.CallsOf("CallWindowProcA").size(), 2U);
}

TEST_F(HotKeyPress, AHotKeyOverAnOpenMenuComesAgainWhenThatHasGone) {
  host.menuOpen = true;
  inDispatch = [this](const std::string&) { EXPECT_FALSE(host.menuOpen); };

  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '3'));

  EXPECT_EQ(
      log.Calls(),
      (Calls{"PostMessageW(main, 0x312, 4, 3342337)", "CallWindowProcA(main, 0x312, 4, 3342337)",
             "process HOTKEY_PARENT3", "CallWindowProcA(main, 0x312, 4, 3342337)"}));
}

TEST_F(HotKeyPress, PassesIdentifiersThatNobodyRegisteredOnUndispatched) {
  constexpr std::uintptr_t kStray[] = {16, 0, 0xFFFFFFFFFFFFFFFF};
  for (const std::uintptr_t identifier : kStray) {
    EXPECT_EQ(hook.HotKeyWindowProc(kMain, win32::kWmHotKey, identifier, AltAndDigit(3)), 77);
  }

  EXPECT_EQ(log.Calls(), (Calls{"CallWindowProcA(main, 0x312, 16, 3342337)",
                                "CallWindowProcA(main, 0x312, 0, 3342337)",
                                "CallWindowProcA(main, 0x312, 18446744073709551615, 3342337)"}));
}

TEST_F(HotKeyPress, PassesAnIdentifierWithTheKeysOfAnotherHotKeyOnUndispatched) {
  constexpr std::intptr_t kNoPressOfAltAnd3[] = {0,          -1,         5,          0x00330000,
                                                 0x00330002, 0x00330009, 0x00340001, 0x00010033};
  for (const std::intptr_t lParam : kNoPressOfAltAnd3) {
    EXPECT_EQ(hook.HotKeyWindowProc(kMain, win32::kWmHotKey, 4, lParam), 77);
  }

  EXPECT_TRUE(log.CallsOf("process").empty());
  EXPECT_EQ(log.CallsOf("CallWindowProcA").size(), std::size(kNoPressOfAltAnd3));
}

TEST_F(HotKeyPress, TakesAPressOfAStoredModifierThatKeepsItFromRepeating) {
  constexpr std::int16_t kModNoRepeat = 0x4000;
  options.Get().intHotKeyModParent = win32::kModControl | kModNoRepeat;
  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");

  EXPECT_TRUE(hotKeys.Press(win32::kModControl, '3'));

  EXPECT_EQ(log.CallsOf("process"), Calls{"process HOTKEY_PARENT3"});
}

TEST_F(HotKeyPress, APressFromBeforeANewRegistrationTriggersNothing) {
  EXPECT_TRUE(hotKeys.PressWhileBusy(win32::kModAlt, '3'));
  options.Get().booHotKeyParent[0] = false;
  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");

  hotKeys.DeliverQueued();

  EXPECT_TRUE(log.CallsOf("process").empty());
  EXPECT_TRUE(log.CallsOf("uncaught").empty());
}

TEST_F(HotKeyPress, APressWhileTheHotKeysAreGivenUpTriggersNothing) {
  log.WhenCalled("UnregisterHotKey(main, 1)",
                 [this] { EXPECT_TRUE(hotKeys.PressWhileBusy(win32::kModAlt, '3')); });
  options.Get().booHotKeyParent[0] = false;
  table.SetHotKeys("REMOVE");
  EXPECT_EQ(hotKeys.PeekMessageW(kMain, win32::kWmHotKey), std::nullopt);
}

TEST_F(HotKeyPress, APressWhoseIdentifierWasHandedOutAnewTriggersNothing) {
  const std::intptr_t altAnd0 = AltAndDigit(0);
  options.Get().booHotKeyParent[0] = false;
  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");

  hotKeys.Deliver(kMain, win32::kWmHotKey, 1, altAnd0);

  EXPECT_TRUE(log.CallsOf("process").empty());
}

TEST_F(HotKeyPress, APressAfterANewRegistrationIsNotLost) {
  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");
  EXPECT_TRUE(hotKeys.PressWhileBusy(win32::kModAlt, '3'));

  hotKeys.DeliverQueued();

  EXPECT_EQ(log.CallsOf("process"), Calls{"process HOTKEY_PARENT3"});
}

TEST_F(HotKeyPress, DispatchesNothingWhileNoHotKeyIsRegistered) {
  table.SetHotKeys("REMOVE");
  log.Clear();

  PressTag(0);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(main, 0x312, 1, 3145729)"});
}

TEST_F(HotKeyPress, ReceivesNothingOnceItIsRemoved) {
  hook.HookWindowProc("REMOVE", kMain);
  log.Clear();

  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '3'));

  EXPECT_FALSE(hotKeys.IsHooked(kMain));
  EXPECT_TRUE(log.Calls().empty());
}

}  // namespace
}  // namespace korvale

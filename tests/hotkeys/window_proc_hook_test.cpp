#include "hotkeys/window_proc_hook.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <stdexcept>
#include <string>

#include "app/core/error_reporting.h"
#include "platform/win32_constants.h"
#include "tests/hotkeys/window_proc_hook_fixture.h"

namespace korvale {
namespace {

TEST_F(WindowProcHookTest, HandsAHotKeyToTheDispatcherThenPassesItOn) {
  EXPECT_EQ(PressTag(3), 77);

  EXPECT_EQ(log.Calls(),
            (Calls{"process HOTKEY_PARENT3", "CallWindowProcA(main, 0x312, 4, 3342337)"}));
}

TEST_F(WindowProcHookTest, HotKeysOverAnOpenMenuKeepTheirOrder) {
  host.menuOpen = true;
  hotKeys.PressWhileBusy(win32::kModAlt, '3');
  hotKeys.PressWhileBusy(win32::kModAlt, '2');
  hotKeys.PressWhileBusy(win32::kModAlt, '5');

  hotKeys.DeliverQueued();

  EXPECT_EQ(log.CallsOf("process"),
            (Calls{"process HOTKEY_PARENT3", "process HOTKEY_PARENT2", "process HOTKEY_PARENT5"}));
}

TEST_F(WindowProcHookTest, PressesOfThePopUpInARowOverAnOpenMenuAreOne) {
  host.menuOpen = true;
  for (const char key : {'W', 'W', 'O', 'O', 'W', 'W', 'W'}) {
    hotKeys.PressWhileBusy(win32::kModWin, static_cast<std::uint32_t>(key));
  }

  hotKeys.DeliverQueued();

  EXPECT_EQ(log.CallsOf("process"),
            (Calls{"process HOTKEY_WINDOW_MENU_POPUP", "process HOTKEY_DISPLAY_OPTIONS",
                   "process HOTKEY_DISPLAY_OPTIONS", "process HOTKEY_WINDOW_MENU_POPUP"}));
}

TEST_F(WindowProcHookTest, PassesOtherMessagesOnUnseen) {
  EXPECT_EQ(hook.HotKeyWindowProc(kMain, win32::kWmNull, 4, 5), 77);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(main, 0x0, 4, 5)"});
}

TEST_F(WindowProcHookTest, PassesAHotKeyOfAnotherWindowOnUndispatched) {
  EXPECT_EQ(hook.HotKeyWindowProc(1001, win32::kWmHotKey, 4, AltAndDigit(3)), 77);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(0x3e9, 0x312, 4, 3342337)"});
}

TEST_F(WindowProcHookTest, ReportsAnErrorOfTheDispatcherAndPassesTheMessageOn) {
  inDispatch = [](const std::string&) { throw std::runtime_error("broken"); };

  EXPECT_EQ(PressTag(0), 77);

  EXPECT_EQ(log.Calls(), (Calls{"process HOTKEY_PARENT0", "uncaught broken",
                                "CallWindowProcA(main, 0x312, 1, 3145729)"}));
}

TEST_F(WindowProcHookTest, ReportsTheEndOfTheProgramAndPassesTheMessageOn) {
  inDispatch = [](const std::string&) { throw ProgramEnded{}; };

  EXPECT_EQ(PressTag(0), 77);

  EXPECT_EQ(log.Calls(), (Calls{"process HOTKEY_PARENT0", "uncaught ProgramEnded",
                                "CallWindowProcA(main, 0x312, 1, 3145729)"}));
}

class FormerProcedure : public WindowProcedure {
 public:
  std::intptr_t Call(WindowHandle, std::uint32_t, std::uintptr_t, std::intptr_t) override {
    return 88;
  }
  void OnUncaught() noexcept override {}
};

TEST_F(WindowProcHookTest, PassesTheHotKeyThatRemovedTheHookToTheFormerProcedure) {
  FormerProcedure former;
  hook.HookWindowProc("REMOVE", kMain);
  hotKeys.SetWindowLongPtrA(kMain, former);
  hook.HookWindowProc("SET", kMain);
  inDispatch = [this](const std::string&) {
    table.SetHotKeys("REMOVE");
    hook.HookWindowProc("REMOVE", kMain);
    log.Clear();
  };

  EXPECT_EQ(PressTag(0), 88);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(main, 0x312, 1, 3145729)"});
}

TEST_F(WindowProcHookTest, GivesTheDispatcherANameThatOutlivesTheTable) {
  std::string seen;
  inDispatch = [&](const std::string& name) {
    table.SetHotKeys("REMOVE");
    seen = name;
  };

  hotKeys.Press(0, win32::kVkPause);

  EXPECT_EQ(seen, "HOTKEY_TOGGLE_HOTKEYS");
}

TEST_F(WindowProcHookTest, DispatchesAHotKeyThatArrivesDuringADispatch) {
  inDispatch = [this](const std::string& name) {
    if (name == "HOTKEY_PARENT0") PressTag(1);
  };

  PressTag(0);

  EXPECT_EQ(log.Calls(), (Calls{"process HOTKEY_PARENT0", "process HOTKEY_PARENT1",
                                "CallWindowProcA(main, 0x312, 2, 3211265)",
                                "CallWindowProcA(main, 0x312, 1, 3145729)"}));
}

TEST_F(WindowProcHookTest, PutsTheFormerProcedureBack) {
  hook.HookWindowProc("REMOVE", kMain);

  EXPECT_EQ(log.Calls(), (Calls{"WTSUnRegisterSessionNotification(main)",
                                "UnregisterSuspendResumeNotification(main)",
                                "SetWindowLongPtrA(main, previous)"}));
}

TEST_F(WindowProcHookTest, RemovesOnlyOnce) {
  hook.HookWindowProc("REMOVE", kMain);
  log.Clear();

  hook.HookWindowProc("REMOVE", kMain);

  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(WindowProcHookTest, DoesNotHookAHookedWindow) {
  hook.HookWindowProc("SET", kMain);

  EXPECT_TRUE(log.Calls().empty());
  EXPECT_EQ(PressTag(0), 77);
}

TEST_F(WindowProcHookTest, HooksAgainAfterARemoval) {
  hook.HookWindowProc("REMOVE", kMain);
  log.Clear();

  hook.HookWindowProc("SET", kMain);

  EXPECT_EQ(log.Calls(),
            (Calls{"SetWindowLongPtrA(main, procedure)", "WTSRegisterSessionNotification(main)",
                   "RegisterSuspendResumeNotification(main)"}));
}

TEST_F(WindowProcHookTest, ThatCannotBeSetAsksForNothing) {
  FakeHotKeys windowless(log, [](WindowHandle) { return false; });
  WindowProcHook refused(windowless, host, mainWindow, table, *this, actions, [] {});
  const Calls attempt = {"SetWindowLongPtrA(main, procedure)"};
  refused.HookWindowProc("SET", kMain);
  EXPECT_EQ(log.Calls(), attempt);
  refused.HookWindowProc("REMOVE", kMain);
  EXPECT_EQ(log.Calls(), attempt);
}

TEST_F(WindowProcHookTest, TakesBackOnlyWhatWindowsGranted) {
  hook.HookWindowProc("REMOVE", kMain);
  hotKeys.refuseNotifications = true;
  hook.HookWindowProc("SET", kMain);
  log.Clear();
  hook.HookWindowProc("REMOVE", kMain);
  EXPECT_EQ(log.Calls(), Calls{"SetWindowLongPtrA(main, previous)"});
}

TEST_F(WindowProcHookTest, DoesNothingInAnyOtherMode) {
  for (const char* const mode : {"", "set", "remove", "GET"}) hook.HookWindowProc(mode, kMain);

  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(WindowProcHookTest, RemovesNothingThatWasNeverSet) {
  WindowProcHook unused(hotKeys, host, mainWindow, table, *this, actions, [] {});

  unused.HookWindowProc("REMOVE", kMain);

  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(WindowProcHookTest, ReportsWhatTheWindowsAdapterCaught) {
  try {
    throw std::runtime_error("caught outside");
  } catch (...) {
    hook.OnUncaught();
  }

  EXPECT_EQ(log.Calls(), Calls{"uncaught caught outside"});
}

}  // namespace
}  // namespace korvale

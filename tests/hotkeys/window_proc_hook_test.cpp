#include "hotkeys/window_proc_hook.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <exception>
#include <functional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "app/core/error_reporting.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_hot_keys.h"
#include "tests/fakes/fake_main_window.h"

namespace korvale {
namespace {

using Calls = std::vector<std::string>;
constexpr WindowHandle kMain = 1000;

class WindowProcHookTest : public testing::Test {
 protected:
  WindowProcHookTest() {
    mainWindow.handle = kMain;
    log.NameWindow(kMain, "main");
    options.Create();
    table.SetHotKeys("SET");
    hook.HookWindowProc("SET", kMain);
    log.Clear();
    hotKeys.answer = 77;
  }

  std::intptr_t PressHotKey(std::uintptr_t identifier) {
    return hook.HotKeyWindowProc(kMain, win32::kWmHotKey, identifier, 5);
  }

  void Process(const std::string& name) {
    log.Add("process " + name);
    if (inDispatch) inDispatch(name);
  }

  void ReportUncaught() {
    try {
      throw;
    } catch (const RunTimeError& error) {
      log.Add("uncaught " + std::to_string(error.Number()));
    } catch (const std::exception& error) {
      log.Add(std::string("uncaught ") + error.what());
    } catch (const ProgramEnded&) {
      log.Add("uncaught ProgramEnded");
    }
  }

  CallLog log;
  FakeHotKeys hotKeys{log};
  FakeMainWindow mainWindow;
  OptionsHolder options;
  HotKeyTable table{hotKeys, options, mainWindow};
  std::function<void(const std::string&)> inDispatch;
  bool menuOpen = false;
  WindowProcHook hook{hotKeys,
                      table,
                      mainWindow,
                      [this] { return std::exchange(menuOpen, false); },
                      [this](const std::string& name) { Process(name); },
                      [this] { ReportUncaught(); }};
};

TEST_F(WindowProcHookTest, HandsAHotKeyToTheDispatcherThenPassesItOn) {
  EXPECT_EQ(PressHotKey(4), 77);

  EXPECT_EQ(log.Calls(), (Calls{"process HOTKEY_PARENT3", "CallWindowProcA(main, 0x312, 4, 5)"}));
}

TEST_F(WindowProcHookTest, AHotKeyOverAnOpenMenuComesAgainWhenThatHasGone) {
  menuOpen = true;
  inDispatch = [this](const std::string&) { EXPECT_FALSE(menuOpen); };

  hotKeys.Deliver(kMain, win32::kWmHotKey, 4, 5);

  EXPECT_EQ(log.Calls(),
            (Calls{"PostMessageW(main, 0x312, 4, 5)", "CallWindowProcA(main, 0x312, 4, 5)",
                   "process HOTKEY_PARENT3", "CallWindowProcA(main, 0x312, 4, 5)"}));
}

TEST_F(WindowProcHookTest, PassesOtherMessagesOnUnseen) {
  EXPECT_EQ(hook.HotKeyWindowProc(kMain, win32::kWmNull, 4, 5), 77);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(main, 0x0, 4, 5)"});
}

TEST_F(WindowProcHookTest, PassesAHotKeyOfAnotherWindowOnUndispatched) {
  EXPECT_EQ(hook.HotKeyWindowProc(1001, win32::kWmHotKey, 4, 5), 77);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(0x3e9, 0x312, 4, 5)"});
}

TEST_F(WindowProcHookTest, PassesIdentifiersThatNobodyRegisteredOnUndispatched) {
  EXPECT_EQ(PressHotKey(16), 77);
  PressHotKey(0);
  PressHotKey(0xFFFFFFFFFFFFFFFF);

  EXPECT_EQ(log.Calls(),
            (Calls{"CallWindowProcA(main, 0x312, 16, 5)", "CallWindowProcA(main, 0x312, 0, 5)",
                   "CallWindowProcA(main, 0x312, 18446744073709551615, 5)"}));
}

TEST_F(WindowProcHookTest, ReportsAnErrorOfTheDispatcherAndPassesTheMessageOn) {
  inDispatch = [](const std::string&) { throw std::runtime_error("broken"); };

  EXPECT_EQ(PressHotKey(1), 77);

  EXPECT_EQ(log.Calls(), (Calls{"process HOTKEY_PARENT0", "uncaught broken",
                                "CallWindowProcA(main, 0x312, 1, 5)"}));
}

TEST_F(WindowProcHookTest, ReportsTheEndOfTheProgramAndPassesTheMessageOn) {
  inDispatch = [](const std::string&) { throw ProgramEnded{}; };

  EXPECT_EQ(PressHotKey(1), 77);

  EXPECT_EQ(log.Calls(), (Calls{"process HOTKEY_PARENT0", "uncaught ProgramEnded",
                                "CallWindowProcA(main, 0x312, 1, 5)"}));
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

  EXPECT_EQ(PressHotKey(1), 88);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(main, 0x312, 1, 5)"});
}

TEST_F(WindowProcHookTest, GivesTheDispatcherANameThatOutlivesTheTable) {
  std::string seen;
  inDispatch = [&](const std::string& name) {
    table.SetHotKeys("REMOVE");
    seen = name;
  };

  PressHotKey(15);

  EXPECT_EQ(seen, "HOTKEY_TOGGLE_HOTKEYS");
}

TEST_F(WindowProcHookTest, DispatchesNothingWhileNoHotKeyIsRegistered) {
  table.SetHotKeys("REMOVE");
  log.Clear();

  PressHotKey(1);

  EXPECT_EQ(log.Calls(), Calls{"CallWindowProcA(main, 0x312, 1, 5)"});
}

TEST_F(WindowProcHookTest, DispatchesAHotKeyThatArrivesDuringADispatch) {
  inDispatch = [this](const std::string& name) {
    if (name == "HOTKEY_PARENT0") PressHotKey(2);
  };

  PressHotKey(1);

  EXPECT_EQ(log.Calls(),
            (Calls{"process HOTKEY_PARENT0", "process HOTKEY_PARENT1",
                   "CallWindowProcA(main, 0x312, 2, 5)", "CallWindowProcA(main, 0x312, 1, 5)"}));
}

TEST_F(WindowProcHookTest, PutsTheFormerProcedureBack) {
  hook.HookWindowProc("REMOVE", kMain);

  EXPECT_EQ(log.Calls(), Calls{"SetWindowLongPtrA(main, previous)"});
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
  EXPECT_EQ(PressHotKey(1), 77);
}

TEST_F(WindowProcHookTest, HooksAgainAfterARemoval) {
  hook.HookWindowProc("REMOVE", kMain);
  log.Clear();

  hook.HookWindowProc("SET", kMain);

  EXPECT_EQ(log.Calls(), Calls{"SetWindowLongPtrA(main, procedure)"});
}

TEST_F(WindowProcHookTest, DoesNothingInAnyOtherMode) {
  for (const char* const mode : {"", "set", "remove", "GET"}) hook.HookWindowProc(mode, kMain);

  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(WindowProcHookTest, RemovesNothingThatWasNeverSet) {
  WindowProcHook unused(
      hotKeys, table, mainWindow, [] { return false; }, [](const std::string&) {}, [] {});

  unused.HookWindowProc("REMOVE", kMain);

  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(WindowProcHookTest, ReceivesTheKeysThatTheUserPresses) {
  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '3'));
  EXPECT_TRUE(hotKeys.Press(0, win32::kVkPause));

  EXPECT_EQ(log.CallsOf("process"),
            (Calls{"process HOTKEY_PARENT3", "process HOTKEY_TOGGLE_HOTKEYS"}));
  EXPECT_EQ(log.CallsOf("CallWindowProcA").size(), 2U);
}

TEST_F(WindowProcHookTest, APressFromBeforeANewRegistrationTriggersNothing) {
  EXPECT_TRUE(hotKeys.PressWhileBusy(win32::kModAlt, '3'));
  options.Get().booHotKeyParent[0] = false;
  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");

  hotKeys.DeliverQueued();

  EXPECT_TRUE(log.CallsOf("process").empty());
  EXPECT_TRUE(log.CallsOf("uncaught").empty());
}

TEST_F(WindowProcHookTest, APressAfterANewRegistrationIsNotLost) {
  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");
  EXPECT_TRUE(hotKeys.PressWhileBusy(win32::kModAlt, '3'));

  hotKeys.DeliverQueued();

  EXPECT_EQ(log.CallsOf("process"), Calls{"process HOTKEY_PARENT3"});
}

TEST_F(WindowProcHookTest, ReceivesNothingOnceItIsRemoved) {
  hook.HookWindowProc("REMOVE", kMain);
  log.Clear();

  EXPECT_TRUE(hotKeys.Press(win32::kModAlt, '3'));

  EXPECT_FALSE(hotKeys.IsHooked(kMain));
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

#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <exception>
#include <functional>
#include <string>
#include <utility>

#include "app/core/error_reporting.h"
#include "hotkeys/window_proc_hook.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/fakes/fake_hot_key_actions.h"
#include "tests/fakes/headless_form_host.h"
#include "tests/fakes/plain_desktop.h"
#include "tests/hotkeys/hot_key_table_fixture.h"

namespace korvale {

/// A host whose menu is open when a test says so.
class MenuHost : public HeadlessFormHost {
 public:
  using HeadlessFormHost::HeadlessFormHost;
  bool EndMenu() override { return std::exchange(menuOpen, false); }

  bool menuOpen = false;
};

/// The hook in front of a window of number 1000, with the default hot keys registered.
class WindowProcHookTest : public HotKeyTableTest, protected HotKeyProcessor {
 protected:
  static constexpr WindowHandle kMain = 1000;

  WindowProcHookTest() {
    table.SetHotKeys("SET");
    hook.HookWindowProc("SET", kMain);
    log.Clear();
    hotKeys.answer = 77;
  }

  /// What Windows sends for Alt and a digit.
  std::intptr_t PressTag(std::uintptr_t tag) {
    return hook.HotKeyWindowProc(kMain, win32::kWmHotKey, tag + 1, AltAndDigit(tag));
  }
  static std::intptr_t AltAndDigit(std::uintptr_t digit) {
    return static_cast<std::intptr_t>(0x00300001 + digit * 0x10000);
  }

  std::string udmProcessHotKey(const std::string& name, bool booDoAction, bool booReturnWindow,
                               const std::string& strSupplyWindowText) override {
    EXPECT_TRUE(booDoAction && !booReturnWindow && strSupplyWindowText.empty());
    log.Add("process " + name);
    if (inDispatch) inDispatch(name);
    return "";
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

  std::function<void(const std::string&)> inDispatch;
  PlainDesktop screen;
  MenuHost host{screen, log};
  FakeHotKeyActions actions;
  WindowProcHook hook{
      hotKeys, host, mainWindow, table, *this, actions, [this] { ReportUncaught(); }};
};

}  // namespace korvale

#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "hotkeys/message_box.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_loaded_forms.h"
#include "tests/fakes/fake_main_window.h"
#include "tests/hotkeys/message_box_host.h"

namespace korvale {

/// A main window and a window of another program; the log holds the message boxes too.
class MessageBoxTest : public testing::Test {
 protected:
  using Calls = std::vector<std::string>;

  MessageBoxTest() {
    other = Open("Other", "main", kOtherProcess);
    main = Open("Korvale - Work", "Korvale.frmMain", kOurProcess);
    mainWindow.handle = main;
    forms.Load("frmMain", main);
    log.NameWindow(main, "main");
    log.NameWindow(other, "other");
    log.Clear();
    mainWindow.onCall = [this](const std::string& call) { log.Add(call); };
  }

  static constexpr int kOurProcess = 1;

  WindowHandle Open(const std::string& title, const std::string& className, int process) {
    return desktop.Open(title, {.className = className, .process = process});
  }

  std::int16_t ShowBox(const std::string& prompt = "Prompt") {
    return messages.ShowMessageBox(prompt, 0, "Title");
  }

  /// Shows a box during which this happens.
  void ShowBoxWhile(const std::function<void()>& action) {
    host.whileShown = [action](const std::string&) { action(); };
    ShowBox();
  }
  /// Hot keys, tracking and main window are as before the box.
  void ExpectAllGivenBack() {
    EXPECT_FALSE(suspension.MessageBoxShown);
    EXPECT_EQ(suspension.MessageBoxDepth, 0);
    EXPECT_TRUE(mainWindow.timer.enabled);
    EXPECT_EQ(mainWindow.timer.tag, "ON");
    EXPECT_TRUE(mainWindow.mainEnabled);
  }

  CallLog log;
  FakeDesktop desktop{log};
  FakeMainWindow mainWindow;
  FakeLoadedForms forms;
  PreviousWindow previous;
  Suspension suspension;
  MessageBoxHost host{log};
  WindowHandle modal = 0;
  WindowHandle other = 0;
  WindowHandle main = 0;
  FakeClock clock;
  OptionsHolder record;
  MenuItem windowMenu;
  SuspendingMessageBoxes messages{routines, host, suspension, [this] { return modal; }};
  Desktop routines{{desktop, desktop, host, mainWindow, forms, messages, previous, desktop},
                   clock,
                   record,
                   windowMenu};
};

}  // namespace korvale

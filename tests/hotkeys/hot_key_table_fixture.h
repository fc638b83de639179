#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/core/options.h"
#include "hotkeys/hot_key_table.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_hot_keys.h"
#include "tests/fakes/fake_main_window.h"

namespace korvale {

/// A table for a window of number 1000, with the default options.
class HotKeyTableTest : public testing::Test {
 protected:
  using Names = std::vector<std::string>;
  using Calls = std::vector<std::string>;

  HotKeyTableTest() {
    mainWindow.handle = 1000;
    log.NameWindow(1000, "main");
    options.Create();
  }

  clsOptions& Options() { return options.Get(); }

  void DisableAll() {
    Options().booHotKeyParent.fill(false);
    Options().intHotKeyAction.fill(0);
    Options().intHotKeyGeneral.fill(0);
  }

  CallLog log;
  FakeHotKeys hotKeys{log};
  FakeMainWindow mainWindow;
  OptionsHolder options;
  HotKeyTable table{hotKeys, options, mainWindow};
};

}  // namespace korvale

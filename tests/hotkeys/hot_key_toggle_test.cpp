#include "hotkeys/hot_key_toggle.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/fake_hot_key_actions.h"
#include "tests/hotkeys/hot_key_table_fixture.h"

namespace korvale {
namespace {

class HotKeyToggleTest : public HotKeyTableTest {
 protected:
  HotKeyToggleTest() {
    DisableAll();
    Options().booHotKeyParent[3] = true;
    Options().intHotKeyGeneral = {79, 0, 19};
    table.SetHotKeys("SET");
    log.Clear();
    actions.onCall = [this](const std::string& call) { log.Add(call); };
  }

  FakeHotKeyActions actions;
  HotKeyToggle toggle{table, options, actions};
};

TEST_F(HotKeyToggleTest, SwitchesOffEveryHotKeyButItsOwn) {
  toggle.ToggleHotKeys(kToggleFromHotKey);

  EXPECT_EQ(log.Calls(),
            (Calls{"UnregisterHotKey(main, 1)", "UnregisterHotKey(main, 2)",
                   "UnregisterHotKey(main, 3)", "RegisterHotKey(main, 1, 0, 19)",
                   "HotKeysRegistered", "ShowWaitWindow(\"Korvale - Hot Keys (OFF)\")"}));
  EXPECT_FALSE(table.HotKeysActive());
  EXPECT_EQ(table.HotKeyCount(), 1);
  EXPECT_EQ(table.NameOf(1), "HOTKEY_TOGGLE_HOTKEYS");
  EXPECT_EQ(actions.waitWindows,
            (std::vector<ShownWaitWindow>{
                {"Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated", 800}}));
}

TEST_F(HotKeyToggleTest, TheKeysAreGoneOnlyOnceTheyCountAsInactiveAndBackOnceAsActive) {
  int seen = 0;
  const auto expect = [&](bool active) {
    log.WhenCalled("UnregisterHotKey(main, 1)", [&seen, active, this] {
      ++seen;
      EXPECT_EQ(table.HotKeysActive(), active);
    });
  };
  expect(false);
  toggle.ToggleHotKeys(kToggleFromHotKey);
  expect(true);
  toggle.ToggleHotKeys(kToggleFromHotKey);
  EXPECT_EQ(seen, 2);
}

TEST_F(HotKeyToggleTest, SwitchesAllEnabledHotKeysOnAgain) {
  toggle.ToggleHotKeys(kToggleFromHotKey);
  log.Clear();
  actions.waitWindows.clear();

  toggle.ToggleHotKeys(kToggleFromHotKey);

  EXPECT_EQ(log.Calls(),
            (Calls{"UnregisterHotKey(main, 1)", "RegisterHotKey(main, 1, 1, 51)",
                   "RegisterHotKey(main, 2, 8, 79)", "RegisterHotKey(main, 3, 0, 19)",
                   "HotKeysRegistered", "ShowWaitWindow(\"Korvale - Hot Keys (ON)\")"}));
  EXPECT_TRUE(table.HotKeysActive());
  EXPECT_EQ(actions.waitWindows,
            (std::vector<ShownWaitWindow>{
                {"Korvale - Hot Keys (ON)", "Hot Keys are now Activated", 800}}));
}

TEST_F(HotKeyToggleTest, LeavesNoHotKeyWhenTheToggleHasNoKey) {
  options.Get().intHotKeyGeneral[2] = 0;

  toggle.ToggleHotKeys(kToggleFromMenu);

  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_EQ(table.HotKeyNames(), std::vector<std::string>{""});
  EXPECT_EQ(table.HotKeyCount(), 0);
  EXPECT_FALSE(table.HotKeysActive());
}

TEST_F(HotKeyToggleTest, ComesBackThroughTheMenuWhenTheToggleHasNoKey) {
  options.Get().intHotKeyGeneral[2] = 0;
  toggle.ToggleHotKeys(kToggleFromMenu);

  toggle.ToggleHotKeys(kToggleFromMenu);

  EXPECT_TRUE(table.HotKeysActive());
  EXPECT_EQ(table.HotKeyNames(),
            (std::vector<std::string>{"HOTKEY_PARENT3", "HOTKEY_DISPLAY_OPTIONS"}));
}

TEST_F(HotKeyToggleTest, ExplainsItselfBeforeTheMenuSwitchesOff) {
  toggle.ToggleHotKeys(kToggleFromMenu);

  EXPECT_EQ(log.Calls().front(), "ShowTip(14)");
  EXPECT_EQ(actions.tips,
            (std::vector<ShownTip>{
                {14,
                 "This deactivates all hot keys except the hot key assigned to Activate/Deactivate "
                 "Hot Keys.  When Korvale is installed, the default hot key to "
                 "Activate/Deactivate Hot Keys is the Pause key.  If you wish, this hot key can be "
                 "changed on the Hot Keys tab of the Options dialog box.",
                 "TIP", 3000}}));
}

TEST_F(HotKeyToggleTest, DoesNotExplainItselfToTheHotKeyNorWhenSwitchingOn) {
  toggle.ToggleHotKeys(kToggleFromHotKey);
  toggle.ToggleHotKeys(kToggleFromMenu);

  EXPECT_TRUE(table.HotKeysActive());
  EXPECT_TRUE(actions.tips.empty());
}

TEST_F(HotKeyToggleTest, RegistersWhatTheOptionsSayWhenSwitchedOn) {
  toggle.ToggleHotKeys(kToggleFromHotKey);
  options.Get().intHotKeyModParent = 2;

  toggle.ToggleHotKeys(kToggleFromHotKey);

  EXPECT_EQ(table.Registered().front().modifiers, 2);
}

TEST_F(HotKeyToggleTest, RetriesAHotKeyThatAnotherProgramHasGivenUp) {
  table.SetHotKeys("REMOVE");
  hotKeys.RegisterForeign(win32::kModAlt, '3');
  table.SetHotKeys("SET");
  EXPECT_FALSE(table.Registered().front().accepted);
  hotKeys.ReleaseForeign(win32::kModAlt, '3');

  toggle.ToggleHotKeys(kToggleFromHotKey);
  toggle.ToggleHotKeys(kToggleFromHotKey);

  EXPECT_TRUE(table.Registered().front().accepted);
}

}  // namespace
}  // namespace korvale

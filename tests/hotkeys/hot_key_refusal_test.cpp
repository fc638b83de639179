#include <gtest/gtest.h>

#include <algorithm>
#include <string_view>
#include <vector>

#include "hotkeys/hot_key_toggle.h"
#include "platform/win32_constants.h"
#include "tests/fakes/fake_hot_key_actions.h"
#include "tests/hotkeys/hot_key_table_fixture.h"

namespace korvale {
namespace {

using HotKeyRefusal = HotKeyTableTest;

TEST_F(HotKeyRefusal, KeepsTheSlotOfAHotKeyThatWindowsRefused) {
  hotKeys.RegisterForeign(win32::kModAlt, '1');

  table.SetHotKeys("SET");

  ASSERT_EQ(table.Registered().size(), kAllHotKeys);
  EXPECT_EQ(table.NameOf(2), "HOTKEY_PARENT1");
  EXPECT_EQ(table.NameOf(3), "HOTKEY_PARENT2");
  for (const RegisteredHotKey& hotKey : table.Registered()) {
    EXPECT_EQ(hotKey.accepted, hotKey.name != "HOTKEY_PARENT1") << hotKey.name;
  }
}

TEST_F(HotKeyRefusal, TellsACombinationThatTheUserChoseTwiceFromOneThatSomebodyElseHas) {
  hotKeys.StartShell();
  Options().intHotKeyModAction = {0, 0};
  Options().intHotKeyAction = {0x77, 0x77};
  table.SetHotKeys("SET");
  ASSERT_EQ(table.Registered().size(), kAllHotKeys);
  for (const RegisteredHotKey& hotKey : table.Registered()) {
    const bool second = hotKey.name == "HOTKEY_RESTORE/MAXIMIZE_PARENT";
    EXPECT_EQ(hotKey.accepted, hotKey.modifiers != 8 && !second) << hotKey.name;
    EXPECT_EQ(hotKey.chosenBefore, second) << hotKey.name;
  }
}

TEST_F(HotKeyRefusal, HasNothingTwiceThatAFormerRegistrationHad) {
  table.SetHotKeys("SET");
  table.SetHotKeys("SET");

  ASSERT_EQ(table.Registered().size(), kAllHotKeys);
  for (const RegisteredHotKey& hotKey : table.Registered()) {
    EXPECT_FALSE(hotKey.chosenBefore) << hotKey.name;
  }
}

TEST_F(HotKeyRefusal, RegistersARefusedHotKeyOnceItIsFree) {
  hotKeys.RegisterForeign(win32::kModAlt, '1');
  table.SetHotKeys("SET");
  hotKeys.ReleaseForeign(win32::kModAlt, '1');

  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");

  EXPECT_TRUE(table.Registered().at(1).accepted);
}

class RefusedHotKeysAgain : public HotKeyTableTest {
 protected:
  /// The defaults, while another program has Alt+1 and the shell its own.
  RefusedHotKeysAgain() {
    hotKeys.RegisterForeign(win32::kModAlt, '1');
    hotKeys.StartShell();
    table.SetHotKeys("SET");
    log.Clear();
  }
  static bool Accepted(const std::vector<RegisteredHotKey>& hotKeys, std::string_view name) {
    return std::ranges::find(hotKeys, name, &RegisteredHotKey::name)->accepted;
  }
};

TEST_F(RefusedHotKeysAgain, AreRegisteredUnderTheirIdentifiersAndNoOthersAreTouched) {
  hotKeys.ReleaseForeign(win32::kModAlt, '1');

  EXPECT_TRUE(table.RetryRefused());

  EXPECT_EQ(log.Calls(), (Calls{"RegisterHotKey(main, 2, 1, 49)", "RegisterHotKey(main, 13, 8, 79)",
                                "RegisterHotKey(main, 14, 8, 87)"}));
  EXPECT_TRUE(Accepted(table.Registered(), "HOTKEY_PARENT1"));
  EXPECT_TRUE(Accepted(table.LastSet(), "HOTKEY_PARENT1"));
  EXPECT_FALSE(Accepted(table.Registered(), "HOTKEY_DISPLAY_OPTIONS"));
  EXPECT_EQ(table.Registered().size(), kAllHotKeys);
  EXPECT_TRUE(table.IsPress(2, 0x00310001));
  EXPECT_EQ(table.NameOf(2), "HOTKEY_PARENT1");
}

TEST_F(RefusedHotKeysAgain, ThatAreStillTakenStayRefused) {
  EXPECT_FALSE(table.RetryRefused());
  EXPECT_FALSE(Accepted(table.LastSet(), "HOTKEY_PARENT1"));
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys - 3);
}

TEST_F(RefusedHotKeysAgain, AreAskedForOnceOnly) {
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  EXPECT_TRUE(table.RetryRefused());
  const auto registered = hotKeys.Registered();
  for (int time = 0; time < 100; ++time) EXPECT_FALSE(table.RetryRefused());
  EXPECT_EQ(hotKeys.Registered(), registered);
}

TEST_F(RefusedHotKeysAgain, DoNotIncludeWhatTheUserChoseTwice) {
  table.SetHotKeys("REMOVE");
  hotKeys.RegisterForeign(0, 0x77);
  Options().intHotKeyModAction = {0, 0};
  Options().intHotKeyAction = {0x77, 0x77};
  table.SetHotKeys("SET");
  hotKeys.ReleaseForeign(0, 0x77);
  EXPECT_TRUE(table.RetryRefused());
  EXPECT_TRUE(table.Registered().at(10).accepted);
  EXPECT_FALSE(table.Registered().at(11).accepted);
  EXPECT_FALSE(table.RetryRefused());
}

TEST_F(RefusedHotKeysAgain, AreNoneOnceAllAreRemoved) {
  table.SetHotKeys("REMOVE");
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  log.Clear();
  EXPECT_FALSE(table.RetryRefused());
  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(RefusedHotKeysAgain, AreOnlyTheToggleWhileTheOthersAreSwitchedOff) {
  table.SetHotKeys("REMOVE");
  hotKeys.RegisterForeign(0, win32::kVkPause);
  table.SetHotKeys("SET");
  FakeHotKeyActions actions;
  HotKeyToggle(table, options, actions).ToggleHotKeys(kToggleFromHotKey);
  hotKeys.ReleaseForeign(0, win32::kVkPause);
  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  EXPECT_TRUE(table.RetryRefused());
  EXPECT_EQ(hotKeys.Registered(), (std::vector<FakeHotKeys::Registration>{{1000, 1, 0, 0x13}}));
  EXPECT_TRUE(Accepted(table.LastSet(), "HOTKEY_TOGGLE_HOTKEYS"));
  EXPECT_FALSE(Accepted(table.LastSet(), "HOTKEY_PARENT1"));
}

}  // namespace
}  // namespace korvale

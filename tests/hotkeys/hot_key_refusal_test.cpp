#include <gtest/gtest.h>

#include "tests/hotkeys/hot_key_table_fixture.h"

namespace korvale {
namespace {

using HotKeyRefusal = HotKeyTableTest;

TEST_F(HotKeyRefusal, KeepsTheSlotOfAHotKeyThatWindowsRefused) {
  hotKeys.RegisterForeign(1, 0x31);

  table.SetHotKeys("SET");

  ASSERT_EQ(table.Registered().size(), 15U);
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
  ASSERT_EQ(table.Registered().size(), 15U);
  for (const RegisteredHotKey& hotKey : table.Registered()) {
    const bool second = hotKey.name == "HOTKEY_RESTORE/MAXIMIZE_PARENT";
    EXPECT_EQ(hotKey.accepted, hotKey.modifiers != 8 && !second) << hotKey.name;
    EXPECT_EQ(hotKey.chosenBefore, second) << hotKey.name;
  }
}

TEST_F(HotKeyRefusal, HasNothingTwiceThatAFormerRegistrationHad) {
  table.SetHotKeys("SET");
  table.SetHotKeys("SET");

  ASSERT_EQ(table.Registered().size(), 15U);
  for (const RegisteredHotKey& hotKey : table.Registered()) {
    EXPECT_FALSE(hotKey.chosenBefore) << hotKey.name;
  }
}

TEST_F(HotKeyRefusal, RegistersARefusedHotKeyOnceItIsFree) {
  hotKeys.RegisterForeign(1, 0x31);
  table.SetHotKeys("SET");
  hotKeys.ReleaseForeign(1, 0x31);

  table.SetHotKeys("REMOVE");
  table.SetHotKeys("SET");

  EXPECT_TRUE(table.Registered().at(1).accepted);
}

}  // namespace
}  // namespace korvale

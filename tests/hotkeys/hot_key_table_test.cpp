#include "hotkeys/hot_key_table.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "platform/run_time_error.h"
#include "tests/fakes/error_of.h"
#include "tests/hotkeys/hot_key_table_fixture.h"

namespace korvale {
namespace {

TEST_F(HotKeyTableTest, StartsWithTheMarkOfATableThatWasNeverUsed) {
  EXPECT_EQ(table.HotKeyNames(), Names{"ARRAY_NOT_USED_YET"});
  EXPECT_EQ(table.HotKeyCount(), 0);
  EXPECT_TRUE(table.HotKeysActive());
  EXPECT_TRUE(table.Registered().empty());
}

TEST_F(HotKeyTableTest, RegistersTheTagsThenTheActionsInTheirFixedOrder) {
  table.SetHotKeys("SET");

  EXPECT_EQ(log.Calls(),
            (Calls{"RegisterHotKey(main, 1, 1, 48)", "RegisterHotKey(main, 2, 1, 49)",
                   "RegisterHotKey(main, 3, 1, 50)", "RegisterHotKey(main, 4, 1, 51)",
                   "RegisterHotKey(main, 5, 1, 52)", "RegisterHotKey(main, 6, 1, 53)",
                   "RegisterHotKey(main, 7, 1, 54)", "RegisterHotKey(main, 8, 1, 55)",
                   "RegisterHotKey(main, 9, 1, 56)", "RegisterHotKey(main, 10, 1, 57)",
                   "RegisterHotKey(main, 11, 1, 40)", "RegisterHotKey(main, 12, 1, 38)",
                   "RegisterHotKey(main, 13, 8, 79)", "RegisterHotKey(main, 14, 8, 87)",
                   "RegisterHotKey(main, 15, 0, 19)"}));
  EXPECT_EQ(table.HotKeyNames(),
            (Names{"HOTKEY_PARENT0", "HOTKEY_PARENT1", "HOTKEY_PARENT2", "HOTKEY_PARENT3",
                   "HOTKEY_PARENT4", "HOTKEY_PARENT5", "HOTKEY_PARENT6", "HOTKEY_PARENT7",
                   "HOTKEY_PARENT8", "HOTKEY_PARENT9", "HOTKEY_MINIMIZE_PARENT",
                   "HOTKEY_RESTORE/MAXIMIZE_PARENT", "HOTKEY_DISPLAY_OPTIONS",
                   "HOTKEY_WINDOW_MENU_POPUP", "HOTKEY_TOGGLE_HOTKEYS"}));
  EXPECT_EQ(table.HotKeyCount(), 15);
}

TEST_F(HotKeyTableTest, NumbersOnlyTheHotKeysThatAreEnabled) {
  Options().booHotKeyParent[1] = false;
  Options().booHotKeyParent[3] = false;

  table.SetHotKeys("SET");

  EXPECT_EQ(table.NameOf(1), "HOTKEY_PARENT0");
  EXPECT_EQ(table.NameOf(2), "HOTKEY_PARENT2");
  EXPECT_EQ(table.NameOf(3), "HOTKEY_PARENT4");
  EXPECT_EQ(log.Calls()[1], "RegisterHotKey(main, 2, 1, 50)");
  EXPECT_EQ(log.Calls()[2], "RegisterHotKey(main, 3, 1, 52)");
  EXPECT_EQ(table.HotKeyCount(), 13);
}

TEST_F(HotKeyTableTest, TakesEachModifierAndKeyFromItsOwnOption) {
  DisableAll();
  Options().booHotKeyParent[7] = true;
  Options().intHotKeyModParent = 2;
  Options().intHotKeyModAction = {4, 8};
  Options().intHotKeyAction = {112, 113};
  Options().intHotKeyModGeneral = {1, 2, 4};
  Options().intHotKeyGeneral = {114, 115, 116};

  table.SetHotKeys("SET");

  EXPECT_EQ(log.Calls(),
            (Calls{"RegisterHotKey(main, 1, 2, 55)", "RegisterHotKey(main, 2, 4, 112)",
                   "RegisterHotKey(main, 3, 8, 113)", "RegisterHotKey(main, 4, 1, 114)",
                   "RegisterHotKey(main, 5, 2, 115)", "RegisterHotKey(main, 6, 4, 116)"}));
}

TEST_F(HotKeyTableTest, LeavesOutActionsWithoutAKeyButNotThoseWithoutAModifier) {
  DisableAll();
  Options().intHotKeyModAction = {8, 0};
  Options().intHotKeyAction = {0, 121};

  table.SetHotKeys("SET");

  EXPECT_EQ(log.Calls(), Calls{"RegisterHotKey(main, 1, 0, 121)"});
  EXPECT_EQ(table.HotKeyNames(), Names{"HOTKEY_RESTORE/MAXIMIZE_PARENT"});
}

TEST_F(HotKeyTableTest, RegistersABareDigitWhenTheTagsHaveNoModifier) {
  DisableAll();
  Options().booHotKeyParent[4] = true;
  Options().intHotKeyModParent = 0;

  table.SetHotKeys("SET");

  EXPECT_EQ(log.Calls(), Calls{"RegisterHotKey(main, 1, 0, 52)"});
}

TEST_F(HotKeyTableTest, DoesNothingInAnyOtherMode) {
  for (const char* const mode : {"", "set", "Remove", "SET ", "GET"}) table.SetHotKeys(mode);

  EXPECT_TRUE(log.Calls().empty());
  EXPECT_EQ(table.HotKeyNames(), Names{"ARRAY_NOT_USED_YET"});
}

TEST_F(HotKeyTableTest, RemovesNothingBeforeAnythingWasRegistered) {
  table.SetHotKeys("REMOVE");

  EXPECT_TRUE(log.Calls().empty());
  EXPECT_EQ(table.HotKeyNames(), Names{"ARRAY_NOT_USED_YET"});
}

TEST_F(HotKeyTableTest, RemovesEveryIdentifierFromTheLowestToTheHighest) {
  DisableAll();
  Options().booHotKeyParent[2] = true;
  Options().booHotKeyParent[5] = true;
  Options().intHotKeyGeneral[2] = 19;
  table.SetHotKeys("SET");
  log.Clear();

  table.SetHotKeys("REMOVE");

  EXPECT_EQ(log.Calls(), (Calls{"UnregisterHotKey(main, 1)", "UnregisterHotKey(main, 2)",
                                "UnregisterHotKey(main, 3)"}));
  EXPECT_EQ(table.HotKeyNames(), Names{""});
  EXPECT_EQ(table.HotKeyCount(), 3);
  EXPECT_TRUE(table.Registered().empty());
  EXPECT_TRUE(hotKeys.Registered().empty());
}

/// While it asks for the presses in the queue, Windows delivers what other threads have sent.
TEST_F(HotKeyTableTest, APressDuringTheRemovalStillHasItsName) {
  table.SetHotKeys("SET");
  bool seen = false;
  log.WhenCalled("PeekMessageW(main", [&] {
    seen = true;
    // Alt+1.
    ASSERT_TRUE(table.IsPress(2, 0x310001));
    EXPECT_EQ(table.NameOf(2), "HOTKEY_PARENT1");
  });
  table.SetHotKeys("REMOVE");
  EXPECT_TRUE(seen);
}

TEST_F(HotKeyTableTest, KeepsTheEmptyTableWhenNothingIsEnabled) {
  table.SetHotKeys("SET");
  table.SetHotKeys("REMOVE");
  DisableAll();
  log.Clear();

  table.SetHotKeys("SET");
  EXPECT_EQ(table.HotKeyNames(), Names{""});
  EXPECT_EQ(table.HotKeyCount(), 0);
  EXPECT_TRUE(log.Calls().empty());

  table.SetHotKeys("REMOVE");
  EXPECT_EQ(log.Calls(), Calls{"UnregisterHotKey(main, 1)"});
  EXPECT_EQ(table.HotKeyNames(), Names{""});
}

TEST_F(HotKeyTableTest, LeavesTheMarkWhenNothingIsEnabledAtTheFirstTime) {
  DisableAll();

  table.SetHotKeys("SET");
  table.SetHotKeys("REMOVE");

  EXPECT_EQ(table.HotKeyNames(), Names{"ARRAY_NOT_USED_YET"});
  EXPECT_TRUE(log.Calls().empty());
}

TEST_F(HotKeyTableTest, RemovesNothingWhenItSets) {
  table.SetHotKeys("SET");
  DisableAll();
  Options().intHotKeyGeneral[2] = 19;
  log.Clear();

  table.SetHotKeys("SET");

  EXPECT_EQ(log.Calls(), Calls{"RegisterHotKey(main, 1, 0, 19)"});
  EXPECT_EQ(table.HotKeyNames(), Names{"HOTKEY_TOGGLE_HOTKEYS"});
}

TEST_F(HotKeyTableTest, RemembersWhatWasAskedFor) {
  table.AddHotKey("HOTKEY_DISPLAY_OPTIONS", 12, 79);

  ASSERT_EQ(table.Registered().size(), 1U);
  const RegisteredHotKey& hotKey = table.Registered().front();
  EXPECT_EQ(hotKey.name, "HOTKEY_DISPLAY_OPTIONS");
  EXPECT_EQ(hotKey.modifiers, 12);
  EXPECT_EQ(hotKey.key, 79);
  EXPECT_TRUE(hotKey.accepted);
}

TEST_F(HotKeyTableTest, AppendsAHotKeyToTheTable) {
  table.SetHotKeys("SET");

  table.AddHotKey("HOTKEY_KEYS2", 2, 65);

  EXPECT_EQ(table.HotKeyCount(), 16);
  EXPECT_EQ(table.NameOf(1), "HOTKEY_PARENT0");
  EXPECT_EQ(table.NameOf(16), "HOTKEY_KEYS2");
  EXPECT_EQ(log.Calls().back(), "RegisterHotKey(main, 16, 2, 65)");
}

TEST_F(HotKeyTableTest, StartsAgainAtTheFirstIdentifierAfterAReset) {
  table.SetHotKeys("SET");
  table.SetHotKeys("REMOVE");
  table.ResetHotKeyCount();

  table.AddHotKey("HOTKEY_TOGGLE_HOTKEYS", 0, 19);

  EXPECT_EQ(log.Calls().back(), "RegisterHotKey(main, 1, 0, 19)");
  EXPECT_EQ(table.HotKeyNames(), Names{"HOTKEY_TOGGLE_HOTKEYS"});
}

TEST_F(HotKeyTableTest, RefusesAnIdentifierOutsideTheTable) {
  table.SetHotKeys("SET");

  for (const std::uintptr_t identifier :
       {std::uintptr_t{0}, std::uintptr_t{16}, std::numeric_limits<std::uintptr_t>::max()}) {
    EXPECT_EQ(ErrorOf([&] { table.NameOf(identifier); }), RunTimeError::kSubscriptOutOfRange);
  }
}

TEST_F(HotKeyTableTest, OverflowsBehindTheLargestIdentifier) {
  for (int count = 0; count < std::numeric_limits<std::int16_t>::max(); ++count) {
    table.AddHotKey("HOTKEY_KEYS2", 0, 65);
  }
  EXPECT_EQ(ErrorOf([this] { table.AddHotKey("HOTKEY_KEYS2", 0, 65); }), RunTimeError::kOverflow);
  EXPECT_EQ(table.HotKeyCount(), std::numeric_limits<std::int16_t>::max());
  EXPECT_EQ(table.HotKeyNames().size(), 32767U);
}

TEST_F(HotKeyTableTest, NeedsTheOptionsRecord) {
  options.Release();

  EXPECT_THROW(table.SetHotKeys("SET"), RunTimeError);
  EXPECT_TRUE(log.Calls().empty());
}

}  // namespace
}  // namespace korvale

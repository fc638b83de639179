#include "hotkeys/hot_key_names.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace korvale {
namespace {

TEST(HotKeyNamesTest, KnowsTheRegisteredNamesThenTheReservedOnes) {
  std::vector<std::string> expected;
  for (int tag = 0; tag <= 9; ++tag) expected.push_back("HOTKEY_PARENT" + std::to_string(tag));
  expected.insert(expected.end(),
                  {"HOTKEY_MINIMIZE_PARENT", "HOTKEY_RESTORE/MAXIMIZE_PARENT",
                   "HOTKEY_DISPLAY_OPTIONS", "HOTKEY_WINDOW_MENU_POPUP", "HOTKEY_TOGGLE_HOTKEYS"});
  for (int tag = 0; tag <= 9; ++tag) expected.push_back("HOTKEY_CHILD" + std::to_string(tag));
  expected.insert(expected.end(), {"HOTKEY_MINIMIZE_CHILD", "HOTKEY_RESTORE/MAXIMIZE_CHILD",
                                   "HOTKEY_KEYS2", "HOTKEY_KEYS3"});

  const auto names = HotKeyNameSet();
  EXPECT_EQ(std::vector<std::string>(names.begin(), names.end()), expected);
  EXPECT_EQ(std::set<std::string_view>(names.begin(), names.end()).size(), expected.size());
}

TEST(HotKeyNamesTest, RecognisesEachNameExactly) {
  for (const std::string_view name : HotKeyNameSet()) EXPECT_TRUE(IsHotKeyName(name)) << name;
  for (const char* const name :
       {"", "HOTKEY_PARENT", "HOTKEY_PARENT10", "hotkey_parent1", "HOTKEY_KEYS1", "HOTKEY_CHILD",
        "HOTKEY_RESTORE", "ARRAY_NOT_USED_YET", " HOTKEY_PARENT1"}) {
    EXPECT_FALSE(IsHotKeyName(name)) << name;
  }
}

TEST(HotKeyNamesTest, TurnsTagsIntoNamesAndBack) {
  for (int tag = 0; tag <= 9; ++tag) {
    EXPECT_EQ(ParentHotKeyName(tag), "HOTKEY_PARENT" + std::to_string(tag));
    EXPECT_EQ(ParentHotKeyTag(ParentHotKeyName(tag)), tag);
  }
}

TEST(HotKeyNamesTest, FindsNoTagInOtherNames) {
  for (const char* const name : {"", "HOTKEY_PARENT", "HOTKEY_PARENT12", "HOTKEY_PARENTX",
                                 "HOTKEY_PARENT/", "HOTKEY_CHILD3", "XOTKEY_PARENT3"}) {
    EXPECT_EQ(ParentHotKeyTag(name), -1) << name;
  }
}

TEST(HotKeyNamesTest, DescribesEachRegisteredHotKey) {
  for (int tag = 0; tag <= 9; ++tag) {
    EXPECT_EQ(HotKeyDescription(ParentHotKeyName(tag)), "Select Window " + std::to_string(tag));
  }
  EXPECT_EQ(HotKeyDescription("HOTKEY_MINIMIZE_PARENT"), "Minimize Parent Window");
  EXPECT_EQ(HotKeyDescription("HOTKEY_RESTORE/MAXIMIZE_PARENT"), "Restore/Maximize Parent Window");
  EXPECT_EQ(HotKeyDescription("HOTKEY_DISPLAY_OPTIONS"), "Display Options");
  EXPECT_EQ(HotKeyDescription("HOTKEY_WINDOW_MENU_POPUP"), "Display Window Menu");
  EXPECT_EQ(HotKeyDescription("HOTKEY_TOGGLE_HOTKEYS"), "Toggle All Hot Keys ON/OFF");
}

TEST(HotKeyNamesTest, DescribesNeitherReservedNorUnknownNames) {
  for (const std::string_view name : HotKeyNameSet().subspan(15)) {
    EXPECT_EQ(HotKeyDescription(name), "") << name;
  }
  EXPECT_EQ(HotKeyDescription(""), "");
  EXPECT_EQ(HotKeyDescription("HOTKEY_PARENT"), "");
  EXPECT_EQ(HotKeyDescription("ARRAY_NOT_USED_YET"), "");
}

}  // namespace
}  // namespace korvale

#include "hotkeys/hot_key_names.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/hotkeys/reserved_names.h"

namespace korvale {
namespace {

TEST(HotKeyNamesTest, RecognisesTheRegisteredNamesAndTheReservedOnes) {
  std::vector<std::string> names = ReservedHotKeyNames();
  for (int tag = 0; tag <= 9; ++tag) names.push_back("HOTKEY_PARENT" + std::to_string(tag));
  names.insert(names.end(),
               {"HOTKEY_MINIMIZE_PARENT", "HOTKEY_RESTORE/MAXIMIZE_PARENT",
                "HOTKEY_DISPLAY_OPTIONS", "HOTKEY_WINDOW_MENU_POPUP", "HOTKEY_TOGGLE_HOTKEYS"});
  for (const std::string& name : names) EXPECT_TRUE(IsHotKeyName(name)) << name;
}

TEST(HotKeyNamesTest, RecognisesNoOtherName) {
  for (const char* const name :
       {"", "HOTKEY_PARENT", "HOTKEY_PARENT10", "HOTKEY_PARENT/",
        "HOTKEY_PARENT:", "hotkey_parent1", "HOTKEY_KEYS1", "HOTKEY_KEYS4", "HOTKEY_CHILD",
        "HOTKEY_CHILD10", "HOTKEY_CHILDX", "HOTKEY_CHILD:", "HOTKEY_RESTORE", "HOTKEY_MINIMIZE",
        "hotkey_minimize_parent", "ARRAY_NOT_USED_YET", " HOTKEY_PARENT1"}) {
    EXPECT_FALSE(IsHotKeyName(name)) << name;
  }
}

TEST(HotKeyNamesTest, TurnsTagsIntoNamesAndBack) {
  for (int tag = 0; tag <= 9; ++tag) {
    EXPECT_EQ(ParentHotKeyName(tag), "HOTKEY_PARENT" + std::to_string(tag));
    EXPECT_EQ(ParentHotKeyTag("HOTKEY_PARENT" + std::to_string(tag)), tag);
  }
}

TEST(HotKeyNamesTest, FindsNoTagInOtherNames) {
  for (const char* const name :
       {"", "HOTKEY_PARENT", "HOTKEY_PARENT12", "HOTKEY_PARENTX", "HOTKEY_PARENT/",
        "HOTKEY_PARENT:", "HOTKEY_CHILD3", "XOTKEY_PARENT3"}) {
    EXPECT_EQ(ParentHotKeyTag(name), -1) << name;
  }
}

TEST(HotKeyNamesTest, DescribesEachRegisteredHotKey) {
  for (int tag = 0; tag <= 9; ++tag) {
    EXPECT_EQ(HotKeyDescription("HOTKEY_PARENT" + std::to_string(tag)),
              "Select Window " + std::to_string(tag));
  }
  EXPECT_EQ(HotKeyDescription("HOTKEY_MINIMIZE_PARENT"), "Minimize Parent Window");
  EXPECT_EQ(HotKeyDescription("HOTKEY_RESTORE/MAXIMIZE_PARENT"), "Restore/Maximize Parent Window");
  EXPECT_EQ(HotKeyDescription("HOTKEY_DISPLAY_OPTIONS"), "Display Options");
  EXPECT_EQ(HotKeyDescription("HOTKEY_WINDOW_MENU_POPUP"), "Display Window Menu");
  EXPECT_EQ(HotKeyDescription("HOTKEY_TOGGLE_HOTKEYS"), "Toggle All Hot Keys ON/OFF");
}

TEST(HotKeyNamesTest, DescribesNeitherReservedNorUnknownNames) {
  for (const std::string& name : ReservedHotKeyNames()) {
    EXPECT_EQ(HotKeyDescription(name), "") << name;
  }
  EXPECT_EQ(HotKeyDescription(""), "");
  EXPECT_EQ(HotKeyDescription("HOTKEY_PARENT"), "");
  EXPECT_EQ(HotKeyDescription("ARRAY_NOT_USED_YET"), "");
}

}  // namespace
}  // namespace korvale

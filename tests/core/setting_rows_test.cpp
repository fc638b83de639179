#include "app/core/setting_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/core/saves.h"
#include "tests/core/stored_values.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

/// A key of the store, an unusual value there, and the field that it stands for.
template <typename Record>
struct KeyAndField {
  const char* key;
  const char* text;
  void (*change)(Record&);
};

const std::vector<KeyAndField<clsOptions>> kOptionKeys = {
    {"SplashScreen", "False", [](clsOptions& o) { o.booSplashScreen = false; }},
    {"SelectPrevWinOnStart", "True", [](clsOptions& o) { o.booSelectPrevWinOnStart = true; }},
    {"AllowNoTextWindow", "True", [](clsOptions& o) { o.booAllowNoTextWindow = true; }},
    {"AllowToolbarWindow", "True", [](clsOptions& o) { o.booAllowToolbarWindow = true; }},
    {"HotKeyEnabled", "-2147483633", [](clsOptions& o) { o.colHotKeyEnabled = -2147483633; }},
    {"HotKeyModParent", "3", [](clsOptions& o) { o.intHotKeyModParent = 3; }},
    {"HotKeyParent0", "False", [](clsOptions& o) { o.booHotKeyParent[0] = false; }},
    {"HotKeyParent1", "False", [](clsOptions& o) { o.booHotKeyParent[1] = false; }},
    {"HotKeyParent2", "False", [](clsOptions& o) { o.booHotKeyParent[2] = false; }},
    {"HotKeyParent3", "False", [](clsOptions& o) { o.booHotKeyParent[3] = false; }},
    {"HotKeyParent4", "False", [](clsOptions& o) { o.booHotKeyParent[4] = false; }},
    {"HotKeyParent5", "False", [](clsOptions& o) { o.booHotKeyParent[5] = false; }},
    {"HotKeyParent6", "False", [](clsOptions& o) { o.booHotKeyParent[6] = false; }},
    {"HotKeyParent7", "False", [](clsOptions& o) { o.booHotKeyParent[7] = false; }},
    {"HotKeyParent8", "False", [](clsOptions& o) { o.booHotKeyParent[8] = false; }},
    {"HotKeyParent9", "False", [](clsOptions& o) { o.booHotKeyParent[9] = false; }},
    {"HotKeyModAction0", "4", [](clsOptions& o) { o.intHotKeyModAction[0] = 4; }},
    {"HotKeyModAction1", "5", [](clsOptions& o) { o.intHotKeyModAction[1] = 5; }},
    {"HotKeyAction0", "0", [](clsOptions& o) { o.intHotKeyAction[0] = 0; }},
    {"HotKeyAction1", "112", [](clsOptions& o) { o.intHotKeyAction[1] = 112; }},
    {"HotKeyModGeneral0", "6", [](clsOptions& o) { o.intHotKeyModGeneral[0] = 6; }},
    {"HotKeyModGeneral1", "7", [](clsOptions& o) { o.intHotKeyModGeneral[1] = 7; }},
    {"HotKeyModGeneral2", "15", [](clsOptions& o) { o.intHotKeyModGeneral[2] = 15; }},
    {"HotKeyGeneral0", "65", [](clsOptions& o) { o.intHotKeyGeneral[0] = 65; }},
    {"HotKeyGeneral1", "66", [](clsOptions& o) { o.intHotKeyGeneral[1] = 66; }},
    {"HotKeyGeneral2", "67", [](clsOptions& o) { o.intHotKeyGeneral[2] = 67; }},
};

const std::vector<KeyAndField<StartupSettings>> kStartupKeys = {
    {"WindowState", "2", [](StartupSettings& s) { s.WindowState = 2; }},
    {"Left", "-32768", [](StartupSettings& s) { s.Left = -32768; }},
    {"Top", "32767", [](StartupSettings& s) { s.Top = 32767; }},
    {"Width", "6000", [](StartupSettings& s) { s.Width = 6000; }},
    {"Height", "1500", [](StartupSettings& s) { s.Height = 1500; }},
    {"AlwaysOnTop", "True", [](StartupSettings& s) { s.AlwaysOnTop = true; }},
    {"WI1BackColor", "1", [](StartupSettings& s) { s.WI1BackColor = 1; }},
    {"WI2BackColor", "2", [](StartupSettings& s) { s.WI2BackColor = 2; }},
    {"Tips", "1101", [](StartupSettings& s) { s.Tips = "1101"; }},
    {"DisplayTips", "False", [](StartupSettings& s) { s.DisplayTips = false; }},
    {"LastColorSelected", "3", [](StartupSettings& s) { s.LastColorSelected = 3; }},
    {"Menu", "False", [](StartupSettings& s) { s.Menu = false; }},
    {"OptionsTab", "3", [](StartupSettings& s) { s.OptionsTab = 3; }},
    {"WindowInfo", "False", [](StartupSettings& s) { s.WindowInfo = false; }},
};

clsOptions OptionsIn(SettingsStore& store) {
  clsOptions options;
  Settings(store, kApp).LoadOptions(options);
  return options;
}

StoredValues Saved(const clsOptions& options, const StartupSettings& startup) {
  FakeSettingsStore store;
  Settings settings(store, kApp);
  settings.SaveOptions(options);
  settings.SaveINI(startup, {});
  return ValuesOf(store, kApp);
}

TEST(SettingRowsTest, EachKeyOfTheOptionsIsReadIntoItsOwnField) {
  EXPECT_EQ(kOptionKeys.size(), kAllOptions);
  for (const auto& [key, text, change] : kOptionKeys) {
    FakeSettingsStore store;
    store.SaveSetting(kApp, "Options", key, text);
    clsOptions expected;
    change(expected);
    EXPECT_NE(expected, clsOptions()) << key;
    EXPECT_EQ(OptionsIn(store), expected) << key;
  }
}

TEST(SettingRowsTest, EachFieldOfTheOptionsIsWrittenUnderItsOwnKey) {
  const StoredValues defaults = Saved({}, {});
  for (const auto& [key, text, change] : kOptionKeys) {
    clsOptions options;
    change(options);
    StoredValues expected = defaults;
    expected[std::string("Korvale - Work/Options/") + key] = text;
    EXPECT_EQ(Saved(options, {}), expected) << key;
  }
}

TEST(SettingRowsTest, EachKeyOfTheStateIsReadIntoItsOwnField) {
  EXPECT_EQ(kStartupKeys.size(), kAllStartupSettings);
  for (const auto& [key, text, change] : kStartupKeys) {
    FakeSettingsStore store;
    store.SaveSetting(kApp, "Startup", key, text);
    StartupSettings expected;
    change(expected);
    EXPECT_NE(expected, StartupSettings()) << key;
    EXPECT_EQ(Settings(store, kApp).LoadStartup(), expected) << key;
  }
}

TEST(SettingRowsTest, EachFieldOfTheStateIsWrittenUnderItsOwnKey) {
  const StoredValues defaults = Saved({}, {});
  for (const auto& [key, text, change] : kStartupKeys) {
    StartupSettings startup;
    change(startup);
    StoredValues expected = defaults;
    expected[std::string("Korvale - Work/Startup/") + key] = text;
    EXPECT_EQ(Saved({}, startup), expected) << key;
  }
}

TEST(SettingRowsTest, NoKeyStandsTwice) {
  std::vector<std::string> keys;
  for (const auto& row : OptionRows()) keys.emplace_back(row.key);
  for (const auto& row : StartupRows()) keys.emplace_back(row.key);
  std::ranges::sort(keys);
  EXPECT_EQ(keys.size(), kAllSettings);
  EXPECT_EQ(std::ranges::adjacent_find(keys), keys.end());
}

}  // namespace
}  // namespace korvale

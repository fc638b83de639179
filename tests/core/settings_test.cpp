#include "app/core/settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "tests/core/saves.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_settings_store.h"

namespace korvale {
namespace {

using Pairs = SettingsStore::Pairs;

Pairs Sorted(Pairs pairs) {
  std::ranges::sort(pairs);
  return pairs;
}

class SettingsTest : public testing::Test {
 protected:
  clsOptions LoadedOptions() const {
    clsOptions options;
    settings_.LoadOptions(options);
    return options;
  }

  /// The changes so far without those of the journal.
  std::vector<std::string> Changes() {
    std::vector<std::string> calls = log_.Take();
    std::erase_if(calls, [](const std::string& call) {
      return call.find("Korvale - Work, Saving") != std::string::npos;
    });
    return calls;
  }

  CallLog log_;
  FakeSettingsStore store_{log_};
  Settings settings_{store_, kApp};
};

clsOptions UnusualOptions() {
  clsOptions options;
  options.booSplashScreen = false;
  options.booSelectPrevWinOnStart = true;
  options.booAllowNoTextWindow = true;
  options.booAllowToolbarWindow = true;
  options.colHotKeyEnabled = -2147483633;
  options.intHotKeyModParent = 3;
  options.booHotKeyParent = {false, true, false, true, false, true, false, true, false, true};
  options.intHotKeyModAction = {4, 5};
  options.intHotKeyAction = {0, 112};
  options.intHotKeyModGeneral = {6, 7, 15};
  options.intHotKeyGeneral = {65, 66, 67};
  return options;
}

StartupSettings UnusualStartup() {
  StartupSettings startup;
  startup.WindowState = 2;
  startup.Left = -32768;
  startup.Top = 32767;
  startup.Width = 6000;
  startup.Height = 1500;
  startup.AlwaysOnTop = true;
  startup.WI1BackColor = 1;
  startup.WI2BackColor = 2;
  startup.Tips = "1101";
  startup.DisplayTips = false;
  startup.LastColorSelected = 3;
  startup.Menu = false;
  startup.OptionsTab = 3;
  startup.WindowInfo = false;
  return startup;
}

TEST_F(SettingsTest, EmptyStoreGivesTheDefaults) {
  EXPECT_EQ(LoadedOptions(), clsOptions());
  EXPECT_EQ(settings_.LoadStartup(), StartupSettings());
  EXPECT_TRUE(settings_.LoadTagList().empty());
}

TEST_F(SettingsTest, LoadingPutsDefaultsInPlaceOfWhatTheRecordHeld) {
  clsOptions options = UnusualOptions();
  settings_.LoadOptions(options);
  EXPECT_EQ(options, clsOptions());
}

/// The options as the registry shows them, in the order in which they are written.
const Pairs kDefaultOptions = {{"SplashScreen", "True"},       {"SelectPrevWinOnStart", "False"},
                               {"AllowNoTextWindow", "False"}, {"AllowToolbarWindow", "False"},
                               {"HotKeyEnabled", "8454143"},   {"HotKeyModParent", "1"},
                               {"HotKeyParent0", "True"},      {"HotKeyParent1", "True"},
                               {"HotKeyParent2", "True"},      {"HotKeyParent3", "True"},
                               {"HotKeyParent4", "True"},      {"HotKeyParent5", "True"},
                               {"HotKeyParent6", "True"},      {"HotKeyParent7", "True"},
                               {"HotKeyParent8", "True"},      {"HotKeyParent9", "True"},
                               {"HotKeyModAction0", "1"},      {"HotKeyModAction1", "1"},
                               {"HotKeyAction0", "40"},        {"HotKeyAction1", "38"},
                               {"HotKeyModGeneral0", "8"},     {"HotKeyModGeneral1", "8"},
                               {"HotKeyModGeneral2", "0"},     {"HotKeyGeneral0", "79"},
                               {"HotKeyGeneral1", "87"},       {"HotKeyGeneral2", "19"}};

TEST_F(SettingsTest, OptionsStandInTheStoreAsTexts) {
  settings_.SaveOptions(clsOptions());
  EXPECT_EQ(Sorted(store_.GetAllSettings(kApp, "Options")), Sorted(kDefaultOptions));
}

TEST_F(SettingsTest, StartupSettingsStandInTheStoreAsTexts) {
  settings_.SaveINI(StartupSettings(), {});
  const Pairs expected = {{"WindowState", "0"},
                          {"Left", "-1"},
                          {"Top", "-1"},
                          {"Width", "4500"},
                          {"Height", "1100"},
                          {"AlwaysOnTop", "False"},
                          {"WI1BackColor", "10485759"},
                          {"WI2BackColor", "11468718"},
                          {"Tips", ""},
                          {"DisplayTips", "True"},
                          {"LastColorSelected", "16777215"},
                          {"Menu", "True"},
                          {"OptionsTab", "1"},
                          {"WindowInfo", "True"}};
  EXPECT_EQ(Sorted(store_.GetAllSettings(kApp, "Startup")), Sorted(expected));
}

TEST_F(SettingsTest, WhatWasSavedIsLoadedAgain) {
  settings_.SaveOptions(UnusualOptions());
  settings_.SaveINI(UnusualStartup(), {});
  EXPECT_EQ(LoadedOptions(), UnusualOptions());
  EXPECT_EQ(settings_.LoadStartup(), UnusualStartup());
}

TEST_F(SettingsTest, AllowModalFrameWindowIsNeverStored) {
  clsOptions options;
  options.booAllowModalFrameWindow = true;
  settings_.SaveOptions(options);
  EXPECT_EQ(Sorted(store_.GetAllSettings(kApp, "Options")), Sorted(kDefaultOptions));
  EXPECT_FALSE(LoadedOptions().booAllowModalFrameWindow);
  settings_.LoadOptions(options);
  EXPECT_TRUE(options.booAllowModalFrameWindow);
}

TEST_F(SettingsTest, SettingsOfAnotherNameStayApart) {
  settings_.SaveOptions(UnusualOptions());
  settings_.SetAppName("Korvale - Home");
  EXPECT_EQ(settings_.AppName(), "Korvale - Home");
  EXPECT_EQ(LoadedOptions(), clsOptions());
  EXPECT_TRUE(settings_.NothingStored());
}

TEST_F(SettingsTest, SaveINIReplacesWhatStoodInItsSections) {
  for (const char* section : {"Startup", "ButtonTags", "ButtonColors", "ParentWindowList",
                              "ParentWindowClass", "ChildWindowList", "Options"}) {
    store_.SaveSetting(kApp, section, "9", "old");
  }
  settings_.SaveINI(StartupSettings(), {{1, "&1  Mail", "MailFrame"}});
  EXPECT_EQ(store_.GetSetting(kApp, "Startup", "9"), std::nullopt);
  EXPECT_TRUE(store_.GetAllSettings(kApp, "ButtonTags").empty());
  EXPECT_TRUE(store_.GetAllSettings(kApp, "ButtonColors").empty());
  EXPECT_TRUE(store_.GetAllSettings(kApp, "ChildWindowList").empty());
  EXPECT_EQ(store_.GetAllSettings(kApp, "ParentWindowList"), (Pairs{{"1", "&1  Mail"}}));
  EXPECT_EQ(store_.GetAllSettings(kApp, "ParentWindowClass"), (Pairs{{"1", "MailFrame"}}));
  EXPECT_EQ(store_.GetSetting(kApp, "Options", "9"), "old");
}

TEST_F(SettingsTest, SaveINIDeletesOnlyFullSectionsThenWritesInTheOrderOfTheTable) {
  store_.SaveSetting(kApp, "ParentWindowClass", "1", "old");
  store_.SaveSetting(kApp, "Startup", "Gone", "old");
  log_.Clear();
  settings_.SaveINI(StartupSettings(), {{2, "&2  A&B", "Notepad"}, {9, "&9  \xd0\x9f - ***", ""}});
  const std::string save = "SaveSetting(Korvale - Work, ";
  const std::vector<std::string> expected = {"DeleteSection(Korvale - Work, Startup)",
                                             "DeleteSection(Korvale - Work, ParentWindowClass)",
                                             save + "Startup, WindowState, \"0\")",
                                             save + "Startup, Left, \"-1\")",
                                             save + "Startup, Top, \"-1\")",
                                             save + "Startup, Width, \"4500\")",
                                             save + "Startup, Height, \"1100\")",
                                             save + "Startup, AlwaysOnTop, \"False\")",
                                             save + "Startup, WI1BackColor, \"10485759\")",
                                             save + "Startup, WI2BackColor, \"11468718\")",
                                             save + "Startup, Tips, \"\")",
                                             save + "Startup, DisplayTips, \"True\")",
                                             save + "Startup, LastColorSelected, \"16777215\")",
                                             save + "Startup, Menu, \"True\")",
                                             save + "Startup, OptionsTab, \"1\")",
                                             save + "Startup, WindowInfo, \"True\")",
                                             save + "ParentWindowList, 2, \"&2  A&B\")",
                                             save + "ParentWindowClass, 2, \"Notepad\")",
                                             save + "ParentWindowList, 9, \"&9  \xd0\x9f - ***\")"};
  EXPECT_EQ(Changes(), expected);
}

TEST_F(SettingsTest, SectionsAreDeletedInTheirOrder) {
  for (const char* section : {"ChildWindowList", "ParentWindowClass", "ParentWindowList",
                              "ButtonColors", "ButtonTags", "Startup"}) {
    store_.SaveSetting(kApp, section, "9", "old");
  }
  log_.Clear();
  settings_.DeleteINI();
  EXPECT_EQ(Changes(), (std::vector<std::string>{
                           "DeleteSection(Korvale - Work, Startup)",
                           "DeleteSection(Korvale - Work, ButtonTags)",
                           "DeleteSection(Korvale - Work, ButtonColors)",
                           "DeleteSection(Korvale - Work, ParentWindowList)",
                           "DeleteSection(Korvale - Work, ParentWindowClass)",
                           "DeleteSection(Korvale - Work, ChildWindowList)",
                       }));
}

TEST_F(SettingsTest, OptionsAreWrittenInTheirOrder) {
  settings_.SaveOptions(clsOptions());
  std::vector<std::string> expected;
  for (const auto& [key, text] : kDefaultOptions) {
    expected.push_back("SaveSetting(Korvale - Work, Options, " + key + ", \"" + text + "\")");
  }
  ASSERT_EQ(expected.size(), kAllOptions);
  EXPECT_EQ(Changes(), expected);
}

TEST_F(SettingsTest, DeleteOptionsDoesNothingWhenNoneAreStored) {
  settings_.DeleteOptions();
  EXPECT_TRUE(Changes().empty());
}

TEST_F(SettingsTest, DeleteOptionsLeavesTheRest) {
  settings_.SaveOptions(clsOptions());
  settings_.SaveINI(StartupSettings(), {});
  settings_.DeleteOptions();
  EXPECT_TRUE(store_.GetAllSettings(kApp, "Options").empty());
  EXPECT_EQ(store_.GetAllSettings(kApp, "Startup").size(), kAllStartupSettings);
}

TEST_F(SettingsTest, DeleteINILeavesTheOptions) {
  settings_.SaveOptions(clsOptions());
  settings_.SaveINI(StartupSettings(), {});
  settings_.DeleteINI();
  EXPECT_TRUE(store_.GetAllSettings(kApp, "Startup").empty());
  EXPECT_EQ(store_.GetAllSettings(kApp, "Options").size(), kAllOptions);
}

TEST_F(SettingsTest, DeletePlacementKeepsTheOtherStartupSettings) {
  settings_.SaveINI(StartupSettings(), {});
  settings_.DeletePlacement();
  const Pairs left = Sorted(store_.GetAllSettings(kApp, "Startup"));
  std::vector<std::string> keys;
  for (const auto& [key, value] : left) keys.push_back(key);
  EXPECT_EQ(keys,
            (std::vector<std::string>{"AlwaysOnTop", "LastColorSelected", "Menu", "OptionsTab",
                                      "Tips", "WI1BackColor", "WI2BackColor", "WindowInfo"}));
}

TEST_F(SettingsTest, OneValueInAnySectionCountsAsStored) {
  EXPECT_TRUE(settings_.NothingStored());
  for (const char* section : {"Startup", "ParentWindowList", "ParentWindowClass", "Options"}) {
    store_.SaveSetting(kApp, section, "x", "");
    EXPECT_FALSE(settings_.NothingStored()) << section;
    store_.DeleteSection(kApp, section);
  }
  store_.SaveSetting(kApp, "ButtonTags", "x", "");
  EXPECT_TRUE(settings_.NothingStored());
}

}  // namespace
}  // namespace korvale

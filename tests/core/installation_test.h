#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>

#include "app/core/installation.h"
#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_message_boxes.h"
#include "tests/fakes/fake_settings_store.h"
#include "tests/fakes/fake_system.h"

namespace korvale {

inline constexpr const char* kWork = "Korvale - Work";
inline constexpr const char* kOld = "Korvale - Old";
inline constexpr std::int16_t kYes = win32::kIdYes;
inline constexpr std::int16_t kNo = win32::kIdNo;

/// A start in D:\Tools\Work, and the settings of an installation that was in D:\Tools\Old.
class InstallationTest : public testing::Test {
 protected:
  InstallationTest() { StartFrom("D:\\Tools\\Work\\"); }

  void StartFrom(const std::string& folder) {
    system_.executablePath = folder + "Korvale.exe";
    system_.files.insert(folder + "Korvale.exe");
    identity_ = ReadProgramIdentity(system_);
  }
  InstallationResult RunOn(SettingsStore& store) {
    Settings settings(store, identity_.mainCaption);
    const InstallationResult result = RunInstallationRule(identity_, settings, system_, messages_);
    if (!result.takeOverFrom.empty()) {
      SaveScope save(settings);
      taken_ = TakeOver(settings, result.takeOverFrom);
      save.Commit();
    }
    EXPECT_EQ(settings.AppName(), identity_.mainCaption);
    return result;
  }
  InstallationResult Run() { return RunOn(store_); }

  static void Register(SettingsStore& store, const std::string& appName,
                       const std::string& folder) {
    store.SaveSetting("Korvale Installations", "0", appName, folder);
  }
  std::optional<std::string> Registered(const std::string& appName) {
    return store_.GetSetting("Korvale Installations", "0", appName);
  }

  /// A full set of settings, none of them at its default.
  static void StoreSettings(SettingsStore& store, const std::string& appName) {
    Settings settings(store, appName);
    clsOptions options;
    options.intHotKeyModParent = 2;
    StartupSettings startup;
    startup.Left = 100;
    startup.Width = 5000;
    startup.DisplayTips = false;
    startup.Tips = "11";
    startup.Menu = false;
    settings.SaveOptions(options);
    settings.SaveINI(startup, {{1, "&1  Mail", ""}, {4, "&4  *** - Notepad", "Notepad"}});
    store.SaveSetting(appName, "ButtonTags", "1", "old");
  }

  CallLog log_;
  FakeSystem system_{log_};
  FakeSettingsStore store_{log_};
  FakeMessageBoxes messages_;
  ProgramIdentity identity_;
  /// The settings of the other installation, once they have been taken over.
  InstallationSettings taken_;
};

}  // namespace korvale

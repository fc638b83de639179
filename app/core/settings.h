#pragma once

#include <functional>
#include <string>
#include <utility>

#include "app/core/options.h"
#include "app/core/startup_settings.h"
#include "app/core/stored_tags.h"
#include "platform/settings_store.h"

namespace korvale {

class ChangeRecorder;

/// Loads and saves everything that the program remembers between runs, one table row a setting.
/// A value that is missing or cannot be converted yields the setting's default.
///
/// A save is made as a whole or not at all, even when the program is killed in the middle of it;
/// what was begun is ended by FinishInterruptedSave of the next run. Saving throws RunTimeError 70
/// when the store refuses a value.
class Settings {
 public:
  Settings(SettingsStore& store, std::string appName);

  /// The application name under which all settings of an installation stand. It points at another
  /// installation only while that one's settings are taken over.
  const std::string& AppName() const { return appName_; }
  void SetAppName(std::string appName) { appName_ = std::move(appName); }

  /// Every field of `options` that is stored; the others stay as they are.
  void LoadOptions(clsOptions& options) const;
  void SaveOptions(const clsOptions& options);
  /// Deletes the section "Options" if it holds any values.
  void DeleteOptions();

  StartupSettings LoadStartup() const;
  /// Without keys other than "1" to "9" and without captions that are not TagCaption's of their
  /// key.
  StoredTagList LoadTagList() const;
  /// Deletes the sections of the main window's state, the old ones of earlier designs and the Tag
  /// list, then writes the state and the Tag list.
  void SaveINI(const StartupSettings& startup, const StoredTagList& tags);
  /// Only the deletions of SaveINI.
  void DeleteINI();
  /// Deletes the settings that are not taken over from another installation.
  void DeletePlacement();
  /// Sets these settings back to their defaults.
  static void ForgetPlacement(StartupSettings& startup);

  /// True when no section of this installation holds anything.
  bool NothingStored() const;

  /// Everything that `work` saves and deletes, here and through the store that it is given, is made
  /// as one when it has ended, and none of it when it throws. Until then reads see the store as it
  /// was. Calls within `work` belong to it.
  void SaveTogether(const std::function<void(SettingsStore&)>& work);
  /// The same, followed by deletions that are made only once all of `work` stands: nothing that
  /// the store refuses is lost under both names.
  void SaveThenDelete(const std::function<void(SettingsStore&)>& work,
                      const std::function<void(SettingsStore&)>& deletions);

  /// Ends a save under AppName() that a killed run began, or drops it when it had not got far
  /// enough. To be called before loading, and by the only running copy of the installation.
  void FinishInterruptedSave();

  SettingsStore& Store() { return *store_; }

 private:
  SettingsStore* store_;
  std::string appName_;
  /// Collects what the running SaveTogether will make; null outside of one.
  ChangeRecorder* together_ = nullptr;
};

}  // namespace korvale

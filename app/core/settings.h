#pragma once

#include <functional>
#include <string>

#include "app/core/options.h"
#include "app/core/startup_settings.h"
#include "platform/settings_store.h"

namespace korvale {

/// The Tag list as it is stored: Tag number text -> caption, Tag number text -> class.
struct StoredTagList {
  SettingsStore::Pairs captions;
  SettingsStore::Pairs classes;
};

/// Loads and saves everything that the program remembers between runs, one table row a setting.
/// A value that is missing or cannot be converted yields the setting's default.
class Settings {
 public:
  Settings(SettingsStore& store, std::string appName);

  /// The application name under which all settings of an installation stand. It points at another
  /// installation only while that one's settings are taken over.
  const std::string& AppName() const { return appName_; }
  void SetAppName(std::string appName) { appName_ = std::move(appName); }

  void LoadOptions(clsOptions& options) const;
  void SaveOptions(const clsOptions& options);
  /// Deletes the section "Options" if it holds any values.
  void DeleteOptions();

  StartupSettings LoadStartup() const;
  StoredTagList LoadTagList() const;
  /// Deletes the sections of the main window's state, the old ones of earlier designs and the Tag
  /// list, writes the state, then lets `saveTagList` write the Tag list under AppName().
  void SaveINI(const StartupSettings& startup, const std::function<void()>& saveTagList);
  /// Only the deletions of SaveINI.
  void DeleteINI();

  /// True when no section of this installation holds anything.
  bool NothingStored() const;

  SettingsStore& Store() { return *store_; }

 private:
  SettingsStore* store_;
  std::string appName_;
};

}  // namespace korvale

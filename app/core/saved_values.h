#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/core/store_changes.h"
#include "platform/settings_store.h"

namespace korvale {

/// The settings of an application name as they were saved last, even when the store has not taken
/// all of them yet: what an unfinished save holds counts.
class SavedValues {
 public:
  /// `store` must outlive this.
  SavedValues(SettingsStore& store, const std::string& appName);

  /// The value, or nothing when it is missing or is not text.
  std::optional<std::string> GetSetting(const std::string& section, const std::string& key) const;
  SettingsStore::Pairs GetAllSettings(const std::string& section) const;

 private:
  SettingsStore* store_;
  std::string appName_;
  std::vector<StoreChange> unfinished_;
};

}  // namespace korvale

#pragma once

#include <string>

#include "platform/settings_store.h"

namespace korvale {

/// One write to the settings store.
struct StoreChange {
  enum class Kind : char { kSaveSetting = 'S', kDeleteSetting = 'K', kDeleteSection = 'D' };

  Kind kind = Kind::kSaveSetting;
  std::string appName;
  std::string section;
  std::string key;
  std::string value;
  /// Made only once all others are: what it deletes cannot be had again.
  bool last = false;

  friend bool operator==(const StoreChange&, const StoreChange&) = default;
};

/// Makes one change; false when the store refused to save a value or to delete a section that holds
/// any. A single value that cannot be deleted does not count.
bool ApplyChange(SettingsStore& store, const StoreChange& change);

}  // namespace korvale

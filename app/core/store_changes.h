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
  /// To be made only once all others stand: what is deleted then is not to be had again.
  bool last = false;

  friend bool operator==(const StoreChange&, const StoreChange&) = default;
};

/// Makes one change; false when the store refused to save a value or to delete a section that holds
/// any. That one value cannot be deleted never counts; nothing stops what follows.
bool ApplyChange(SettingsStore& store, const StoreChange& change);

}  // namespace korvale

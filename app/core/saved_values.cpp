#include "app/core/saved_values.h"

#include <algorithm>

#include "app/core/save_journal.h"
#include "util/text.h"

namespace korvale {

SavedValues::SavedValues(SettingsStore& store, const std::string& appName)
    : store_(&store), appName_(appName), unfinished_(SaveJournal(store, appName).Unfinished()) {
  std::erase_if(unfinished_, [&](const StoreChange& change) {
    return !EqualsIgnoreCase(change.appName, appName);
  });
}

std::optional<std::string> SavedValues::GetSetting(const std::string& section,
                                                   const std::string& key) const {
  std::optional<std::string> value = store_->GetSetting(appName_, section, key);
  for (const StoreChange& change : unfinished_) {
    if (!EqualsIgnoreCase(change.section, section)) continue;
    if (change.kind == StoreChange::Kind::kDeleteSection) {
      value.reset();
    } else if (EqualsIgnoreCase(change.key, key)) {
      value.reset();
      if (change.kind == StoreChange::Kind::kSaveSetting) value = change.value;
    }
  }
  return value;
}

SettingsStore::Pairs SavedValues::GetAllSettings(const std::string& section) const {
  SettingsStore::Pairs pairs = store_->GetAllSettings(appName_, section);
  for (const StoreChange& change : unfinished_) {
    if (!EqualsIgnoreCase(change.section, section)) continue;
    const bool all = change.kind == StoreChange::Kind::kDeleteSection;
    std::erase_if(
        pairs, [&](const auto& pair) { return all || EqualsIgnoreCase(pair.first, change.key); });
    if (change.kind == StoreChange::Kind::kSaveSetting) {
      pairs.emplace_back(change.key, change.value);
    }
  }
  return pairs;
}

}  // namespace korvale

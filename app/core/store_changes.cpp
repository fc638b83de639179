#include "app/core/store_changes.h"

#include "platform/run_time_error.h"

namespace korvale {

namespace {

/// Deletes what the change names; a failure is nothing that stops the others.
void Delete(SettingsStore& store, const StoreChange& change) {
  try {
    if (change.kind == StoreChange::Kind::kDeleteSetting) {
      store.DeleteSetting(change.appName, change.section, change.key);
    } else {
      store.DeleteSection(change.appName, change.section);
    }
  } catch (const RunTimeError&) {
    return;
  }
}

}  // namespace

bool ApplyChange(SettingsStore& store, const StoreChange& change) {
  if (change.kind == StoreChange::Kind::kSaveSetting) {
    return store.SaveSetting(change.appName, change.section, change.key, change.value);
  }
  if (change.kind == StoreChange::Kind::kDeleteSetting) {
    Delete(store, change);
    return true;
  }
  const auto holdsAny = [&] {
    return !store.GetAllSettings(change.appName, change.section).empty();
  };
  if (!holdsAny()) return true;
  Delete(store, change);
  return !holdsAny();
}

std::optional<std::string> ChangeRecorder::GetSetting(const std::string& appName,
                                                      const std::string& section,
                                                      const std::string& key) {
  return store_->GetSetting(appName, section, key);
}

SettingsStore::Pairs ChangeRecorder::GetAllSettings(const std::string& appName,
                                                    const std::string& section) {
  return store_->GetAllSettings(appName, section);
}

bool ChangeRecorder::SaveSetting(const std::string& appName, const std::string& section,
                                 const std::string& key, const std::string& value) {
  changes_.push_back({StoreChange::Kind::kSaveSetting, appName, section, key, value});
  return true;
}

bool ChangeRecorder::DeleteSetting(const std::string& appName, const std::string& section,
                                   const std::string& key) {
  changes_.push_back({StoreChange::Kind::kDeleteSetting, appName, section, key, "", last_});
  return true;
}

bool ChangeRecorder::DeleteSection(const std::string& appName, const std::string& section) {
  changes_.push_back({StoreChange::Kind::kDeleteSection, appName, section, "", "", last_});
  return true;
}

}  // namespace korvale

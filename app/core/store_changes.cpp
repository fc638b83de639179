#include "app/core/store_changes.h"

#include "platform/run_time_error.h"

namespace korvale {
namespace {

/// Deletes what the change names; a failure does not stop the other deletions.
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

}  // namespace korvale

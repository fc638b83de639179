#pragma once

#include <functional>
#include <map>
#include <string>

#include "tests/fakes/fake_settings_store.h"

namespace korvale {

/// Runs `program` until it has made that many writes; false when it was killed before its end.
inline bool RunsToItsEnd(FakeSettingsStore& store, int writes,
                         const std::function<void(SettingsStore&)>& program) {
  store.KillAfterWrites(writes);
  bool ended = true;
  try {
    program(store);
  } catch (const KilledBetweenWrites&) {
    ended = false;
  }
  store.KillAfterWrites(-1);
  return ended;
}

/// "application/section/key" -> value.
using StoredValues = std::map<std::string, std::string>;

inline StoredValues ValuesOf(FakeSettingsStore& store, const std::string& appName) {
  StoredValues values;
  for (const std::string& section : store.Sections(appName)) {
    for (const auto& [key, value] : store.GetAllSettings(appName, section)) {
      values[appName + "/" + section + "/" + key] = value;
    }
  }
  return values;
}

inline StoredValues AllValues(FakeSettingsStore& store) {
  StoredValues values;
  for (const std::string& appName : store.Applications()) values.merge(ValuesOf(store, appName));
  return values;
}

}  // namespace korvale

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "app/core/settings.h"
#include "platform/run_time_error.h"

namespace korvale {

inline constexpr const char* kApp = "Korvale - Work";

inline void SaveNewTags(SettingsStore& store) {
  store.SaveSetting(kApp, "ParentWindowList", "3", "&3  New\\Tag");
  store.SaveSetting(kApp, "ParentWindowClass", "3", "\\New\\");
}

inline void SaveOld(SettingsStore& store) {
  Settings settings(store, kApp);
  settings.SaveOptions(clsOptions());
  settings.SaveINI(StartupSettings(), [](SettingsStore& tags) {
    tags.SaveSetting(kApp, "ParentWindowList", "1", "&1  Mail");
    tags.SaveSetting(kApp, "ParentWindowList", "2", "&2  *** - \xd0\x9f\xd0\xb8");
    tags.SaveSetting(kApp, "ParentWindowClass", "1", "MailFrame");
  });
  store.SaveSetting(kApp, "ButtonTags", "1", "old");
}

inline void SaveNewINI(SettingsStore& store) {
  StartupSettings startup;
  startup.Left = 100;
  startup.Tips = "10";
  Settings(store, kApp).SaveINI(startup, SaveNewTags);
}

inline void DeleteTheOptions(SettingsStore& store) { Settings(store, kApp).DeleteOptions(); }

/// Number of the run-time error that the call throws, 0 when it throws none.
inline std::int16_t ErrorOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

/// Saves the state with these Tags, as the program does.
inline void SaveTags(SettingsStore& store, const std::vector<std::string>& tags) {
  const auto save = [&](SettingsStore& list) {
    for (const std::string& tag : tags) {
      list.SaveSetting(kApp, "ParentWindowList", tag, "&" + tag + "  Mail");
    }
  };
  Settings(store, kApp).SaveINI(StartupSettings(), save);
}

inline void Restart(SettingsStore& store) { Settings(store, kApp).FinishInterruptedSave(); }

}  // namespace korvale

#pragma once

#include <string>
#include <vector>

#include "app/core/settings.h"

namespace korvale {

inline constexpr const char* kApp = "Korvale - Work";

inline StoredTagList NewTags() { return {{3, "&3  New\\Tag", "\\New\\"}}; }

inline void SaveOld(SettingsStore& store) {
  Settings settings(store, kApp);
  settings.SaveOptions(clsOptions());
  settings.SaveINI(StartupSettings(),
                   {{1, "&1  Mail", "MailFrame"}, {2, "&2  *** - \xd0\x9f\xd0\xb8", ""}});
  store.SaveSetting(kApp, "ButtonTags", "1", "old");
}

inline void SaveNewINI(SettingsStore& store) {
  StartupSettings startup;
  startup.Left = 100;
  startup.Tips = "10";
  Settings(store, kApp).SaveINI(startup, NewTags());
}

inline void DeleteTheOptions(SettingsStore& store) { Settings(store, kApp).DeleteOptions(); }

/// Saves the state with these Tags, as the program does.
inline void SaveTags(SettingsStore& store, const std::vector<int>& numbers) {
  StoredTagList tags;
  for (const int number : numbers) {
    tags.push_back({number, "&" + std::to_string(number) + "  Mail", ""});
  }
  Settings(store, kApp).SaveINI(StartupSettings(), tags);
}

inline void Restart(SettingsStore& store) { Settings(store, kApp).FinishInterruptedSave(); }

}  // namespace korvale

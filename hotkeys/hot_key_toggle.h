#pragma once

#include <string_view>

#include "app/core/options.h"
#include "hotkeys/hot_key_actions.h"
#include "hotkeys/hot_key_table.h"

namespace korvale {

inline constexpr const char* kToggleFromMenu = "mnuToolsToggleHotKeys_Click";
inline constexpr const char* kToggleFromHotKey = "udmProcessHotKey";

/// Switches all hot keys but the toggle's own off and on again.
class HotKeyToggle {
 public:
  HotKeyToggle(HotKeyTable& table, const OptionsHolder& options, HotKeyActions& actions);

  /// `caller` is kToggleFromMenu, which explains with a tip, or kToggleFromHotKey.
  void ToggleHotKeys(std::string_view caller);

 private:
  void SwitchOff(std::string_view caller);
  void SwitchOn();

  HotKeyTable* table_;
  const OptionsHolder* options_;
  HotKeyActions* actions_;
};

}  // namespace korvale

#pragma once

#include <array>
#include <string>
#include <string_view>

namespace korvale {

inline constexpr const char* kHotKeyParentPrefix = "HOTKEY_PARENT";
inline constexpr const char* kHotKeyMinimizeParent = "HOTKEY_MINIMIZE_PARENT";
inline constexpr const char* kHotKeyRestoreMaximizeParent = "HOTKEY_RESTORE/MAXIMIZE_PARENT";
inline constexpr const char* kHotKeyDisplayOptions = "HOTKEY_DISPLAY_OPTIONS";
inline constexpr const char* kHotKeyWindowMenuPopup = "HOTKEY_WINDOW_MENU_POPUP";
inline constexpr const char* kHotKeyToggleHotKeys = "HOTKEY_TOGGLE_HOTKEYS";

/// The first name in a table that was never filled.
inline constexpr const char* kArrayNotUsedYet = "ARRAY_NOT_USED_YET";

/// All 27 names of hot-key operations, the registered ones and the reserved ones.
std::array<std::string_view, 27> HotKeyNameSet();

bool IsHotKeyName(std::string_view name);

/// "HOTKEY_PARENT" + the digit 0-9.
std::string ParentHotKeyName(int tag);

/// The Tag of a name HOTKEY_PARENT0..9, -1 for every other name.
int ParentHotKeyTag(std::string_view name);

/// What the hot key does, for labels; "" for reserved and unknown names.
std::string HotKeyDescription(std::string_view name);

}  // namespace korvale

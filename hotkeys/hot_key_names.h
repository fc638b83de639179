#pragma once

#include <span>
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

/// All names of hot-key operations: the 15 that are registered, then the reserved ones.
std::span<const std::string_view> HotKeyNameSet();

/// Exact and case-sensitive.
bool IsHotKeyName(std::string_view name);

/// "HOTKEY_PARENT" + the digit of Tag 0-9.
std::string ParentHotKeyName(int tag);

/// The Tag of a name HOTKEY_PARENT0..9, -1 for every other name.
int ParentHotKeyTag(std::string_view name);

/// What the hot key does, for labels; "" for reserved and unknown names.
std::string HotKeyDescription(std::string_view name);

}  // namespace korvale

#pragma once

#include <string>
#include <string_view>

#include "app/core/operations.h"

namespace korvale {

/// Also the tag of the Window menu while it is popped up.
inline constexpr const char* kHotKeyWindowMenuPopup = RowOf(Operation::kWindowMenuPopup).name;

/// The first name in a table that was never filled.
inline constexpr const char* kArrayNotUsedYet = "ARRAY_NOT_USED_YET";

/// Whether an operation has this name, one that is registered or a reserved one. Exact and
/// case-sensitive.
bool IsHotKeyName(std::string_view name);

/// "HOTKEY_PARENT" + the digit of Tag 0-9.
std::string ParentHotKeyName(int tag);

/// The Tag of a name HOTKEY_PARENT0..9, -1 for every other name.
int ParentHotKeyTag(std::string_view name);

/// What the hot key does, for labels; "" for reserved and unknown names.
std::string HotKeyDescription(std::string_view name);

}  // namespace korvale

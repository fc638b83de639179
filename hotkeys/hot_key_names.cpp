#include "hotkeys/hot_key_names.h"

#include <algorithm>

#include "util/text.h"

namespace korvale {
namespace {

constexpr std::string_view kParentPrefix = "HOTKEY_PARENT";
constexpr std::string_view kChildPrefix = "HOTKEY_CHILD";
constexpr std::string_view kReservedNames[] = {
    "HOTKEY_MINIMIZE_CHILD", "HOTKEY_RESTORE/MAXIMIZE_CHILD", "HOTKEY_KEYS2", "HOTKEY_KEYS3"};

/// The digit after a prefix, -1 when the name is another.
int DigitAfter(std::string_view prefix, std::string_view name) {
  if (name.size() != prefix.size() + 1 || !name.starts_with(prefix)) return -1;
  const char digit = name.back();
  return digit >= '0' && digit <= '9' ? digit - '0' : -1;
}

}  // namespace

bool IsHotKeyName(std::string_view name) {
  return DigitAfter(kParentPrefix, name) >= 0 || DigitAfter(kChildPrefix, name) >= 0 ||
         FindOperation(name) != nullptr || std::ranges::count(kReservedNames, name) > 0;
}

std::string ParentHotKeyName(int tag) { return std::string(kParentPrefix) + DecimalText(tag); }

int ParentHotKeyTag(std::string_view name) { return DigitAfter(kParentPrefix, name); }

std::string HotKeyDescription(std::string_view name) {
  const int tag = ParentHotKeyTag(name);
  if (tag >= 0) return "Select Window " + DecimalText(tag);
  const OperationRow* const row = FindOperation(name);
  return row == nullptr ? "" : row->description;
}

}  // namespace korvale

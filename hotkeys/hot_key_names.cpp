#include "hotkeys/hot_key_names.h"

#include <algorithm>
#include <array>

#include "util/text.h"

namespace korvale {
namespace {

struct HotKeyText {
  std::string_view name;
  std::string_view description;
};

constexpr std::array kActionTexts = {
    HotKeyText{kHotKeyMinimizeParent, "Minimize Parent Window"},
    HotKeyText{kHotKeyRestoreMaximizeParent, "Restore/Maximize Parent Window"},
    HotKeyText{kHotKeyDisplayOptions, "Display Options"},
    HotKeyText{kHotKeyWindowMenuPopup, "Display Window Menu"},
    HotKeyText{kHotKeyToggleHotKeys, "Toggle All Hot Keys ON/OFF"},
};

constexpr std::array<std::string_view, 29> kNames = {
    "HOTKEY_PARENT0",      "HOTKEY_PARENT1",        "HOTKEY_PARENT2",
    "HOTKEY_PARENT3",      "HOTKEY_PARENT4",        "HOTKEY_PARENT5",
    "HOTKEY_PARENT6",      "HOTKEY_PARENT7",        "HOTKEY_PARENT8",
    "HOTKEY_PARENT9",      kHotKeyMinimizeParent,   kHotKeyRestoreMaximizeParent,
    kHotKeyDisplayOptions, kHotKeyWindowMenuPopup,  kHotKeyToggleHotKeys,
    "HOTKEY_CHILD0",       "HOTKEY_CHILD1",         "HOTKEY_CHILD2",
    "HOTKEY_CHILD3",       "HOTKEY_CHILD4",         "HOTKEY_CHILD5",
    "HOTKEY_CHILD6",       "HOTKEY_CHILD7",         "HOTKEY_CHILD8",
    "HOTKEY_CHILD9",       "HOTKEY_MINIMIZE_CHILD", "HOTKEY_RESTORE/MAXIMIZE_CHILD",
    "HOTKEY_KEYS2",        "HOTKEY_KEYS3",
};

}  // namespace

std::span<const std::string_view> HotKeyNameSet() { return kNames; }

bool IsHotKeyName(std::string_view name) { return std::ranges::count(kNames, name) > 0; }

std::string ParentHotKeyName(int tag) { return kHotKeyParentPrefix + DecimalText(tag); }

int ParentHotKeyTag(std::string_view name) {
  const std::string_view prefix = kHotKeyParentPrefix;
  if (name.size() != prefix.size() + 1 || !name.starts_with(prefix)) return -1;
  const char digit = name.back();
  return digit >= '0' && digit <= '9' ? digit - '0' : -1;
}

std::string HotKeyDescription(std::string_view name) {
  const int tag = ParentHotKeyTag(name);
  if (tag >= 0) return "Select Window " + DecimalText(tag);
  for (const HotKeyText& text : kActionTexts) {
    if (text.name == name) return std::string(text.description);
  }
  return "";
}

}  // namespace korvale

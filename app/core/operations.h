#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/win32_constants.h"

namespace korvale {

/// What hot keys do besides selecting the windows of the Tags.
enum class Operation {
  kMinimize,
  kRestoreMaximize,
  kDisplayOptions,
  kWindowMenuPopup,
  kToggleHotKeys,
};

/// The operations whose hot keys are chosen in one frame of the Options dialog.
enum class OperationGroup { kAction, kGeneral };

struct OperationRow {
  Operation operation;
  const char* name;         ///< Of its hot key.
  const char* description;  ///< What the hot key does, in words.
  OperationGroup group;
  int index;                     ///< Of its option fields and controls among the group's.
  const char* modifiersSetting;  ///< Where its modifiers are stored.
  const char* keySetting;        ///< Where its key is stored.
  std::int16_t modifiers;        ///< By default: a sum of MOD_ values.
  std::int16_t key;              ///< By default: a virtual-key code.
  const char* label;             ///< In the Options dialog.
  const char* note;              ///< The explanation beside its lists, also in the tool tips.
};

/// In the order of the enumerators, of registration and of the Options dialog.
inline constexpr std::array kOperations = std::to_array<OperationRow>({
    {Operation::kMinimize, "HOTKEY_MINIMIZE_PARENT", "Minimize Parent Window",
     OperationGroup::kAction, 0, "HotKeyModAction0", "HotKeyAction0", win32::kModAlt,
     win32::kVkDown, " Minimize Window", " minimizes individual desktop windows "},
    {Operation::kRestoreMaximize, "HOTKEY_RESTORE/MAXIMIZE_PARENT",
     "Restore/Maximize Parent Window", OperationGroup::kAction, 1, "HotKeyModAction1",
     "HotKeyAction1", win32::kModAlt, win32::kVkUp, " Maximize/Restore Window",
     " alternately maximizes/restores individual desktop windows "},
    {Operation::kDisplayOptions, "HOTKEY_DISPLAY_OPTIONS", "Display Options",
     OperationGroup::kGeneral, 0, "HotKeyModGeneral0", "HotKeyGeneral0", win32::kModWin, 'O',
     " Display Options", " displays the Options dialog box (this dialog box) "},
    {Operation::kWindowMenuPopup, "HOTKEY_WINDOW_MENU_POPUP", "Display Window Menu",
     OperationGroup::kGeneral, 1, "HotKeyModGeneral1", "HotKeyGeneral1", win32::kModWin, 'W',
     " Display Window Menu",
     " displays the pop-up version of the Window menu anywhere on the desktop "},
    {Operation::kToggleHotKeys, "HOTKEY_TOGGLE_HOTKEYS", "Toggle All Hot Keys ON/OFF",
     OperationGroup::kGeneral, 2, "HotKeyModGeneral2", "HotKeyGeneral2", 0, win32::kVkPause,
     " Activate/Deactivate Hot Keys",
     " toggles all system-wide Hot Keys ON/OFF (except this one) "},
});

/// Does not compile for an operation without a row.
consteval const OperationRow& RowOf(Operation operation) {
  return kOperations.at(static_cast<std::size_t>(operation));
}

/// The operation of a hot-key name, exact and case-sensitive; null for every other name.
constexpr const OperationRow* FindOperation(std::string_view name) {
  const auto row = std::ranges::find(kOperations, name, &OperationRow::name);
  return row == kOperations.end() ? nullptr : &*row;
}

constexpr std::size_t OperationCount(OperationGroup group) {
  return static_cast<std::size_t>(std::ranges::count(kOperations, group, &OperationRow::group));
}

consteval bool OperationsAreInOrder() {
  std::size_t place = 0;
  std::array<int, 2> next{};
  OperationGroup group = OperationGroup::kAction;
  for (const OperationRow& row : kOperations) {
    if (static_cast<std::size_t>(row.operation) != place++) return false;
    if (row.index != next.at(static_cast<std::size_t>(row.group))++) return false;
    if (row.group < group) return false;
    group = row.group;
  }
  return true;
}
static_assert(OperationsAreInOrder(),
              "rows follow their enumerators, group by group, and indexes count from 0");

/// One value for each operation of a group.
template <OperationGroup Group>
using OperationValues = std::array<std::int16_t, OperationCount(Group)>;

/// The defaults of a group in one column of the table.
template <OperationGroup Group>
constexpr OperationValues<Group> OperationDefaults(std::int16_t OperationRow::*column) {
  OperationValues<Group> values{};
  for (const OperationRow& row : kOperations) {
    if (row.group == Group) values.at(static_cast<std::size_t>(row.index)) = row.*column;
  }
  return values;
}

}  // namespace korvale

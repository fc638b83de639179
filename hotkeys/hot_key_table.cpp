#include "hotkeys/hot_key_table.h"

#include <algorithm>
#include <cstddef>

#include "app/core/stored_tags.h"
#include "hotkeys/hot_key_names.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::int16_t kDigitZeroKey = 0x30;
/// The modifiers that a press reports; any other bit of a stored value is a flag.
constexpr std::uint32_t kModifierKeys =
    win32::kModAlt | win32::kModControl | win32::kModShift | win32::kModWin;

}  // namespace

HotKeyTable::HotKeyTable(HotKeyApi& hotKeys, const OptionsHolder& options,
                         const MainWindow& mainWindow)
    : hotKeys_(&hotKeys),
      options_(&options),
      mainWindow_(&mainWindow),
      hotKeyNames_({kArrayNotUsedYet}) {}

void HotKeyTable::SetHotKeys(std::string_view mode) {
  if (mode == "SET") {
    Set();
  } else if (mode == "REMOVE") {
    Remove();
  }
}

void HotKeyTable::Set() {
  const clsOptions& options = options_->Get();
  hotKeyCount_ = 0;
  for (std::int16_t tag = 0; tag <= kTagCount; ++tag) {
    if (options.booHotKeyParent.at(static_cast<std::size_t>(tag))) {
      AddHotKey(ParentHotKeyName(tag), options.intHotKeyModParent, AddInt16(kDigitZeroKey, tag));
    }
  }
  for (const OperationRow& operation : kOperations) AddOperation(operation);
  lastSet_ = registered_;
}

void HotKeyTable::AddOperation(const OperationRow& operation) {
  const auto [modifiers, key] = OperationFields(options_->Get(), operation);
  if (key != 0) AddHotKey(operation.name, modifiers, key);
}

void HotKeyTable::AddHotKey(std::string_view name, std::int16_t modifiers, std::int16_t key) {
  hotKeyCount_ = AddInt16(hotKeyCount_, 1);
  const auto count = static_cast<std::size_t>(hotKeyCount_);
  hotKeyNames_.resize(count);
  hotKeyNames_.back() = name;
  // Entries after the hot keys of this pass are left over from an earlier one.
  registered_.resize(count - 1);
  const bool chosenBefore = std::ranges::any_of(registered_, [&](const RegisteredHotKey& other) {
    return other.modifiers == modifiers && other.key == key;
  });
  registered_.push_back({std::string(name), modifiers, key, false, chosenBefore});
  registered_.back().accepted = Register(count);
}

bool HotKeyTable::Register(std::size_t identifier) {
  const RegisteredHotKey& hotKey = registered_[identifier - 1];
  return hotKeys_->RegisterHotKey(mainWindow_->MainHandle(), static_cast<int>(identifier),
                                  static_cast<std::uint32_t>(hotKey.modifiers),
                                  static_cast<std::uint32_t>(hotKey.key));
}

bool HotKeyTable::RetryRefused() {
  bool changed = false;
  for (std::size_t identifier = 1; identifier <= registered_.size(); ++identifier) {
    RegisteredHotKey& hotKey = registered_[identifier - 1];
    if (hotKey.accepted || hotKey.chosenBefore || !Register(identifier)) continue;
    hotKey.accepted = changed = true;
    const auto same = std::ranges::find(lastSet_, hotKey.name, &RegisteredHotKey::name);
    if (same != lastSet_.end()) same->accepted = true;
  }
  return changed;
}

void HotKeyTable::Remove() {
  if (hotKeyNames_.front() == kArrayNotUsedYet) return;
  const WindowHandle mainWindow = mainWindow_->MainHandle();
  const auto highest = static_cast<int>(hotKeyNames_.size());
  for (int identifier = 1; identifier <= highest; ++identifier) {
    hotKeys_->UnregisterHotKey(mainWindow, identifier);
  }
  // Presses still in the queue would be taken for the hot keys that get their identifiers next.
  while (hotKeys_->PeekMessageW(mainWindow, win32::kWmHotKey)) {
  }
  hotKeyNames_.assign(1, "");
  registered_.clear();
}

bool HotKeyTable::IsPress(std::uintptr_t wParam, std::intptr_t lParam) const {
  if (wParam < 1 || wParam > registered_.size()) return false;
  const RegisteredHotKey& hotKey = registered_[wParam - 1];
  const auto words = static_cast<std::uint32_t>(lParam);
  return (words & 0xFFFFU) == (static_cast<std::uint32_t>(hotKey.modifiers) & kModifierKeys) &&
         words >> 16U == static_cast<std::uint16_t>(hotKey.key);
}

const std::string& HotKeyTable::NameOf(std::uintptr_t identifier) const {
  if (identifier < 1 || identifier > hotKeyNames_.size()) {
    throw RunTimeError(RunTimeError::kSubscriptOutOfRange);
  }
  return hotKeyNames_[identifier - 1];
}

}  // namespace korvale

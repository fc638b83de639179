#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "app/core/options.h"
#include "desktop/main_window.h"
#include "platform/hot_key_api.h"

namespace korvale {

/// One hot key as it was asked for at the last registration.
struct RegisteredHotKey {
  std::string name;
  std::int16_t modifiers = 0;
  std::int16_t key = 0;
  /// False when Windows itself, another program or another hot key of the table owns the
  /// combination.
  bool accepted = false;
  /// A hot key before this one in the table has the same combination.
  bool chosenBefore = false;
};

/// The hot keys registered with the operating system. A hot key's identifier is its position in
/// the table, counted from 1 in the order of registration; it does not belong to an operation for
/// good.
class HotKeyTable {
 public:
  HotKeyTable(HotKeyApi& hotKeys, const OptionsHolder& options, const MainWindow& mainWindow);

  /// "SET" registers all enabled hot keys and removes nothing; "REMOVE" unregisters all and drops
  /// their presses that are still in the queue; any other mode does nothing.
  void SetHotKeys(std::string_view mode);

  /// Appends a hot key under the next identifier and registers it. A refused one keeps its slot.
  /// Error 6 when the identifiers run out.
  void AddHotKey(std::string_view name, std::int16_t modifiers, std::int16_t key);

  /// The same for the hot key that the options give an operation; does nothing when they give none.
  void AddOperation(const OperationRow& operation);

  /// Registers each refused hot key again under its identifier, in case its combination is free
  /// now; touches no other. True when one was accepted.
  bool RetryRefused();

  /// True when the parameters of a WM_HOTKEY are those of a hot key of the last registration: its
  /// identifier, and the modifiers (low word) and key (high word) that it was registered with.
  bool IsPress(std::uintptr_t wParam, std::intptr_t lParam) const;
  /// The name behind an identifier; error 9 when it is outside the table.
  const std::string& NameOf(std::uintptr_t identifier) const;

  /// The one-based array of names, element 1 first.
  const std::vector<std::string>& HotKeyNames() const { return hotKeyNames_; }
  std::int16_t HotKeyCount() const { return hotKeyCount_; }
  void ResetHotKeyCount() { hotKeyCount_ = 0; }

  /// True while all enabled hot keys are registered, false while only the toggle is.
  bool HotKeysActive() const { return hotKeysActive_; }
  void SetHotKeysActive(bool active) { hotKeysActive_ = active; }

  /// What the last registration asked for and what has become of it.
  const std::vector<RegisteredHotKey>& Registered() const { return registered_; }
  /// The same for the last time that all enabled hot keys were registered ("SET"); kept while they
  /// are switched off.
  const std::vector<RegisteredHotKey>& LastSet() const { return lastSet_; }

 private:
  void Set();
  void Remove();
  bool Register(std::size_t identifier);

  HotKeyApi* hotKeys_;
  const OptionsHolder* options_;
  const MainWindow* mainWindow_;
  std::vector<std::string> hotKeyNames_;
  std::vector<RegisteredHotKey> registered_;
  std::vector<RegisteredHotKey> lastSet_;
  std::int16_t hotKeyCount_ = 0;
  bool hotKeysActive_ = true;
};

}  // namespace korvale

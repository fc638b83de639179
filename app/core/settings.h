#pragma once

#include <optional>
#include <string>

#include "app/core/options.h"
#include "app/core/save_scope.h"
#include "app/core/saved_values.h"
#include "app/core/startup_settings.h"
#include "app/core/stored_tags.h"
#include "platform/settings_store.h"

namespace korvale {

/// Loads and saves everything that the program remembers between runs, one table row a setting.
/// A value that is missing or cannot be converted yields the setting's default.
///
/// A save is made as a whole or not at all, even when the program is killed in the middle of it:
/// FinishInterruptedSave of the next run, or else the next save, completes it. Every save and
/// deletion belongs to the open SaveScope and is a save of its own when there is none; saving
/// throws RunTimeError 70 when the store refuses a value. What it refused is loaded all the same.
class Settings : public SavingStore {
 public:
  using SavingStore::SavingStore;

  /// Loads every stored field of `options`; the others stay as they are.
  void LoadOptions(clsOptions& options) const;
  void SaveOptions(const clsOptions& options);
  /// Deletes the section "Options" if it holds any values.
  void DeleteOptions();

  StartupSettings LoadStartup() const;
  /// Skips keys other than "1" to "9" and captions that do not begin as TagCaption makes them.
  StoredTagList LoadTagList() const;
  /// Deletes the sections of the main window's state, of the Tag list and of earlier designs, then
  /// writes the state and the Tag list.
  void SaveINI(const StartupSettings& startup, const StoredTagList& tags);
  /// Whether these are what SaveINI stored last in this run, or what KeepINI said. The store is not
  /// read.
  bool HoldsINI(const StartupSettings& startup, const StoredTagList& tags) const;
  /// From now on these count as stored, unless the store lacks anything that it should hold.
  void KeepINI(const StartupSettings& startup, const StoredTagList& tags);
  /// Only the deletions of SaveINI.
  void DeleteINI();
  /// Deletes the settings that are not taken over from another installation.
  void DeletePlacement();
  /// Sets these settings back to their defaults.
  static void ForgetPlacement(StartupSettings& startup);

  /// True when no section of this installation holds anything.
  bool NothingStored() const;

  /// Completes a save under AppName() that a killed run began, or drops it when its journal is
  /// incomplete. Must be called before loading, by the only running copy of the installation.
  void FinishInterruptedSave();

 private:
  /// What SaveINI stored, and how many saves had been lost by then.
  struct StoredINI {
    std::string appName;
    StartupSettings startup;
    StoredTagList tags;
    int lostSaves = 0;

    friend bool operator==(const StoredINI&, const StoredINI&) = default;
  };

  SavedValues Saved() const;
  StoredINI AsStored(const StartupSettings& startup, const StoredTagList& tags) const {
    return {AppName(), startup, tags, LostSaves()};
  }

  std::optional<StoredINI> storedINI_;
};

}  // namespace korvale

#pragma once

#include <string>
#include <utility>
#include <vector>

#include "app/core/save_journal.h"
#include "app/core/store_changes.h"
#include "platform/settings_store.h"

namespace korvale {

class SaveScope;

/// The store with the application name under which an installation saves, and what is being saved.
class SavingStore {
 public:
  SavingStore(SettingsStore& store, std::string appName)
      : store_(&store), appName_(std::move(appName)) {}
  SavingStore(const SavingStore&) = delete;
  SavingStore& operator=(const SavingStore&) = delete;

  /// The application name under which an installation's settings are stored. Names another
  /// installation only while its settings are being taken over.
  const std::string& AppName() const { return appName_; }
  void SetAppName(std::string appName) { appName_ = std::move(appName); }

  SettingsStore& Store() const { return *store_; }

  /// How many saves of this run have not reached the store: it refused them, or they were given up.
  int LostSaves() const { return lostSaves_; }

 protected:
  void CountLostSave() { ++lostSaves_; }

 private:
  friend class SaveScope;

  SettingsStore* store_;
  std::string appName_;
  /// The innermost scope; null when none is open.
  SaveScope* openScope_ = nullptr;
  int lostSaves_ = 0;
};

/// Saves that belong together. Commit makes, as one save, everything that was saved or deleted
/// through the settings while the scope was open or was added to it; without Commit nothing is
/// made. Until then reads see the store unchanged. A scope inside another one hands its changes to
/// the outer one and is closed, with nothing made, when that one is closed first.
class SaveScope {
 public:
  explicit SaveScope(SavingStore& store);
  ~SaveScope();
  SaveScope(const SaveScope&) = delete;
  SaveScope& operator=(const SaveScope&) = delete;

  void SaveSetting(const std::string& appName, const std::string& section, const std::string& key,
                   const std::string& value);
  void DeleteSetting(const std::string& appName, const std::string& section,
                     const std::string& key);
  /// For a section that holds nothing yet, too: an earlier save may still be pending.
  void DeleteSection(const std::string& appName, const std::string& section);

  /// Deletions added from now on are made only once everything else is stored, so that nothing the
  /// store refuses is lost under both names.
  void DeleteLast() { deletesLast_ = true; }

  /// Closes the scope and makes its changes, once. Throws what SaveJournal::Commit throws; throws
  /// RunTimeError 51 (Internal error) and makes nothing unless this is the innermost open scope.
  void Commit();

 private:
  void Close();

  /// Null once the scope is closed.
  SavingStore* store_;
  SaveScope* outer_;
  SaveJournal journal_;
  bool deletesLast_;
  std::vector<StoreChange> changes_;
};

}  // namespace korvale

#pragma once

#include <string>
#include <vector>

#include "app/core/save_journal.h"
#include "app/core/settings.h"
#include "app/core/store_changes.h"

namespace korvale {

/// Saves that belong together. All that is saved and deleted through the settings while the scope
/// is open, or added to it, is made as one by Commit, and nothing of it when the scope is left
/// without. Until then reads see the store as it was. A scope within another hands its changes over
/// to that one.
class SaveScope {
 public:
  explicit SaveScope(Settings& settings);
  ~SaveScope() { Close(); }
  SaveScope(const SaveScope&) = delete;
  SaveScope& operator=(const SaveScope&) = delete;

  void SaveSetting(const std::string& appName, const std::string& section, const std::string& key,
                   const std::string& value);
  void DeleteSetting(const std::string& appName, const std::string& section,
                     const std::string& key);
  /// Also of a section that holds nothing yet: an earlier save may still be pending.
  void DeleteSection(const std::string& appName, const std::string& section);

  /// Deletions from now on are made only once everything else stands: nothing that the store
  /// refuses is lost under both names.
  void DeleteLast() { deletesLast_ = true; }

  /// Closes the scope and makes its changes, once. Throws what SaveJournal::Commit throws.
  void Commit();

 private:
  void Close();

  /// Null once the scope is closed.
  Settings* settings_;
  SaveScope* outer_;
  SaveJournal journal_;
  bool deletesLast_;
  std::vector<StoreChange> changes_;
};

}  // namespace korvale

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/settings_store.h"

namespace korvale {

/// One write to the settings store.
struct StoreChange {
  enum class Kind : char { kSaveSetting = 'S', kDeleteSetting = 'K', kDeleteSection = 'D' };

  Kind kind = Kind::kSaveSetting;
  std::string appName;
  std::string section;
  std::string key;
  std::string value;
  /// To be made only once all others stand: what is deleted then is not to be had again.
  bool last = false;

  friend bool operator==(const StoreChange&, const StoreChange&) = default;
};

/// Makes one change; false when the store refused to save a value or to delete a section that holds
/// any. That one value cannot be deleted never counts; nothing stops what follows.
bool ApplyChange(SettingsStore& store, const StoreChange& change);

/// Keeps all writes as a list of changes to be made later, and answers every one with success.
/// Reads go to the store as it stands and see none of them.
/// A section is deleted whether or not it holds anything yet: an earlier save may still be pending.
class ChangeRecorder : public SettingsStore {
 public:
  explicit ChangeRecorder(SettingsStore& store) : store_(&store) {}

  std::optional<std::string> GetSetting(const std::string& appName, const std::string& section,
                                        const std::string& key) override;
  Pairs GetAllSettings(const std::string& appName, const std::string& section) override;
  bool SaveSetting(const std::string& appName, const std::string& section, const std::string& key,
                   const std::string& value) override;
  bool DeleteSetting(const std::string& appName, const std::string& section,
                     const std::string& key) override;
  bool DeleteSection(const std::string& appName, const std::string& section) override;

  /// Whether deletions from now on are made only once everything else stands.
  void DeleteLast(bool last) { last_ = last; }

  const std::vector<StoreChange>& Changes() const { return changes_; }

 private:
  SettingsStore* store_;
  std::vector<StoreChange> changes_;
  bool last_ = false;
};

}  // namespace korvale

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "platform/settings_store.h"
#include "tests/fakes/call_log.h"

namespace korvale {

/// How many settings an installation stores: those of the Options dialog, what else the main window
/// remembers, and both.
inline constexpr std::size_t kAllOptions = 26;
inline constexpr std::size_t kAllStartupSettings = 14;
inline constexpr std::size_t kAllSettings = kAllOptions + kAllStartupSettings;

/// Thrown where the program is killed; not an error that anything could handle.
struct KilledBetweenWrites {};

/// The settings of a user in memory. Keeps the order of writing, ignores case in every name, and
/// outlives the programs that use it.
class FakeSettingsStore : public SettingsStore {
 public:
  FakeSettingsStore() = default;
  /// Logs each change, and reads only when the log includes them.
  explicit FakeSettingsStore(CallLog& log) : log_(&log) {}

  /// Stores a value that is not text, as another program may.
  void SetOtherType(const std::string& appName, const std::string& section, const std::string& key);
  /// Refuses every change from now on.
  void RefuseWrites(bool refuse) { refuse_writes_ = refuse; }
  /// Refuses to save this value from now on, and no other.
  void RefuseValue(const std::string& appName, const std::string& section, const std::string& key);
  /// What is refused: one change, every change, only saves, as on a full disk, or only deletions.
  enum class Refusal { kOne, kAll, kSaves, kDeletions };
  /// Lets this many changes through, then refuses.
  void RefuseAfterWrites(int writes, Refusal refusal);
  /// True once a change has come up that RefuseAfterWrites did not let through unlooked.
  bool CameToRefusal() const { return came_to_refusal_; }
  /// Refuses nothing from now on.
  void RefuseNothing();
  /// Lets this many changes through; the next one throws KilledBetweenWrites. -1 = all.
  void KillAfterWrites(int writes) { writes_left_ = writes; }
  /// Names of all sections of an application in the order in which they were made.
  std::vector<std::string> Sections(const std::string& appName) const;
  /// Names of all applications that have a section.
  std::vector<std::string> Applications() const;

  // SettingsStore
  std::optional<std::string> GetSetting(const std::string& appName, const std::string& section,
                                        const std::string& key) override;
  Pairs GetAllSettings(const std::string& appName, const std::string& section) override;
  bool SaveSetting(const std::string& appName, const std::string& section, const std::string& key,
                   const std::string& value) override;
  bool DeleteSetting(const std::string& appName, const std::string& section,
                     const std::string& key) override;
  bool DeleteSection(const std::string& appName, const std::string& section) override;

 private:
  struct Value {
    std::string key;
    std::optional<std::string> text;  ///< Nothing when it is of another type.
  };
  struct Section {
    std::string appName;
    std::string name;
    std::vector<Value> values;
  };

  bool IsRefused(const std::string& appName, const std::string& section,
                 const std::string& key) const;
  Section* Find(const std::string& appName, const std::string& section);
  void Write(const std::string& appName, const std::string& section, const Value& value);
  /// Logs a change; false when it is refused.
  bool BeginWrite(const std::string& call, bool saves = false);
  bool RefusesNow(bool saves);
  void LogRead(const std::string& call);

  CallLog* log_ = nullptr;
  std::vector<Section> sections_;
  bool refuse_writes_ = false;
  std::vector<Section> refused_values_;
  int writes_left_ = -1;
  std::optional<int> writes_before_refusal_;
  Refusal refusal_ = Refusal::kAll;
  bool came_to_refusal_ = false;
};

}  // namespace korvale

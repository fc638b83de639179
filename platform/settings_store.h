#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace korvale {

/// The platform's per-user application settings: application name, section, key, text value.
/// On Windows the registry branch HKEY_CURRENT_USER\Software\VB and VBA Program Settings.
class SettingsStore {
 public:
  using Pairs = std::vector<std::pair<std::string, std::string>>;

  virtual ~SettingsStore() = default;

  /// The value, or nothing when it is missing or is not text (RegQueryValueExW).
  virtual std::optional<std::string> GetSetting(const std::string& appName,
                                                const std::string& section,
                                                const std::string& key) = 0;
  /// All values of a section in the store's order, "" for one that is not text; empty when there
  /// are none (RegEnumValueW).
  virtual Pairs GetAllSettings(const std::string& appName, const std::string& section) = 0;
  /// Writes one value, creating what is missing; false when the store refused (RegSetValueExW).
  virtual bool SaveSetting(const std::string& appName, const std::string& section,
                           const std::string& key, const std::string& value) = 0;
  /// Deletes one value; false when it did not exist (RegDeleteValueW).
  virtual bool DeleteSetting(const std::string& appName, const std::string& section,
                             const std::string& key) = 0;
  /// Deletes a whole section; false when it did not exist (RegDeleteTreeW).
  virtual bool DeleteSection(const std::string& appName, const std::string& section) = 0;
};

}  // namespace korvale

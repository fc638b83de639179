#pragma once

#include "platform/settings_store.h"
#include "platform/windows/handles.h"

namespace korvale {

/// Settings below HKEY_CURRENT_USER\Software\VB and VBA Program Settings, as REG_SZ values.
class WindowsSettingsStore final : public SettingsStore {
 public:
  std::optional<std::string> GetSetting(const std::string& appName, const std::string& section,
                                        const std::string& key) override;
  Pairs GetAllSettings(const std::string& appName, const std::string& section) override;
  bool SaveSetting(const std::string& appName, const std::string& section, const std::string& key,
                   const std::string& value) override;
  bool DeleteSetting(const std::string& appName, const std::string& section,
                     const std::string& key) override;
  bool DeleteSection(const std::string& appName, const std::string& section) override;

 private:
  /// Opens the section for reading; false when there is none.
  bool Open(const std::wstring& path);

  // The section that was read last: a program reads all settings of one before those of another.
  std::wstring path_;
  UniqueKey section_;
};

}  // namespace korvale

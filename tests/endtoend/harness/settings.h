#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace korvale::endtoend {

/// The stored settings of one application name, read and written as the registry holds them:
/// HKCU\Software\VB and VBA Program Settings\<application>\<section>, value <key>, text.
class StoredSettings {
 public:
  explicit StoredSettings(std::string application) : application_(std::move(application)) {}

  std::optional<std::string> Get(const std::string& section, const std::string& key) const;
  std::map<std::string, std::string> Section(const std::string& section) const;
  /// The names of all sections, also of those that hold nothing.
  std::vector<std::string> Sections() const;
  /// When any section was last written to or deleted, as Windows counts time.
  std::uint64_t LastWritten() const;
  void Set(const std::string& section, const std::string& key, const std::string& value) const;
  /// Stores a number as registry editors do, which is not how settings are stored.
  void SetNumber(const std::string& section, const std::string& key, std::uint32_t value) const;
  void DeleteValue(const std::string& section, const std::string& key) const;
  void DeleteAll() const;

 private:
  std::wstring Path(const std::string& section) const;

  std::string application_;
};

}  // namespace korvale::endtoend

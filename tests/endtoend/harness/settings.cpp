#include "tests/endtoend/harness/settings.h"

#include <windows.h>

#include <algorithm>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {
namespace {

constexpr wchar_t kRoot[] = L"Software\\VB and VBA Program Settings\\";
constexpr DWORD kCapacity = 2048;

}  // namespace

std::wstring StoredSettings::Path(const std::string& section) const {
  return kRoot + Wide(application_) + L"\\" + Wide(section);
}

std::optional<std::string> StoredSettings::Get(const std::string& section,
                                               const std::string& key) const {
  const std::map<std::string, std::string> all = Section(section);
  const auto found = all.find(key);
  if (found == all.end()) return std::nullopt;
  return found->second;
}

std::map<std::string, std::string> StoredSettings::Section(const std::string& section) const {
  std::map<std::string, std::string> pairs;
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, Path(section).c_str(), 0, KEY_READ, &key) != 0) return pairs;
  for (DWORD index = 0;; ++index) {
    wchar_t name[kCapacity];
    wchar_t value[kCapacity];
    DWORD name_length = kCapacity;
    DWORD value_bytes = sizeof(value);
    if (RegEnumValueW(key, index, name, &name_length, nullptr, nullptr,
                      reinterpret_cast<BYTE*>(value), &value_bytes) != 0) {
      break;
    }
    std::wstring text(value, value_bytes / sizeof(wchar_t));
    while (!text.empty() && text.back() == L'\0') text.pop_back();
    pairs[Utf8(std::wstring(name, name_length))] = Utf8(text);
  }
  RegCloseKey(key);
  return pairs;
}

std::vector<std::string> StoredSettings::Sections() const {
  std::vector<std::string> sections;
  const std::wstring path = kRoot + Wide(application_);
  HKEY key = nullptr;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != 0) return sections;
  for (DWORD index = 0;; ++index) {
    wchar_t name[kCapacity];
    if (RegEnumKeyW(key, index, name, kCapacity) != 0) break;
    sections.push_back(Utf8(name));
  }
  RegCloseKey(key);
  return sections;
}

std::uint64_t StoredSettings::LastWritten() const {
  std::uint64_t latest = 0;
  std::vector<std::wstring> paths = {kRoot + Wide(application_)};
  for (const std::string& section : Sections()) paths.push_back(Path(section));
  for (const std::wstring& path : paths) {
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_READ, &key) != 0) continue;
    FILETIME time{};
    RegQueryInfoKeyW(key, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                     nullptr, nullptr, &time);
    RegCloseKey(key);
    latest = std::max(latest, std::uint64_t{time.dwHighDateTime} << 32 | time.dwLowDateTime);
  }
  return latest;
}

void StoredSettings::Set(const std::string& section, const std::string& key,
                         const std::string& value) const {
  const std::wstring text = Wide(value);
  RegSetKeyValueW(HKEY_CURRENT_USER, Path(section).c_str(), Wide(key).c_str(), REG_SZ, text.c_str(),
                  static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
}

void StoredSettings::SetNumber(const std::string& section, const std::string& key,
                               std::uint32_t value) const {
  RegSetKeyValueW(HKEY_CURRENT_USER, Path(section).c_str(), Wide(key).c_str(), REG_DWORD, &value,
                  sizeof(value));
}

void StoredSettings::DeleteValue(const std::string& section, const std::string& key) const {
  RegDeleteKeyValueW(HKEY_CURRENT_USER, Path(section).c_str(), Wide(key).c_str());
}

void StoredSettings::DeleteAll() const {
  RegDeleteTreeW(HKEY_CURRENT_USER, (kRoot + Wide(application_)).c_str());
}

}  // namespace korvale::endtoend

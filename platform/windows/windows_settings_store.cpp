#include "platform/windows/windows_settings_store.h"

#include <windows.h>

#include <string_view>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"

namespace korvale {
namespace {

constexpr const wchar_t* kBranch = L"Software\\VB and VBA Program Settings\\";
constexpr std::size_t kLongestValueName = 16384;
constexpr std::size_t kUsualText = 256;

std::wstring SectionPath(const std::string& appName, const std::string& section) {
  return kBranch + ToUtf16(appName) + L'\\' + ToUtf16(section);
}

UniqueKey OpenKey(const std::wstring& path, REGSAM access) {
  UniqueKey key;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, access, key.Receive()) != ERROR_SUCCESS) {
    key.Release();
  }
  return key;
}

/// The text of the first `size` bytes; a value may be stored with or without its closing NUL.
std::string TextOf(std::wstring_view buffer, DWORD size) {
  std::wstring_view text = buffer.substr(0, size / sizeof(wchar_t));
  while (text.ends_with(L'\0')) text.remove_suffix(1);
  return ToUtf8(text);
}

/// Reads a value into `result`, which stays empty when it is no text; returns what Windows says.
LSTATUS ReadText(HKEY key, const wchar_t* name, std::optional<std::string>& result) {
  std::wstring buffer(kUsualText, L'\0');
  for (;; buffer.resize(buffer.size() * 2)) {
    DWORD type = 0;
    auto size = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    const LSTATUS status =
        RegQueryValueExW(key, name, nullptr, &type, reinterpret_cast<BYTE*>(buffer.data()), &size);
    if (status == ERROR_MORE_DATA) continue;
    if (status == ERROR_SUCCESS && type == REG_SZ) result = TextOf(buffer, size);
    return status;
  }
}

}  // namespace

bool WindowsSettingsStore::Open(const std::wstring& path) {
  path_ = path;
  section_ = OpenKey(path, KEY_QUERY_VALUE);
  return static_cast<bool>(section_);
}

std::optional<std::string> WindowsSettingsStore::GetSetting(const std::string& appName,
                                                            const std::string& section,
                                                            const std::string& key) {
  const std::wstring path = SectionPath(appName, section);
  const std::wstring name = ToUtf16(key);
  std::optional<std::string> text;
  if ((path != path_ || !section_) && !Open(path)) return text;
  const LSTATUS status = ReadText(section_.Get(), name.c_str(), text);
  // Somebody may have deleted the section since, and made it again.
  if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND && Open(path)) {
    ReadText(section_.Get(), name.c_str(), text);
  }
  return text;
}

SettingsStore::Pairs WindowsSettingsStore::GetAllSettings(const std::string& appName,
                                                          const std::string& section) {
  Pairs pairs;
  const UniqueKey branch = OpenKey(SectionPath(appName, section), KEY_QUERY_VALUE);
  if (!branch) return pairs;
  std::wstring name(kLongestValueName, L'\0');
  std::wstring buffer(kUsualText, L'\0');
  for (DWORD index = 0;;) {
    auto length = static_cast<DWORD>(name.size());
    auto size = static_cast<DWORD>(buffer.size() * sizeof(wchar_t));
    DWORD type = 0;
    const LSTATUS status = RegEnumValueW(branch.Get(), index, name.data(), &length, nullptr, &type,
                                         reinterpret_cast<BYTE*>(buffer.data()), &size);
    if (status == ERROR_MORE_DATA) {
      buffer.resize(buffer.size() * 2);
      continue;
    }
    if (status != ERROR_SUCCESS) return pairs;
    pairs.emplace_back(ToUtf8({name.data(), length}), type == REG_SZ ? TextOf(buffer, size) : "");
    ++index;
  }
}

bool WindowsSettingsStore::SaveSetting(const std::string& appName, const std::string& section,
                                       const std::string& key, const std::string& value) {
  UniqueKey branch;
  const std::wstring path = SectionPath(appName, section);
  if (RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr,
                      branch.Receive(), nullptr) != ERROR_SUCCESS) {
    branch.Release();
    return false;
  }
  const std::wstring text = ToUtf16(value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetValueExW(branch.Get(), ToUtf16(key).c_str(), 0, REG_SZ,
                        reinterpret_cast<const BYTE*>(text.c_str()), size) == ERROR_SUCCESS;
}

bool WindowsSettingsStore::DeleteSetting(const std::string& appName, const std::string& section,
                                         const std::string& key) {
  const UniqueKey branch = OpenKey(SectionPath(appName, section), KEY_SET_VALUE);
  return branch && RegDeleteValueW(branch.Get(), ToUtf16(key).c_str()) == ERROR_SUCCESS;
}

bool WindowsSettingsStore::DeleteSection(const std::string& appName, const std::string& section) {
  return RegDeleteTreeW(HKEY_CURRENT_USER, SectionPath(appName, section).c_str()) == ERROR_SUCCESS;
}

}  // namespace korvale

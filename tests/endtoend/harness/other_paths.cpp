#include "tests/endtoend/harness/other_paths.h"

#include <windows.h>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {
namespace {

constexpr wchar_t kDrive[] = L"W:";

std::wstring ShortPath(const std::wstring& path) {
  std::wstring buffer(1024, L'\0');
  const auto size = static_cast<DWORD>(buffer.size());
  buffer.resize(GetShortPathNameW(path.c_str(), buffer.data(), size));
  return buffer;
}

/// The folder below the drive of all files, which only Wine has; "" elsewhere.
std::wstring BelowDriveOfAllFiles(const std::wstring& path) {
  using GetUnixName = char*(CDECL*)(LPCWSTR);
  const auto get_name = reinterpret_cast<GetUnixName>(reinterpret_cast<void*>(
      GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
  char* const name = get_name == nullptr ? nullptr : get_name(path.c_str());
  if (name == nullptr) return L"";
  std::wstring found = L"Z:" + Wide(name);
  HeapFree(GetProcessHeap(), 0, name);
  for (wchar_t& unit : found) {
    if (unit == L'/') unit = L'\\';
  }
  return found.ends_with(L'\\') ? found : found + L'\\';
}

}  // namespace

OtherPaths::OtherPaths(const std::string& folder) : folder_(folder) {
  std::wstring capitals = Wide(folder);
  CharUpperW(capitals.data());
  all_.push_back({"capitals", Utf8(capitals)});
  all_.push_back({"long prefix", "\\\\?\\" + folder});
  all_.push_back({"short names", Utf8(ShortPath(Wide(folder)))});
  AddDrive();
}

OtherPaths::~OtherPaths() { DefineDosDeviceW(DDD_REMOVE_DEFINITION, kDrive, nullptr); }

void OtherPaths::AddDrive() {
  const std::wstring below = BelowDriveOfAllFiles(Wide(folder_));
  if (!below.empty()) {
    all_.push_back({"drive of all files", Utf8(below)});
    return;
  }
  const std::string target = folder_.substr(0, folder_.size() - 1);
  if (DefineDosDeviceW(0, kDrive, Wide(target).c_str()) != FALSE) {
    all_.push_back({"substituted drive", Utf8(kDrive) + "\\"});
  }
}

}  // namespace korvale::endtoend

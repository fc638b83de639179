#include "util/system.h"

#include <cstdint>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr std::uint32_t kOsVersionInfoSize = 148;
constexpr std::uint32_t kFolderBufferSize = 255;

}  // namespace

std::string GetOSInfo(SystemApi& system, std::string_view what) {
  if (what != "PLATFORM_ID" && what != "MAJOR_VERSION") return "UNKNOWN";
  const OsVersion version = system.GetVersionExA(kOsVersionInfoSize);
  if (what == "MAJOR_VERSION") return std::to_string(version.majorVersion);
  switch (version.platformId) {
    case win32::kVerPlatformWin32Windows:
      return "9x";
    case win32::kVerPlatformWin32Nt:
      return "NT";
    default:
      return "UNKNOWN";
  }
}

std::string GetWindowsFolder(SystemApi& system) {
  return system.GetWindowsDirectoryA(kFolderBufferSize) + "\\";
}

void OpenDocument(SystemApi& system, WindowHandle mainWindow, const std::string& path) {
  system.ShellExecuteA(mainWindow, "Open", path, win32::kSwShowNormal);
}

}  // namespace korvale

#pragma once

#include "platform/system_api.h"
#include "platform/windows/com.h"
#include "platform/windows/system_library.h"

namespace korvale {

/// The shell and the operating system through kernel32 and shell32. Texts are read with the
/// Unicode calls and handed on as UTF-8.
class WindowsSystemApi final : public SystemApi {
 public:
  std::string GetModuleFileNameA() override;
  std::string GetCommandLineA() override;
  VersionInfo GetFileVersionInfoA() override;
  OsVersion GetVersionExA(std::uint32_t structureSize) override;
  std::string GetWindowsDirectoryA(std::uint32_t bufferSize) override;
  void ShellExecuteA(WindowHandle hwnd, const std::string& verb, const std::string& file,
                     int showCommand) override;
  bool FileExists(const std::string& path) override;
  bool AppendToFile(const std::string& path, std::span<const std::string> pieces) override;
  bool CanAppendToFile(const std::string& path) override;
  bool CreateDirectoryW(const std::string& path) override;
  std::vector<std::string> FindFirstFileW(const std::string& pattern) override;
  bool DeleteFileW(const std::string& path) override;
  std::string GetEnvironmentVariableW(const std::string& name) override;
  FolderInfo GetFinalPathNameByHandleW(const std::string& folder) override;
  std::unique_ptr<SystemMutex> CreateMutexA(const std::string& name) override;
  std::unique_ptr<SystemMutex> OpenMutexA(const std::string& name) override;

 private:
  SystemLibrary shell_{L"shell32.dll"};
  Com com_;
};

}  // namespace korvale

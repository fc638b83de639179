#include "platform/windows/windows_system_api.h"

#include <windows.h>
// After windows.h, which they need.
#include <objbase.h>
#include <shellapi.h>

#include <cstddef>
#include <span>
#include <string>

#include "platform/version_resource.h"
#include "platform/windows/command_line.h"
#include "platform/windows/handles.h"
#include "platform/windows/text.h"

namespace korvale {
namespace {

class WindowsMutex final : public SystemMutex {
 public:
  explicit WindowsMutex(UniqueKernelHandle handle) : handle_(std::move(handle)) {}
  ~WindowsMutex() override {
    if (held_) ReleaseMutex(handle_.Get());
  }
  WindowsMutex(const WindowsMutex&) = delete;
  WindowsMutex& operator=(const WindowsMutex&) = delete;

  bool WaitForSingleObject(std::uint32_t milliseconds) override {
    if (held_) return true;
    const DWORD result = ::WaitForSingleObject(handle_.Get(), milliseconds);
    held_ = result == WAIT_OBJECT_0 || result == WAIT_ABANDONED;
    return held_;
  }

 private:
  UniqueKernelHandle handle_;
  bool held_ = false;
};

std::wstring ModuleFileName() {
  for (DWORD units = MAX_PATH;; units *= 2) {
    std::wstring path(units, L'\0');
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), units);
    if (length < units) {
      path.resize(length);
      return path;
    }
  }
}

std::string FinalPath(HANDLE folder) {
  std::wstring path(GetFinalPathNameByHandleW(folder, nullptr, 0, VOLUME_NAME_DOS), L'\0');
  const DWORD length = GetFinalPathNameByHandleW(folder, path.data(),
                                                 static_cast<DWORD>(path.size()), VOLUME_NAME_DOS);
  if (length >= path.size()) return "";
  path.resize(length);
  return ToUtf8(path);
}

/// Empty when it cannot be opened; then the last error says why.
UniqueKernelHandle OpenExisting(const std::wstring& path, DWORD access, DWORD flags) {
  constexpr DWORD kShare = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  const HANDLE opened =
      ::CreateFileW(path.c_str(), access, kShare, nullptr, OPEN_EXISTING, flags, nullptr);
  return UniqueKernelHandle(opened == INVALID_HANDLE_VALUE ? nullptr : opened);
}

/// Over the network, too, only this call asks the other computer for its own numbers.
std::string FileId(HANDLE folder) {
  BY_HANDLE_FILE_INFORMATION info{};
  if (GetFileInformationByHandle(folder, &info) == FALSE) return "";
  if (info.nFileIndexHigh == 0 && info.nFileIndexLow == 0) return "";
  wchar_t text[32];
  wsprintfW(text, L"%08x:%08x%08x", info.dwVolumeSerialNumber, info.nFileIndexHigh,
            info.nFileIndexLow);
  return ToUtf8(text);
}

/// The version resource of the running executable; empty when it has none.
std::span<const std::byte> OwnVersionResource() {
  const HRSRC found = FindResourceW(nullptr, MAKEINTRESOURCEW(VS_VERSION_INFO),
                                    reinterpret_cast<LPCWSTR>(RT_VERSION));
  if (found == nullptr) return {};
  const HGLOBAL loaded = LoadResource(nullptr, found);
  const void* const content = loaded == nullptr ? nullptr : LockResource(loaded);
  if (content == nullptr) return {};
  return {static_cast<const std::byte*>(content), SizeofResource(nullptr, found)};
}

std::string FromResource(const std::u16string& text) {
  return ToUtf8(std::wstring(text.begin(), text.end()));
}

}  // namespace

std::string WindowsSystemApi::GetModuleFileNameA() { return ToUtf8(ModuleFileName()); }

std::string WindowsSystemApi::GetCommandLineA() {
  return ToUtf8(BehindProgramName(::GetCommandLineW()));
}

VersionInfo WindowsSystemApi::GetFileVersionInfoA() {
  const VersionResource resource = ReadVersionResource(OwnVersionResource());
  return {resource.major, resource.minor, resource.revision, FromResource(resource.legalCopyright),
          FromResource(resource.fileDescription)};
}

OsVersion WindowsSystemApi::GetVersionExA(std::uint32_t structureSize) {
  OSVERSIONINFOEXA version{};
  if (structureSize > sizeof(version)) return {};
  version.dwOSVersionInfoSize = structureSize;
#if defined(_MSC_VER)
#pragma warning(suppress : 4996)  // Only the platform family is needed.
#endif
  if (::GetVersionExA(reinterpret_cast<OSVERSIONINFOA*>(&version)) == FALSE) return {};
  return {version.dwPlatformId, version.dwMajorVersion};
}

std::string WindowsSystemApi::GetWindowsDirectoryA(std::uint32_t bufferSize) {
  std::wstring path(MAX_PATH, L'\0');
  const UINT length = GetWindowsDirectoryW(path.data(), static_cast<UINT>(path.size()));
  if (length == 0 || length >= path.size()) return "";
  path.resize(length);
  const std::string text = ToUtf8(path);
  return text.size() < bufferSize ? text : "";
}

void WindowsSystemApi::ShellExecuteA(WindowHandle hwnd, const std::string& verb,
                                     const std::string& file, int showCommand) {
  com_.Start();
  auto* const execute = shell_.Find<decltype(::ShellExecuteW)>("ShellExecuteW");
  if (execute == nullptr) return;
  execute(ToHwnd(hwnd), ToUtf16(verb).c_str(), ToUtf16(file).c_str(), nullptr, nullptr,
          showCommand);
}

bool WindowsSystemApi::FileExists(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(ToUtf16(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

bool WindowsSystemApi::AppendToFile(const std::string& path, std::span<const std::string> pieces) {
  const HANDLE opened =
      ::CreateFileW(ToUtf16(path).c_str(), FILE_APPEND_DATA, FILE_SHARE_READ | FILE_SHARE_WRITE,
                    nullptr, OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  const UniqueKernelHandle file(opened);
  bool complete = true;
  for (const std::string& piece : pieces) {
    const auto size = static_cast<DWORD>(piece.size());
    DWORD written = 0;
    const BOOL done = WriteFile(file.Get(), piece.data(), size, &written, nullptr);
    complete = complete && done != FALSE && written == size;
  }
  return complete;
}

bool WindowsSystemApi::CanAppendToFile(const std::string& path) {
  const std::wstring file = ToUtf16(path);
  if (OpenExisting(file, FILE_APPEND_DATA, FILE_ATTRIBUTE_NORMAL)) return true;
  if (GetLastError() != ERROR_FILE_NOT_FOUND) return false;
  const std::wstring folder = file.substr(0, file.rfind(L'\\') + 1);
  return static_cast<bool>(OpenExisting(folder, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS));
}

bool WindowsSystemApi::CreateDirectoryW(const std::string& path) {
  const std::wstring folder = ToUtf16(path);
  if (::CreateDirectoryW(folder.c_str(), nullptr) != FALSE) return true;
  const DWORD attributes = GetFileAttributesW(folder.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::vector<std::string> WindowsSystemApi::FindFirstFileW(const std::string& pattern) {
  std::vector<std::string> names;
  WIN32_FIND_DATAW found{};
  const HANDLE search = ::FindFirstFileW(ToUtf16(pattern).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return names;
  do {
    if ((found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
      names.push_back(ToUtf8(found.cFileName));
    }
  } while (FindNextFileW(search, &found) != FALSE);
  FindClose(search);
  return names;
}

bool WindowsSystemApi::DeleteFileW(const std::string& path) {
  return ::DeleteFileW(ToUtf16(path).c_str()) != FALSE;
}

std::string WindowsSystemApi::GetEnvironmentVariableW(const std::string& name) {
  const std::wstring variable = ToUtf16(name);
  std::wstring value(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        ::GetEnvironmentVariableW(variable.c_str(), value.data(), static_cast<DWORD>(value.size()));
    const bool complete = length < value.size();
    value.resize(length);
    if (complete) return ToUtf8(value);
  }
}

FolderInfo WindowsSystemApi::GetFinalPathNameByHandleW(const std::string& folder) {
  const std::wstring path = ToUtf16(folder);
  const UniqueKernelHandle handle = OpenExisting(path, 0, FILE_FLAG_BACKUP_SEMANTICS);
  FolderInfo info;
  if (!handle) {
    info.error = GetLastError();
    info.isLink = GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
    return info;
  }
  info.finalPath = FinalPath(handle.Get());
  info.fileId = FileId(handle.Get());
  return info;
}

std::unique_ptr<SystemMutex> WindowsSystemApi::CreateMutexA(const std::string& name) {
  UniqueKernelHandle handle(::CreateMutexW(nullptr, FALSE, ToUtf16(name).c_str()));
  if (!handle) return nullptr;
  return std::make_unique<WindowsMutex>(std::move(handle));
}

std::unique_ptr<SystemMutex> WindowsSystemApi::OpenMutexA(const std::string& name) {
  UniqueKernelHandle handle(::OpenMutexW(SYNCHRONIZE, FALSE, ToUtf16(name).c_str()));
  if (!handle) return nullptr;
  return std::make_unique<WindowsMutex>(std::move(handle));
}

}  // namespace korvale

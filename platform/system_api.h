#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

#include "platform/types.h"

namespace korvale {

/// What GetVersionExA reports.
struct OsVersion {
  std::uint32_t platformId = 0;
  std::uint32_t majorVersion = 0;
};

/// What the executable's version resource says.
struct VersionInfo {
  int major = 0;
  int minor = 0;
  int revision = 0;
  std::string legalCopyright;
  std::string fileDescription;
};

/// The outcome of opening a folder.
struct FolderInfo {
  /// 0, or the ERROR_ code of the refusal.
  std::uint32_t error = 0;
  /// The one path that all links, drive letters and short names lead to, as in "\\?\C:\Work" and
  /// "\\?\UNC\server\share\Work"; "" when the volume does not tell.
  std::string finalPath;
  /// Numbers of the volume and the folder, the same under every path; "" when the volume has none.
  std::string fileId;
  /// It could not be opened, although something of this name exists: a link or an unreadable
  /// folder.
  bool isLink = false;
};

/// A fault that no handler foresaw.
struct Crash {
  /// The code of the exception (0xC0000005 = access violation); 0 for a C++ exception that nothing
  /// caught, which is then the current one.
  std::uint32_t code = 0;
  /// The instruction where it happened; 0 when that is not known.
  std::uint64_t address = 0;
};

/// A named system object that at most one process holds. Released when destroyed.
class SystemMutex {
 public:
  virtual ~SystemMutex() = default;

  /// Waits up to `milliseconds` (0 = only looks) to become the holder; true when it is one now. A
  /// holder that died counts as having let go (WaitForSingleObject).
  virtual bool WaitForSingleObject(std::uint32_t milliseconds) = 0;
};

/// The shell and the operating system around the program. Texts are UTF-8, also where a method is
/// named after the A form of its call.
class SystemApi {
 public:
  virtual ~SystemApi() = default;

  /// Full path of the running executable.
  virtual std::string GetModuleFileNameA() = 0;
  /// The command line after the program's own name, as typed.
  virtual std::string GetCommandLineA() = 0;
  /// The executable's version resource; fields stay empty where it says nothing (FindResourceW).
  virtual VersionInfo GetFileVersionInfoA() = 0;
  /// Fills from a structure whose size field is `structureSize`; platformId 0 when it failed.
  virtual OsVersion GetVersionExA(std::uint32_t structureSize) = 0;
  /// The Windows directory without a closing backslash, at most `bufferSize`-1 bytes; "" on
  /// failure.
  virtual std::string GetWindowsDirectoryA(std::uint32_t bufferSize) = 0;
  /// Opens a document or an address with its program; errors are ignored.
  virtual void ShellExecuteA(WindowHandle hwnd, const std::string& verb, const std::string& file,
                             int showCommand) = 0;
  /// True when a file (not a folder) of this path exists (GetFileAttributesA).
  virtual bool FileExists(const std::string& path) = 0;
  /// Opens a file at its end, creating it when it is missing, and writes the pieces one after the
  /// other; failing to write one does not stop the others. False when the file could not be opened
  /// (CreateFileW, WriteFile).
  virtual bool AppendToFile(const std::string& path, std::span<const std::string> pieces) = 0;
  /// Opens a folder, through links if need be, and reads what it really is (CreateFileW,
  /// GetFinalPathNameByHandleW, GetFileInformationByHandle).
  virtual FolderInfo GetFinalPathNameByHandleW(const std::string& folder) = 0;
  /// Opens or creates the named mutex of this session without waiting for it (CreateMutexA); null
  /// when the system refused.
  virtual std::unique_ptr<SystemMutex> CreateMutexA(const std::string& name) = 0;
  /// When the program crashes, `filter` is called on the thread that crashed; the process ends when
  /// it returns, and at once when it crashes too. An empty one takes the former one back.
  virtual void SetUnhandledExceptionFilter(std::function<void(const Crash&)> filter) = 0;
};

}  // namespace korvale

#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <vector>

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
  /// or lacks any of them (CreateFileW, WriteFile).
  virtual bool AppendToFile(const std::string& path, std::span<const std::string> pieces) = 0;
  /// Whether AppendToFile could open this file now; neither creates nor changes anything
  /// (CreateFileW on the file, or on its folder when there is no such file).
  virtual bool CanAppendToFile(const std::string& path) = 0;
  /// Makes a folder; true when it is there afterwards.
  virtual bool CreateDirectoryW(const std::string& path) = 0;
  /// The names of the files that match a path whose last component may hold "*" and "?".
  virtual std::vector<std::string> FindFirstFileW(const std::string& pattern) = 0;
  /// True when the file was there and is gone.
  virtual bool DeleteFileW(const std::string& path) = 0;
  /// The value of a variable of the program's environment; "" when there is none. Needs no library
  /// that is not loaded yet, so a program that has crashed can ask, too.
  virtual std::string GetEnvironmentVariableW(const std::string& name) = 0;
  /// Opens a folder, through links if need be, and reads what it really is (CreateFileW,
  /// GetFinalPathNameByHandleW, GetFileInformationByHandle).
  virtual FolderInfo GetFinalPathNameByHandleW(const std::string& folder) = 0;
  /// Opens or creates the named mutex of this session without waiting for it (CreateMutexA); null
  /// when the system refused.
  virtual std::unique_ptr<SystemMutex> CreateMutexA(const std::string& name) = 0;
  /// Opens the named mutex only to wait for it, which is allowed also when a program with more
  /// rights has made it (OpenMutexA, SYNCHRONIZE); null when there is none or the system refused.
  virtual std::unique_ptr<SystemMutex> OpenMutexA(const std::string& name) = 0;
};

}  // namespace korvale

#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "platform/crash_api.h"
#include "platform/system_api.h"
#include "tests/fakes/call_log.h"

namespace korvale {

/// What all programs of a Windows session share: named mutexes and what is written to files.
class FakeSession {
 public:
  /// Called while a program waits for a mutex that another one holds, so that this one can act.
  void WhenWaiting(std::function<void()> action) { when_waiting_ = std::move(action); }
  /// Whether a program holds the mutex.
  bool IsHeld(const std::string& name) const { return holders_.contains(name); }

  /// Path -> what programs have written to the file.
  std::map<std::string, std::string> contents;
  /// Files can be created, but hold nothing.
  bool diskFull = false;
  /// Of the pieces that the next AppendToFile writes, Windows refuses this one, counted from 0.
  std::optional<std::size_t> refusedPiece;

 private:
  friend class FakeSystem;
  friend class FakeMutex;

  struct Holder {
    int program = 0;
    int times = 0;
  };

  bool Take(const std::string& name, int program);
  bool Wait(const std::string& name, int program);
  void LetGo(const std::string& name, int program);
  void LetGoOfAll(int program);
  bool Exists(const std::string& name) const {
    return holders_.contains(name) || elevated_.contains(name);
  }

  std::map<std::string, Holder> holders_;
  std::map<std::string, int> elevated_;  // Mutexes of programs with more rights.
  std::function<void()> when_waiting_;
  int last_program_ = 0;
};

/// What one program finds around itself. When the program dies, its mutexes are released.
class FakeSystem : public SystemApi, public CrashApi {
 public:
  FakeSystem(CallLog& log, std::shared_ptr<FakeSession> session);
  explicit FakeSystem(CallLog& log) : FakeSystem(log, std::make_shared<FakeSession>()) {}
  ~FakeSystem() override;
  FakeSystem(const FakeSystem&) = delete;
  FakeSystem& operator=(const FakeSystem&) = delete;

  FakeSession& Session() { return *session_; }
  /// The program dies without releasing anything itself.
  void Die() { session_->LetGoOfAll(program_); }

  // SystemApi
  std::string GetModuleFileNameA() override { return executablePath; }
  std::string GetCommandLineA() override { return commandLine; }
  VersionInfo GetFileVersionInfoA() override { return versionInfo; }
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

  // CrashApi
  void SetUnhandledExceptionFilter(std::function<void(const Crash&)> filter) override {
    crashFilter = std::move(filter);
  }
  void TerminateProcessAfter(std::optional<std::uint32_t> milliseconds) override;
  bool MiniDumpWriteDump(const std::string& path) override;

  std::string executablePath = "C:\\Programs\\Work\\Korvale.exe";
  std::string commandLine;
  VersionInfo versionInfo{1, 2, 3, "Copyright", "Description"};
  OsVersion osVersion{2, 10};
  std::string windowsFolder = "C:\\Windows";
  std::set<std::string> files;
  /// Folders that are there although they hold nothing.
  std::set<std::string> folders = {"C:\\Users\\Ann\\AppData\\Local"};
  /// Folders where nothing can be created or written.
  std::set<std::string> readOnly;
  /// Folders whose files can be written, but where none can be created.
  std::set<std::string> noNewFiles;
  /// Folders that Windows guards against unknown programs: they look as if one could create files
  /// there, but every attempt to write one is refused.
  std::set<std::string> guarded;
  /// "" when Windows cannot tell.
  std::string localAppData = "C:\\Users\\Ann\\AppData\\Local";
  /// Drives that are there.
  std::set<std::string> drives = {"C:", "D:"};
  /// Other spellings (substituted drive, junction, short name) -> folder, which the system
  /// resolves.
  std::map<std::string, std::string> links;
  /// Shares of folders: another path to the same folder, which the system does not resolve.
  std::map<std::string, std::string> shares;
  /// Drives, computers and shares that cannot be reached, and the error when trying.
  std::map<std::string, std::uint32_t> unreachable;
  bool refuseMutexes = false;
  /// The program runs as administrator: others may wait for its mutexes, but not change them.
  bool elevated = false;
  /// Called for a crash of the program; empty when there is none.
  std::function<void(const Crash&)> crashFilter;

 private:
  std::string RealPath(const std::string& path) const;
  std::uint32_t Reach(const std::string& path) const;
  bool IsFolder(const std::string& path) const;
  bool Writable(const std::string& path) const;
  bool Opens(const std::string& path) const;

  CallLog& log_;
  std::shared_ptr<FakeSession> session_;
  int program_;
};

}  // namespace korvale

#include "tests/fakes/fake_system.h"

#include <algorithm>
#include <utility>

#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr std::uint32_t kOsVersionInfoSizeA = 148;
constexpr std::uint32_t kOsVersionInfoExSizeA = 156;

std::string WithoutPrefix(std::string path) {
  if (path.starts_with("\\\\?\\UNC\\")) return "\\" + path.substr(7);
  if (path.starts_with("\\\\?\\")) path.erase(0, 4);
  while (path.ends_with('\\')) path.pop_back();
  return path;
}

bool IsBelow(const std::string& path, const std::string& folder) {
  return path.size() >= folder.size() && EqualsIgnoreCase(path.substr(0, folder.size()), folder) &&
         (path.size() == folder.size() || path[folder.size()] == '\\');
}

/// The path with a folder in place of another spelling of it at the beginning.
std::string InPlaceOf(const std::map<std::string, std::string>& spellings, std::string path) {
  for (const auto& [spelling, folder] : spellings) {
    if (IsBelow(path, spelling)) path = folder + path.substr(spelling.size());
  }
  return path;
}

/// The folder as the disk spells it; "" when there is no such folder.
std::string Spelled(const std::set<std::string>& files, const std::set<std::string>& drives,
                    const std::string& folder) {
  for (const std::string& drive : drives) {
    if (EqualsIgnoreCase(drive, folder)) return drive;
  }
  for (const std::string& file : files) {
    if (file.size() > folder.size() && IsBelow(file, folder)) return file.substr(0, folder.size());
  }
  return "";
}

}  // namespace

/// Holds its mutex once for each successful wait.
class FakeMutex : public SystemMutex {
 public:
  FakeMutex(std::shared_ptr<FakeSession> session, std::string name, int program)
      : session_(std::move(session)), name_(std::move(name)), program_(program) {}
  ~FakeMutex() override {
    for (; held_ > 0; --held_) session_->LetGo(name_, program_);
  }
  FakeMutex(const FakeMutex&) = delete;
  FakeMutex& operator=(const FakeMutex&) = delete;

  bool WaitForSingleObject(std::uint32_t milliseconds) override {
    const bool taken =
        milliseconds == 0 ? session_->Take(name_, program_) : session_->Wait(name_, program_);
    if (taken) ++held_;
    return taken;
  }

 private:
  std::shared_ptr<FakeSession> session_;
  std::string name_;
  int program_;
  int held_ = 0;
};

bool FakeSession::Take(const std::string& name, int program) {
  Holder& holder = holders_.try_emplace(name, Holder{program, 0}).first->second;
  if (holder.program != program) return false;
  ++holder.times;
  return true;
}

bool FakeSession::Wait(const std::string& name, int program) {
  if (Take(name, program)) return true;
  if (when_waiting_) when_waiting_();
  return Take(name, program);
}

void FakeSession::LetGo(const std::string& name, int program) {
  const auto holder = holders_.find(name);
  if (holder == holders_.end() || holder->second.program != program) return;
  if (--holder->second.times == 0) holders_.erase(holder);
}

void FakeSession::LetGoOfAll(int program) {
  std::erase_if(holders_, [&](const auto& entry) { return entry.second.program == program; });
  std::erase_if(elevated_, [&](const auto& entry) { return entry.second == program; });
}

FakeSystem::FakeSystem(CallLog& log, std::shared_ptr<FakeSession> session)
    : log_(log), session_(std::move(session)), program_(++session_->last_program_) {}

FakeSystem::~FakeSystem() { Die(); }

OsVersion FakeSystem::GetVersionExA(std::uint32_t structureSize) {
  log_.AddRead("GetVersionExA(" + std::to_string(structureSize) + ")");
  const bool known = structureSize == kOsVersionInfoSizeA || structureSize == kOsVersionInfoExSizeA;
  return known ? osVersion : OsVersion{};
}

std::string FakeSystem::GetWindowsDirectoryA(std::uint32_t bufferSize) {
  log_.AddRead("GetWindowsDirectoryA(" + std::to_string(bufferSize) + ")");
  return windowsFolder.size() < bufferSize ? windowsFolder : "";
}

void FakeSystem::ShellExecuteA(WindowHandle hwnd, const std::string& verb, const std::string& file,
                               int showCommand) {
  log_.Add("ShellExecuteA(" + log_.Window(hwnd) + ", \"" + verb + "\", \"" + file + "\", " +
           ShowCommandText(showCommand) + ")");
}

bool FakeSystem::FileExists(const std::string& path) {
  log_.AddRead("FileExists(" + path + ")");
  const std::string real = InPlaceOf(shares, RealPath(path));
  return Reach(WithoutPrefix(path)) == 0 && Reach(RealPath(path)) == 0 &&
         std::ranges::any_of(files,
                             [&](const std::string& file) { return EqualsIgnoreCase(file, real); });
}

bool FakeSystem::AppendToFile(const std::string& path, std::span<const std::string> pieces) {
  log_.Add("AppendToFile(" + path + ")");
  if (!Opens(path)) return false;
  const std::string real = InPlaceOf(shares, RealPath(path));
  files.insert(real);
  std::string& content = session_->contents[real];
  const std::optional<std::size_t> refused = std::exchange(session_->refusedPiece, std::nullopt);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (!session_->diskFull && i != refused) content += pieces[i];
  }
  return !session_->diskFull && !(refused && *refused < pieces.size());
}

bool FakeSystem::CanAppendToFile(const std::string& path) {
  log_.AddRead("CanAppendToFile(" + path + ")");
  const std::string real = InPlaceOf(shares, RealPath(path));
  if (files.contains(real)) return Opens(path);
  return Writable(path) && !noNewFiles.contains(real.substr(0, real.find_last_of('\\')));
}

bool FakeSystem::CreateDirectoryW(const std::string& path) {
  log_.Add("CreateDirectoryW(" + path + ")");
  const std::string folder = InPlaceOf(shares, RealPath(path));
  if (IsFolder(folder)) return true;
  if (!Writable(folder)) return false;
  folders.insert(folder);
  return true;
}

std::vector<std::string> FakeSystem::FindFirstFileW(const std::string& pattern) {
  log_.AddRead("FindFirstFileW(" + pattern + ")");
  const std::string real = InPlaceOf(shares, RealPath(pattern));
  std::vector<std::string> names;
  for (const std::string& file : files) {
    const bool matches = std::ranges::equal(
        file, real, [](char unit, char wanted) { return wanted == unit || wanted == '?'; });
    if (matches) names.push_back(file.substr(file.find_last_of('\\') + 1));
  }
  // Windows promises no order, and on some disks it is that of creation.
  std::ranges::reverse(names);
  return names;
}

bool FakeSystem::DeleteFileW(const std::string& path) {
  log_.Add("DeleteFileW(" + path + ")");
  const std::string real = InPlaceOf(shares, RealPath(path));
  session_->contents.erase(real);
  return Writable(path) && files.erase(real) != 0;
}

std::string FakeSystem::GetEnvironmentVariableW(const std::string& name) {
  log_.AddRead("GetEnvironmentVariableW(" + name + ")");
  return name == "LOCALAPPDATA" ? localAppData : "";
}

void FakeSystem::TerminateProcessAfter(std::optional<std::uint32_t> milliseconds) {
  log_.Add("TerminateProcessAfter(" + (milliseconds ? std::to_string(*milliseconds) : "") + ")");
}

bool FakeSystem::MiniDumpWriteDump(const std::string& path) {
  log_.Add("MiniDumpWriteDump(" + path + ")");
  if (!Opens(path)) return false;
  const std::string real = InPlaceOf(shares, RealPath(path));
  if (session_->diskFull) {
    files.erase(real);
    session_->contents.erase(real);
    return false;
  }
  files.insert(real);
  session_->contents[real] = "dump";
  return true;
}

FolderInfo FakeSystem::GetFinalPathNameByHandleW(const std::string& folder) {
  log_.AddRead("GetFinalPathNameByHandleW(" + folder + ")");
  const std::string path = RealPath(folder);
  const std::string real = InPlaceOf(shares, path);
  const std::string spelled = Spelled(files, drives, real);
  std::uint32_t error = Reach(WithoutPrefix(folder));
  if (error == 0) error = Reach(path);
  if (error == 0 && spelled.empty()) {
    const std::string above = real.substr(0, real.find_last_of('\\'));
    error = Spelled(files, drives, above).empty() ? win32::kErrorPathNotFound
                                                  : win32::kErrorFileNotFound;
  }
  // The letter of a substituted drive is not an entry of any folder.
  if (error != 0) return {error, "", "", links.contains(folder) && folder.size() > 2};
  if (path != real) return {0, "\\\\?\\UNC" + path.substr(1), "id of " + spelled, false};
  return {0, "\\\\?\\" + spelled + (spelled.size() == 2 ? "\\" : ""), "id of " + spelled, false};
}

std::string FakeSystem::RealPath(const std::string& path) const {
  return InPlaceOf(links, WithoutPrefix(path));
}

bool FakeSystem::IsFolder(const std::string& path) const {
  return folders.contains(path) || !Spelled(files, drives, path).empty();
}

/// Whether a file of this path can be opened for writing, and created when it is missing.
bool FakeSystem::Opens(const std::string& path) const {
  const std::string real = InPlaceOf(shares, RealPath(path));
  const std::string folder = real.substr(0, real.find_last_of('\\'));
  return Writable(path) && !guarded.contains(folder) &&
         (files.contains(real) || !noNewFiles.contains(folder));
}

/// Whether a file of this path looks as if it could be opened for writing.
bool FakeSystem::Writable(const std::string& path) const {
  const std::string real = InPlaceOf(shares, RealPath(path));
  const std::string folder = real.substr(0, real.find_last_of('\\'));
  return Reach(real) == 0 && !IsFolder(real) && IsFolder(folder) && !readOnly.contains(folder);
}

std::uint32_t FakeSystem::Reach(const std::string& path) const {
  for (const auto& [place, error] : unreachable) {
    if (IsBelow(path, place)) return error;
  }
  return 0;
}

std::unique_ptr<SystemMutex> FakeSystem::CreateMutexA(const std::string& name) {
  log_.AddRead("CreateMutexA(" + name + ")");
  if (refuseMutexes || (!elevated && session_->elevated_.contains(name))) return nullptr;
  if (elevated) session_->elevated_.try_emplace(name, program_);
  return std::make_unique<FakeMutex>(session_, name, program_);
}

std::unique_ptr<SystemMutex> FakeSystem::OpenMutexA(const std::string& name) {
  log_.AddRead("OpenMutexA(" + name + ")");
  if (refuseMutexes || !session_->Exists(name)) return nullptr;
  return std::make_unique<FakeMutex>(session_, name, program_);
}

}  // namespace korvale

#include "tests/fakes/fake_system.h"

#include <algorithm>
#include <utility>

#include "util/text.h"

namespace korvale {
namespace {

constexpr std::uint32_t kOsVersionInfoSizeA = 148;
constexpr std::uint32_t kOsVersionInfoExSizeA = 156;

}  // namespace

/// Holds its mutex as often as it was waited for with success.
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
  return std::ranges::any_of(files,
                             [&](const std::string& file) { return EqualsIgnoreCase(file, path); });
}

std::unique_ptr<SystemMutex> FakeSystem::CreateMutexA(const std::string& name) {
  log_.AddRead("CreateMutexA(" + name + ")");
  if (refuseMutexes) return nullptr;
  return std::make_unique<FakeMutex>(session_, name, program_);
}

}  // namespace korvale

#include "bench/measure/usage.h"

#include <windows.h>
// psapi.h needs windows.h before it.
#include <psapi.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>

#include "tests/endtoend/harness/text.h"

namespace korvale::bench {
namespace {

namespace fs = std::filesystem;

constexpr double kNanosecondsPerMs = 1e6;
constexpr double kFileTimePerMs = 1e4;

std::string FileText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// The folder where Linux tells about a program that Wine runs; empty elsewhere.
fs::path LinuxFolder(const std::string& program) {
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(L"Z:\\proc", error)) {
    const std::wstring name = entry.path().filename().wstring();
    if (name.find_first_not_of(L"0123456789") != std::wstring::npos) continue;
    if (FileText(entry.path() / L"cmdline").find(program) == 0) return entry.path();
  }
  return {};
}

std::optional<double> LinuxProcessorTime(const std::string& program) {
  const fs::path folder = LinuxFolder(program);
  if (folder.empty()) return std::nullopt;
  double nanoseconds = 0;
  for (const fs::directory_entry& thread : fs::directory_iterator(folder / L"task")) {
    double running = 0;
    std::ifstream(thread.path() / L"schedstat") >> running;
    nanoseconds += running;
  }
  return nanoseconds / kNanosecondsPerMs;
}

double Milliseconds(const FILETIME& time) {
  return static_cast<double>(ULARGE_INTEGER{{time.dwLowDateTime, time.dwHighDateTime}}.QuadPart) /
         kFileTimePerMs;
}

endtoend::Handle Open(const endtoend::Process& process) {
  return endtoend::Handle(
      OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process.id()));
}

}  // namespace

double ResidentMemory(const endtoend::Process& process) {
  PROCESS_MEMORY_COUNTERS counters{};
  K32GetProcessMemoryInfo(Open(process).get(), &counters, sizeof(counters));
  return static_cast<double>(counters.WorkingSetSize);
}

double ProcessorTime(const endtoend::Process& process, const std::string& program) {
  if (const std::optional<double> exact = LinuxProcessorTime(program)) return *exact;
  FILETIME created{};
  FILETIME ended{};
  FILETIME kernel{};
  FILETIME user{};
  GetProcessTimes(Open(process).get(), &created, &ended, &kernel, &user);
  return Milliseconds(kernel) + Milliseconds(user);
}

ChangeCounter::ChangeCounter(const std::string& path)
    : changed_(CreateEventW(nullptr, FALSE, FALSE, nullptr)),
      end_(CreateEventW(nullptr, FALSE, FALSE, nullptr)) {
  if (path.empty()) return;
  if (RegOpenKeyExW(HKEY_CURRENT_USER, endtoend::Wide(path).c_str(), 0, KEY_NOTIFY, &key_) !=
      ERROR_SUCCESS) {
    throw std::runtime_error("there are no settings at " + path);
  }
  if (!Arm()) throw std::runtime_error("the settings cannot be watched");
  thread_ = std::thread([this] { Watch(); });
}

ChangeCounter::~ChangeCounter() { Stop(); }

int ChangeCounter::Count() {
  Stop();
  if (!watched_) throw std::runtime_error("the settings could not be watched any longer");
  return count_;
}

bool ChangeCounter::Arm() const {
  return RegNotifyChangeKeyValue(key_, TRUE, REG_NOTIFY_CHANGE_NAME | REG_NOTIFY_CHANGE_LAST_SET,
                                 changed_.get(), TRUE) == ERROR_SUCCESS;
}

void ChangeCounter::Watch() {
  const HANDLE events[] = {changed_.get(), end_.get()};
  while (watched_ && WaitForMultipleObjects(2, events, FALSE, INFINITE) == WAIT_OBJECT_0) {
    ++count_;
    watched_ = Arm();
  }
}

void ChangeCounter::Stop() {
  if (!thread_.joinable()) return;
  SetEvent(end_.get());
  thread_.join();
  RegCloseKey(key_);
}

}  // namespace korvale::bench

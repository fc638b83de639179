#include "tests/endtoend/harness/process.h"

#include <stdexcept>
#include <utility>

#include "tests/endtoend/harness/text.h"

namespace korvale::endtoend {
namespace {

struct Pipe {
  Handle read;
  Handle write;
};

Pipe MakePipe() {
  SECURITY_ATTRIBUTES inherit{sizeof(inherit), nullptr, TRUE};
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  if (CreatePipe(&read, &write, &inherit, 0) == 0) throw std::runtime_error("no pipe");
  return {Handle(read), Handle(write)};
}

}  // namespace

Handle& Handle::operator=(Handle&& other) noexcept {
  if (this != &other) {
    Reset();
    handle_ = other.Release();
  }
  return *this;
}

HANDLE Handle::Release() { return std::exchange(handle_, nullptr); }

void Handle::Reset() {
  if (handle_ != nullptr) CloseHandle(Release());
}

Process::Process(const std::string& command_line, const std::string& folder) {
  Pipe in = MakePipe();
  Pipe out = MakePipe();
  SetHandleInformation(in.write.get(), HANDLE_FLAG_INHERIT, 0);
  SetHandleInformation(out.read.get(), HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdInput = in.read.get();
  startup.hStdOutput = out.write.get();
  startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION info{};
  std::wstring command = Wide(command_line);
  const std::wstring where = Wide(folder);
  if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr,
                     where.empty() ? nullptr : where.c_str(), &startup, &info) == 0) {
    throw std::runtime_error("cannot start " + command_line + ": error " +
                             std::to_string(GetLastError()));
  }
  CloseHandle(info.hThread);
  process_ = Handle(info.hProcess);
  id_ = info.dwProcessId;
  input_ = std::move(in.write);
  output_ = std::move(out.read);
}

Process::~Process() {
  if (process_.get() != nullptr) Kill();
}

bool Process::Running() const { return WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT; }

std::optional<DWORD> Process::WaitForExit(std::chrono::milliseconds limit) const {
  if (WaitForSingleObject(process_.get(), static_cast<DWORD>(limit.count())) != WAIT_OBJECT_0) {
    return std::nullopt;
  }
  DWORD code = 0;
  GetExitCodeProcess(process_.get(), &code);
  return code;
}

void Process::Kill() {
  if (!Running()) return;
  TerminateProcess(process_.get(), 99);
  WaitForExit();
}

std::string Process::Ask(const std::string& line) {
  Tell(line);
  return ReadLine();
}

void Process::Tell(const std::string& line) {
  const std::string bytes = line + "\n";
  DWORD written = 0;
  if (WriteFile(input_.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) ==
      0) {
    throw std::runtime_error("the program no longer reads its input");
  }
}

std::string Process::ReadLine() {
  for (;;) {
    const size_t end = pending_.find('\n');
    if (end != std::string::npos) {
      std::string line = pending_.substr(0, end);
      pending_.erase(0, end + 1);
      if (line.ends_with('\r')) line.pop_back();
      return line;
    }
    char buffer[512];
    DWORD count = 0;
    if (ReadFile(output_.get(), buffer, sizeof(buffer), &count, nullptr) == 0 || count == 0) {
      throw std::runtime_error("the program no longer writes its output");
    }
    pending_.append(buffer, count);
  }
}

}  // namespace korvale::endtoend

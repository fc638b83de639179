#include "platform/windows/windows_crash_api.h"

#include <windows.h>
// After windows.h, which it needs.
#include <dbghelp.h>

#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <thread>
#include <utility>

#include "platform/windows/handles.h"
#include "platform/windows/system_library.h"
#include "platform/windows/text.h"

namespace korvale {
namespace {

/// Stack kept for handing over a crash in case the stack itself ran out, in bytes.
constexpr ULONG kStackForHandingOver = 64 * 1024;

/// Where a thread stands that has crashed.
struct CrashSite {
  Crash crash;
  DWORD thread = 0;
  /// Both empty when the program gave up by itself.
  EXCEPTION_POINTERS* exception = nullptr;
  std::exception_ptr uncaught;
};

[[noreturn]] void EndProcess(std::uint32_t code) {
  TerminateProcess(GetCurrentProcess(), code == 0 ? EXIT_FAILURE : code);
  std::abort();
}

}  // namespace

/// The thread that reports the crash of another one, which may have no stack left for it.
class WindowsCrashApi::Reporter {
 public:
  explicit Reporter(std::function<void(const Crash&)> filter)
      : filter_(std::move(filter)), thread_([this] { WaitAndReport(); }) {}
  ~Reporter() {
    SetEvent(finished_.Get());
    thread_.join();
  }
  Reporter(const Reporter&) = delete;
  Reporter& operator=(const Reporter&) = delete;

  const CrashSite& Site() const { return site_; }

  /// The first crash is reported; threads that crash meanwhile wait for the end, too.
  [[noreturn]] void HandOver(const CrashSite& site) {
    if (GetCurrentThreadId() == reporting_) EndProcess(site.crash.code);
    if (!crashed_.test_and_set()) {
      site_ = site;
      SetEvent(toReport_.Get());
    }
    for (;;) Sleep(INFINITE);
  }

 private:
  void WaitAndReport() {
    reporting_ = GetCurrentThreadId();
    const HANDLE events[] = {toReport_.Get(), finished_.Get()};
    if (WaitForMultipleObjects(2, events, FALSE, INFINITE) != WAIT_OBJECT_0) return;
    Report();
    EndProcess(site_.crash.code);
  }
  /// An exception that leaves the filter is a crash of this thread.
  void Report() noexcept {
    try {
      if (site_.uncaught) std::rethrow_exception(site_.uncaught);
    } catch (...) {
      return filter_(site_.crash);
    }
    filter_(site_.crash);
  }

  std::function<void(const Crash&)> filter_;
  UniqueKernelHandle toReport_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  UniqueKernelHandle finished_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  std::atomic_flag crashed_;
  std::atomic<DWORD> reporting_ = 0;
  CrashSite site_;
  std::thread thread_;
};

namespace {

// Windows and the runtime library hand nothing of ours to their handlers, so these must find it by
// themselves.
std::atomic<WindowsCrashApi::Reporter*>& CurrentReporter() {
  static std::atomic<WindowsCrashApi::Reporter*> reporter = nullptr;
  return reporter;
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  const Crash crash{record.ExceptionCode,
                    reinterpret_cast<std::uintptr_t>(record.ExceptionAddress)};
  if (auto* const reporter = CurrentReporter().load()) {
    reporter->HandOver({crash, GetCurrentThreadId(), exception, nullptr});
  }
  return EXCEPTION_EXECUTE_HANDLER;
}

[[noreturn]] void OnTerminate() {
  if (auto* const reporter = CurrentReporter().load()) {
    reporter->HandOver({{}, GetCurrentThreadId(), nullptr, std::current_exception()});
  }
  EndProcess(EXIT_FAILURE);
}

void OnAbort(int /*signal*/) { OnTerminate(); }

void OnInvalidParameter(const wchar_t* /*expression*/, const wchar_t* /*function*/,
                        const wchar_t* /*file*/, unsigned /*line*/, std::uintptr_t /*reserved*/) {
  OnTerminate();
}

void SetHandlers(bool set) {
  ::SetUnhandledExceptionFilter(set ? OnUnhandledException : nullptr);
  std::set_terminate(set ? OnTerminate : std::abort);
  _set_purecall_handler(set ? OnTerminate : nullptr);
  _set_invalid_parameter_handler(set ? OnInvalidParameter : nullptr);
  std::signal(SIGABRT, set ? OnAbort : SIG_DFL);
}

}  // namespace

WindowsCrashApi::WindowsCrashApi() = default;

WindowsCrashApi::~WindowsCrashApi() { SetUnhandledExceptionFilter({}); }

void WindowsCrashApi::SetUnhandledExceptionFilter(std::function<void(const Crash&)> filter) {
  SetHandlers(false);
  CurrentReporter() = nullptr;
  reporter_.reset();
  if (!filter) return;
  ULONG stack = kStackForHandingOver;
  SetThreadStackGuarantee(&stack);
  reporter_ = std::make_unique<Reporter>(std::move(filter));
  CurrentReporter() = reporter_.get();
  SetHandlers(true);
}

bool WindowsCrashApi::MiniDumpWriteDump(const std::string& path) {
  const SystemLibrary library(L"dbghelp.dll");
  auto* const write = library.Find<decltype(::MiniDumpWriteDump)>("MiniDumpWriteDump");
  if (write == nullptr || !reporter_) return false;
  const HANDLE opened = ::CreateFileW(ToUtf16(path).c_str(), GENERIC_WRITE, 0, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  const UniqueKernelHandle file(opened);
  const CrashSite& site = reporter_->Site();
  MINIDUMP_EXCEPTION_INFORMATION exception{site.thread, site.exception, FALSE};
  return write(GetCurrentProcess(), GetCurrentProcessId(), file.Get(), MiniDumpNormal,
               site.exception == nullptr ? nullptr : &exception, nullptr, nullptr) != FALSE;
}

}  // namespace korvale

#include "platform/windows/windows_crash_api.h"

#include <windows.h>
// After windows.h, which it needs.
#include <dbghelp.h>

#include <atomic>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <limits>
#include <string>
#include <utility>

#include "platform/windows/handles.h"
#include "platform/windows/system_library.h"
#include "platform/windows/text.h"

#if defined(__GLIBCXX__)
namespace __gnu_cxx {

// What std::terminate calls until it is told otherwise. The library's own one prints the type of
// the exception, for which it would bring along 50 KB that read names of C++.
void __verbose_terminate_handler() { std::abort(); }  // NOLINT(bugprone-reserved-identifier)

}  // namespace __gnu_cxx
#endif

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

/// For a report before it has said how long it may take, in milliseconds.
constexpr ULONGLONG kFirstPatience = 60'000;

/// Both compilers throw C++ exceptions as exceptions of Windows with such a code.
#if defined(_MSC_VER)
constexpr DWORD kCppException = 0xE06D7363;
#else
constexpr DWORD kCppException = 0x20474343;
#endif

}  // namespace

/// The thread that reports the crash of another one, which may have no stack left for it.
class WindowsCrashApi::Reporter {
 public:
  /// Waits until its thread runs: a crash may come while no thread can begin.
  explicit Reporter(std::function<void(const Crash&)> filter) : filter_(std::move(filter)) {
    if (Runs()) WaitForSingleObject(begun_.Get(), INFINITE);
  }
  ~Reporter() {
    SetEvent(finished_.Get());
    if (Runs()) WaitForSingleObject(thread_.Get(), INFINITE);
  }
  Reporter(const Reporter&) = delete;
  Reporter& operator=(const Reporter&) = delete;

  bool Runs() const { return static_cast<bool>(thread_); }
  bool IsThisThread() const { return GetCurrentThreadId() == reporting_; }

  /// The first crash is reported; threads that crash meanwhile wait for the end, too.
  [[noreturn]] void HandOver(const CrashSite& site) {
    if (!crashed_.test_and_set()) {
      site_ = site;
      deadline_ = GetTickCount64() + kFirstPatience;
      SetEvent(toReport_.Get());
    }
    // A report that hangs must not keep a frozen program and its hot keys.
    constexpr DWORD kBetweenLooks = 200;
    while (GetTickCount64() < deadline_) Sleep(kBetweenLooks);
    EndProcess(site.crash.code);
  }
  void SetDeadline(ULONGLONG ticks) { deadline_ = ticks; }

  bool WriteDump(HANDLE file) const {
    // Loaded only now: it takes memory that every user would pay for, and loads another library by
    // itself. If the loader of libraries stands still since the crash, the deadline ends the
    // process without a dump; the user and the log have been told by then.
    SystemLibrary library(L"dbghelp.dll");
    auto* const write = library.Find<decltype(::MiniDumpWriteDump)>("MiniDumpWriteDump");
    if (write == nullptr) return false;
    MINIDUMP_EXCEPTION_INFORMATION exception{site_.thread, site_.exception, FALSE};
    return write(GetCurrentProcess(), GetCurrentProcessId(), file, MiniDumpNormal,
                 site_.exception == nullptr ? nullptr : &exception, nullptr, nullptr) != FALSE;
  }

 private:
  static DWORD WINAPI Run(void* reporter) {
    static_cast<Reporter*>(reporter)->WaitAndReport();
    return 0;
  }
  void WaitAndReport() {
    reporting_ = GetCurrentThreadId();
    SetEvent(begun_.Get());
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
  UniqueKernelHandle begun_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  UniqueKernelHandle toReport_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  UniqueKernelHandle finished_{CreateEventW(nullptr, TRUE, FALSE, nullptr)};
  std::atomic_flag crashed_;
  std::atomic<DWORD> reporting_ = 0;
  std::atomic<ULONGLONG> deadline_ = std::numeric_limits<ULONGLONG>::max();
  CrashSite site_;
  UniqueKernelHandle thread_{CreateThread(nullptr, 0, Run, this, 0, nullptr)};
};

namespace {

/// The reporter. Windows and the runtime library hand nothing of ours to their handlers, so these
/// must find it by themselves.
class CurrentReporter {
 public:
  static CurrentReporter& Get() {
    static CurrentReporter current;
    return current;
  }

  /// Waits for the end of the process while a crash is being reported.
  void Set(WindowsCrashApi::Reporter* reporter) {
    AcquireSRWLockExclusive(&lock_);
    reporter_ = reporter;
    ReleaseSRWLockExclusive(&lock_);
  }
  /// Returns when there is no reporter.
  void HandOver(const CrashSite& site) {
    auto* const reporter = reporter_.load();
    if (reporter != nullptr && reporter->IsThisThread()) EndProcess(site.crash.code);
    // Kept until the end of the process, so that the reporter stays.
    AcquireSRWLockShared(&lock_);
    if (reporter_ != nullptr) reporter_.load()->HandOver(site);
    ReleaseSRWLockShared(&lock_);
  }

 private:
  SRWLOCK lock_ = SRWLOCK_INIT;
  std::atomic<WindowsCrashApi::Reporter*> reporter_ = nullptr;
};

[[noreturn]] void OnTerminate() {
  CurrentReporter::Get().HandOver({{}, GetCurrentThreadId(), nullptr, std::current_exception()});
  EndProcess(EXIT_FAILURE);
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  if (record.ExceptionCode == kCppException) {
#if defined(_MSC_VER)
    OnTerminate();
#else
    // Where nobody catches it, throwing goes on to std::terminate with the exception at hand.
    if ((record.ExceptionFlags & EXCEPTION_NONCONTINUABLE) == 0) {
      return EXCEPTION_CONTINUE_EXECUTION;
    }
#endif
  }
  const Crash crash{record.ExceptionCode,
                    reinterpret_cast<std::uintptr_t>(record.ExceptionAddress)};
  CurrentReporter::Get().HandOver({crash, GetCurrentThreadId(), exception, nullptr});
  return EXCEPTION_EXECUTE_HANDLER;
}

void OnAbort(int /*signal*/) { OnTerminate(); }

#if defined(_MSC_VER)
void OnInvalidParameter(const wchar_t* /*expression*/, const wchar_t* /*function*/,
                        const wchar_t* /*file*/, unsigned /*line*/, std::uintptr_t /*reserved*/) {
  OnTerminate();
}

/// What the program's own copy of the runtime library calls before it gives up. MinGW's is shared
/// with libraries of Windows, which may count on it to go on.
class RuntimeHandlers {
 public:
  RuntimeHandlers() { _set_abort_behavior(0, _WRITE_ABORT_MSG | _CALL_REPORTFAULT); }
  ~RuntimeHandlers() {
    _set_purecall_handler(pureCall_);
    _set_invalid_parameter_handler(invalidParameter_);
  }
  RuntimeHandlers(const RuntimeHandlers&) = delete;
  RuntimeHandlers& operator=(const RuntimeHandlers&) = delete;

 private:
  _purecall_handler pureCall_ = _set_purecall_handler(OnTerminate);
  _invalid_parameter_handler invalidParameter_ = _set_invalid_parameter_handler(OnInvalidParameter);
};
#else
/// Before abort() raises its signal, it shows a box of its own.
class RuntimeHandlers {
 public:
  RuntimeHandlers() = default;
  ~RuntimeHandlers() { _set_error_mode(errorMode_); }
  RuntimeHandlers(const RuntimeHandlers&) = delete;
  RuntimeHandlers& operator=(const RuntimeHandlers&) = delete;

 private:
  int errorMode_ = _set_error_mode(_OUT_TO_STDERR);
};
#endif

}  // namespace

/// The handlers that are in place, and those that were there before.
class WindowsCrashApi::Handlers {
 public:
  Handlers() = default;
  ~Handlers() {
    std::signal(SIGABRT, abort_ == SIG_ERR ? SIG_DFL : abort_);
    std::set_terminate(terminate_);
    ::SetUnhandledExceptionFilter(filter_);
  }
  Handlers(const Handlers&) = delete;
  Handlers& operator=(const Handlers&) = delete;

 private:
  LPTOP_LEVEL_EXCEPTION_FILTER filter_ = ::SetUnhandledExceptionFilter(OnUnhandledException);
  std::terminate_handler terminate_ = std::set_terminate(OnTerminate);
  decltype(std::signal(SIGABRT, OnAbort)) abort_ = std::signal(SIGABRT, OnAbort);
  RuntimeHandlers runtime_;
};

WindowsCrashApi::WindowsCrashApi() = default;

WindowsCrashApi::~WindowsCrashApi() { SetUnhandledExceptionFilter({}); }

void WindowsCrashApi::SetUnhandledExceptionFilter(std::function<void(const Crash&)> filter) {
  CurrentReporter::Get().Set(nullptr);
  handlers_.reset();
  reporter_.reset();
  if (!filter) return;
  ULONG stack = kStackForHandingOver;
  SetThreadStackGuarantee(&stack);
  auto reporter = std::make_unique<Reporter>(std::move(filter));
  // Without a thread to report its crashes the program is as useful as others are.
  if (!reporter->Runs()) return;
  reporter_ = std::move(reporter);
  CurrentReporter::Get().Set(reporter_.get());
  handlers_ = std::make_unique<Handlers>();
}

void WindowsCrashApi::TerminateProcessAfter(std::optional<std::uint32_t> milliseconds) {
  if (!reporter_) return;
  reporter_->SetDeadline(milliseconds ? GetTickCount64() + *milliseconds
                                      : std::numeric_limits<ULONGLONG>::max());
}

bool WindowsCrashApi::MiniDumpWriteDump(const std::string& path) {
  if (!reporter_) return false;
  const std::wstring name = ToUtf16(path);
  const HANDLE opened = ::CreateFileW(name.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                      FILE_ATTRIBUTE_NORMAL, nullptr);
  if (opened == INVALID_HANDLE_VALUE) return false;
  UniqueKernelHandle file(opened);
  if (reporter_->WriteDump(file.Get())) return true;
  file.Reset();
  ::DeleteFileW(name.c_str());
  return false;
}

}  // namespace korvale

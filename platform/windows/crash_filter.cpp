#include "platform/windows/crash_filter.h"

#include <windows.h>

#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <exception>
#include <utility>

namespace korvale {
namespace {

/// Stack kept for the filter in case the stack itself ran out, in bytes.
constexpr ULONG kStackForFilter = 64 * 1024;

// Windows hands nothing of ours to the filter, so it must find this by itself.
std::function<void(const Crash&)>& Filter() {
  static std::function<void(const Crash&)> filter;
  return filter;
}

/// A crash inside the filter ends the process without another report.
void ReportOnce(const Crash& crash) {
  static std::atomic_flag reporting;
  if (!reporting.test_and_set() && Filter()) Filter()(crash);
}

LONG WINAPI OnUnhandledException(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  ReportOnce({record.ExceptionCode, reinterpret_cast<std::uintptr_t>(record.ExceptionAddress)});
  return EXCEPTION_EXECUTE_HANDLER;
}

[[noreturn]] void OnTerminate() {
  ReportOnce({});
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

void SetCrashFilter(std::function<void(const Crash&)> filter) {
  Filter() = std::move(filter);
  const bool set = static_cast<bool>(Filter());
  ULONG stack = kStackForFilter;
  if (set) SetThreadStackGuarantee(&stack);
  SetUnhandledExceptionFilter(set ? OnUnhandledException : nullptr);
  std::set_terminate(set ? OnTerminate : std::abort);
}

}  // namespace korvale

#include "app/core/crash_reports.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <vector>

#include "app/core/error_reporting.h"
#include "app/core/identity.h"
#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {
namespace {

/// Dumps of former crashes that are kept.
constexpr std::size_t kFormerDumps = 2;

std::string HexText(std::uint64_t value) { return "0x" + UpperCase(HexadecimalText(value)); }

/// Describes the current exception, which nothing caught.
std::string DescribeUncaught() {
  if (!std::current_exception()) return "terminated";
  try {
    return DescribeCaught();
  } catch (const ProgramEnded&) {
    return "the end of the program was not caught";
  }
}

std::string Digits(int number) { return PadText(DecimalText(number), 2, "LEFT_ZEROES"); }

/// Sorts by time.
std::string DumpName(const LocalTime& time) {
  return std::string(kProductName) + " " + DecimalText(time.year) + "-" + Digits(time.month) + "-" +
         Digits(time.day) + " " + Digits(time.hour) + "." + Digits(time.minute) + "." +
         Digits(time.second) + ".dmp";
}

/// What the names of all dumps match.
std::string PatternOf(std::string name) {
  for (char& digit : name) {
    if (digit >= '0' && digit <= '9') digit = '?';
  }
  return name;
}

}  // namespace

CrashReports::CrashReports(SystemDialogs& dialogs, ErrorLog& log, SystemApi& system,
                           CrashApi& crashes, Clock& clock)
    : messages_(dialogs),
      log_(&log),
      system_(&system),
      crashes_(&crashes),
      clock_(&clock),
      reports_(messages_, log, [this] { WriteDump(); }) {}

void CrashReports::Report(const Crash& crash) {
  const std::string description = crash.code == 0 ? "uncaught exception: " + DescribeUncaught()
                                                  : "exception " + HexText(crash.code);
  try {
    reports_.udmFatalError(ErrorPlace::kCrash, RunTimeError::kInternalError,
                           {description, "address = " + HexText(crash.address),
                            "Korvale cannot go on and will be closed."});
  } catch (const ProgramEnded&) {
    // The process ends after this report.
    return;
  }
}

void CrashReports::WriteDump() {
  const std::string folder = log_->Folder();
  const std::string name = DumpName(clock_->GetLocalTime());
  std::vector<std::string> former = system_->FindFirstFileW(folder + PatternOf(name));
  if (!crashes_->MiniDumpWriteDump(folder + name)) return;
  std::erase(former, name);
  std::ranges::sort(former);
  const std::size_t surplus = former.size() - std::min(former.size(), kFormerDumps);
  for (std::size_t i = 0; i < surplus; ++i) system_->DeleteFileW(folder + former[i]);
}

}  // namespace korvale

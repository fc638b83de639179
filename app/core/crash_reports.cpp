#include "app/core/crash_reports.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <optional>
#include <vector>

#include "app/core/error_reporting.h"
#include "app/core/error_reports.h"
#include "app/core/identity.h"
#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {
namespace {

/// For what a report does without the user, in milliseconds.
constexpr std::uint32_t kPatience = 60'000;

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

/// Sorts by time.
std::string DumpName(const LocalTime& time) {
  return std::string(kProductName) + " " + DecimalText(time.year) + "-" + TwoDigits(time.month) +
         "-" + TwoDigits(time.day) + " " + TwoDigits(time.hour) + "." + TwoDigits(time.minute) +
         "." + TwoDigits(time.second) + ".dmp";
}

/// What the names of all dumps match.
std::string PatternOf(std::string name) {
  for (char& digit : name) {
    if (digit >= '0' && digit <= '9') digit = '?';
  }
  return name;
}

/// While it lives, a report may take any time.
class Unhurried {
 public:
  explicit Unhurried(CrashApi& crashes) : crashes_(&crashes) {
    crashes_->TerminateProcessAfter(std::nullopt);
  }
  ~Unhurried() { crashes_->TerminateProcessAfter(kPatience); }
  Unhurried(const Unhurried&) = delete;
  Unhurried& operator=(const Unhurried&) = delete;

 private:
  CrashApi* crashes_;
};

}  // namespace

std::int16_t UnownedMessageBoxes::ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                                                 const std::string& title) {
  const Unhurried whileItIsOpen(*crashes_);
  return dialogs_->MessageBoxW(0, prompt, title, buttons | win32::kMbTopmost);
}

CrashReports::CrashReports(SystemDialogs& dialogs, ErrorLog& log, SystemApi& system,
                           CrashApi& crashes, Clock& clock)
    : messages_(dialogs, crashes),
      log_(&log),
      system_(&system),
      crashes_(&crashes),
      clock_(&clock) {}

void CrashReports::Report(const Crash& crash) {
  crashes_->TerminateProcessAfter(kPatience);
  const std::string description = crash.code == 0 ? "uncaught exception: " + DescribeUncaught()
                                                  : "exception " + HexText(crash.code);
  WriteDump(TellAndRecord(messages_, *log_, ErrorPlace::kCrash, RunTimeError::kInternalError,
                          {description, "address = " + HexText(crash.address),
                           "Korvale cannot go on and will be closed."}));
}

void CrashReports::WriteDump(const std::string& folder) {
  const std::string name = DumpName(clock_->GetLocalTime());
  if (WriteDumpInto(folder, name)) return;
  const std::string other = log_->OtherFolder(folder);
  if (!other.empty()) WriteDumpInto(other, name);
}

bool CrashReports::WriteDumpInto(const std::string& folder, const std::string& name) {
  const std::string pattern = PatternOf(name);
  std::vector<std::string> former = system_->FindFirstFileW(folder + pattern);
  if (!crashes_->MiniDumpWriteDump(folder + name)) return false;
  // The user's own files have such names, too, where Windows takes any letter for "?".
  std::erase_if(
      former, [&](const std::string& file) { return file == name || PatternOf(file) != pattern; });
  std::ranges::sort(former);
  const std::size_t surplus = former.size() - std::min(former.size(), kFormerDumps);
  for (std::size_t i = 0; i < surplus; ++i) system_->DeleteFileW(folder + former[i]);
  return true;
}

}  // namespace korvale

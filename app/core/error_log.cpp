#include "app/core/error_log.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {
namespace {

namespace fs = std::filesystem;

constexpr const char* kFileName = "Error.log";
constexpr std::array<std::string_view, 7> kDayNames = {"Sun", "Mon", "Tue", "Wed",
                                                       "Thu", "Fri", "Sat"};

fs::path PathOf(const std::string& utf8) {
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string TwoDigits(int number) { return PadText(DecimalText(number), 2, "LEFT_ZEROES"); }

std::string DateLine(const LocalTime& time) {
  std::string line = "-- ";
  line += kDayNames.at(static_cast<std::size_t>(time.dayOfWeek));
  line += " " + TwoDigits(time.month) + "/" + TwoDigits(time.day) + "/" +
          PadText(DecimalText(time.year), 4, "LEFT_ZEROES");
  line += " " + TwoDigits(time.hour) + ":" + TwoDigits(time.minute) + ":" + TwoDigits(time.second);
  return line + " --";
}

std::string BooleanText(bool value) { return value ? "True" : "False"; }

[[noreturn]] void ThrowOpenError(const fs::path& folder, const fs::path& file) {
  std::error_code ignored;
  if (!fs::is_directory(folder, ignored)) throw RunTimeError(RunTimeError::kPathNotFound);
  const fs::file_status status = fs::status(file, ignored);
  const bool writable = (status.permissions() & fs::perms::owner_write) != fs::perms::none;
  if (fs::exists(status) && (!fs::is_regular_file(status) || !writable)) {
    throw RunTimeError(RunTimeError::kPathFileAccess);
  }
  throw RunTimeError(RunTimeError::kPermissionDenied);
}

}  // namespace

ErrorLog::ErrorLog(const ProgramIdentity& identity, Clock& clock,
                   std::function<ErrorLogState()> state)
    : identity_(&identity), clock_(&clock), state_(std::move(state)) {}

void ErrorLog::Append(const std::string& errorNumber, const std::string& problem,
                      const std::string& locals) {
  const fs::path folder = PathOf(identity_->programFolder);
  const fs::path file = PathOf(identity_->programFolder + kFileName);
  std::ofstream log(file, std::ios::binary | std::ios::app);
  if (!log) ThrowOpenError(folder, file);
  const ErrorLogState state = state_();
  const std::array<std::string, 10> lines = {
      "",
      DateLine(clock_->GetLocalTime()),
      "Error Code:  " + errorNumber,
      "Problem:  " + problem,
      "Locals:  " + locals,
      "0000001 = " + BooleanText(state.firstActivation),
      "0000002 = " + identity_->programFolder,
      "0000003 = " + identity_->versionText,
      "0000004 = " + BooleanText(state.menuShown),
      "0000005 = " + DecimalText(state.lastAnswer),
  };
  for (const std::string& line : lines) {
    log.clear();
    log << line << "\r\n" << std::flush;
  }
}

}  // namespace korvale

#include "app/core/error_log.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>

#include "platform/run_time_error.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr const char* kFileName = "Error.log";
constexpr std::array<std::string_view, 7> kDayNames = {"Sun", "Mon", "Tue", "Wed",
                                                       "Thu", "Fri", "Sat"};

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

}  // namespace

ErrorLog::ErrorLog(const ProgramIdentity& identity, SystemApi& system, Clock& clock,
                   std::function<ErrorLogState()> state)
    : identity_(&identity), system_(&system), clock_(&clock), state_(std::move(state)) {}

std::string ErrorLog::Folder() const {
  const std::string& own = identity_->programFolder;
  if (system_->CanAppendToFile(own + kFileName)) return own;
  const std::string data = system_->SHGetKnownFolderPath();
  return data.empty() ? own : data + "\\" + kProductName + "\\";
}

std::string ErrorLog::OtherFolderText() const {
  std::string folder = Folder();
  if (folder == identity_->programFolder) return "";
  folder.pop_back();
  return "The error is recorded in the folder " + folder +
         ", because the folder of Korvale cannot be written.";
}

void ErrorLog::Append(const std::string& errorNumber, const std::string& problem,
                      const std::string& locals) {
  const ErrorLogState state = state_();
  std::array<std::string, 10> lines = {
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
  for (std::string& line : lines) line += "\r\n";
  const std::string folder = Folder();
  if (folder != identity_->programFolder) system_->CreateDirectoryW(folder);
  if (!system_->AppendToFile(folder + kFileName, lines)) {
    throw RunTimeError(RunTimeError::kPathFileAccess);
  }
}

}  // namespace korvale

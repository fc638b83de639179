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

std::string ErrorLog::UsersFolder() const {
  // The shell knows it, too, but a program that has crashed may be unable to load the shell.
  const std::string folder = system_->GetEnvironmentVariableW("LOCALAPPDATA");
  return folder.empty() ? "" : folder + "\\" + kProductName + "\\";
}

std::string ErrorLog::Folder() const {
  const std::string& own = identity_->programFolder;
  if (system_->CanAppendToFile(own + kFileName)) return own;
  const std::string users = UsersFolder();
  return users.empty() ? own : users;
}

std::string ErrorLog::OtherFolder(const std::string& folder) {
  if (folder != identity_->programFolder) return identity_->programFolder;
  std::string users = UsersFolder();
  if (!users.empty()) system_->CreateDirectoryW(users);
  return users;
}

std::string ErrorLog::OtherFolderText(const std::string& folder) const {
  if (folder == identity_->programFolder) return "";
  return "The error is recorded in the folder " + folder.substr(0, folder.size() - 1) +
         ", because the folder of Korvale cannot be written.";
}

std::string ErrorLog::Append(const std::string& folder, const std::string& errorNumber,
                             const std::string& problem, const std::string& locals) {
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
  if (folder != identity_->programFolder) system_->CreateDirectoryW(folder);
  if (system_->AppendToFile(folder + kFileName, lines)) return folder;
  std::string other = OtherFolder(folder);
  if (!other.empty() && system_->AppendToFile(other + kFileName, lines)) return other;
  if (system_->CanAppendToFile(folder + kFileName)) return folder;
  throw RunTimeError(RunTimeError::kPathFileAccess);
}

}  // namespace korvale

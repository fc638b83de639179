#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "app/core/identity.h"
#include "platform/clock.h"
#include "platform/system_api.h"

namespace korvale {

/// What every record of the error log says about the running program.
struct ErrorLogState {
  /// The main window has been active once.
  bool firstActivation = false;
  /// The main window's menu bar is shown.
  bool menuShown = true;
  /// Result of the main form's last Yes/No question: 6 Yes, 7 No, 0 none yet.
  std::int16_t lastAnswer = 0;
};

/// Appends records to the file "Error.log", lines ended by CR LF.
class ErrorLog {
 public:
  /// `state` is called once for each record.
  ErrorLog(const ProgramIdentity& identity, SystemApi& system, Clock& clock,
           std::function<ErrorLogState()> state);

  /// The program's folder, with a closing backslash.
  const std::string& ProgramFolder() const { return identity_->programFolder; }
  /// Where a record should go, with a closing backslash: the program's folder or, when the log
  /// cannot be written there, the folder "Korvale" of the user's data. Asked once for each report.
  std::string Folder() const;
  /// The other one of these two folders, made when it is missing; "" when the user has none.
  std::string OtherFolder(const std::string& folder);
  /// A sentence that tells the user of the folder; "" for the program's.
  std::string OtherFolderText(const std::string& folder) const;

  /// Appends one record to the log in that folder or, when it does not take all of it, in the other
  /// one, with the file open only while it does. Returns the folder that has it. Throws
  /// RunTimeError 75 (Path/File access error) when neither file can be opened; errors while writing
  /// are ignored.
  std::string Append(const std::string& folder, const std::string& errorNumber,
                     const std::string& problem, const std::string& locals);

 private:
  std::string UsersFolder() const;
  const ProgramIdentity* identity_;
  SystemApi* system_;
  Clock* clock_;
  std::function<ErrorLogState()> state_;
};

}  // namespace korvale

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

  /// Where the next record goes, with a closing backslash: the program's folder or, when the log
  /// cannot be written there, the folder "Korvale" of the user's data.
  std::string Folder() const;
  /// A sentence that tells the user of the other folder; "" for the program's.
  std::string OtherFolderText() const;

  /// Appends one record, with the file open only while it does. Throws RunTimeError 75 (Path/File
  /// access error) when the file cannot be opened; errors while writing are ignored.
  void Append(const std::string& errorNumber, const std::string& problem,
              const std::string& locals);

 private:
  const ProgramIdentity* identity_;
  SystemApi* system_;
  Clock* clock_;
  std::function<ErrorLogState()> state_;
};

}  // namespace korvale

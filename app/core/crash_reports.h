#pragma once

#include <cstdint>
#include <string>

#include "app/core/error_log.h"
#include "app/core/message_boxes.h"
#include "platform/clock.h"
#include "platform/crash_api.h"
#include "platform/system_api.h"
#include "platform/system_dialogs.h"
#include "platform/win32_constants.h"

namespace korvale {

/// Message boxes that ask nothing of any window, in front of those that are always on top. While
/// one is open, the user may take any time.
class UnownedMessageBoxes : public MessageBoxes {
 public:
  UnownedMessageBoxes(SystemDialogs& dialogs, CrashApi& crashes)
      : dialogs_(&dialogs), crashes_(&crashes) {}

  std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                              const std::string& title) override;

 private:
  SystemDialogs* dialogs_;
  CrashApi* crashes_;
};

/// Reports a crash of the program from a thread beside the one that crashed. What belongs to the
/// main window's thread, such as hot keys and forms, goes with the process.
class CrashReports {
 public:
  /// `log` is only used during a report.
  CrashReports(SystemDialogs& dialogs, ErrorLog& log, SystemApi& system, CrashApi& crashes,
               Clock& clock);

  /// Tells the user, appends a record to the error log and writes a dump beside it or, when that
  /// fails, into the other folder of the log; keeps a few dumps of former crashes. What takes long
  /// without the user ends the process.
  void Report(const Crash& crash);

 private:
  void WriteDump(const std::string& folder);
  bool WriteDumpInto(const std::string& folder, const std::string& name);

  UnownedMessageBoxes messages_;
  ErrorLog* log_;
  SystemApi* system_;
  CrashApi* crashes_;
  Clock* clock_;
};

}  // namespace korvale

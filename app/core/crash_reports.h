#pragma once

#include <cstdint>
#include <string>

#include "app/core/error_log.h"
#include "app/core/error_reports.h"
#include "app/core/message_boxes.h"
#include "platform/clock.h"
#include "platform/crash_api.h"
#include "platform/system_api.h"
#include "platform/system_dialogs.h"
#include "platform/win32_constants.h"

namespace korvale {

/// Message boxes that ask nothing of any window, in front of those that are always on top.
class UnownedMessageBoxes : public MessageBoxes {
 public:
  explicit UnownedMessageBoxes(SystemDialogs& dialogs) : dialogs_(&dialogs) {}

  std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                              const std::string& title) override {
    return dialogs_->MessageBoxW(0, prompt, title, buttons | win32::kMbTopmost);
  }

 private:
  SystemDialogs* dialogs_;
};

/// Reports a crash of the program from a thread beside the one that crashed. What belongs to the
/// main window's thread, such as hot keys and forms, goes with the process.
class CrashReports {
 public:
  CrashReports(SystemDialogs& dialogs, ErrorLog& log, SystemApi& system, CrashApi& crashes,
               Clock& clock);

  /// Tells the user, appends a record to the error log and writes a dump beside it; keeps a few
  /// dumps of former crashes.
  void Report(const Crash& crash);

 private:
  void WriteDump();

  UnownedMessageBoxes messages_;
  ErrorLog* log_;
  SystemApi* system_;
  CrashApi* crashes_;
  Clock* clock_;
  ErrorReports reports_;
};

}  // namespace korvale

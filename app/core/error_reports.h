#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "app/core/error_log.h"
#include "app/core/error_reporting.h"
#include "app/core/message_boxes.h"

namespace korvale {

/// What is known about an error that ends the program, besides its numbers.
struct FatalErrorTexts {
  std::string strDescForErrorLog;
  /// Values of the failing routine's local variables, for the log.
  std::string strLocalsForErrorLog;
  /// One more sentence for the user.
  std::string strUserMessage;
};

/// Tells the user of an error that ends the program and appends a record to the log, as far as
/// either is possible; returns the folder of the record.
std::string TellAndRecord(MessageBoxes& messages, ErrorLog& log, ErrorPlace intErrorNumber,
                          std::int16_t intVB_ErrNumber, const FatalErrorTexts& texts);

/// Reports unexpected errors through message boxes and the error log.
class ErrorReports : public ErrorReporters {
 public:
  /// `shutDown` is the program's shutdown without saving.
  ErrorReports(MessageBoxes& messages, ErrorLog& log, std::function<void()> shutDown);

  void udmNonFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber) override;

  /// Tells the user, appends a record to the error log, shuts the program down and throws
  /// ProgramEnded. Neither an unwritable log nor a failing shutdown keeps the program alive.
  [[noreturn]] void udmFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber,
                                  const FatalErrorTexts& texts);

 private:
  MessageBoxes* messages_;
  ErrorLog* log_;
  std::function<void()> shutDown_;
};

/// Describes the exception that is being handled; rethrows ProgramEnded. Only inside a catch block.
std::string DescribeCaught();

}  // namespace korvale

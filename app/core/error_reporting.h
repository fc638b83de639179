#pragma once

#include <cstdint>

namespace korvale {

/// Where an unexpected error was met; the user sees the number behind " Error #".
enum class ErrorPlace : std::int16_t {
  kProgramEntry = 1,
  kEventHandler = 2,
  kProcessHotKey = 4,
  kSaving = 5,
  kCrash = 6,
};

/// The reporters of unexpected run-time errors.
class ErrorReporters {
 public:
  virtual ~ErrorReporters() = default;

  /// Tells the user and carries on. `intVB_ErrNumber` is the run-time error number, 0 = none.
  virtual void udmNonFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber) = 0;
};

/// Thrown to leave every nested call once the program has been shut down; only the edges (program
/// entry, window procedures) catch it.
struct ProgramEnded {};

}  // namespace korvale

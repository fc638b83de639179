#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace korvale {

/// A fault that no handler foresaw.
struct Crash {
  /// The code of the exception (0xC0000005 = access violation); 0 for a C++ exception that nothing
  /// caught, which is then the current one.
  std::uint32_t code = 0;
  /// The instruction where it happened; 0 when that is not known.
  std::uint64_t address = 0;
};

/// What is left to a program that has crashed.
class CrashApi {
 public:
  virtual ~CrashApi() = default;

  /// When a thread of the program crashes, it stands still for good, and `filter` is called on a
  /// thread that is kept for this. The filter must not ask anything of windows of the program,
  /// since their thread may be the one that stands still. The process ends when it returns, and at
  /// once when it crashes too. An empty one takes the former one back.
  virtual void SetUnhandledExceptionFilter(std::function<void(const Crash&)> filter) = 0;
  /// Ends the process after that many milliseconds, even when the filter hangs, unless this is
  /// called again; never without a number. Only while the filter runs.
  virtual void TerminateProcessAfter(std::optional<std::uint32_t> milliseconds) = 0;
  /// Writes the state of the program at its crash to a file for a debugger, in place of a former
  /// one; false when that failed, which leaves no file. Only while the filter runs.
  virtual bool MiniDumpWriteDump(const std::string& path) = 0;
};

}  // namespace korvale

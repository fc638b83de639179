#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/crash_api.h"

namespace korvale {

/// Crashes through kernel32, the runtime library of C++ and dbghelp. Corrupted heaps and failed
/// security checks end the process without asking anybody. A process has one of these.
class WindowsCrashApi final : public CrashApi {
 public:
  class Reporter;

  WindowsCrashApi();
  ~WindowsCrashApi() override;

  void SetUnhandledExceptionFilter(std::function<void(const Crash&)> filter) override;
  void TerminateProcessAfter(std::optional<std::uint32_t> milliseconds) override;
  bool MiniDumpWriteDump(const std::string& path) override;

 private:
  class Handlers;

  std::unique_ptr<Reporter> reporter_;
  std::unique_ptr<Handlers> handlers_;
};

}  // namespace korvale

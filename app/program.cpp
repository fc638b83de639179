#include "app/program.h"

#include <string>

#include "app/core/error_reporting.h"
#include "platform/run_time_error.h"

namespace korvale {

Program::Program(Platform& platform)
    : platform_(&platform),
      forms_(platform.host, platform.loop, platform.screen, platform.timers),
      startUp_(platform),
      form_(platform, forms_, startUp_) {
  forms_.SetUncaughtHandler([this] { ReportUncaught(); });
  platform_->crashes.SetUnhandledExceptionFilter(
      [this](const Crash& crash) { form_.ReportCrash(crash); });
}

Program::~Program() { platform_->crashes.SetUnhandledExceptionFilter({}); }

bool Program::Start() {
  return Guarded([this] {
    // Known before there is a window, so that even a failure to make one is reported and logged.
    form_.ReadIdentity();
    form_.Show();
    // Windows does not activate a window that is shown minimized.
    if (form_.WindowState() == ShowState::kMinimized) form_.Form_Activate();
  });
}

void Program::Run() {
  Guarded([this] {
    platform_->loop.RunMessageLoop([this] { return !form_.IsLoaded(); });
    // Another program may have told the thread to quit.
    form_.Unload(CloseReason::kTaskManager);
  });
}

bool Program::Guarded(const std::function<void()>& step) {
  try {
    try {
      step();
      return true;
    } catch (...) {
      const std::string description = DescribeCaught();
      form_.udmFatalError(ErrorPlace::kProgramEntry, CurrentErrorNumber(), {description, "", ""});
    }
  } catch (const ProgramEnded&) {
    // Start-up refused to run, or a fatal error: everything has been taken down already.
    return false;
  }
}

/// Reports an error that left an event handler, a timer or the window procedure. The program goes
/// on, unless it has just been taken down.
void Program::ReportUncaught() {
  try {
    try {
      throw;
    } catch (const ProgramEnded&) {
      throw;
    } catch (...) {
      form_.udmNonFatalError(ErrorPlace::kEventHandler, CurrentErrorNumber());
    }
  } catch (const ProgramEnded&) {
    platform_->loop.PostQuitMessage();
  }
}

int RunProgram(Platform& platform) {
  Program program(platform);
  if (program.Start()) program.Run();
  return 0;
}

}  // namespace korvale

#pragma once

#include <functional>

#include "app/startup.h"
#include "forms/main_form.h"
#include "platform/platform.h"
#include "ui/form_collection.h"

namespace korvale {

/// One run of the program.
class Program {
 public:
  explicit Program(Platform& platform);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Loads and shows the main form; false when start-up refused to run or failed, in which case
  /// everything has been taken down again.
  bool Start();
  /// Dispatches messages until the main form is gone.
  void Run();

  /// The way in for whoever uses the program as its user does.
  frmMain& MainForm() { return form_; }

 private:
  bool Guarded(const std::function<void()>& step);
  void ReportUncaught();

  Platform* platform_;
  FormCollection forms_;
  StartUp startUp_;
  frmMain form_;
};

/// Runs the program from start-up to its end and returns the exit code of the process: 0 whether it
/// ran or refused to.
int RunProgram(Platform& platform);

}  // namespace korvale

#pragma once

#include "desktop/main_window.h"

namespace korvale {

/// Stops the timers of the main window while it exists, so that no tick comes between the steps of
/// an operation on windows; then restarts those that are meant to run.
class TimerPause {
 public:
  explicit TimerPause(MainWindow& mainWindow) : mainWindow_(&mainWindow) {
    mainWindow_->udmTimersEnabled(false);
  }
  ~TimerPause() { mainWindow_->udmTimersEnabled(true); }

  TimerPause(const TimerPause&) = delete;
  TimerPause& operator=(const TimerPause&) = delete;

 private:
  MainWindow* mainWindow_;
};

}  // namespace korvale

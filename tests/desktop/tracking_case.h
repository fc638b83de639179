#pragma once

#include "tests/desktop/desktop_case.h"

namespace korvale {

/// A desktop with the shell and three windows, and the tracking after its first tick, which found
/// the main window in front.
class ForegroundTracking : public DesktopCase {
 protected:
  void SetUp() override {
    desktop.OpenShell();
    alpha = desktop.Open("Alpha", {.className = "Notepad"});
    beta = desktop.Open("Beta", {.className = "WordPad"});
    gamma = desktop.Open("Gamma");
    desktop.UserActivates(mainWindow.handle);
    tracker.tmrWindow_Timer();
    log.Clear();
  }

  /// The user goes to a window and works there until the next tick.
  void WorkIn(WindowHandle hwnd) {
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }

  WindowTriple Triple(WindowHandle hwnd) {
    return {hwnd, desktop.Title(hwnd), desktop.Windows().Find(hwnd)->className};
  }

  WindowHandle alpha = 0;
  WindowHandle beta = 0;
  WindowHandle gamma = 0;
};

}  // namespace korvale

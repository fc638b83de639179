#pragma once

#include "tests/desktop/desktop_case.h"

namespace korvale {

/// A desktop with the shell and three windows, and the tracking after its first tick, which found
/// the main window in front.
class ForegroundTracking : public DesktopCase {
 protected:
  ForegroundTracking() {
    desktop.OpenShell();
    desktop.UserActivates(mainWindow.handle);
    tracker.tmrWindow_Timer();
    log.Clear();
  }

  /// The user goes to a window and works there until the next tick.
  void WorkIn(WindowHandle hwnd) {
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }

  void ExpectRecord(const WindowTriple& current, const WindowTriple& alternate) {
    EXPECT_EQ(previous.current, current);
    EXPECT_EQ(previous.alternate, alternate);
  }

  WindowTriple Triple(WindowHandle hwnd) {
    return {hwnd, desktop.Title(hwnd), desktop.Windows().Find(hwnd)->className};
  }

  const WindowHandle alpha = desktop.Open("Alpha", {.className = "Notepad"});
  const WindowHandle beta = desktop.Open("Beta", {.className = "WordPad"});
  const WindowHandle gamma = desktop.Open("Gamma");
};

}  // namespace korvale

#pragma once

#include "tests/desktop/desktop_case.h"

namespace korvale {

/// Mail is a suspended Store program, Alpha stands on another virtual desktop, Beta where the user
/// is.
class CloakedWindows : public DesktopCase {
 protected:
  CloakedWindows() {
    desktop.UserSwitchesDesktop(2);
    mainWindow.handle = desktop.Open("Second main", {.process = kOurProcess});
    mail = desktop.Open("Mail", {.className = "ApplicationFrameWindow"});
    beta = desktop.Open("Beta");
    desktop.SetSuspended(mail, true);
    log.Clear();
  }

  ActivationResult Activate(WindowHandle hwnd, bool act) {
    WindowTriple window{hwnd, desktop.Title(hwnd), desktop.Windows().Find(hwnd)->className};
    return actions.ActivateWindow(window, false, act);
  }

  const WindowHandle alpha = desktop.Open("Alpha");
  WindowHandle mail = 0;
  WindowHandle beta = 0;
};

}  // namespace korvale

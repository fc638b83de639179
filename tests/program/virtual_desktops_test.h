#pragma once

#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {

/// Alpha, with Tag 1, and the main window are on the first virtual desktop; the user works in Beta
/// on the second.
class VirtualDesktopsTest : public KorvaleWorld {
 protected:
  VirtualDesktopsTest() {
    WorkIn(alpha);
    WorkIn(korvale.Handle());
    korvale.TagPrevious();
    WorkIn(alpha);
    SwitchDesktop(2);
    beta = Open("Beta");
    log.Clear();
  }

  void SwitchDesktop(int number) {
    desktop.UserSwitchesDesktop(number);
    LetTick();
  }
  int Desktop() { return desktop.Windows().CurrentDesktop(); }
  int DesktopOf(WindowHandle hwnd) { return desktop.Windows().DesktopOf(hwnd); }
  void OpenOptions() { PressHotKey(win32::kModWin, 'O'); }
  void CloseOptions() {
    korvale.user.PressCloseBox(korvale.Loaded("frmOptions").Handle());
    LetTick();
  }

  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WindowHandle beta = 0;
};

}  // namespace korvale

#include "desktop/user_desktop.h"

#include <optional>

#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"

namespace korvale {

void BringToUsersDesktop(WindowQueries& windows, WindowCommands& commands,
                         VirtualDesktops& desktops, WindowHandle hwnd) {
  const WindowHandle away = FindOnOtherDesktop(windows, desktops, hwnd);
  if (away == 0) return;
  std::optional<VirtualDesktopId> tried;
  // A window that the user has put on every desktop has an id to which no other can be moved.
  const auto movesBeside = [&](WindowHandle other) {
    if (!IsShownHere(windows, other)) return false;
    const std::optional<VirtualDesktopId> desktop = desktops.GetWindowDesktopId(other);
    if (!desktop || desktop == kNoVirtualDesktop || desktop == tried) return false;
    // Windows still shows those of the desktop that the user is just leaving.
    if (desktops.IsWindowOnCurrentVirtualDesktop(other) == false) return false;
    tried = desktop;
    return desktops.MoveWindowToDesktop(away, *desktop);
  };
  bool moved = movesBeside(windows.GetForegroundWindow());
  if (!moved) {
    windows.EnumWindows([&](WindowHandle other) {
      moved = movesBeside(other);
      return !moved;
    });
  }
  if (moved) return;
  commands.ShowWindow(away, win32::kSwHide);
  commands.ShowWindow(away, win32::kSwShowNa);
}

}  // namespace korvale

#include "desktop/window_visibility.h"

#include <cstdint>

#include "desktop/window_readers.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

/// By the shell itself or along with its owner; not by its own program.
bool IsCloakedByShell(WindowQueries& windows, WindowHandle hwnd) {
  constexpr std::uint32_t kByShell = win32::kDwmCloakedShell | win32::kDwmCloakedInherited;
  const std::uint32_t cloaked = windows.DwmGetWindowAttribute(hwnd);
  return (cloaked & kByShell) != 0 && (cloaked & win32::kDwmCloakedApp) == 0;
}

}  // namespace

bool IsCloaked(WindowQueries& windows, WindowHandle hwnd) {
  return windows.DwmGetWindowAttribute(hwnd) != 0;
}

bool IsShownHere(WindowQueries& windows, WindowHandle hwnd) {
  return windows.IsWindowVisible(hwnd) && !IsCloaked(windows, hwnd);
}

WindowHandle FindOnOtherDesktop(WindowQueries& windows, VirtualDesktops& desktops,
                                WindowHandle hwnd) {
  WindowHandle found = 0;
  for (int i = 0; i < kMostOwners && hwnd != 0 && IsCloakedByShell(windows, hwnd); ++i) {
    const bool elsewhere =
        !desktops.IsWindowOnCurrentVirtualDesktop(hwnd) && desktops.GetWindowDesktopId(hwnd);
    if (elsewhere) found = hwnd;
    hwnd = windows.GetWindow(hwnd, win32::kGwOwner);
  }
  return found;
}

bool IsPutAway(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd) {
  return IsCloaked(windows, hwnd) && FindOnOtherDesktop(windows, desktops, hwnd) == 0;
}

bool IsShown(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd) {
  return windows.IsWindowVisible(hwnd) && !IsPutAway(windows, desktops, hwnd);
}

}  // namespace korvale

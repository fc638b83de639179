#include "desktop/waiting_window.h"

#include <cstdint>

#include "desktop/seen_window.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

bool IsOwnedBy(WindowQueries& windows, WindowHandle hwnd, WindowHandle owner) {
  for (int i = 0; i < kMostOwners && hwnd != 0; ++i) {
    hwnd = windows.GetWindow(hwnd, win32::kGwOwner);
    if (hwnd == owner) return true;
  }
  return false;
}

/// A dialog on another virtual desktop is cloaked along with its owner; one that is cloaked alone,
/// or by its own program, is not on the screen.
bool IsCloakedAlone(WindowQueries& windows, WindowHandle dialog, WindowHandle owner) {
  const std::uint32_t cloak = windows.DwmGetWindowAttribute(dialog);
  return (cloak & win32::kDwmCloakedApp) != 0 || (cloak != 0 && !IsCloaked(windows, owner));
}

bool TakesInput(WindowQueries& windows, WindowHandle hwnd) {
  return SeenWindow(windows, hwnd).TakesInput();
}

}  // namespace

WindowHandle FindWaitingWindow(WindowQueries& windows, WindowHandle hwnd,
                               const std::string& className) {
  const std::uint32_t thread = windows.GetWindowThreadProcessId(hwnd);
  if (thread == 0) return 0;
  WindowHandle found = 0;
  windows.EnumWindows([&](WindowHandle candidate) {
    const bool waits = windows.GetWindowThreadProcessId(candidate) == thread &&
                       TakesInput(windows, candidate) &&
                       (className.empty() || GetWindowClass(windows, candidate) == className);
    if (waits) found = candidate;
    return !waits;
  });
  return found;
}

WindowHandle FindInputWindow(WindowQueries& windows, WindowHandle hwnd) {
  if (hwnd == 0 || windows.IsWindowEnabled(hwnd)) return hwnd;
  const WindowHandle last = windows.GetLastActivePopup(hwnd);
  const bool folded = windows.IsIconic(hwnd) && windows.IsWindowEnabled(last);
  if (last != 0 && last != hwnd && (folded || TakesInput(windows, last)) &&
      !IsCloakedAlone(windows, last, hwnd)) {
    return last;
  }
  WindowHandle found = 0;
  windows.EnumWindows([&](WindowHandle candidate) {
    // Most windows have no owner.
    if (IsOwnedBy(windows, candidate, hwnd) && TakesInput(windows, candidate) &&
        !IsCloakedAlone(windows, candidate, hwnd)) {
      found = candidate;
    }
    return found == 0;
  });
  return found;
}

}  // namespace korvale

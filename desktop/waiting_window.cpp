#include "desktop/waiting_window.h"

#include <cstdint>

#include "desktop/window_readers.h"

namespace korvale {

WindowHandle FindWaitingWindow(WindowQueries& windows, WindowHandle hwnd,
                               const std::string& className) {
  const std::uint32_t thread = windows.GetWindowThreadProcessId(hwnd);
  if (thread == 0) return 0;
  WindowHandle found = 0;
  windows.EnumWindows([&](WindowHandle candidate) {
    const bool waits = windows.GetWindowThreadProcessId(candidate) == thread &&
                       windows.IsWindowVisible(candidate) && windows.IsWindowEnabled(candidate) &&
                       (className.empty() || GetWindowClass(windows, candidate) == className);
    if (waits) found = candidate;
    return !waits;
  });
  return found;
}

}  // namespace korvale

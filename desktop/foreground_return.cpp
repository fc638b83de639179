#include "desktop/foreground_return.h"

#include "desktop/window_visibility.h"

namespace korvale {

RequestResult ReturnForegroundTo(WindowQueries& windows, WindowRequests& requests,
                                 const KnownWindow& window) {
  const WindowHandle hwnd = window.handle;
  const bool canBeInFront = StillExists(windows, window) && IsShownHere(windows, hwnd) &&
                            windows.IsWindowEnabled(hwnd) && !windows.IsIconic(hwnd);
  return canBeInFront ? requests.SetForegroundWindow(hwnd) : RequestResult::kFailed;
}

}  // namespace korvale

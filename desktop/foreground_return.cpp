#include "desktop/foreground_return.h"

#include <algorithm>

#include "desktop/window_visibility.h"

namespace korvale {

bool IsOwnForm(const LoadedForms& forms, WindowHandle hwnd) {
  if (hwnd == 0) return false;
  return std::ranges::any_of(forms.List(),
                             [&](const LoadedForm& form) { return form.handle == hwnd; });
}

RequestResult ReturnForegroundTo(WindowQueries& windows, WindowRequests& requests,
                                 const KnownWindow& window) {
  const WindowHandle hwnd = window.handle;
  const bool canBeInFront = StillExists(windows, window) && IsShownHere(windows, hwnd) &&
                            windows.IsWindowEnabled(hwnd) && !windows.IsIconic(hwnd);
  return canBeInFront ? requests.SetForegroundWindow(hwnd) : RequestResult::kFailed;
}

}  // namespace korvale

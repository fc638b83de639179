#include "desktop/foreground_return.h"

#include <algorithm>

#include "desktop/desktop.h"
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

void ReturnUserTo(Desktop& desktop, const KnownWindow& before) {
  const RequestResult back = ReturnForegroundTo(desktop.windows, desktop.requests, before);
  if (back != RequestResult::kFailed) return;
  const WindowHandle now = desktop.windows.GetForegroundWindow();
  const bool inMain = desktop.mainWindow.FocusTag() == kGotFocus;
  if (inMain || (now != 0 && !IsOwnForm(desktop.forms, now))) return;
  ReturnForegroundTo(desktop.windows, desktop.requests, desktop.tracker.LastWorkedIn());
}

}  // namespace korvale

#include "desktop/user_return.h"

#include "desktop/foreground_return.h"
#include "util/forms.h"

namespace korvale {

void ReturnUserTo(Desktop& desktop, const KnownWindow& before) {
  const RequestResult back = ReturnForegroundTo(desktop.windows, desktop.requests, before);
  if (back != RequestResult::kFailed) return;
  const WindowHandle now = desktop.windows.GetForegroundWindow();
  const bool inMain = desktop.mainWindow.FocusTag() == kGotFocus;
  if (inMain || (now != 0 && !IsOwnForm(desktop.forms, now))) return;
  ReturnForegroundTo(desktop.windows, desktop.requests, desktop.tracker.LastWorkedIn());
}

}  // namespace korvale

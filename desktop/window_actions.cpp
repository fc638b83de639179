#include "desktop/window_actions.h"

#include "app/core/identity.h"
#include "app/core/operations.h"
#include "desktop/foreground_return.h"
#include "desktop/shell_surfaces.h"
#include "desktop/timer_pause.h"
#include "desktop/title_match.h"
#include "desktop/waiting_window.h"
#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

bool CanBeSized(WindowQueries& windows, WindowHandle hwnd, std::int32_t box) {
  return windows.IsWindowEnabled(hwnd) && !windows.IsIconic(hwnd) &&
         (windows.GetWindowLongA(hwnd, win32::kGwlStyle) & box) != 0;
}

ActivationResult ResultOf(RequestResult request) {
  switch (request) {
    case RequestResult::kDone:
      return kActivationDone;
    case RequestResult::kDenied:
      return kWindowDenied;
    case RequestResult::kFailed:
      break;
  }
  return kActivationFailed;
}

}  // namespace

WindowActions::WindowActions(const DesktopParts& parts, WindowRequests& requests,
                             const WindowFilter& filter, WindowEnumeration& enumeration)
    : windows_(&parts.windows),
      requests_(&requests),
      filter_(&filter),
      enumeration_(&enumeration),
      mainWindow_(&parts.mainWindow),
      previous_(&parts.previous),
      messages_(&parts.messages) {}

ActivationResult WindowActions::ActivateWindow(WindowTriple& window, bool reportFailure, bool act,
                                               WindowHandle inFront) {
  const ActivationResult result = TryActivation(window, act, inFront);
  if (result != kActivationDone && reportFailure) ReportFailure();
  return result;
}

void WindowActions::ReportFailure() {
  messages_->ShowMessageBox("The window operation was not successful.  Please try again.",
                            win32::kMbSetForeground, kProductName);
}

void WindowActions::ReportFailureOf(WindowTriple& window) {
  if (ActivateWindow(window, true, false) == kActivationDone) ReportFailure();
}

ActivationResult WindowActions::ActivatePreviousWindow(WindowTriple& window) {
  const ActivationResult result = ActivateWindow(window, false, true);
  const WindowHandle dialog =
      result == kWindowNotEnabled ? FindInputWindow(*windows_, window.handle) : 0;
  if (dialog == 0) return result;
  // It has been enabled meanwhile, or another window has got its handle.
  if (dialog == window.handle) return ActivateWindow(window, false, true);
  if (windows_->IsIconic(window.handle)) {
    const RequestResult restored = requests_->Show(window.handle, win32::kSwRestore);
    if (restored == RequestResult::kDenied) return kWindowDenied;
    if (restored == RequestResult::kDone) {
      if (StaysMinimized(window.handle)) return kWindowDenied;
      requests_->Await(dialog, [&] { return windows_->IsWindowVisible(dialog); });
    }
  }
  WindowTriple inFrontOfIt{dialog, "", GetWindowClass(*windows_, dialog)};
  return ActivateWindow(inFrontOfIt, false, true);
}

ActivationResult WindowActions::TryActivation(WindowTriple& window, bool act,
                                              WindowHandle inFront) {
  const WindowHandle hwnd = window.handle;
  SeenWindow found(*windows_, hwnd);
  const ActivationResult kind = CheckKind(found);
  if (kind != kActivationDone) return kind;
  if (found.ClassName() != window.className) return kActivationFailed;
  const ActivationResult restored = act ? RestoreIconicOwner(hwnd) : kActivationDone;
  if (restored != kActivationDone) return restored;
  SeenWindow live(*windows_, hwnd);
  const ActivationResult shown = CheckShown(live);
  if (shown != kActivationDone) return shown;
  RefreshRecordedTitle(window, live.Title());
  if (!TitleMatches(window.text, live.Title(), false)) {
    window.handle = 0;
    return kActivationFailed;
  }
  const ActivationResult enabled = CheckEnabled(live);
  return act && enabled == kActivationDone ? BringForward(live, inFront) : enabled;
}

ActivationResult WindowActions::Examine(SeenWindow& window) {
  ActivationResult result = CheckKind(window);
  if (result == kActivationDone) result = CheckShown(window);
  return result == kActivationDone ? CheckEnabled(window) : result;
}

ActivationResult WindowActions::CheckKind(SeenWindow& window) {
  if (window.Handle() == 0 || window.ClassName().empty()) return kWindowNotOpen;
  return filter_->IsSelectableWindow(window, false, false) ? kActivationDone : kActivationFailed;
}

/// Reads the title.
ActivationResult WindowActions::CheckShown(SeenWindow& window) {
  const WindowHandle hwnd = window.Handle();
  if (!filter_->IsShown(window)) {
    // Windows hides a window that hangs behind the ghost that stands in for it.
    return windows_->IsHungAppWindow(hwnd) ? kWindowNotAnswering : kWindowNotOpen;
  }
  // One that has just gone keeps its title for the messages about it.
  return window.Title().empty() && !windows_->IsWindow(hwnd) ? kWindowNotOpen : kActivationDone;
}

/// Of a window that is shown.
ActivationResult WindowActions::CheckEnabled(SeenWindow& window) {
  if (window.TakesInput()) return kActivationDone;
  return windows_->IsWindow(window.Handle()) ? kWindowNotEnabled : kWindowNotOpen;
}

/// Also done when there is no owner to restore.
ActivationResult WindowActions::RestoreIconicOwner(WindowHandle hwnd) {
  const WindowHandle owner = GetRelatedWindow(*windows_, hwnd, 2);
  if (owner == 0 || !windows_->IsIconic(owner)) return kActivationDone;
  const RequestResult restored = requests_->Show(owner, win32::kSwRestore);
  if (restored != RequestResult::kDone) return ResultOf(restored);
  const bool denied = StaysMinimized(owner);
  requests_->Await(owner,
                   [&] { return !windows_->IsIconic(owner) && windows_->IsWindowVisible(hwnd); });
  if (!windows_->IsIconic(owner) || windows_->IsWindowVisible(hwnd)) return kActivationDone;
  return denied ? kWindowDenied : kWindowNotAnswering;
}

/// The recorded windows are known by their handles, so a new title never disqualifies them.
void WindowActions::RefreshRecordedTitle(WindowTriple& window, std::string_view title) {
  for (WindowTriple* const recorded : {&previous_->current, &previous_->alternate}) {
    if (recorded->handle != window.handle) continue;
    recorded->text = title;
    window.text = title;
  }
}

ActivationResult WindowActions::BringForward(SeenWindow& window, WindowHandle inFront) {
  const WindowHandle hwnd = window.Handle();
  KnownWindow before{inFront != 0 ? inFront : previous_->InFront(*windows_), ""};
  if (window.IsIconic()) {
    before = Know(*windows_, before.handle);
    // Learnt only once it is in front, a denial would have taken the user from where they are.
    const RequestResult allowed = requests_->ChangeNothing(hwnd);
    if (allowed != RequestResult::kDone) return ResultOf(allowed);
  }
  // What is in front now may be on its way to the back, when another selection came just before,
  // or not on the screen, when the user has just left its virtual desktop.
  if (before.handle != hwnd || previous_->menuSelection || IsCloaked(*windows_, hwnd)) {
    AwaitTheOneSelectedBefore(hwnd);
    const RequestResult brought = requests_->SetForegroundWindow(hwnd);
    if (brought != RequestResult::kDone) return ResultOf(brought);
  }
  if (!windows_->IsIconic(hwnd)) return kActivationDone;
  // Minimized only this moment.
  if (before.className.empty()) before = Know(*windows_, before.handle);
  return Unfold(hwnd, before);
}

/// The system asks nothing of a window that is in front: one of the same program that was selected
/// just before, and is still coming, would take its place afterwards.
void WindowActions::AwaitTheOneSelectedBefore(WindowHandle hwnd) {
  if (previous_->leaving != hwnd || !previous_->IsPending(*windows_)) return;
  requests_->Await(previous_->coming, [&] { return windows_->GetForegroundWindow() != hwnd; });
}

/// Restores a window for which `before` has left the foreground.
ActivationResult WindowActions::Unfold(WindowHandle hwnd, const KnownWindow& before) {
  const RequestResult restored = requests_->Show(hwnd, win32::kSwRestore);
  if (restored != RequestResult::kDenied && !StaysMinimized(hwnd)) return ResultOf(restored);
  if (before.handle != hwnd) ReturnForegroundTo(*windows_, *requests_, before);
  return kWindowDenied;
}

/// Waits until a window is restored. True when it is not, although its thread takes messages: its
/// program does not let it, or Windows has denied it without a word.
bool WindowActions::StaysMinimized(WindowHandle hwnd) {
  const auto restored = [&] { return !windows_->IsIconic(hwnd); };
  return !requests_->AwaitOneOfMany(hwnd, restored) && requests_->AwaitAnswer(hwnd) &&
         !requests_->Await(hwnd, restored);
}

WindowTriple WindowActions::MinimizeOrMaximizeForeground(std::string_view hotKeyName) {
  const bool minimize = hotKeyName == RowOf(Operation::kMinimize).name;
  if (!minimize && hotKeyName != RowOf(Operation::kRestoreMaximize).name) return {};
  const TimerPause pause(*mainWindow_);
  const WindowHandle hwnd = previous_->InFront(*windows_);
  if (hwnd == 0 || IsShellSurface(GetWindowClass(*windows_, hwnd))) return {};
  // The user does not see what they have left on another virtual desktop; what they have just
  // selected there is about to come.
  const bool coming = previous_->menuSelection && hwnd == previous_->coming;
  if (!coming && IsCloaked(*windows_, hwnd)) return {};
  if (minimize) return MinimizeForeground(hwnd);
  MaximizeOrRestoreForeground(hwnd);
  return {};
}

WindowTriple WindowActions::MinimizeForeground(WindowHandle hwnd) {
  if (!CanBeSized(*windows_, hwnd, win32::kWsMinimizeBox)) return {};
  const WindowHandle owner = GetRelatedWindow(*windows_, hwnd, 2);
  const WindowHandle target = owner != 0 ? owner : hwnd;
  if (requests_->Show(target, win32::kSwMinimize) == RequestResult::kDenied) {
    ReportFailure();
    return {};
  }
  // Windows itself may then bring some window forward, which must happen before the next step.
  if (requests_->Await(target, [&] { return windows_->IsIconic(target); })) {
    requests_->AwaitAnswer(target);
  }
  WindowTriple next = previous_->OfTagZero(mainWindow_->FocusTag() == kGotFocus);
  // Minimizing a window must not take the user to another virtual desktop.
  if (!IsShownHere(*windows_, next.handle) || windows_->IsIconic(next.handle)) return {};
  return ActivatePreviousWindow(next) == kActivationDone ? next : WindowTriple{};
}

void WindowActions::MaximizeOrRestoreForeground(WindowHandle hwnd) {
  if (!CanBeSized(*windows_, hwnd, win32::kWsMaximizeBox)) return;
  const int command = windows_->IsZoomed(hwnd) ? win32::kSwRestore : win32::kSwMaximize;
  if (requests_->Show(hwnd, command) == RequestResult::kDenied) ReportFailure();
}

void WindowActions::MinimizeAll() {
  const TimerPause pause(*mainWindow_);
  if (!ChangeAll(kMinimizeAll)) ReportFailure();
}

void WindowActions::RestoreAll() {
  const TimerPause pause(*mainWindow_);
  const bool done = ChangeAll(kRestoreAll);
  requests_->SetForegroundWindow(mainWindow_->MainHandle());
  if (!done) ReportFailure();
}

/// False when Windows denied one of the windows.
bool WindowActions::ChangeAll(EnumerationMode mode) {
  bool done = true;
  enumeration_->EnumWindows(mode, [&](SeenWindow& /*denied*/) { done = false; });
  return done;
}

}  // namespace korvale

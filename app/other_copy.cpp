#include "app/other_copy.h"

#include <algorithm>
#include <iterator>

#include "app/core/installation.h"
#include "desktop/waiting_window.h"
#include "desktop/window_readers.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

/// How long a copy that is just starting may take to show its main window, in ms.
constexpr std::uint32_t kCopyPatience = 5000;
/// How long a copy without a window, as an ending one, may keep the next one waiting, in ms.
constexpr std::uint32_t kEndPatience = 200;
constexpr std::uint32_t kCopyPoll = 50;

}  // namespace

void OtherCopy::WaitFor(Desktop& desktop, const ProgramIdentity& identity) {
  lock_ = std::make_unique<InstanceLock>(platform_->system, identity.installation);
  alone_ = lock_->TryHold(0);
  captions_ = {desktop.mainWindow.MainCaption()};
  if (!alone_) {
    std::ranges::copy(RegisteredNames(identity, platform_->store, platform_->system),
                      std::back_inserter(captions_));
  }
  for (std::uint32_t waited = 0; !alone_ && !IsSeenOrLate(desktop, waited); waited += kCopyPoll) {
    alone_ = lock_->TryHold(kCopyPoll);
  }
}

/// The copy that holds the lock can be seen, or has had its time to come or go.
bool OtherCopy::IsSeenOrLate(Desktop& desktop, std::uint32_t waited) {
  const WindowHandles copies = FindAll(desktop);
  if (Find(desktop, copies) != 0) return true;
  return waited >= (FindByCaption(desktop, copies, false) != 0 ? kCopyPatience : kEndPatience);
}

WindowHandles OtherCopy::FindAll(Desktop& desktop) {
  const WindowHandle main = desktop.mainWindow.MainHandle();
  return desktop.enumeration.FindByClass(GetWindowClass(platform_->windows, main));
}

bool OtherCopy::GiveWay(Desktop& desktop, const WindowHandles& copies) {
  if (Find(desktop, copies) == 0 && alone_) return false;
  platform_->loop.DoEvents();
  desktop.messages.ShowMessageBox("'" + desktop.mainWindow.MainCaption() + "' is already open.",
                                  win32::kMbOk, kProductName);
  BringForward(desktop, Find(desktop, FindAll(desktop)));
  return true;
}

WindowHandle OtherCopy::FindByCaption(Desktop& desktop, const WindowHandles& copies, bool visible,
                                      const WindowEnumeration::Test& qualifies) {
  for (const std::string& caption : captions_) {
    const WindowHandle found =
        desktop.enumeration.FindInstanceAmong(copies, caption, visible, qualifies);
    if (found != 0) return found;
  }
  return 0;
}

/// Also finds a copy whose main window is hidden while a box or tip of its start-up is shown.
WindowHandle OtherCopy::Find(Desktop& desktop, const WindowHandles& copies) {
  const WindowHandle shown = FindByCaption(desktop, copies, true);
  if (shown != 0 || alone_) return shown;
  return FindByCaption(desktop, copies, false, [this](SeenWindow& window) {
    return FindWaitingWindow(platform_->windows, window.Handle()) != 0;
  });
}

void OtherCopy::BringForward(Desktop& desktop, WindowHandle copy) {
  WindowQueries& windows = platform_->windows;
  if (!windows.IsWindowVisible(copy) || !windows.IsWindowEnabled(copy)) {
    // The other copy is showing something that must be answered first, on whatever desktop.
    const WindowHandle waiting = FindWaitingWindow(windows, copy);
    const bool denied =
        waiting != 0 && desktop.requests.SetForegroundWindow(waiting) == RequestResult::kDenied;
    if (denied) desktop.actions.ReportFailure();
    return;
  }
  // Another window may have got the handle meanwhile, but not with the class of a main window.
  const std::string className = GetWindowClass(windows, desktop.mainWindow.MainHandle());
  WindowTriple window{copy, GetWindowTitle(windows, copy), className};
  if (desktop.actions.ActivateWindow(window, false, true) == kWindowDenied) {
    desktop.actions.ReportFailure();
  }
}

}  // namespace korvale

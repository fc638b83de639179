#include "hotkeys/message_box.h"

#include <utility>

#include "desktop/user_desktop.h"
#include "desktop/user_return.h"
#include "desktop/waiting_window.h"
#include "desktop/window_visibility.h"
#include "platform/run_time_error.h"
#include "util/forms.h"
#include "util/raised_flag.h"

namespace korvale {
namespace {

/// The window class of message boxes and of the dialogs of Windows.
constexpr const char* kDialogClass = "#32770";

/// Counts a message box for as long as it is shown.
class DepthCount {
 public:
  explicit DepthCount(std::int16_t& depth) : depth_(&depth) { depth = AddInt16(depth, 1); }
  ~DepthCount() { --*depth_; }
  DepthCount(const DepthCount&) = delete;
  DepthCount& operator=(const DepthCount&) = delete;

 private:
  std::int16_t* depth_;
};

}  // namespace

SuspendingMessageBoxes::SuspendingMessageBoxes(Desktop& desktop, SystemDialogs& dialogs,
                                               Suspension& suspension,
                                               std::function<WindowHandle()> dialogOnTop)
    : desktop_(&desktop),
      dialogs_(&dialogs),
      suspension_(&suspension),
      dialogOnTop_(std::move(dialogOnTop)) {}

std::int16_t SuspendingMessageBoxes::ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                                                    const std::string& title) {
  const DepthCount count(suspension_->MessageBoxDepth);
  if (suspension_->MessageBoxDepth > 1) return Show(prompt, buttons, title);
  return ShowOutermost(prompt, buttons, title);
}

std::int16_t SuspendingMessageBoxes::ShowOutermost(const std::string& prompt, std::int32_t buttons,
                                                   const std::string& title) {
  const Remembered before = Remember();
  std::int16_t button = 0;
  {
    const RaisedFlag shown(suspension_->MessageBoxShown);
    try {
      Suspend();
      button = Show(prompt, buttons, title);
    } catch (...) {
      Resume(before);
      throw;
    }
    Resume(before);
  }
  GiveForegroundBack(before.foreground);
  return button;
}

SuspendingMessageBoxes::Remembered SuspendingMessageBoxes::Remember() {
  const TimerControl& timer = desktop_->mainWindow.tmrWindow();
  return {timer.Enabled(), timer.Tag(),
          Know(desktop_->windows, desktop_->previous.InFront(desktop_->windows))};
}

void SuspendingMessageBoxes::Suspend() {
  TimerControl& timer = desktop_->mainWindow.tmrWindow();
  timer.SetEnabled(false);
  // A tag other than "ON" keeps udmTimersEnabled from restarting it while the box is shown.
  timer.SetTag("OFF");
  desktop_->mainWindow.SetMainEnabled(false);
}

void SuspendingMessageBoxes::Resume(const Remembered& before) {
  TimerControl& timer = desktop_->mainWindow.tmrWindow();
  timer.SetEnabled(before.timerEnabled);
  timer.SetTag(before.timerTag);
  desktop_->mainWindow.SetMainEnabled(true);
}

std::int16_t SuspendingMessageBoxes::Show(const std::string& prompt, std::int32_t buttons,
                                          const std::string& title) {
  const WindowHandle owner = Owner();
  if (owner != 0) {
    BringToUsersDesktop(desktop_->windows, desktop_->commands, desktop_->virtualDesktops, owner);
  }
  return dialogs_->MessageBoxW(owner, prompt, title, buttons);
}

/// Windows enables the owner of a closed box and brings it to the front, so the owner must be what
/// the user sees below the box: another box or a dialog of Windows, a dialog of ours, or the main
/// window. A main window that is still hidden would be activated when its box closes, and then not
/// when it is shown. One on another virtual desktop stays there, as it is disabled anyway: a box
/// without an owner comes up where the user is.
WindowHandle SuspendingMessageBoxes::Owner() {
  const WindowHandle main = desktop_->mainWindow.MainHandle();
  const bool overAnother = suspension_->MessageBoxDepth > 1 || suspension_->DialogShown;
  const WindowHandle below =
      overAnother ? FindWaitingWindow(desktop_->windows, main, kDialogClass) : 0;
  for (const WindowHandle owner : {below, dialogOnTop_()}) {
    if (owner != 0 && desktop_->windows.IsWindowVisible(owner)) return owner;
  }
  const bool visible = desktop_->windows.IsWindowVisible(main);
  const bool elsewhere =
      visible && FindOnOtherDesktop(desktop_->windows, desktop_->virtualDesktops, main) != 0;
  return visible && !elsewhere ? main : 0;
}

void SuspendingMessageBoxes::GiveForegroundBack(const KnownWindow& before) {
  const WindowHandle now = desktop_->windows.GetForegroundWindow();
  if (before.handle == 0 || now == before.handle) return;
  // A change from our windows to another program's, back, or to the main window, which took no
  // input meanwhile, comes from closing the box; any other is the user's.
  const bool passedOn =
      now == 0 || now == desktop_->mainWindow.MainHandle() ||
      IsOwnForm(desktop_->forms, now) != IsOwnForm(desktop_->forms, before.handle);
  if (passedOn) ReturnUserTo(*desktop_, before);
}

}  // namespace korvale

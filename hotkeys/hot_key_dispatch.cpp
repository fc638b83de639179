#include "hotkeys/hot_key_dispatch.h"

#include <cstdint>

#include "app/core/form_names.h"
#include "app/core/identity.h"
#include "desktop/foreground_return.h"
#include "desktop/user_desktop.h"
#include "desktop/window_names.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
#include "hotkeys/hot_key_names.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/raised_flag.h"
#include "util/text.h"

namespace korvale {
namespace {

// Makes the caption of the suspension notice differ from those of the other message boxes.
constexpr const char* kNoticeMark = "     ";

}  // namespace

HotKeyDispatch::HotKeyDispatch(Desktop& desktop, Suspension& suspension, HotKeyActions& actions,
                               HotKeyToggle& toggle, ErrorReporters& errors)
    : desktop_(&desktop),
      suspension_(&suspension),
      actions_(&actions),
      toggle_(&toggle),
      errors_(&errors) {}

std::string HotKeyDispatch::udmProcessHotKey(const std::string& name, bool booDoAction,
                                             bool booReturnWindow,
                                             const std::string& strSupplyWindowText) {
  const bool suspended = suspension_->Active();
  try {
    if (!suspended) return Process(name, booDoAction, booReturnWindow, strSupplyWindowText);
    ShowSuspensionNotice();
  } catch (const ProgramEnded&) {
    // The main window is gone, and its timers with it.
    throw;
  } catch (...) {
    const std::int16_t number = CurrentErrorNumber();
    if (!suspended) desktop_->mainWindow.udmTimersEnabled(true);
    errors_->udmNonFatalError(ErrorPlace::kProcessHotKey, number);
  }
  return "";
}

std::string HotKeyDispatch::Process(const std::string& name, bool doAction, bool returnWindow,
                                    const std::string& suppliedText) {
  desktop_->mainWindow.udmTimersEnabled(false);
  const std::string upperName = UpperCase(name);
  const bool unknown = doAction && !IsHotKeyName(upperName);
  WindowTriple chosen = unknown || returnWindow ? ChooseWindow(suppliedText) : WindowTriple{};
  if (unknown && !IdentifyForeground(chosen)) {
    ShowNotRecognized(chosen.text);
    desktop_->mainWindow.udmTimersEnabled(true);
    desktop_->actions.ActivateWindow(chosen, false, true);
    return "";
  }
  if (doAction) Perform(upperName);
  desktop_->mainWindow.udmTimersEnabled(true);
  return returnWindow ? chosen.text : HotKeyDescription(upperName);
}

void HotKeyDispatch::ShowSuspensionNotice() {
  const std::string caption = std::string(kProductName) + kNoticeMark;
  const WindowHandle notice = desktop_->windows.FindWindowA(caption);
  if (notice != 0) return BringNoticeToUser(notice);
  desktop_->messages.ShowMessageBox(
      "Hot Keys are temporarily suspended when Korvale has a message box or a dialog box "
      "displayed.",
      win32::kMbOk, caption);
}

/// The user may have left it on another virtual desktop.
void HotKeyDispatch::BringNoticeToUser(WindowHandle notice) {
  WindowQueries& windows = desktop_->windows;
  const bool ours = windows.GetWindowThreadProcessId(notice) ==
                    windows.GetWindowThreadProcessId(desktop_->mainWindow.MainHandle());
  if (!ours || FindOnOtherDesktop(windows, desktop_->virtualDesktops, notice) == 0) return;
  BringToUsersDesktop(windows, desktop_->commands, desktop_->virtualDesktops, notice);
  desktop_->requests.SetForegroundWindow(notice);
}

WindowTriple HotKeyDispatch::ChooseWindow(const std::string& suppliedText) {
  if (!suppliedText.empty()) return {0, suppliedText, ""};
  if (desktop_->mainWindow.FocusTag() != kGotFocus) return desktop_->previous.current;
  const WindowHandle main = desktop_->mainWindow.MainHandle();
  return {main, desktop_->mainWindow.MainCaption(), GetWindowClass(desktop_->windows, main)};
}

/// Replaces `chosen` with the foreground window; false when that cannot be identified.
bool HotKeyDispatch::IdentifyForeground(WindowTriple& chosen) {
  const WindowHandle foreground = desktop_->windows.GetForegroundWindow();
  if (foreground == chosen.handle) return true;
  SeenWindow front(desktop_->windows, foreground);
  chosen = {foreground, std::string(front.Title()), std::string(front.ClassName())};
  return desktop_->filter.IsSelectableWindow(front, false, false) &&
         desktop_->tracker.FollowIfAccepted(front);
}

void HotKeyDispatch::ShowNotRecognized(const std::string& title) {
  desktop_->messages.ShowMessageBox(
      "Korvale does not recognize the Window: [" + NameInMessage(title) +
          "].  Try changing options under 'Window Identification' on the General tab of the "
          "Options dialog box.",
      win32::kMbSetForeground, kProductName);
}

void HotKeyDispatch::Perform(const std::string& name) {
  const int tag = ParentHotKeyTag(name);
  if (tag >= 0) return SelectTag(tag);
  const OperationRow* const row = FindOperation(name);
  if (row == nullptr) return;
  switch (row->operation) {
    case Operation::kMinimize:
    case Operation::kRestoreMaximize:
      return MinimizeOrMaximize(name);
    case Operation::kDisplayOptions:
      return ShowOptions();
    case Operation::kWindowMenuPopup:
      desktop_->tracker.LookAtForeground();
      return PopUpWindowMenu();
    case Operation::kToggleHotKeys:
      if (IsFormLoaded(desktop_->forms, "frmKeys2List")) return;
      return toggle_->ToggleHotKeys(kToggleFromHotKey);
  }
}

void HotKeyDispatch::MinimizeOrMaximize(const std::string& name) {
  desktop_->tracker.LookAtForeground();
  const WindowTriple next = desktop_->actions.MinimizeOrMaximizeForeground(name);
  // The user is in the window that Windows itself brought forward, even if only for a moment.
  if (next.handle == 0) return desktop_->tracker.LookAtForeground();
  desktop_->tracker.RecordSelection({next.handle, next.className});
}

void HotKeyDispatch::SelectTag(int tag) {
  // The user may have changed windows since the last tick.
  const WindowHandle inFront = desktop_->tracker.FollowForeground();
  const std::int16_t index = ToInt16(tag);
  if (desktop_->tagPasses.TagListPass(TagListMode::kExists, index) == -1 ||
      !HasTagCaption(desktop_->tags, index)) {
    return;
  }
  try {
    desktop_->selection.SelectTag(index, inFront);
  } catch (...) {
    actions_->TagSelected();
    throw;
  }
  actions_->TagSelected();
}

void HotKeyDispatch::ShowOptions() {
  if (IsFormLoaded(desktop_->forms, kOptionsForm)) {
    actions_->BringOptionsToFront();
  } else {
    actions_->udmOptions("LOAD_AND_OR_REFRESH");
  }
}

RequestResult HotKeyDispatch::BringForwardForMenu(WindowHandle main) {
  const RaisedFlag comes(desktop_->comesForMenu);
  return desktop_->requests.SetForegroundWindow(main);
}

void HotKeyDispatch::PopUpWindowMenu() {
  const WindowHandle main = desktop_->mainWindow.MainHandle();
  const WindowHandle left = desktop_->windows.GetForegroundWindow();
  const KnownWindow before = Know(desktop_->windows, desktop_->previous.InFront(desktop_->windows));
  WindowHandle selected = 0;
  BringToUsersDesktop(desktop_->windows, desktop_->commands, desktop_->virtualDesktops, main);
  if (BringForwardForMenu(main) == RequestResult::kDenied) {
    // The menu would not close when the user clicks elsewhere.
    return desktop_->actions.ReportFailure();
  }
  actions_->SetWindowMenuTag(kHotKeyWindowMenuPopup);
  try {
    selected = actions_->PopUpWindowMenu();
    // Without a message posted after it, the next pop-up of the same menu would vanish at once.
    desktop_->commands.PostMessageW(main, win32::kWmNull);
  } catch (...) {
    actions_->SetWindowMenuTag("");
    throw;
  }
  actions_->SetWindowMenuTag("");
  // Only the menu needed the main window in front, or on its way there. A user who has gone to a
  // window meanwhile, by an entry or by a click, keeps it.
  const WindowHandle now = desktop_->windows.GetForegroundWindow();
  const bool stays = now != main && now != left;
  if (selected == 0 && before.handle != main && !stays &&
      ReturnForegroundTo(desktop_->windows, desktop_->requests, before) == RequestResult::kFailed) {
    // It has gone while the menu was open.
    ReturnForegroundTo(desktop_->windows, desktop_->requests, desktop_->tracker.WindowBehind(main));
  }
}

}  // namespace korvale

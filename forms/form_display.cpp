#include "forms/form_display.h"

#include "desktop/user_desktop.h"
#include "desktop/user_return.h"
#include "platform/win32_constants.h"
#include "util/forms.h"
#include "util/raised_flag.h"

namespace korvale {

FormDisplay::FormDisplay(FormCollection& forms, Desktop& desktop, Suspension& suspension,
                         const bool& alwaysOnTop)
    : forms_(&forms), desktop_(&desktop), suspension_(&suspension), alwaysOnTop_(&alwaysOnTop) {}

std::string FormDisplay::ShowFormModal(Form& form, const DisplaySwitches& switches,
                                       std::int32_t /*milliseconds*/, const PlaceHints& hints,
                                       Form* owner) {
  ComeToUser();
  if (form.Visible()) {
    // A second loop for the same form would never see its end.
    BringToFront(form, switches);
    return form.Tag();
  }
  const KnownWindow before = Know(desktop_->windows, desktop_->previous.InFront(desktop_->windows));
  {
    const RaisedFlag shown(suspension_->DialogShown);
    form.Load();
    Place(form, switches, hints, owner);
    form.Show();
    BringToFront(form, switches);
    // It may have closed already in response to its activation; showing it would load it again.
    if (form.IsLoaded()) form.ShowModal();
  }
  GiveForegroundBack(before);
  return form.Tag();
}

void FormDisplay::ShowFormAside(Form& form) {
  ComeToUser();
  // A second loop for the same form would only hold up what waits for the first.
  if (form.Visible()) return;
  const RaisedFlag shown(suspension_->DialogShown);
  Place(form, {}, {}, nullptr);
  form.Show();
  forms_->Loop().RunMessageLoop([&form] { return !form.Visible(); });
}

RequestResult FormDisplay::ShowFormNonModal(Form& form, const DisplaySwitches& switches,
                                            Form* owner) {
  if (!form.IsLoaded()) return RequestResult::kFailed;
  ComeToUser();
  if (!form.Visible()) {
    Place(form, switches, {}, owner);
    if (switches.takeForeground != 0) {
      form.Show();
    } else {
      form.ShowInactive();
    }
  } else if (!desktop_->windows.IsWindowVisible(form.Handle())) {
    // Windows hides it together with its minimized owner.
    form.Show();
  } else if (form.WindowState() == ShowState::kMinimized) {
    form.SetWindowState(ShowState::kNormal);
  } else if (switches.keepInWorkArea != 0) {
    KeepInWorkArea(form);
  }
  return BringToFront(form, switches);
}

/// All forms hang on the main window: where that is, they are.
void FormDisplay::ComeToUser() {
  BringToUsersDesktop(desktop_->windows, desktop_->commands, desktop_->virtualDesktops,
                      desktop_->mainWindow.MainHandle());
}

void FormDisplay::Place(Form& form, const DisplaySwitches& switches, const PlaceHints& hints,
                        const Form* owner) {
  PlaceForm(form, desktop_->windows.GetForegroundWindow(), hints,
            switches.centerOnOwner != 0 ? owner : nullptr);
  if (switches.keepInWorkArea != 0) KeepInWorkArea(form);
}

RequestResult FormDisplay::BringToFront(Form& form, const DisplaySwitches& switches) {
  if (form.IsLoaded() && switches.followTopmost != 0) FollowTopmost(form.Handle());
  if (!form.IsLoaded()) return RequestResult::kFailed;
  if (switches.takeForeground == 0) return RequestResult::kDone;
  return desktop_->requests.SetForegroundWindow(form.Handle());
}

void FormDisplay::FollowTopmost(WindowHandle hwnd) {
  const bool topmost =
      (desktop_->windows.GetWindowLongA(hwnd, win32::kGwlExStyle) & win32::kWsExTopmost) != 0;
  // Clearing the style of a window that lacks it would bring it before its neighbours.
  if (!*alwaysOnTop_ && !topmost) return;
  desktop_->commands.SetWindowPos(hwnd, *alwaysOnTop_ ? win32::kHwndTopmost : win32::kHwndNoTopmost,
                                  0, 0, 0, 0, win32::kSwpNoMove | win32::kSwpNoSize);
}

void FormDisplay::GiveForegroundBack(const KnownWindow& before) {
  const WindowHandle now = desktop_->windows.GetForegroundWindow();
  if (before.handle == 0 || now == before.handle || (now != 0 && !IsOwnForm(*forms_, now))) return;
  ReturnUserTo(*desktop_, before);
}

}  // namespace korvale

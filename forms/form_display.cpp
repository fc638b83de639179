#include "forms/form_display.h"

#include <algorithm>

#include "desktop/foreground_return.h"
#include "platform/win32_constants.h"
#include "util/raised_flag.h"

namespace korvale {
namespace {

/// What must be on a monitor of a form's title bar, in both directions, so that it can be dragged.
constexpr Twips kReachable = 300;
constexpr Twips kTitleBar = 400;

void MoveTo(Form& form, Twips left, Twips top) {
  TwipsRect place = form.Place();
  place.left = left;
  place.top = top;
  form.SetPlace(place);
}

/// Where something of this length begins when it stands in the middle.
Twips Centred(Twips start, Twips room, Twips length) { return start + (room - length) / 2; }

/// The nearest beginning inside the room; what is longer than the room begins with it.
Twips Inside(Twips wished, Twips start, Twips room, Twips length) {
  return std::max(start, std::min(wished, start + room - length));
}

/// The length that two stretches have in common, negative when they lie apart.
Twips Overlap(Twips start, Twips length, Twips otherStart, Twips otherLength) {
  return std::min(start + length, otherStart + otherLength) - std::max(start, otherStart);
}

bool CanBeCentredOn(const Form* owner) {
  return owner != nullptr && owner->IsLoaded() && owner->Visible() &&
         owner->WindowState() != ShowState::kMinimized;
}

}  // namespace

FormDisplay::FormDisplay(FormCollection& forms, WindowQueries& windows, WindowCommands& commands,
                         const PreviousWindow& previous, Suspension& suspension,
                         const bool& alwaysOnTop)
    : forms_(&forms),
      windows_(&windows),
      commands_(&commands),
      previous_(&previous),
      suspension_(&suspension),
      alwaysOnTop_(&alwaysOnTop) {}

std::string FormDisplay::ShowFormModal(Form& form, const DisplaySwitches& switches,
                                       std::int32_t /*milliseconds*/, const PlaceHints& hints,
                                       Form* owner) {
  if (form.Visible()) {
    // A second loop for the same form would never see its end.
    BringToFront(form, switches);
    return form.Tag();
  }
  const WindowHandle before = previous_->InFront(*windows_);
  {
    const RaisedFlag shown(suspension_->DialogShown);
    form.Load();
    PlaceForm(form, switches, hints, owner);
    form.Show();
    BringToFront(form, switches);
    // It may have gone already in answer to its activation; showing it would load it anew.
    if (form.IsLoaded()) form.ShowModal();
  }
  GiveForegroundBack(before);
  return form.Tag();
}

void FormDisplay::ShowFormAside(Form& form) {
  // A second loop for the same form would only hold up what waits for the first.
  if (form.Visible()) return;
  const RaisedFlag shown(suspension_->DialogShown);
  form.Load();
  PlaceForm(form, {}, {}, nullptr);
  form.Show();
  forms_->Loop().RunMessageLoop([&form] { return !form.Visible(); });
}

void FormDisplay::ShowFormNonModal(Form& form, const DisplaySwitches& switches, Form* owner) {
  if (!form.IsLoaded()) return;
  if (!form.Visible()) {
    PlaceForm(form, switches, {}, owner);
    if (switches.takeForeground != 0) {
      form.Show();
    } else {
      form.ShowInactive();
    }
  } else if (!windows_->IsWindowVisible(form.Handle())) {
    // Windows hides it together with its minimized owner.
    form.Show();
  } else if (form.WindowState() == ShowState::kMinimized) {
    form.SetWindowState(ShowState::kNormal);
  } else if (switches.keepInWorkArea != 0) {
    KeepInWorkArea(form);
  }
  BringToFront(form, switches);
}

void FormDisplay::PlaceForm(Form& form, const DisplaySwitches& switches, const PlaceHints& hints,
                            Form* owner) {
  ScreenQueries& screen = forms_->Screen();
  const TwipsRect area = screen.GetMonitorInfoW(windows_->GetForegroundWindow());
  // The user may work on another monitor than the one where the owner is.
  const bool onOwner = switches.centerOnOwner != 0 && CanBeCentredOn(owner) &&
                       screen.GetMonitorInfoW(owner->Handle()) == area;
  // Its size counts the dots of the monitor that it is on.
  if (screen.GetMonitorInfoW(form.Handle()) != area) MoveTo(form, area.left, area.top);
  const TwipsRect room = onOwner ? screen.GetWindowRect(owner->Handle()) : area;
  const TwipsRect size = screen.GetWindowRect(form.Handle());
  MoveTo(form, hints.left != -1 ? hints.left : Centred(room.left, room.width, size.width),
         hints.top != -1 ? hints.top : Centred(room.top, room.height, size.height));
  if (switches.keepInWorkArea != 0) KeepInWorkArea(form);
}

void FormDisplay::KeepInWorkArea(Form& form) {
  const TwipsRect area = forms_->Screen().GetMonitorInfoW(form.Handle());
  const TwipsRect place = forms_->Screen().GetWindowRect(form.Handle());
  MoveTo(form, Inside(place.left, area.left, area.width, place.width),
         Inside(place.top, area.top, area.height, place.height));
}

void FormDisplay::BringOntoMonitor(Form& form) {
  const TwipsRect area = forms_->Screen().GetMonitorInfoW(form.Handle());
  const TwipsRect place = forms_->Screen().GetWindowRect(form.Handle());
  if (Overlap(place.left, place.width, area.left, area.width) < kReachable ||
      Overlap(place.top, kTitleBar, area.top, area.height) < kReachable) {
    KeepInWorkArea(form);
  }
}

void FormDisplay::BringToFront(Form& form, const DisplaySwitches& switches) {
  if (form.IsLoaded() && switches.followTopmost != 0) FollowTopmost(form.Handle());
  if (form.IsLoaded() && switches.takeForeground != 0) {
    commands_->SetForegroundWindow(form.Handle());
  }
}

void FormDisplay::FollowTopmost(WindowHandle hwnd) {
  const bool topmost =
      (windows_->GetWindowLongA(hwnd, win32::kGwlExStyle) & win32::kWsExTopmost) != 0;
  // A window without the style that is told so once more would come before its neighbours.
  if (!*alwaysOnTop_ && !topmost) return;
  commands_->SetWindowPos(hwnd, *alwaysOnTop_ ? win32::kHwndTopmost : win32::kHwndNoTopmost, 0, 0,
                          0, 0, win32::kSwpNoMove | win32::kSwpNoSize);
}

void FormDisplay::GiveForegroundBack(WindowHandle before) {
  const WindowHandle now = windows_->GetForegroundWindow();
  if (before == 0 || now == before || (now != 0 && !IsOwnForm(*forms_, now))) return;
  ReturnForegroundTo(*windows_, *commands_, before);
}

}  // namespace korvale

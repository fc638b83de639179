#include "tests/fuzz/lib/form_teller.h"

#include <algorithm>
#include <cstdlib>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr Twips kFarthest = 500'000;

constexpr int kKeys[] = {win32::kVkTab,  win32::kVkReturn, win32::kVkEscape, win32::kVkSpace,
                         win32::kVkLeft, win32::kVkUp,     win32::kVkRight,  win32::kVkDown,
                         win32::kVkHome, win32::kVkEnd,    win32::kVkF4,     win32::kVkMenu};

}  // namespace

Form& FormTeller::AnyForm() {
  return korvale_->Loaded(bytes_->Pick(korvale_->Form().Collection().List()).name);
}

int FormTeller::AnyKey() { return bytes_->Flag() ? bytes_->Below(256) : bytes_->Pick(kKeys); }

/// Mostly a control of the form.
int FormTeller::AnyControl(Form& form) {
  const auto count = static_cast<int>(form.Controls().size());
  return bytes_->Below(16) == 0 ? bytes_->Number() : bytes_->Below(count + 1);
}

void FormTeller::TellAnyForm() {
  Form& form = AnyForm();
  const int control = AnyControl(form);
  const int what = bytes_->Below(8);
  Event event;
  if (what == 0) event = [=](FormEvents& events) { events.OnClick(control); };
  if (what == 1) return Type(form, control);
  if (what == 2) event = AnyList(control);
  if (what == 3) event = AnyKeyEvent(control);
  if (what == 4) event = AnyMouse(control);
  if (what == 5) event = [=](FormEvents& events) { events.OnTimer(control); };
  if (what == 6) event = AnyOfWindow(form);
  if (what == 7) event = AnyClose();
  korvale_->host.Tell(form.Handle(), event);
}

FormTeller::Event FormTeller::AnyClose() {
  constexpr CloseReason kReasons[] = {CloseReason::kUser, CloseReason::kUser, CloseReason::kSession,
                                      CloseReason::kTaskManager};
  const CloseReason reason = bytes_->Pick(kReasons);
  return [=](FormEvents& events) { events.OnCloseRequested(reason); };
}

/// Only what can be typed into tells so, and shows the text already.
void FormTeller::Type(Form& form, int control) {
  const std::string text = AnyTitle(*bytes_);
  HeadlessWindow& window = korvale_->host.Window(form.Handle());
  if (control < 1 || control > static_cast<int>(window.controls.size())) return;
  ControlState& shown = window.Control(control).shown;
  if (shown.kind != ControlKind::kTextBox && shown.kind != ControlKind::kComboBox) return;
  shown.text = text;
  korvale_->host.Tell(form.Handle(),
                      [&](FormEvents& events) { events.OnTextTyped(control, text); });
}

FormTeller::Event FormTeller::AnyList(int control) {
  const int entry = bytes_->Flag() ? bytes_->Below(12) - 1 : std::max(bytes_->Number(), -1);
  const int what = bytes_->Below(3);
  return [=](FormEvents& events) {
    if (what == 0) events.OnListPicked(control, entry);
    if (what == 1) events.OnListDropDown(control);
    if (what == 2) events.OnListClosedUp(control);
  };
}

FormTeller::Event FormTeller::AnyKeyEvent(int control) {
  const int key = AnyKey();
  const unsigned shift = AnyShift();
  const auto character = static_cast<char32_t>(bytes_->Number());
  const int what = bytes_->Below(3);
  const bool repeated = bytes_->Flag();
  return [=](FormEvents& events) {
    if (what == 0) events.OnKeyDown(control, key, shift, repeated);
    if (what == 1) events.OnKeyUp(control, key, shift);
    if (what == 2) events.OnCharacter(control, character, shift);
  };
}

FormTeller::Event FormTeller::AnyMouse(int control) {
  constexpr MouseEvent kEvents[] = {MouseEvent::kDown, MouseEvent::kUp, MouseEvent::kMove};
  constexpr MouseButton kButtons[] = {MouseButton::kLeft, MouseButton::kRight, MouseButton::kNone,
                                      MouseButton::kMiddle};
  MouseInput input;
  input.event = bytes_->Pick(kEvents);
  input.button = bytes_->Pick(kButtons);
  input.shift = AnyShift();
  input.x = bytes_->Number() % kFarthest;
  input.y = bytes_->Number() % kFarthest;
  return [=](FormEvents& events) { events.OnMouse(control, input); };
}

FormTeller::Event FormTeller::AnyOfWindow(Form& form) {
  const int what = bytes_->Below(4);
  TwipsRect place = korvale_->host.Window(form.Handle()).place;
  if (bytes_->Flag()) place.left = bytes_->Number() % kFarthest;
  if (bytes_->Flag()) place.top = bytes_->Number() % kFarthest;
  if (bytes_->Flag()) place.width = std::abs(bytes_->Number() % kFarthest);
  const ShowState state = korvale_->host.Desktop().State(form.Handle());
  return [=](FormEvents& events) {
    if (what == 0) events.OnActivated();
    if (what == 1) events.OnPlaced(state, place);
    if (what == 2) events.OnDpiChanged();
    if (what == 3) events.OnMetricsChanged();
  };
}

void FormTeller::PressAKey() {
  const WindowHandle hwnd = AnyForm().Handle();
  const int key = AnyKey();
  const unsigned shift = bytes_->Flag() ? kAlt : AnyShift();
  const DesktopWindows& desktop = korvale_->host.Desktop();
  if (desktop.Active() == hwnd && desktop.IsEnabled(hwnd) &&
      desktop.State(hwnd) != ShowState::kMinimized) {
    korvale_->user.PressKey(hwnd, key, shift);
  }
}

}  // namespace korvale

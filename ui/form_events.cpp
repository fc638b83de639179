#include <utility>

#include "platform/win32_constants.h"
#include "ui/form.h"
#include "ui/form_collection.h"
#include "ui/form_placement.h"

namespace korvale {
namespace {

/// Together with Ctrl, Alt gives other characters.
bool IsAltOnly(unsigned shift) { return (shift & (kAlt | kCtrl)) == kAlt; }

/// A text box of one line cannot hold Enter, Esc and Tab, and would beep at them.
bool HasNoUseFor(const ControlState& control, char32_t character) {
  const bool oneLine = control.kind == ControlKind::kComboBox ||
                       (control.kind == ControlKind::kTextBox && (control.flags & kWordWrap) == 0);
  return oneLine && (character == win32::kVkReturn || character == win32::kVkEscape ||
                     character == win32::kVkTab || character == U'\n');
}

}  // namespace

void Form::Form_KeyDown(int& /*key*/, unsigned /*shift*/) {}
void Form::Form_KeyUp(Control* /*focused*/, int& /*key*/, unsigned /*shift*/) {}
void Form::Form_QueryUnload(bool& /*cancel*/, CloseReason /*reason*/) {}
void Form::Form_MouseMove(const MouseInput& /*input*/) {}
void Form::Control_Mouse(Control& /*control*/, const MouseInput& /*input*/) {}

void Form::WhenClicked(std::string_view name, Handler handler) {
  clicked_.insert_or_assign(std::string(name), std::move(handler));
}

void Form::WhenDroppedDown(std::string_view name, Handler handler) {
  droppedDown_.insert_or_assign(std::string(name), std::move(handler));
}

void Form::WhenClosedUp(std::string_view name, Handler handler) {
  closedUp_.insert_or_assign(std::string(name), std::move(handler));
}

void Form::WhenMenuOpens(std::string_view name, Handler handler) {
  menuOpens_.insert_or_assign(std::string(name), std::move(handler));
}

void Form::WhenMenuClicked(std::string_view name, Handler handler) {
  menuClicked_.insert_or_assign(std::string(name), std::move(handler));
}

void Form::RaiseFor(const Handlers& handlers, std::string_view name, int index) {
  if (const auto found = handlers.find(name); found != handlers.end()) found->second(index);
}

void Form::RaiseClick(Control& control) { RaiseFor(clicked_, control.Name(), control.Index()); }

void Form::UnchooseNeighbours(const Control& chosen) {
  for (Control& control : controls_) {
    const ControlState& state = control.State();
    const bool neighbour = state.kind == ControlKind::kOptionButton &&
                           state.container == chosen.State().container && state.id != chosen.Id();
    if (neighbour) control.SetValue(0);
  }
}

void Form::StartOrStopTimer(const Control& timer) {
  if (!IsLoaded()) return;
  if (timer.Enabled() && timer.Interval() > 0) {
    forms_->Timers().SetTimer(handle_, timer.Id(), timer.Interval());
  } else {
    forms_->Timers().KillTimer(handle_, timer.Id());
  }
}

bool Form::IsControl(int control) const {
  return IsLoaded() && control > 0 && static_cast<std::size_t>(control) <= controls_.size();
}

void Form::OnClick(int control) {
  if (!IsControl(control) || !TakesInput() || !CanTakeInput(StateOf(control))) return;
  Control& clicked = ById(control);
  switch (clicked.State().kind) {
    case ControlKind::kCheckBox:
      clicked.SetValue(1 - clicked.Value());
      break;
    case ControlKind::kOptionButton:
      clicked.SetValue(1);
      break;
    default:
      RaiseClick(clicked);
  }
}

void Form::OnTextTyped(int control, const std::string& text) {
  if (!IsControl(control)) return;
  ControlState& state = StateOf(control);
  if (state.text == text) return;
  if (!TakesInput()) return ById(control).Changed(ControlProperty::kText);
  state.text = text;
  if (state.kind == ControlKind::kComboBox) state.listIndex = -1;
  RaiseClick(ById(control));
}

void Form::OnListPicked(int control, int listIndex) {
  if (!IsControl(control)) return;
  Control& list = ById(control);
  if (!TakesInput()) return list.Changed(ControlProperty::kListIndex);
  if (listIndex >= static_cast<int>(list.Items().size())) {
    // Another program has put an entry into the list.
    list.Changed(ControlProperty::kItems);
    return;
  }
  list.TakeListIndex(listIndex);
  RaiseClick(list);
}

void Form::OnListDropDown(int control) {
  if (!IsControl(control) || !TakesInput()) return;
  RaiseFor(droppedDown_, StateOf(control).name, StateOf(control).index);
}

void Form::OnListClosedUp(int control) {
  if (IsControl(control)) RaiseFor(closedUp_, StateOf(control).name, StateOf(control).index);
}

bool Form::OnKeyDown(int control, int virtualKey, unsigned shift, bool repeated) {
  if (!IsLoaded() || (control != 0 && !IsControl(control))) return false;
  if (!TakesInput()) return true;
  if (virtualKey == win32::kVkMenu) altUsed_ = false;
  int key = virtualKey;
  keyRepeats_ = repeated;
  Form_KeyDown(key, shift);
  const bool taken = key == 0 || !IsLoaded() || DialogKey(control, key, shift);
  if (taken && IsAltOnly(shift)) altUsed_ = true;
  return taken;
}

bool Form::OnCharacter(int control, char32_t character, unsigned shift) {
  if (!IsLoaded() || (control != 0 && !IsControl(control))) return false;
  if (!TakesInput()) return true;
  // Latin letters and digits have been handled as keys, whatever the keyboard layout.
  constexpr char32_t kFirstBeyondAscii = 0x80;
  if (character < kFirstBeyondAscii) {
    return control != 0 && HasNoUseFor(StateOf(control), character);
  }
  const bool taken = PressAccessKey(control, character, (shift & kAlt) != 0);
  if (taken && IsAltOnly(shift)) altUsed_ = true;
  return taken;
}

bool Form::OnKeyUp(int control, int virtualKey, unsigned shift) {
  if (!IsLoaded() || (control != 0 && !IsControl(control))) return false;
  if (!TakesInput()) return true;
  // Windows has not seen the key pressed with Alt, so it would take Alt for one pressed alone,
  // which opens the menu.
  const bool altUsed = virtualKey == win32::kVkMenu && std::exchange(altUsed_, false);
  int key = virtualKey;
  Form_KeyUp(control == 0 ? nullptr : &ById(control), key, shift);
  return altUsed || key == 0;
}

void Form::OnMouse(int control, const MouseInput& input) {
  if (!TakesInput()) return;
  // Settled first: an error in a handler ends this event and must leave nothing for the next.
  const bool clicked = TakePress(control, input);
  if (IsControl(control)) {
    Control_Mouse(ById(control), input);
  } else if (control == 0 && input.event == MouseEvent::kMove) {
    Form_MouseMove(input);
  }
  if (clicked) OnClick(control);
}

/// Notes what the left button goes down on; true when it comes up on the same label or image.
bool Form::TakePress(int control, const MouseInput& input) {
  if (input.button != MouseButton::kLeft || input.event == MouseEvent::kMove) return false;
  const int pressed = std::exchange(pressed_, input.event == MouseEvent::kDown ? control : 0);
  if (input.event != MouseEvent::kUp || pressed != control || !IsControl(control)) return false;
  const ControlKind kind = StateOf(control).kind;
  return kind == ControlKind::kLabel || kind == ControlKind::kImage;
}

void Form::OnFocusMoved(int control) {
  // Without a control the focus has left the form and will return to the same one.
  if (!IsControl(control) || control == focused_) return;
  focused_ = control;
  MarkDefaultButton();
}

void Form::OnMenuOpened(MenuItem& menu) {
  if (IsLoaded()) RaiseFor(menuOpens_, menu.name, menu.index);
}

void Form::OnMenuClicked(MenuItem& item) {
  if (!TakesInput() || !item.enabled || !item.visible) return;
  RaiseFor(menuClicked_, item.name, item.index);
}

void Form::OnActivated() {
  if (!IsLoaded()) return;
  EnsureFocus();
  forms_->Host().SetFocus(handle_, focused_);
  Form_Activate();
}

/// False for what is known already, and for a place that Windows gives again in place of one that
/// it has refused: a form that insisted would be told of it without end.
bool Form::IsNews(ShowState state, const TwipsRect& place) const {
  return state != state_.windowState || (place != state_.place && givenInstead_ != place);
}

void Form::OnPlaced(ShowState state, const TwipsRect& place) {
  if (!IsLoaded()) return;
  const bool news = IsNews(state, place);
  givenInstead_.reset();
  if (place != state_.place) givenInstead_ = place;
  if (!news) return;
  // A hidden window is never minimized or maximized yet; the model says how it will be shown.
  if (!state_.visible) state = state_.windowState;
  NoteUsersPlace(state, place);
  const bool restored = state == ShowState::kNormal && state != state_.windowState;
  bool changed = state != state_.windowState;
  bool moved = false;
  state_.windowState = state;
  if (state != ShowState::kMinimized) {
    moved = place.left != state_.place.left || place.top != state_.place.top;
    changed = changed || place.width != state_.place.width || place.height != state_.place.height;
    state_.place = place;
    place_.left = place.left;
    place_.top = place.top;
    // A form of a fixed size has that of its design, also while its frame is still that of the
    // monitor which it comes from.
    if (state_.border == BorderStyle::kSizable) {
      const TwipsRect growth = FrameGrowth();
      place_.width = place.width - growth.width;
      place_.height = place.height - growth.height;
    }
  }
  if (!shownBefore_) return;
  if (changed) {
    Form_Resize();
  } else if (moved) {
    Form_Move();
  }
  // The screen may have become smaller meanwhile.
  if (restored && inside_) FitIntoWorkArea();
  NoteWhetherInside();
}

void Form::OnDpiChanged() {
  if (!IsLoaded()) return;
  const TwipsRect place = RealPlace();
  if (state_.windowState == ShowState::kNormal && place != state_.place) {
    state_.place = place;
    forms_->Host().MoveWindow(handle_);
  }
  if (shownBefore_) Form_Resize();
}

void Form::OnMetricsChanged() {
  const bool inside = inside_;
  OnDpiChanged();
  if (!IsLoaded() || !state_.visible || state_.windowState != ShowState::kNormal) return;
  if (state_.border != BorderStyle::kSizable) {
    KeepInWorkArea(*this);
  } else if (inside) {
    FitIntoWorkArea();
  } else {
    BringOntoMonitor(*this);
  }
}

void Form::OnSysColorChange() {
  if (IsLoaded()) Form_SysColorChange();
}

void Form::OnCloseRequested(CloseReason reason) {
  if (reason != CloseReason::kUser || TakesInput()) Unload(reason);
}

/// A message that was in the queue, or comes from another program, reaches a disabled window, too.
/// Windows disables the owner of a box, and any program can enable what we have disabled.
bool Form::TakesInput() const {
  return IsLoaded() && state_.enabled && !forms_->IsBlocked(*this) &&
         forms_->Host().IsWindowEnabled(handle_);
}

void Form::OnTimer(int control) {
  // Any program may post a tick.
  if (!IsControl(control) || StateOf(control).kind != ControlKind::kTimer) return;
  Control& timer = ById(control);
  if (timer.Enabled()) return RaiseClick(timer);
  StartOrStopTimer(timer);
}

void Form::OnUncaught() noexcept { forms_->ReportUncaught(); }

}  // namespace korvale

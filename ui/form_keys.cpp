#include <algorithm>
#include <iterator>

#include "platform/win32_constants.h"
#include "ui/access_key.h"
#include "ui/form.h"
#include "ui/form_collection.h"

namespace korvale {
namespace {

bool IsArrow(int virtualKey) {
  return virtualKey >= win32::kVkLeft && virtualKey <= win32::kVkDown;
}

bool IsBackwardArrow(int virtualKey) {
  return virtualKey == win32::kVkLeft || virtualKey == win32::kVkUp;
}

bool IsLetterOrDigit(int virtualKey) {
  return (virtualKey >= 'A' && virtualKey <= 'Z') || (virtualKey >= '0' && virtualKey <= '9');
}

bool TakesCharacters(ControlKind kind) {
  return kind == ControlKind::kTextBox || kind == ControlKind::kDropDownList ||
         kind == ControlKind::kComboBox;
}

bool TakesFocus(ControlKind kind) {
  return TakesCharacters(kind) || kind == ControlKind::kButton || kind == ControlKind::kCheckBox ||
         kind == ControlKind::kOptionButton || kind == ControlKind::kTabStrip;
}

/// The tab, counted from 0, whose caption has this access key; 0 also for the control's own
/// caption; -1 = none.
int CaptionWithKey(const ControlState& control, char32_t character) {
  switch (control.kind) {
    case ControlKind::kLabel:
    case ControlKind::kFrame:
    case ControlKind::kButton:
    case ControlKind::kCheckBox:
    case ControlKind::kOptionButton:
      return (control.flags & kNoPrefix) == 0 && HasAccessKey(control.text, character) ? 0 : -1;
    case ControlKind::kTabStrip:
      for (std::size_t tab = 0; tab < control.items.size(); ++tab) {
        if (HasAccessKey(control.items[tab].text, character)) return static_cast<int>(tab);
      }
      return -1;
    default:
      return -1;
  }
}

}  // namespace

bool Form::CanTakeInput(const ControlState& control) const {
  return state_.IsVisible(control) && state_.IsEnabled(control);
}

bool Form::CanTakeFocus(const ControlState& control) const {
  return TakesFocus(control.kind) && CanTakeInput(control);
}

int Form::TabStopOf(int control) const {
  const ControlState& state = StateOf(control);
  if (state.kind != ControlKind::kOptionButton) return control;
  // A group of option buttons is one stop: the chosen one, or else the first.
  int first = 0;
  for (const ControlState& option : state_.controls) {
    const bool sameGroup = option.kind == ControlKind::kOptionButton &&
                           option.container == state.container && CanTakeFocus(option);
    if (!sameGroup) continue;
    if (option.value == 1) return option.id;
    if (first == 0) first = option.id;
  }
  return first == 0 ? control : first;
}

std::vector<int> Form::TabStops() const {
  std::vector<int> stops;
  for (const ControlState& control : state_.controls) {
    const bool stop = CanTakeFocus(control) && (control.flags & kNoTabStop) == 0 &&
                      TabStopOf(control.id) == control.id;
    if (stop) stops.push_back(control.id);
  }
  return stops;
}

bool Form::MoveFocus(int from, bool backwards) {
  const std::vector<int> stops = TabStops();
  if (stops.empty()) return false;
  const int start = from == 0 ? 0 : TabStopOf(from);
  int target = 0;
  if (backwards) {
    const auto behind = std::ranges::lower_bound(stops, start);
    target = behind == stops.begin() ? stops.back() : *std::prev(behind);
  } else {
    const auto behind = std::ranges::upper_bound(stops, start);
    target = behind == stops.end() ? stops.front() : *behind;
  }
  FocusOn(target);
  return true;
}

void Form::FocusOn(int control) {
  if (!CanTakeFocus(StateOf(control))) return;
  focused_ = control;
  MarkDefaultButton();
  if (state_.visible) forms_->Host().SetFocus(handle_, control);
}

void Form::EnsureFocus() {
  if (focused_ == 0 || !CanTakeFocus(StateOf(focused_))) {
    const std::vector<int> stops = TabStops();
    focused_ = stops.empty() ? 0 : stops.front();
  }
  MarkDefaultButton();
}

void Form::KeepFocusReachable() {
  if (focused_ != 0 && !CanTakeFocus(StateOf(focused_)) && !MoveFocus(focused_, false)) {
    focused_ = 0;
    if (state_.visible) forms_->Host().SetFocus(handle_, 0);
  }
  MarkDefaultButton();
}

Control* Form::ButtonWithFlag(unsigned flag) {
  for (Control& control : controls_) {
    // The design decides; the flags of the model only say which button is drawn as the default.
    const unsigned flags = rows_[static_cast<std::size_t>(control.Id()) - 1].flags;
    if ((flags & flag) != 0 && CanTakeInput(control.State())) return &control;
  }
  return nullptr;
}

Control* Form::DefaultButtonFor(int focused) {
  if (focused != 0 && StateOf(focused).kind == ControlKind::kButton) return &ById(focused);
  return ButtonWithFlag(kDefaultButton);
}

void Form::MarkDefaultButton() {
  const Control* const button = DefaultButtonFor(focused_);
  for (ControlState& control : state_.controls) {
    const unsigned mark = button != nullptr && control.id == button->Id() ? kDefaultButton : 0U;
    if ((control.flags & kDefaultButton) == mark) continue;
    control.flags ^= kDefaultButton;
    ById(control.id).Changed(ControlProperty::kDefault);
  }
}

bool Form::DialogKey(int control, int virtualKey, unsigned shift) {
  if ((shift & (kCtrl | kWindows)) != 0) return false;
  const bool alt = (shift & kAlt) != 0;
  if (IsLetterOrDigit(virtualKey)) {
    return PressAccessKey(control, static_cast<char32_t>(virtualKey), alt);
  }
  if (alt) return false;
  if (virtualKey == win32::kVkTab) return MoveFocus(control, (shift & kShift) != 0);
  // An open list keeps the keys that choose and close.
  if (control != 0 && ById(control).Dropped()) return false;
  if (IsArrow(virtualKey)) return MoveChoice(control, IsBackwardArrow(virtualKey));
  const Control* button = nullptr;
  if (virtualKey == win32::kVkReturn) button = DefaultButtonFor(control);
  if (virtualKey == win32::kVkEscape) button = ButtonWithFlag(kCancelButton);
  if (button == nullptr) return false;
  OnClick(button->Id());
  return true;
}

bool Form::MoveChoice(int from, bool backwards) {
  if (from == 0 || StateOf(from).kind != ControlKind::kOptionButton) return false;
  std::vector<int> group;
  for (const ControlState& option : state_.controls) {
    const bool sameGroup = option.kind == ControlKind::kOptionButton &&
                           option.container == StateOf(from).container && CanTakeFocus(option);
    if (sameGroup) group.push_back(option.id);
  }
  if (backwards) std::ranges::reverse(group);
  const auto here = std::ranges::find(group, from);
  if (here == group.end()) return false;
  const int target = std::next(here) == group.end() ? group.front() : *std::next(here);
  FocusOn(target);
  OnClick(target);
  return true;
}

bool Form::PressAccessKey(int focused, char32_t character, bool alt) {
  if (!alt && focused != 0 && TakesCharacters(StateOf(focused).kind)) return false;
  const int count = static_cast<int>(state_.controls.size());
  for (int step = 1; step <= count; ++step) {
    const int id = (focused + step - 1) % count + 1;
    const ControlState& candidate = StateOf(id);
    if (CanTakeInput(candidate) && CaptionWithKey(candidate, character) >= 0) {
      return UseAccessKey(ById(id), character);
    }
  }
  return false;
}

bool Form::UseAccessKey(Control& control, char32_t character) {
  const ControlState& state = control.State();
  if (state.kind == ControlKind::kLabel || state.kind == ControlKind::kFrame) {
    return MoveFocus(state.id, false);
  }
  FocusOn(state.id);
  if (state.kind == ControlKind::kTabStrip) {
    control.SetListIndex(CaptionWithKey(state, character));
  } else {
    OnClick(state.id);
  }
  return true;
}

}  // namespace korvale

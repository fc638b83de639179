#include "ui/windows/form_controls.h"

#include <algorithm>
#include <utility>

#include "ui/windows/control_content.h"
#include "ui/windows/control_window.h"
#include "ui/windows/units.h"
#include "ui/windows/window_classes.h"

namespace korvale {
namespace {

/// An etched line is a dark and a light row of pixels, whatever the design gives it.
constexpr int kEtchedLine = 2;

int HeightOf(HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  return area.bottom - area.top;
}

/// Gives a combo box its height, that of its text field and borders; the window is placed as high
/// as with its open list.
void PlaceCombo(HWND window, const PixelPlace& place) {
  int borders = 6;  // A first guess.
  const auto makeField = [&] {
    SendMessageW(window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), place.height - borders);
  };
  makeField();
  const auto entry = static_cast<int>(SendMessageW(window, CB_GETITEMHEIGHT, 0, 0));
  MoveWindow(window, place.left, place.top, place.width,
             place.height + entry * kDroppedEntries + borders, TRUE);
  // Wine makes a field that is moved as high as its text at least, so only the second answer tells
  // of the borders alone.
  for (int answer = 0; answer < 2; ++answer) {
    const int tooHigh = HeightOf(window) - place.height;
    if (tooHigh == 0) return;
    borders += tooHigh;
    makeField();
  }
}

void ShowValue(HWND button, const ControlState& control) {
  SendMessageW(button, BM_SETCHECK, control.value != 0 ? BST_CHECKED : BST_UNCHECKED, 0);
}

}  // namespace

bool FormControls::Create(HWND form, const std::wstring& pageClass) {
  formWindow_ = form;
  MakeFont();
  return std::ranges::all_of(
      form_->controls, [&](const ControlState& control) { return CreateOne(control, pageClass); });
}

bool FormControls::CreateOne(const ControlState& control, const std::wstring& pageClass) {
  POINT origin{};
  const HWND window =
      CreateControlWindow(control, Holder(control, origin), instance_, pageClass.c_str());
  windows_.push_back(window);
  icons_.emplace_back();
  if (window == nullptr) return !HasWindow(control.kind);
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font_.Get()), FALSE);
  using enum ControlProperty;
  for (const ControlProperty property : {kItems, kText, kPlace, kValue, kEnabled, kVisible}) {
    Apply(control, property);
  }
  return true;
}

void FormControls::MakeFont() {
  UniqueFont font = scale_->MakeMessageFont();
  for (const HWND window : windows_) {
    if (window != nullptr) {
      SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font.Get()), FALSE);
    }
  }
  font_ = std::move(font);
}

void FormControls::CloseLists() const {
  for (std::size_t control = 1; control <= windows_.size(); ++control) {
    const int id = static_cast<int>(control);
    if (IsListDropped(id)) SendMessageW(Window(id), CB_SHOWDROPDOWN, FALSE, 0);
  }
}

void FormControls::Rescale() {
  const bool outer = std::exchange(updating_, true);
  MakeFont();
  toolTips_.Rescale();
  for (const ControlState& control : form_->controls) {
    if (Window(control.id) != nullptr) PlaceAgain(control);
  }
  InvalidateRect(formWindow_, nullptr, TRUE);
  updating_ = outer;
}

void FormControls::PlaceAgain(const ControlState& control) {
  // A combo box that is resized selects all its text.
  if (control.kind != ControlKind::kComboBox) return ApplyPlace(control);
  const HWND window = Window(control.id);
  const TextSelection selection = ReadSelection(window, control.kind);
  ApplyPlace(control);
  ShowSelection(window, control.kind, selection);
}

void FormControls::TellSysColorChange() {
  for (const HWND window : windows_) {
    if (window != nullptr) SendMessageW(window, WM_SYSCOLORCHANGE, 0, 0);
  }
}

void FormControls::Update(int control, ControlProperty property) {
  if (Window(control) == nullptr) return;
  const bool outer = std::exchange(updating_, true);
  Apply(State(control), property);
  // Controls in a frame are not children of the frame's window.
  const bool inherited = property == ControlProperty::kPlace ||
                         property == ControlProperty::kVisible ||
                         property == ControlProperty::kEnabled;
  if (inherited) {
    for (const ControlState& held : form_->controls) {
      if (held.container == control) Update(held.id, property);
    }
  }
  updating_ = outer;
}

void FormControls::Apply(const ControlState& control, ControlProperty property) {
  const HWND window = Window(control.id);
  const bool list = IsComboKind(control.kind) || control.kind == ControlKind::kTabStrip;
  switch (property) {
    case ControlProperty::kText:
      if (control.kind != ControlKind::kDropDownList) ShowText(window, control);
      break;
    case ControlProperty::kPlace:
      ApplyPlace(control);
      break;
    case ControlProperty::kVisible:
      ApplyVisible(control);
      break;
    case ControlProperty::kEnabled:
      EnableWindow(window, form_->IsEnabled(control));
      break;
    case ControlProperty::kValue:
      if (IsButtonKind(control.kind)) ShowValue(window, control);
      break;
    case ControlProperty::kColors:
      InvalidateRect(window, nullptr, TRUE);
      break;
    case ControlProperty::kBorder:
      ShowBorder(window, control);
      break;
    case ControlProperty::kItems:
      if (list) ShowItems(window, control);
      break;
    case ControlProperty::kListIndex:
      if (list) ShowListIndex(window, control);
      break;
    case ControlProperty::kDefault:
      if (control.kind == ControlKind::kButton) ShowDefault(window, control);
      break;
  }
}

void FormControls::ApplyPlace(const ControlState& control) {
  POINT origin{};
  Holder(control, origin);
  PixelPlace place = ToPixels(control.place, Dpi());
  place.left += origin.x;
  place.top += origin.y;
  if (IsComboKind(control.kind)) {
    PlaceCombo(Window(control.id), place);
  } else {
    if (control.kind == ControlKind::kLine) {
      place.width = std::max(place.width, kEtchedLine);
      place.height = std::max(place.height, kEtchedLine);
    }
    MoveWindow(Window(control.id), place.left, place.top, place.width, place.height, TRUE);
  }
  if (control.kind == ControlKind::kImage) ApplyIcon(control);
  ApplyTip(control);
}

void FormControls::ApplyVisible(const ControlState& control) {
  ShowWindow(Window(control.id), form_->IsVisible(control) ? SW_SHOWNA : SW_HIDE);
  ApplyTip(control);
}

void FormControls::ApplyTip(const ControlState& control) {
  toolTips_.Set(Window(control.id), control.toolTip, form_->IsVisible(control));
}

void FormControls::Relay(const MSG& message) {
  if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST) return;
  if (!toolTips_.Created()) {
    toolTips_.Create(formWindow_, instance_);
    for (const ControlState& control : form_->controls) {
      if (Window(control.id) != nullptr) ApplyTip(control);
    }
  }
  toolTips_.Relay(message);
}

void FormControls::ApplyIcon(const ControlState& control) {
  const PixelPlace place = ToPixels(control.place, Dpi());
  UniqueIcon icon = LoadProgramIcon(instance_, std::min(place.width, place.height));
  SendMessageW(Window(control.id), STM_SETICON, reinterpret_cast<WPARAM>(icon.Get()), 0);
  icons_[static_cast<std::size_t>(control.id) - 1] = std::move(icon);
}

HWND FormControls::Holder(const ControlState& control, POINT& origin) const {
  if (control.container == 0) return formWindow_;
  const ControlState& container = State(control.container);
  if (container.kind == ControlKind::kPage) return Window(container.id);
  origin.x += ToPixels(container.place.left, Dpi());
  origin.y += ToPixels(container.place.top, Dpi());
  return Holder(container, origin);
}

HWND FormControls::Window(int control) const {
  const auto index = static_cast<std::size_t>(control) - 1;
  return control > 0 && index < windows_.size() ? windows_[index] : nullptr;
}

int FormControls::Find(WPARAM number) const {
  const bool known = number > 0 && number <= windows_.size();
  return known && windows_[number - 1] != nullptr ? static_cast<int>(number) : 0;
}

int FormControls::IdOf(HWND window) const {
  for (HWND each = window; each != nullptr && each != formWindow_; each = GetParent(each)) {
    const auto found = std::ranges::find(windows_, each);
    if (found != windows_.end()) return static_cast<int>(found - windows_.begin()) + 1;
  }
  return 0;
}

bool FormControls::IsListDropped(int control) const {
  return control != 0 && IsComboKind(State(control).kind) &&
         SendMessageW(Window(control), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

}  // namespace korvale

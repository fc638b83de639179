#include "ui/control.h"

#include <algorithm>

#include "platform/run_time_error.h"

namespace korvale {
namespace {

constexpr std::uint32_t kShortestInterval = 10;

bool IsEntry(const ControlState& state, int listIndex) {
  return listIndex >= 0 && static_cast<std::size_t>(listIndex) < state.items.size();
}

void CheckEntry(const ControlState& state, int listIndex) {
  if (!IsEntry(state, listIndex)) throw RunTimeError(RunTimeError::kInvalidPropertyValue);
}

}  // namespace

void Control::Changed(ControlProperty property) {
  if (form_->Handle() != 0) form_->Host().UpdateControl(form_->Handle(), Id(), property);
}

void Control::SetText(std::string_view text) {
  Change(state_->text, std::string(text), ControlProperty::kText);
}

void Control::SetVisible(bool visible) {
  if (state_->visible == visible) return;
  state_->visible = visible;
  form_->KeepFocusReachable();
  Changed(ControlProperty::kVisible);
}

void Control::SetEnabled(bool enabled) {
  if (state_->enabled == enabled) return;
  state_->enabled = enabled;
  if (state_->kind == ControlKind::kTimer) {
    form_->StartOrStopTimer(*this);
    return;
  }
  form_->KeepFocusReachable();
  Changed(ControlProperty::kEnabled);
}

void Control::Pause() {
  if (state_->kind != ControlKind::kTimer) throw RunTimeError(RunTimeError::kInvalidCall);
  state_->enabled = false;
}

void Control::SetPlace(const TwipsRect& place) {
  Change(state_->place, place, ControlProperty::kPlace);
}

void Control::SetTop(Twips top) {
  TwipsRect place = Place();
  place.top = top;
  SetPlace(place);
}

void Control::SetWidth(Twips width) {
  TwipsRect place = Place();
  place.width = width;
  SetPlace(place);
}

void Control::SetHeight(Twips height) {
  TwipsRect place = Place();
  place.height = height;
  SetPlace(place);
}

void Control::SetValue(int value) {
  value = value != 0 ? 1 : 0;
  if (state_->value == value) return;
  const bool option = state_->kind == ControlKind::kOptionButton;
  if (option && value == 1) form_->UnchooseNeighbours(*this);
  state_->value = value;
  Changed(ControlProperty::kValue);
  if (!option || value == 1) form_->RaiseClick(*this);
}

void Control::SetBackColor(Color color) {
  Change(state_->backColor, color, ControlProperty::kColors);
}

void Control::SetForeColor(Color color) {
  Change(state_->foreColor, color, ControlProperty::kColors);
}

void Control::SetBorder(bool border) { Change(state_->border, border, ControlProperty::kBorder); }

void Control::AddItem(std::string_view text, std::int32_t itemData) {
  state_->items.push_back({std::string(text), itemData});
  const bool firstTab = state_->kind == ControlKind::kTabStrip && state_->listIndex < 0;
  if (firstTab) state_->listIndex = 0;
  Changed(ControlProperty::kItems);
}

void Control::AddItems(std::span<const ListItem> items) {
  state_->items.insert(state_->items.end(), items.begin(), items.end());
  Changed(ControlProperty::kItems);
}

void Control::SetItemText(int listIndex, std::string_view text) {
  CheckEntry(*state_, listIndex);
  Change(state_->items[static_cast<std::size_t>(listIndex)].text, std::string(text),
         ControlProperty::kItems);
}

void Control::Clear() {
  if (state_->items.empty()) return;
  state_->items.clear();
  state_->listIndex = -1;
  Changed(ControlProperty::kItems);
}

void Control::TakeListIndex(int listIndex) {
  state_->listIndex = listIndex;
  if (state_->kind == ControlKind::kComboBox) state_->text = SelectedText();
}

void Control::SetListIndex(int listIndex) {
  if (listIndex != -1) CheckEntry(*state_, listIndex);
  if (state_->listIndex == listIndex) return;
  TakeListIndex(listIndex);
  Changed(ControlProperty::kListIndex);
  form_->RaiseClick(*this);
}

std::int32_t Control::SelectedItemData() const {
  if (!IsEntry(*state_, state_->listIndex)) return 0;
  return state_->items[static_cast<std::size_t>(state_->listIndex)].itemData;
}

std::string Control::SelectedText() const {
  if (!IsEntry(*state_, state_->listIndex)) return "";
  return state_->items[static_cast<std::size_t>(state_->listIndex)].text;
}

void Control::SetFocus() { form_->FocusOn(Id()); }

bool Control::Dropped() const {
  return form_->Handle() != 0 && form_->Host().GetDroppedState(form_->Handle(), Id());
}

TextSelection Control::Selection() const {
  if (form_->Handle() == 0) return {};
  return form_->Host().GetSelection(form_->Handle(), Id());
}

void Control::SetSelection(TextSelection selection) {
  if (form_->Handle() == 0) return;
  form_->Host().SetSelection(form_->Handle(), Id(), selection);
}

void Control::SetInterval(std::uint32_t milliseconds) {
  state_->interval = milliseconds == 0 ? 0 : std::max(milliseconds, kShortestInterval);
  if (Enabled()) form_->StartOrStopTimer(*this);
}

}  // namespace korvale

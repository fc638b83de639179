#include "tests/fakes/headless_form_host.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <utility>

#include "platform/win32_constants.h"
#include "ui/form_scaling.h"
#include "ui/spoken_name.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr std::array kPropertyNames = {"kText",   "kPlace",  "kVisible", "kEnabled",   "kValue",
                                       "kColors", "kBorder", "kItems",   "kListIndex", "kDefault"};

bool IsWindowed(ControlKind kind) {
  return kind != ControlKind::kTimer && kind != ControlKind::kLine;
}

int CountChildren(const FormState& form) {
  return static_cast<int>(std::ranges::count_if(form.controls, [](const ControlState& control) {
    return control.container == 0 && IsWindowed(control.kind);
  }));
}

void CopyText(HeadlessControl& control, const ControlState& state) {
  control.shown.text = state.text;
  control.cursor = {};
}

void CopyProperty(HeadlessControl& control, const ControlState& state, ControlProperty property) {
  ControlState& shown = control.shown;
  switch (property) {
    case ControlProperty::kText:
      return CopyText(control, state);
    case ControlProperty::kPlace:
      shown.place = state.place;
      return;
    case ControlProperty::kVisible:
      shown.visible = state.visible;
      return;
    case ControlProperty::kEnabled:
      shown.enabled = state.enabled;
      return;
    case ControlProperty::kValue:
      shown.value = state.value;
      return;
    case ControlProperty::kColors:
      shown.backColor = state.backColor;
      shown.foreColor = state.foreColor;
      return;
    case ControlProperty::kBorder:
      shown.border = state.border;
      return;
    case ControlProperty::kItems:
      shown.items = state.items;
      shown.listIndex = state.listIndex;
      return;
    case ControlProperty::kListIndex:
      shown.listIndex = state.listIndex;
      if (state.kind == ControlKind::kComboBox) CopyText(control, state);
      return;
    case ControlProperty::kDefault:
      shown.flags = state.flags;
      return;
  }
}

}  // namespace

HeadlessFormHost::HeadlessFormHost(DesktopWindows& desktop, CallLog& log)
    : desktop_(&desktop), log_(&log) {
  desktop_->SetListener(this);
}

HeadlessFormHost::~HeadlessFormHost() {
  desktop_->SetListener(nullptr);
  if (testing::Test::HasFailure()) return;
  for (const Step& step : steps_) {
    ADD_FAILURE() << "the program never waited for the user"
                  << (step.formName.empty() ? "" : " with form " + step.formName);
  }
  if (!answers_.empty()) ADD_FAILURE() << answers_.size() << " expected message boxes did not come";
  if (!colors_.empty()) ADD_FAILURE() << colors_.size() << " expected colour dialogs did not come";
  if (!choices_.empty()) ADD_FAILURE() << choices_.size() << " expected pop-up menus did not come";
}

HeadlessWindow* HeadlessFormHost::FindWindow(WindowHandle hwnd) {
  const auto found =
      std::ranges::find_if(windows_, [&](const auto& window) { return window->handle == hwnd; });
  return found == windows_.end() ? nullptr : found->get();
}

HeadlessWindow* HeadlessFormHost::FindForm(std::string_view name) {
  const auto found = std::ranges::find_if(
      windows_, [&](const auto& window) { return window->form->name == name; });
  return found == windows_.end() ? nullptr : found->get();
}

HeadlessWindow& HeadlessFormHost::Window(WindowHandle hwnd) {
  if (HeadlessWindow* const window = FindWindow(hwnd)) return *window;
  FailTest("there is no window " + log_->Window(hwnd));
}

void HeadlessFormHost::Tell(WindowHandle hwnd, const std::function<void(FormEvents&)>& event) {
  FormEvents& events = *Window(hwnd).events;
  try {
    event(events);
  } catch (const HeadlessFailure&) {
    throw;
  } catch (...) {
    events.OnUncaught();
  }
}

WindowHandle HeadlessFormHost::CreateWindowExW(const FormState& form, FormEvents& events) {
  if (refused_ == form.name) {
    refused_.clear();
    return 0;
  }
  auto window = std::make_unique<HeadlessWindow>();
  window->form = &form;
  window->events = &events;
  window->place = form.place;
  window->restored = form.place;
  window->monitor = FindMonitor(monitors_, form.place);
  for (const ControlState& control : form.controls) window->controls.push_back({control, {}});
  window->DrawMenuBar();
  window->handle = desktop_->Create(form, CountChildren(form));
  HeadlessWindow& made = *windows_.emplace_back(std::move(window));
  made.frame = AdjustWindowRectEx(form);
  desktop_->SetPlace(made.handle, OnScreen(made));
  log_->NameWindow(made.handle, form.name);
  log_->Add("CreateWindowExW(" + form.name + ")");
  return made.handle;
}

void HeadlessFormHost::DestroyWindow(WindowHandle hwnd) {
  Window(hwnd);
  log_->Add("DestroyWindow(" + log_->Window(hwnd) + ")");
  std::erase_if(windows_, [&](const auto& window) { return window->handle == hwnd; });
  desktop_->Destroy(hwnd);
  log_->NameWindow(hwnd, "");
}

void HeadlessFormHost::UpdateControl(WindowHandle hwnd, int control, ControlProperty property) {
  HeadlessWindow& window = Window(hwnd);
  log_->AddRead("UpdateControl(" + log_->Window(hwnd) + ", " + window.Describe(control) + ", " +
                kPropertyNames.at(static_cast<std::size_t>(property)) + ")");
  HeadlessControl& shown = window.Control(control);
  CopyProperty(shown, window.form->controls[static_cast<std::size_t>(control) - 1], property);
  // An open list that is given a new place closes without a notification.
  if (property == ControlProperty::kPlace) shown.dropped = false;
  if (property == ControlProperty::kText) Announce(window);
}

void HeadlessFormHost::Announce(const HeadlessWindow& window) {
  if (window.form->role != FormRole::kAlert || !desktop_->IsShown(window.handle)) return;
  announced_.push_back(SpokenName(*window.form));
}

void HeadlessFormHost::SetWindowTextW(WindowHandle hwnd) {
  const std::string& caption = Window(hwnd).form->caption;
  log_->Add("SetWindowTextW(" + log_->Window(hwnd) + ", \"" + caption + "\")");
  desktop_->SetTitle(hwnd, caption);
}

void HeadlessFormHost::MoveWindow(WindowHandle hwnd) {
  HeadlessWindow& window = Window(hwnd);
  log_->Add("MoveWindow(" + log_->Window(hwnd) + ")");
  const HeadlessScale before = ScaleOf(hwnd);
  Place(window, window.form->place);
  const bool other = ScaleOf(hwnd) != before;
  // A hidden window is in the normal state, however it will be shown.
  const ShowState state = desktop_->State(hwnd);
  const TwipsRect taken = window.place;
  Tell(hwnd, [&](FormEvents& events) { events.OnPlaced(state, taken); });
  if (other && FindWindow(hwnd) != nullptr) {
    Tell(hwnd, [](FormEvents& events) { TellScaled(events, ScaleCause::kPlaced); });
  }
}

void HeadlessFormHost::DrawMenuBar(WindowHandle hwnd) {
  HeadlessWindow& window = Window(hwnd);
  log_->AddRead("DrawMenuBar(" + log_->Window(hwnd) + ")");
  window.DrawMenuBar();
  window.frame = AdjustWindowRectEx(*window.form);
}

void HeadlessFormHost::EnableWindow(WindowHandle hwnd, bool enable) {
  log_->Add("EnableWindow(" + log_->Window(hwnd) + ", " + (enable ? "true" : "false") + ")");
  Window(hwnd);
  desktop_->Enable(hwnd, enable);
}

void HeadlessFormHost::ShowWindow(WindowHandle hwnd, int command) {
  log_->Add("ShowWindow(" + log_->Window(hwnd) + ", " + ShowCommandText(command) + ")");
  Window(hwnd);
  const bool shown = desktop_->IsShown(hwnd);
  desktop_->Show(hwnd, command);
  const HeadlessWindow* const window = FindWindow(hwnd);
  if (!shown && window != nullptr) Announce(*window);
}

void HeadlessFormHost::WindowActivated(WindowHandle hwnd) {
  if (FindWindow(hwnd) != nullptr) Tell(hwnd, [](FormEvents& events) { events.OnActivated(); });
}

void HeadlessFormHost::WindowStateChanged(WindowHandle hwnd, ShowState state) {
  HeadlessWindow* const window = FindWindow(hwnd);
  if (window == nullptr) return;
  if (state == ShowState::kMaximized) Place(*window, Maximized(*window));
  if (state == ShowState::kNormal) Place(*window, window->restored);
  const TwipsRect place = window->place;
  Tell(hwnd, [&](FormEvents& events) { events.OnPlaced(state, place); });
}

void HeadlessFormHost::SetFocus(WindowHandle hwnd, int control) {
  HeadlessWindow& window = Window(hwnd);
  log_->AddRead("SetFocus(" + log_->Window(hwnd) + ", " + window.Describe(control) + ")");
  if (desktop_->Active() != hwnd) return;
  if (control != 0 && !(window.IsShown(control) && window.IsEnabled(control))) {
    FailTest("the focus goes to " + window.Describe(control) + ", which the user cannot reach");
  }
  MoveFocus(window, control);
}

void HeadlessFormHost::MoveFocus(HeadlessWindow& window, int control) {
  const int before = std::exchange(window.focus, control);
  if (before == control) return;
  const WindowHandle hwnd = window.handle;
  if (GetDroppedState(hwnd, before)) {
    window.Control(before).dropped = false;
    Tell(hwnd, [&](FormEvents& events) { events.OnListClosedUp(before); });
    if (FindWindow(hwnd) == nullptr) return;
  }
  Tell(window.handle, [&](FormEvents& events) { events.OnFocusMoved(control); });
}

int HeadlessFormHost::GetFocus(WindowHandle hwnd) {
  return desktop_->Active() == hwnd ? Window(hwnd).focus : 0;
}

bool HeadlessFormHost::GetDroppedState(WindowHandle hwnd, int control) {
  return control != 0 && Window(hwnd).Control(control).dropped;
}

TextSelection HeadlessFormHost::GetSelection(WindowHandle hwnd, int control) {
  return SelectionOf(Window(hwnd).Control(control).cursor);
}

void HeadlessFormHost::SetSelection(WindowHandle hwnd, int control, TextSelection selection) {
  HeadlessControl& box = Window(hwnd).Control(control);
  box.cursor = CursorOf(selection, box.shown.text);
}

void HeadlessFormHost::SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) {
  log_->Add("SendInput(" + log_->Window(hwnd) + ", " + std::to_string(virtualKey) + ", " +
            std::to_string(shift) + ")");
  if (desktop_->Active() != hwnd) return;
  if (!keyboard_) FailTest("there is no keyboard to send keys with");
  keyboard_(hwnd, virtualKey, shift);
}

void HeadlessFormHost::SendMouseInput() {
  log_->Add("SendMouseInput()");
  desktop_->TakeInput();
}

}  // namespace korvale

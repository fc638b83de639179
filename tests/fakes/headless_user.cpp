#include "tests/fakes/headless_user.h"

#include <algorithm>
#include <utility>

#include "ui/form_scaling.h"

namespace korvale {
namespace {

bool TakesFocus(ControlKind kind) {
  return kind == ControlKind::kTextBox || kind == ControlKind::kButton ||
         kind == ControlKind::kCheckBox || kind == ControlKind::kOptionButton ||
         kind == ControlKind::kDropDownList || kind == ControlKind::kComboBox ||
         kind == ControlKind::kTabStrip;
}

bool HasList(ControlKind kind) {
  return kind == ControlKind::kDropDownList || kind == ControlKind::kComboBox;
}

/// Text boxes, and what the design has made clickable, report the mouse.
bool ReportsMouse(const ControlState& control) {
  return control.kind == ControlKind::kTextBox || (control.flags & kClickable) != 0;
}

bool ReportsClick(const ControlState& control) {
  return control.kind == ControlKind::kButton || control.kind == ControlKind::kCheckBox ||
         control.kind == ControlKind::kOptionButton;
}

}  // namespace

HeadlessUser::HeadlessUser(HeadlessFormHost& host, FakeClock& clock)
    : host_(&host), clock_(&clock), openMenus_(host.OpenMenus()) {
  clock.SetTickHandler([&host](WindowHandle hwnd, int id) { host.DeliverTimer(hwnd, id); });
  host.SetKeyboard([this](WindowHandle, int virtualKey, unsigned shift) {
    sentKeys_.push_back(KeyOf(virtualKey, shift));
  });
}

bool HeadlessUser::IsShown(WindowHandle hwnd) { return host_->Desktop().IsShown(hwnd); }
bool HeadlessUser::IsEnabled(WindowHandle hwnd) { return host_->Desktop().IsEnabled(hwnd); }
std::string HeadlessUser::Title(WindowHandle hwnd) { return host_->Desktop().Title(hwnd); }
std::string HeadlessUser::ClassName(WindowHandle hwnd) { return host_->Desktop().ClassName(hwnd); }
TwipsRect HeadlessUser::Place(WindowHandle hwnd) { return host_->Window(hwnd).place; }

HeadlessWindow& HeadlessUser::Reach(WindowHandle hwnd, const std::string& doing) {
  HeadlessWindow& window = host_->Window(hwnd);
  const std::string where = "cannot " + doing + ": form " + window.form->name;
  if (!IsShown(hwnd)) FailTest(where + " is hidden");
  if (!IsEnabled(hwnd)) FailTest(where + " is disabled");
  if (host_->Desktop().State(hwnd) == ShowState::kMinimized) FailTest(where + " is minimized");
  return window;
}

HeadlessWindow& HeadlessUser::ReachControl(WindowHandle hwnd, int control,
                                           const std::string& doing) {
  const std::string what = doing + " " + host_->Window(hwnd).Describe(control);
  HeadlessWindow& window = Reach(hwnd, what);
  if (control == 0) return window;
  const std::string obstacle = window.WhyOutOfReach(control);
  if (!obstacle.empty()) FailTest("cannot " + what + " in " + window.form->name + ": " + obstacle);
  return window;
}

void HeadlessUser::PressCloseBox(WindowHandle hwnd) {
  Reach(hwnd, "press the close box");
  host_->Desktop().Activate(hwnd);
  host_->Tell(hwnd, [](FormEvents& events) { events.OnCloseRequested(CloseReason::kUser); });
}

void HeadlessUser::CloseOwner(WindowHandle hwnd) {
  host_->Tell(hwnd, [](FormEvents& events) { events.OnCloseRequested(CloseReason::kTaskManager); });
}

void HeadlessUser::QuitThread() { host_->PostThreadQuit(); }

void HeadlessUser::Drag(WindowHandle hwnd, const TwipsRect& place) {
  HeadlessWindow& window = Reach(hwnd, "drag");
  const bool sized = place.width != window.place.width || place.height != window.place.height;
  if (sized && window.form->border != BorderStyle::kSizable) {
    FailTest("form " + window.form->name + " has a fixed size");
  }
  const HeadlessScale before = host_->ScaleOf(hwnd);
  host_->Place(window, place);
  const HeadlessScale now = host_->ScaleOf(hwnd);
  const TwipsRect taken = window.place;
  window.restored = taken;
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnPlaced(ShowState::kNormal, taken); });
  if (now == before || host_->FindWindow(hwnd) == nullptr) return;
  // Where the dots are the same, only the room for the form differs.
  const ScaleCause cause = now.dots == before.dots ? ScaleCause::kScreen : ScaleCause::kDragged;
  host_->Tell(hwnd, [&](FormEvents& events) { TellScaled(events, cause); });
}

const ControlState& HeadlessUser::Look(WindowHandle hwnd, int control) {
  return host_->Window(hwnd).Control(control).shown;
}

std::string HeadlessUser::Text(WindowHandle hwnd, int control) {
  const ControlState& shown = Look(hwnd, control);
  if (shown.kind != ControlKind::kDropDownList) return shown.text;
  if (shown.listIndex < 0) return "";
  return shown.items.at(static_cast<std::size_t>(shown.listIndex)).text;
}

bool HeadlessUser::IsShown(WindowHandle hwnd, int control) {
  return host_->Window(hwnd).IsShown(control);
}

bool HeadlessUser::IsEnabled(WindowHandle hwnd, int control) {
  return host_->Window(hwnd).IsEnabled(control);
}

int HeadlessUser::Value(WindowHandle hwnd, int control) { return Look(hwnd, control).value; }

std::vector<std::string> HeadlessUser::ListEntries(WindowHandle hwnd, int control) {
  std::vector<std::string> entries;
  for (const ListItem& item : Look(hwnd, control).items) entries.push_back(item.text);
  return entries;
}

int HeadlessUser::ListIndex(WindowHandle hwnd, int control) {
  return Look(hwnd, control).listIndex;
}

bool HeadlessUser::IsListOpen(WindowHandle hwnd, int control) {
  return host_->GetDroppedState(hwnd, control);
}

int HeadlessUser::Focus(WindowHandle hwnd) { return host_->GetFocus(hwnd); }

TwipsRect HeadlessUser::Place(WindowHandle hwnd, int control) { return Look(hwnd, control).place; }

void HeadlessUser::Click(WindowHandle hwnd, int control) {
  ReachControl(hwnd, control, "click");
  const TwipsRect place = control == 0 ? TwipsRect{} : Look(hwnd, control).place;
  if (control != 0 && HasList(Look(hwnd, control).kind)) {
    OpenList(hwnd, control);
    return;
  }
  PressMouse(hwnd, control, place.width / 2, place.height / 2, kNoShift, MouseButton::kLeft);
}

void HeadlessUser::ClickAt(WindowHandle hwnd, int control, Twips x, Twips y, unsigned shift,
                           MouseButton button) {
  ReachControl(hwnd, control, "click");
  MoveMouse(hwnd, control, x, y);
  PressMouse(hwnd, control, x, y, shift, button);
}

void HeadlessUser::PressMouse(WindowHandle hwnd, int control, Twips x, Twips y, unsigned shift,
                              MouseButton button) {
  host_->Desktop().Activate(hwnd);
  CloseOpenLists(hwnd);
  const ControlState shown = control == 0 ? ControlState() : Look(hwnd, control);
  const bool reports = control == 0 || ReportsMouse(shown);
  if (!reports && !ReportsClick(shown)) {
    FailTest(host_->Window(hwnd).Describe(control) + " takes no clicks");
  }
  const bool left = button == MouseButton::kLeft;
  if (left && control != 0 && TakesFocus(shown.kind)) {
    host_->MoveFocus(host_->Window(hwnd), control);
  }
  const auto tell = [&](MouseEvent event) {
    if (!reports || host_->FindWindow(hwnd) == nullptr) return;
    host_->Tell(hwnd, [&](FormEvents& events) {
      events.OnMouse(control, {event, button, shift, x, y});
    });
  };
  tell(MouseEvent::kDown);
  tell(MouseEvent::kUp);
  if (left && ReportsClick(shown) && host_->FindWindow(hwnd) != nullptr) {
    host_->Tell(hwnd, [&](FormEvents& events) { events.OnClick(control); });
  }
}

void HeadlessUser::MoveMouse(WindowHandle hwnd, int control, Twips x, Twips y) {
  ReachControl(hwnd, control, "move the mouse over");
  if (control != 0 && !ReportsMouse(Look(hwnd, control))) return;
  const MouseInput input = {MouseEvent::kMove, MouseButton::kNone, kNoShift, x, y};
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnMouse(control, input); });
}

void HeadlessUser::OpenList(WindowHandle hwnd, int control) {
  HeadlessWindow& window = ReachControl(hwnd, control, "open the list");
  if (!HasList(Look(hwnd, control).kind)) FailTest(window.Describe(control) + " has no list");
  host_->Desktop().Activate(hwnd);
  CloseOpenLists(hwnd);
  host_->MoveFocus(window, control);
  HeadlessControl& list = host_->Window(hwnd).Control(control);
  list.chosenBefore = list.shown.listIndex;
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnListDropDown(control); });
  if (host_->FindWindow(hwnd) != nullptr) host_->Window(hwnd).Control(control).dropped = true;
}

void HeadlessUser::CloseList(WindowHandle hwnd, int control) {
  if (host_->FindWindow(hwnd) == nullptr) return;
  host_->Window(hwnd).Control(control).dropped = false;
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnListClosedUp(control); });
}

void HeadlessUser::CloseOpenLists(WindowHandle hwnd) {
  for (const ControlState& control : host_->Window(hwnd).form->controls) {
    if (host_->Window(hwnd).Control(control.id).dropped) CloseList(hwnd, control.id);
  }
}

void HeadlessUser::PickEntry(WindowHandle hwnd, int control, int listIndex) {
  ControlState& shown = host_->Window(hwnd).Control(control).shown;
  shown.listIndex = listIndex;
  if (shown.kind == ControlKind::kComboBox) {
    shown.text = shown.items.at(static_cast<std::size_t>(listIndex)).text;
  }
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnListPicked(control, listIndex); });
}

void HeadlessUser::Pick(WindowHandle hwnd, int control, int listIndex) {
  ReachControl(hwnd, control, "pick from");
  const auto entry = [&] {
    const ControlState& shown = Look(hwnd, control);
    if (listIndex < 0 || static_cast<std::size_t>(listIndex) >= shown.items.size()) {
      FailTest(shown.name + " has no entry " + std::to_string(listIndex));
    }
  };
  entry();
  if (Look(hwnd, control).kind == ControlKind::kTabStrip) {
    host_->Desktop().Activate(hwnd);
    host_->MoveFocus(host_->Window(hwnd), control);
    if (Look(hwnd, control).listIndex != listIndex) PickEntry(hwnd, control, listIndex);
    return;
  }
  OpenList(hwnd, control);
  entry();
  CloseList(hwnd, control);
  PickEntry(hwnd, control, listIndex);
}

void HeadlessUser::OpenAndCloseList(WindowHandle hwnd, int control) {
  OpenList(hwnd, control);
  CloseList(hwnd, control);
}

void HeadlessUser::WhenWaiting(std::function<void()> action) {
  host_->WhenWaiting(std::move(action));
}

void HeadlessUser::WhenMessageBox(std::function<std::int16_t(const ShownMessage&)> answer) {
  host_->WhenMessageBox(std::move(answer));
}

void HeadlessUser::WhenPopupMenu(
    std::function<std::string(const std::vector<ShownMenuItem>&)> choose) {
  host_->WhenPopupMenu(std::move(choose));
}

void HeadlessUser::ChangeTextSize(int percent) { host_->ChangeTextSize(percent); }

bool HeadlessUser::NarrowWorkArea(Twips by) {
  TwipsRect area = host_->MonitorFromPoint();
  area.width -= by;
  host_->ChangeWorkArea(area);
  return true;
}

void HeadlessUser::LetPass(std::uint32_t milliseconds) { clock_->Advance(milliseconds); }

}  // namespace korvale

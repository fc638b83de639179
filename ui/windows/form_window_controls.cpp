#include <windows.h>
// After windows.h, which they need.
#include <commctrl.h>
#include <windowsx.h>

#include "ui/windows/control_content.h"
#include "ui/windows/control_window.h"
#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/tab_question.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

/// Posted to the form when one of its lists has closed, with the control's number.
UINT ListClosed() {
  static const UINT message = RegisterWindowMessageW(L"Korvale.ListClosed");
  return message;
}

MouseButton HeldButton(WPARAM keys) {
  if ((keys & MK_LBUTTON) != 0) return MouseButton::kLeft;
  if ((keys & MK_RBUTTON) != 0) return MouseButton::kRight;
  return (keys & MK_MBUTTON) != 0 ? MouseButton::kMiddle : MouseButton::kNone;
}

/// What a mouse message means; false for messages that are not reported.
bool ReadMouseMessage(UINT message, WPARAM keys, MouseInput& input) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      input = {MouseEvent::kDown, MouseButton::kLeft};
      return true;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      input = {MouseEvent::kDown, MouseButton::kRight};
      return true;
    case WM_MBUTTONDOWN:
    case WM_MBUTTONDBLCLK:
      input = {MouseEvent::kDown, MouseButton::kMiddle};
      return true;
    case WM_LBUTTONUP:
      input = {MouseEvent::kUp, MouseButton::kLeft};
      return true;
    case WM_RBUTTONUP:
      input = {MouseEvent::kUp, MouseButton::kRight};
      return true;
    case WM_MBUTTONUP:
      input = {MouseEvent::kUp, MouseButton::kMiddle};
      return true;
    case WM_MOUSEMOVE:
      input = {MouseEvent::kMove, HeldButton(keys)};
      return true;
    default:
      return false;
  }
}

bool IsDefaultColored(const ControlState& control) {
  return control.backColor == kButtonFaceColor && control.foreColor == kButtonTextColor;
}

}  // namespace

LRESULT CALLBACK FormWindow::PageProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
    case WM_NOTIFY:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
      return SendMessageW(GetParent(hwnd), message, wParam, lParam);
    case WM_ERASEBKGND: {
      RECT area;
      GetClientRect(hwnd, &area);
      const LRESULT brush =
          SendMessageW(GetParent(hwnd), WM_CTLCOLORSTATIC, wParam, reinterpret_cast<LPARAM>(hwnd));
      FillRect(reinterpret_cast<HDC>(wParam), &area, reinterpret_cast<HBRUSH>(brush));
      return TRUE;
    }
    default:
      return DefWindowProcW(hwnd, message, wParam, lParam);
  }
}

LRESULT CALLBACK FormWindow::ControlProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                              UINT_PTR id, DWORD_PTR form) {
  const auto alive = reinterpret_cast<FormWindow*>(form)->shared_from_this();
  const int control = static_cast<int>(id);
  if (alive->IsForgedForControl(control, hwnd, message, wParam, lParam)) {
    const bool tab = alive->controls_.State(control).kind == ControlKind::kTabStrip;
    return tab && message == TCM_GETITEMW ? AnswerAboutTab(hwnd, wParam, lParam) : 0;
  }
  // A picture would answer with what it knows of its icon.
  const bool picture = alive->controls_.State(control).kind == ControlKind::kImage;
  if (picture && (message == WM_GETTEXT || message == WM_GETTEXTLENGTH)) {
    return DefWindowProcW(hwnd, message, wParam, lParam);
  }
  const bool focused = message == WM_SETFOCUS && GetFocus() == hwnd;
  if (message == WM_NCDESTROY) RemoveWindowSubclass(hwnd, ControlProcedure, id);
  const bool mouse = message >= WM_MOUSEFIRST && message <= WM_MOUSELAST;
  // A text box holds the mouse until it has seen the button come up; the report may open a dialog,
  // which needs the mouse.
  const bool released =
      message == WM_LBUTTONUP || message == WM_RBUTTONUP || message == WM_MBUTTONUP;
  if (mouse && !released) {
    alive->TellMouse(control, hwnd, message, wParam, lParam);
    if (IsWindow(hwnd) == FALSE) return 0;
  }
  const LRESULT result = DefSubclassProc(hwnd, message, wParam, lParam);
  if (released) alive->TellMouse(control, hwnd, message, wParam, lParam);
  if (focused) alive->events_.Tell([&](FormEvents& events) { events.OnFocusMoved(control); });
  return result;
}

bool FormWindow::IsForgedForControl(int control, HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) const {
  if (NamesAnAddress(message)) return true;
  if (destroying_) return false;
  // Others cannot know an address in our memory. The tab strip gets private messages from us, too,
  // those without an address even while another program's message is being handled.
  const bool tabs = controls_.State(control).kind == ControlKind::kTabStrip;
  return IsForgedForClass(window, message, wParam, !tabs || lParam != 0);
}

std::optional<LRESULT> FormWindow::HandleFromControls(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_COMMAND:
      OnCommand(wParam, lParam);
      return 0;
    case WM_NOTIFY:
      OnNotify(wParam);
      return 0;
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORBTN:
      return ControlColors(reinterpret_cast<HDC>(wParam), reinterpret_cast<HWND>(lParam));
    default:
      if (message != ListClosed()) return std::nullopt;
      OnListClosed(controls_.Find(wParam));
      return 0;
  }
}

void FormWindow::OnCommand(WPARAM wParam, LPARAM lParam) {
  if (lParam != 0) {
    const int control = controls_.Find(LOWORD(wParam));
    const bool ours = control != 0 && controls_.Window(control) == reinterpret_cast<HWND>(lParam);
    if (ours && !controls_.Updating()) OnControl(control, HIWORD(wParam));
  } else if (MenuItem* const chosen = menu_.Chosen(LOWORD(wParam))) {
    events_.Tell([&](FormEvents& events) { events.OnMenuClicked(*chosen); });
  }
}

void FormWindow::OnNotify(WPARAM wParam) {
  // The notification is not read, since another program may have sent it: the state of the tab
  // strip shows whether the user has chosen.
  const int control = controls_.Find(wParam);
  if (control == 0 || controls_.State(control).kind != ControlKind::kTabStrip) return;
  if (!controls_.Updating()) TellIfPicked(control);
}

void FormWindow::OnListClosed(int control) {
  if (control != 0 && IsComboKind(controls_.State(control).kind)) TellIfPicked(control);
}

void FormWindow::TellIfPicked(int control) {
  const ControlState& state = controls_.State(control);
  const int index = ReadListIndex(controls_.Window(control), state.kind);
  if (index >= 0 && index != state.listIndex) TellListPicked(control);
}

void FormWindow::OnControl(int control, UINT notification) {
  const ControlKind kind = controls_.State(control).kind;
  if (IsButtonKind(kind)) {
    // The others report the second click of a double one, the focus or the looks.
    if (notification == BN_CLICKED) {
      events_.Tell([&](FormEvents& events) { events.OnClick(control); });
    }
  } else if (kind == ControlKind::kTextBox) {
    if (notification == EN_CHANGE) TellTyped(control);
  } else if (IsComboKind(kind)) {
    OnCombo(control, notification);
  }
}

void FormWindow::OnCombo(int control, UINT notification) {
  switch (notification) {
    case CBN_EDITCHANGE:
      TellTyped(control);
      break;
    case CBN_SELCHANGE:
      TellListPicked(control);
      break;
    case CBN_DROPDOWN:
      events_.Tell([&](FormEvents& events) { events.OnListDropDown(control); });
      break;
    case CBN_CLOSEUP:
      PostMessageW(hwnd_, ListClosed(), static_cast<WPARAM>(control), 0);
      events_.Tell([&](FormEvents& events) { events.OnListClosedUp(control); });
      break;
    default:
      break;
  }
}

void FormWindow::TellTyped(int control) {
  const std::string text = ReadText(controls_.Window(control));
  events_.Tell([&](FormEvents& events) { events.OnTextTyped(control, text); });
}

void FormWindow::TellListPicked(int control) {
  const int index = ReadListIndex(controls_.Window(control), controls_.State(control).kind);
  events_.Tell([&](FormEvents& events) { events.OnListPicked(control, index); });
}

void FormWindow::TellMouse(int control, HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  MouseInput input;
  if (!ReadMouseMessage(message, wParam, input)) return;
  POINT at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  POINT onScreen = at;
  ClientToScreen(window, &onScreen);
  // Windows also sends moves when a window appears under a mouse that stands still.
  const bool still = onScreen.x == lastMouse_.x && onScreen.y == lastMouse_.y;
  if (input.event == MouseEvent::kMove && still) return;
  lastMouse_ = onScreen;
  const HWND target = control == 0 ? hwnd_ : controls_.Window(control);
  MapWindowPoints(window, target, &at, 1);
  input.x = ToTwips(at.x, scale_.Dpi());
  input.y = ToTwips(at.y, scale_.Dpi());
  input.shift = HeldShiftState();
  events_.Tell([&](FormEvents& events) { events.OnMouse(control, input); });
}

std::optional<LRESULT> FormWindow::ControlColors(HDC dc, HWND window) {
  const int id = controls_.IdOf(window);
  if (id == 0) return std::nullopt;
  const ControlState& control = controls_.State(id);
  // A combo box whose design leaves its colours alone keeps those of Windows.
  if (IsComboKind(control.kind) && IsDefaultColored(control)) return std::nullopt;
  SetTextColor(dc, ToColorRef(control.foreColor));
  SetBkColor(dc, ToColorRef(control.backColor));
  return reinterpret_cast<LRESULT>(brushes_->Get(control.backColor));
}

}  // namespace korvale

#include "ui/windows/form_window.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include "platform/windows/text.h"
#include "ui/spoken_name.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/units.h"

namespace korvale {

namespace {

/// The number of a control or timer; 0 for what cannot be one.
int ToId(WPARAM id) {
  constexpr WPARAM kHighest = 0xFFFF;
  return id <= kHighest ? static_cast<int>(id) : 0;
}

/// The user is in menus of this thread, whatever messages claim.
bool IsInMenus() {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  return GetGUIThreadInfo(GetCurrentThreadId(), &info) != FALSE &&
         (info.flags & GUI_INMENUMODE) != 0;
}

}  // namespace

FormWindow::FormWindow(const FormState& form, WindowClasses& classes, BrushCache& brushes,
                       ScreenReader& reader, const MousePointer& pointer)
    : form_(&form),
      classes_(&classes),
      brushes_(&brushes),
      reader_(&reader),
      pointer_(&pointer),
      scale_(form, nullptr),
      controls_(form, classes.Instance(), scale_),
      menu_(form) {}

FormWindow::~FormWindow() { Destroy(); }

HWND FormWindow::Create(HWND owner, FormEvents& events) {
  const std::wstring className = classes_->Register(form_->name, FormProcedure);
  const std::wstring pageClass = classes_->Register("Page", PageProcedure);
  const PixelPlace place = ToScreenPixels(form_->place, scale_.Dpi());
  restored_ = {form_->place.width, form_->place.height};
  hwnd_ = ::CreateWindowExW(FormExStyle(*form_), className.c_str(), ToUtf16(form_->caption).c_str(),
                            FormStyle(*form_), place.left, place.top, place.width, place.height,
                            owner, nullptr, classes_->Instance(), this);
  if (hwnd_ == nullptr) return nullptr;
  if (form_->role != FormRole::kWindow) reader_->TellRole(hwnd_, form_->role);
  scale_ = FormScale(*form_, hwnd_);
  ShowIcons();
  // Underlines of access keys and focus frames appear once the keyboard is used.
  SendMessageW(hwnd_, WM_CHANGEUISTATE, MAKEWPARAM(UIS_INITIALIZE, 0), 0);
  if (!controls_.Create(hwnd_, pageClass)) {
    Destroy();
    return nullptr;
  }
  for (const ControlState& control : form_->controls) {
    Watch(controls_.Window(control.id), control.id);
    if (control.kind == ControlKind::kPage) reader_->TellPage(controls_.Window(control.id));
  }
  watched_ = true;
  keys_.emplace(hwnd_, events_, controls_);
  ShowMenuBar();
  ShowPlace();
  events_.Connect(events);
  return hwnd_;
}

void FormWindow::Destroy() {
  destroying_ = true;
  events_.Disconnect();
  controls_.Drop();
  if (hwnd_ != nullptr) ::DestroyWindow(hwnd_);
}

void FormWindow::Watch(HWND control, int id) {
  if (control == nullptr) return;
  const auto form = reinterpret_cast<DWORD_PTR>(this);
  SetWindowSubclass(control, ControlProcedure, static_cast<UINT_PTR>(id), form);
  Watch(FindWindowExW(control, nullptr, WC_EDITW, nullptr), id);
}

void FormWindow::ForgetRoles() {
  if (form_->role != FormRole::kWindow) reader_->Forget(hwnd_);
  for (const ControlState& control : form_->controls) {
    const HWND page = control.kind == ControlKind::kPage ? controls_.Window(control.id) : nullptr;
    if (page != nullptr) reader_->Forget(page);
  }
}

void FormWindow::ShowCaption() {
  ::SetWindowTextW(hwnd_, ToUtf16(form_->caption).c_str());
  if (IsWindowVisible(hwnd_) != FALSE) TellName();
}

void FormWindow::ShowMenuBar() {
  barOutdated_ = menuOpen_;  // A menu must not change under the user.
  if (!menuOpen_) menu_.ShowBar(hwnd_);
}

void FormWindow::Show(int command) {
  // A window that comes up under the mouse does not mean that the mouse has moved.
  GetCursorPos(&lastMouse_);
  const bool shown = IsWindowVisible(hwnd_) != FALSE;
  if (!shown) TellName();
  ::ShowWindow(hwnd_, command);
  if (!shown) Announce();
}

void FormWindow::TellName() const {
  if (form_->role != FormRole::kWindow) reader_->TellName(hwnd_, SpokenName(*form_));
}

void FormWindow::Announce() const {
  if (form_->role != FormRole::kAlert || IsWindowVisible(hwnd_) == FALSE) return;
  TellName();
  AnnounceAlert(hwnd_);
}

void FormWindow::SetFocus(int control) {
  if (GetActiveWindow() != hwnd_ || IsIconic(hwnd_) != FALSE) return;
  ::SetFocus(control == 0 ? hwnd_ : controls_.Window(control));
}

void FormWindow::TrackPopup(MenuItem& menu) {
  const UniqueMenu popup = menu_.MakePopup(menu);
  POINT at{};
  GetCursorPos(&at);
  WatchQueue();
  const BOOL command = ::TrackPopupMenuEx(popup.Get(), TPM_RETURNCMD, at.x, at.y, hwnd_, nullptr);
  MenuItem* const chosen = menu_.Chosen(static_cast<UINT>(command));
  if (chosen != nullptr) events_.Tell([&](FormEvents& events) { events.OnMenuClicked(*chosen); });
}

void FormWindow::RequestClose(CloseReason reason) {
  events_.Tell([&](FormEvents& events) { events.OnCloseRequested(reason); });
}

bool FormWindow::Filter(const MSG& message) {
  controls_.Relay(message);
  return keys_->Filter(message);
}

LRESULT CALLBACK FormWindow::FormProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* form = reinterpret_cast<FormWindow*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (message == WM_NCCREATE && form == nullptr) {
    const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
    auto* const created = static_cast<FormWindow*>(creation->lpCreateParams);
    created->hwnd_ = hwnd;
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(created));
    form = created;
  }
  if (form == nullptr) return DefWindowProcW(hwnd, message, wParam, lParam);
  // A handler may destroy the form.
  const std::shared_ptr<FormWindow> alive = form->shared_from_this();
  if (form->IsForged(message, wParam)) return 0;
  const LRESULT result = form->Process(message, wParam, lParam);
  if (message == WM_NCDESTROY) {
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, 0);
    form->hwnd_ = nullptr;
  }
  return result;
}

bool FormWindow::IsForged(UINT message, WPARAM wParam) const {
  if (IsLifeMessage(message)) return watched_ && !destroying_ && IsSentByOthers();
  return IsForgedActivation(hwnd_, message, wParam);
}

LRESULT FormWindow::Process(UINT message, WPARAM wParam, LPARAM lParam) {
  const HWND hwnd = hwnd_;
  if (const auto result = HandleFromControls(message, wParam, lParam)) return *result;
  if (const auto result = HandleMenu(message, wParam, lParam)) return *result;
  if (const auto result = HandleEnd(message, wParam)) return *result;
  if (const auto result = HandleMouse(message, wParam, lParam)) return *result;
  const LRESULT result = DefWindowProcW(hwnd, message, wParam, lParam);
  switch (message) {
    case WM_GETDPISCALEDSIZE:
      return ScaledSize(wParam, lParam).value_or(result);
    case WM_ACTIVATE:
      if (LOWORD(wParam) != WA_INACTIVE) {
        // The message that tells of other sizes may have been missed.
        HandleLook(message, wParam, lParam);
        events_.Tell([](FormEvents& events) { events.OnActivated(); });
      }
      break;
    case WM_WINDOWPOSCHANGED:
      TellPlaced();
      break;
    case WM_GETMINMAXINFO:
      if (lParam != 0) LimitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      break;
    case WM_SIZING:
      if (lParam == 0) break;
      KeepHeight(wParam, *reinterpret_cast<RECT*>(lParam));
      return TRUE;
    case WM_TIMER:
      events_.Tell([&](FormEvents& events) { events.OnTimer(ToId(wParam)); });
      break;
    default:
      HandleLook(message, wParam, lParam);
      break;
  }
  return result;
}

std::optional<LRESULT> FormWindow::HandleEnd(UINT message, WPARAM wParam) {
  switch (message) {
    case WM_CLOSE:
      RequestClose(CloseReason::kUser);
      return 0;
    case WM_ENDSESSION:
      // All our windows are told of the same end; the main form answers for them.
      if (wParam != FALSE && IsMainForm(*form_)) RequestClose(CloseReason::kSession);
      return 0;
    case WM_DESTROY:
      events_.Disconnect();
      ForgetRoles();
      menu_.DropBar(hwnd_);
      controls_.Drop();
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormWindow::HandleMenu(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_INITMENUPOPUP: {
      const auto opening = reinterpret_cast<HMENU>(wParam);
      MenuItem* const menu = HIWORD(lParam) == FALSE ? menu_.Opening(opening) : nullptr;
      if (menu == nullptr) return std::nullopt;
      events_.Tell([&](FormEvents& events) { events.OnMenuOpened(*menu); });
      if (events_.Connected() && menu_.Opening(opening) == menu) menu_.Refill(opening, *menu);
      return 0;
    }
    case WM_ENTERMENULOOP:
      // Another program's message counts only when it is true: else the bar would never change
      // again.
      menuOpen_ = !IsSentByOthers() || IsInMenus();
      return std::nullopt;
    case WM_EXITMENULOOP:
      menuOpen_ = false;
      if (barOutdated_) ShowMenuBar();
      return std::nullopt;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> FormWindow::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_SETCURSOR && LOWORD(lParam) == HTCLIENT &&
      *pointer_ != MousePointer::kDefault) {
    ::SetCursor(LoadPointer(classes_->Instance(), *pointer_));
    return TRUE;
  }
  // A click, also one on its title bar, must not take the keyboard either.
  if (message == WM_MOUSEACTIVATE && form_->aside) return MA_NOACTIVATEANDEAT;
  if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
    TellMouse(0, hwnd_, message, wParam, lParam);
  }
  return std::nullopt;
}

}  // namespace korvale

#include "ui/windows/windows_form_host.h"

#include <algorithm>

#include "platform/windows/text.h"
#include "ui/windows/control_content.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/system_fonts.h"

namespace korvale {
namespace {

/// By how much the menu bar is higher than one row: it has several rows where it is too narrow for
/// its menus, which AdjustWindowRectEx does not count.
int FurtherMenuRows(HWND hwnd) {
  const HMENU menu = GetMenu(hwnd);
  RECT first{};
  if (GetMenuItemRect(hwnd, menu, 0, &first) == FALSE) return 0;
  LONG end = first.bottom;
  for (int item = GetMenuItemCount(menu) - 1; item > 0; --item) {
    RECT entry{};
    if (GetMenuItemRect(hwnd, menu, static_cast<UINT>(item), &entry) != FALSE) {
      end = std::max(end, entry.bottom);
    }
  }
  return end - first.bottom;
}

TwipsRect WorkAreaOf(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  ::GetMonitorInfoW(monitor, &info);
  return ToScreenTwips(info.rcWork, GetDpiForSystem());
}

}  // namespace

WindowsFormHost::WindowsFormHost(HINSTANCE instance)
    : classes_(instance),
      owner_(::CreateWindowExW(0, classes_.Register("Owner", OwnerProcedure).c_str(), L"Korvale",
                               WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, nullptr)),
      loop_([this](HWND window) { return Find(ToWindowHandle(GetAncestor(window, GA_ROOT))); }) {
  SetWindowLongPtrW(owner_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

WindowsFormHost::~WindowsFormHost() {
  SetWindowLongPtrW(owner_.Get(), GWLP_USERDATA, 0);
  for (const auto& [hwnd, form] : forms_) form->Destroy();
}

std::shared_ptr<FormWindow> WindowsFormHost::Find(WindowHandle hwnd) const {
  const auto found = forms_.find(hwnd);
  return found == forms_.end() ? nullptr : found->second;
}

std::shared_ptr<FormWindow> WindowsFormHost::FindMain() const {
  const auto found = std::ranges::find_if(
      forms_, [](const auto& entry) { return entry.second->Model().inTaskbar; });
  return found == forms_.end() ? nullptr : found->second;
}

HWND WindowsFormHost::OwnerOf(const FormState& form) const {
  const std::shared_ptr<FormWindow> main = form.inTaskbar ? nullptr : FindMain();
  return main == nullptr ? owner_.Get() : main->Handle();
}

LRESULT CALLBACK WindowsFormHost::OwnerProcedure(HWND hwnd, UINT message, WPARAM wParam,
                                                 LPARAM lParam) {
  if (IsForgedActivation(hwnd, message, wParam)) return 0;
  // Destroyed, it would take all forms with it, and nobody would know.
  if (message != WM_CLOSE) return DefWindowProcW(hwnd, message, wParam, lParam);
  const auto* const host =
      reinterpret_cast<const WindowsFormHost*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (host == nullptr) return 0;
  if (const auto main = host->FindMain()) main->RequestClose(CloseReason::kTaskManager);
  return 0;
}

WindowHandle WindowsFormHost::CreateWindowExW(const FormState& form, FormEvents& events) {
  auto window = std::make_shared<FormWindow>(form, classes_, brushes_, pointer_);
  const WindowHandle hwnd = ToWindowHandle(window->Create(OwnerOf(form), events));
  if (hwnd != 0) forms_[hwnd] = std::move(window);
  return hwnd;
}

void WindowsFormHost::DestroyWindow(WindowHandle hwnd) {
  const auto found = forms_.find(hwnd);
  if (found == forms_.end()) return;
  // Out of the list first: what runs while the window goes must not find it.
  const std::shared_ptr<FormWindow> form = std::move(found->second);
  forms_.erase(found);
  form->Destroy();
  loop_.Wake();
}

void WindowsFormHost::UpdateControl(WindowHandle hwnd, int control, ControlProperty property) {
  if (const auto form = Find(hwnd)) form->Controls().Update(control, property);
}

void WindowsFormHost::SetWindowTextW(WindowHandle hwnd) {
  if (const auto form = Find(hwnd)) form->ShowCaption();
}

void WindowsFormHost::MoveWindow(WindowHandle hwnd) {
  if (const auto form = Find(hwnd)) form->ShowPlace();
}

void WindowsFormHost::DrawMenuBar(WindowHandle hwnd) {
  if (const auto form = Find(hwnd)) form->ShowMenuBar();
}

void WindowsFormHost::EnableWindow(WindowHandle hwnd, bool enable) {
  ::EnableWindow(ToHwnd(hwnd), enable ? TRUE : FALSE);
}

void WindowsFormHost::ShowWindow(WindowHandle hwnd, int command) {
  if (const auto form = Find(hwnd)) form->Show(command);
  loop_.Wake();
}

void WindowsFormHost::SetFocus(WindowHandle hwnd, int control) {
  if (const auto form = Find(hwnd)) form->SetFocus(control);
}

int WindowsFormHost::GetFocus(WindowHandle hwnd) {
  const HWND focus = ::GetFocus();
  const auto form = Find(hwnd);
  const bool ours = form != nullptr && IsChild(form->Handle(), focus) != FALSE;
  return ours ? form->Controls().IdOf(focus) : 0;
}

bool WindowsFormHost::GetDroppedState(WindowHandle hwnd, int control) {
  const auto form = Find(hwnd);
  return form != nullptr && form->Controls().IsListDropped(control);
}

TextSelection WindowsFormHost::GetSelection(WindowHandle hwnd, int control) {
  const auto form = Find(hwnd);
  if (form == nullptr) return {};
  return ReadSelection(form->Controls().Window(control), form->Controls().State(control).kind);
}

void WindowsFormHost::SetSelection(WindowHandle hwnd, int control, TextSelection selection) {
  const auto form = Find(hwnd);
  if (form == nullptr) return;
  ShowSelection(form->Controls().Window(control), form->Controls().State(control).kind, selection);
}

TwipsRect WindowsFormHost::AdjustWindowRectEx(const FormState& form) {
  const BOOL menu = FormMenu(form).BarWanted() ? TRUE : FALSE;
  UINT dpi = GetDpiForSystem();
  int further = 0;
  for (const auto& [hwnd, other] : forms_) {
    if (&other->Model() != &form) continue;
    dpi = ::GetDpiForWindow(other->Handle());
    const bool asWanted = (GetMenu(other->Handle()) != nullptr) == (menu != FALSE);
    if (asWanted) further = FurtherMenuRows(other->Handle());
  }
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, FormStyle(form), menu, FormExStyle(form), dpi);
  frame.top -= further;
  return {ToTwips(-frame.left, dpi), ToTwips(-frame.top, dpi),
          ToTwips(frame.right - frame.left, dpi), ToTwips(frame.bottom - frame.top, dpi)};
}

int WindowsFormHost::GetDpiForWindow(WindowHandle hwnd) {
  return static_cast<int>(::GetDpiForWindow(ToHwnd(hwnd)));
}

TwipsRect WindowsFormHost::GetMonitorInfoW(WindowHandle hwnd) {
  return WorkAreaOf(MonitorFromWindow(ToHwnd(hwnd), MONITOR_DEFAULTTONEAREST));
}

TwipsRect WindowsFormHost::MonitorFromPoint() {
  POINT mouse{};
  GetCursorPos(&mouse);
  return WorkAreaOf(::MonitorFromPoint(mouse, MONITOR_DEFAULTTONEAREST));
}

Twips WindowsFormHost::GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) {
  const UniqueFont font =
      MakeSystemFont(&NONCLIENTMETRICSW::lfMenuFont, ::GetDpiForWindow(ToHwnd(hwnd)));
  return ToTwips(TextWidth(font.Get(), ToUtf16(text)), GetDpiForSystem());
}

TwipsRect WindowsFormHost::GetWindowRect(WindowHandle hwnd) {
  RECT rect{};
  ::GetWindowRect(ToHwnd(hwnd), &rect);
  return ToScreenTwips(rect, GetDpiForSystem());
}

std::int16_t WindowsFormHost::MessageBoxW(WindowHandle owner, const std::string& text,
                                          const std::string& title, std::int32_t style) {
  return static_cast<std::int16_t>(::MessageBoxW(ToHwnd(owner), ToUtf16(text).c_str(),
                                                 ToUtf16(title).c_str(), static_cast<UINT>(style)));
}

void WindowsFormHost::TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) {
  if (const auto form = Find(hwnd)) form->TrackPopup(menu);
}

bool WindowsFormHost::EndMenu() {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  constexpr DWORD kAnyMenu = GUI_INMENUMODE | GUI_SYSTEMMENUMODE | GUI_POPUPMENUMODE;
  const BOOL known = GetGUIThreadInfo(GetCurrentThreadId(), &info);
  return known != FALSE && (info.flags & kAnyMenu) != 0 && ::EndMenu() != FALSE;
}

Color WindowsFormHost::GetSysColor(Color color) { return static_cast<Color>(ToColorRef(color)); }

bool WindowsFormHost::HighContrast() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

void WindowsFormHost::RunMessageLoop(const std::function<bool()>& done) { loop_.Run(done); }

void WindowsFormHost::DoEvents() { loop_.DoEvents(); }

void WindowsFormHost::PostQuitMessage() { loop_.PostQuit(); }

bool WindowsFormHost::QuitPosted() { return loop_.QuitPosted(); }

}  // namespace korvale

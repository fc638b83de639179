#include "ui/windows/windows_form_host.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "ui/windows/control_content.h"
#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

/// Makes the running message loops check again whether they are done.
void WakeLoops() { PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); }

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

}  // namespace

WindowsFormHost::WindowsFormHost(HINSTANCE instance, OpenForms& forms, const MousePointer& pointer)
    : forms_(&forms),
      pointer_(&pointer),
      classes_(instance),
      owner_(::CreateWindowExW(0, classes_.Register("Owner", OwnerProcedure).c_str(), L"Korvale",
                               WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, instance, nullptr)) {
  SetWindowLongPtrW(owner_.Get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

WindowsFormHost::~WindowsFormHost() {
  SetWindowLongPtrW(owner_.Get(), GWLP_USERDATA, 0);
  for (const auto& [hwnd, form] : forms_->All()) form->Destroy();
}

HWND WindowsFormHost::OwnerOf(const FormState& form) const {
  const std::shared_ptr<FormWindow> main = IsMainForm(form) ? nullptr : forms_->Main();
  return main == nullptr ? owner_.Get() : main->Handle();
}

LRESULT CALLBACK WindowsFormHost::OwnerProcedure(HWND hwnd, UINT message, WPARAM wParam,
                                                 LPARAM lParam) {
  if (IsForgedActivation(hwnd, message, wParam)) return 0;
  // Destroying it would take all forms with it without anyone being told.
  if (message != WM_CLOSE) return DefWindowProcW(hwnd, message, wParam, lParam);
  const auto* const host =
      reinterpret_cast<const WindowsFormHost*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (host == nullptr) return 0;
  if (const auto main = host->forms_->Main()) main->RequestClose(CloseReason::kTaskManager);
  return 0;
}

WindowHandle WindowsFormHost::CreateWindowExW(const FormState& form, FormEvents& events) {
  auto window = std::make_shared<FormWindow>(form, classes_, brushes_, reader_, *pointer_);
  const WindowHandle hwnd = ToWindowHandle(window->Create(OwnerOf(form), events));
  if (hwnd != 0) forms_->Add(hwnd, std::move(window));
  return hwnd;
}

void WindowsFormHost::DestroyWindow(WindowHandle hwnd) {
  // Out of the list first: code that runs while the window is destroyed must not find it.
  const std::shared_ptr<FormWindow> form = forms_->Remove(hwnd);
  if (form == nullptr) return;
  form->Destroy();
  WakeLoops();
}

void WindowsFormHost::UpdateControl(WindowHandle hwnd, int control, ControlProperty property) {
  const auto form = forms_->Find(hwnd);
  if (form == nullptr) return;
  // The brush of a former colour would stay for good.
  if (property == ControlProperty::kColors) brushes_.Clear();
  form->Controls().Update(control, property);
  if (property == ControlProperty::kText) form->Announce();
}

void WindowsFormHost::SetWindowTextW(WindowHandle hwnd) {
  if (const auto form = forms_->Find(hwnd)) form->ShowCaption();
}

void WindowsFormHost::MoveWindow(WindowHandle hwnd) {
  if (const auto form = forms_->Find(hwnd)) form->ShowPlace();
}

void WindowsFormHost::DrawMenuBar(WindowHandle hwnd) {
  if (const auto form = forms_->Find(hwnd)) form->ShowMenuBar();
}

void WindowsFormHost::EnableWindow(WindowHandle hwnd, bool enable) {
  ::EnableWindow(ToHwnd(hwnd), enable ? TRUE : FALSE);
}

bool WindowsFormHost::IsWindowEnabled(WindowHandle hwnd) {
  return ::IsWindowEnabled(ToHwnd(hwnd)) != FALSE;
}

void WindowsFormHost::ShowWindow(WindowHandle hwnd, int command) {
  if (const auto form = forms_->Find(hwnd)) form->Show(command);
  WakeLoops();
}

void WindowsFormHost::SetFocus(WindowHandle hwnd, int control) {
  if (const auto form = forms_->Find(hwnd)) form->SetFocus(control);
}

bool WindowsFormHost::GetDroppedState(WindowHandle hwnd, int control) {
  const auto form = forms_->Find(hwnd);
  return form != nullptr && form->Controls().IsListDropped(control);
}

TextSelection WindowsFormHost::GetSelection(WindowHandle hwnd, int control) {
  const auto form = forms_->Find(hwnd);
  if (form == nullptr) return {};
  return ReadSelection(form->Controls().Window(control), form->Controls().State(control).kind);
}

void WindowsFormHost::SetSelection(WindowHandle hwnd, int control, TextSelection selection) {
  const auto form = forms_->Find(hwnd);
  if (form == nullptr) return;
  ShowSelection(form->Controls().Window(control), form->Controls().State(control).kind, selection);
}

TwipsRect WindowsFormHost::AdjustWindowRectEx(const FormState& form) {
  HWND window = nullptr;
  int further = 0;
  for (const auto& [hwnd, other] : forms_->All()) {
    if (&other->Model() != &form) continue;
    window = other->Handle();
    const bool asWanted = (GetMenu(window) != nullptr) == form.ShowsMenuBar();
    if (asWanted) further = FurtherMenuRows(window);
  }
  const UINT dpi = window != nullptr ? ::GetDpiForWindow(window) : GetDpiForSystem();
  RECT frame = FormFrame(form, dpi);
  frame.top -= further;
  const UINT scaled = FormScale(form, window).Dpi();
  return {ToTwips(-frame.left, scaled), ToTwips(-frame.top, scaled),
          ToTwips(frame.right - frame.left, scaled), ToTwips(frame.bottom - frame.top, scaled)};
}

}  // namespace korvale

#include "ui/windows/form_scale.h"

#include <cstdlib>
#include <cstring>

#include "ui/form_dpi.h"
#include "ui/form_scaling.h"
#include "ui/windows/system_fonts.h"

namespace korvale {
namespace {

HMONITOR MonitorOf(HWND window) {
  // Without a window it is the primary monitor.
  return window != nullptr ? MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)
                           : MonitorFromPoint({}, MONITOR_DEFAULTTOPRIMARY);
}

TwipsRect ToPlace(const RECT& rect) {
  return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

RECT ToRect(const TwipsRect& place) {
  return {place.left, place.top, place.left + place.width, place.top + place.height};
}

int TextHeight(const LOGFONTW& font) { return static_cast<int>(std::abs(font.lfHeight)); }

}  // namespace

RECT WorkAreaOf(HMONITOR monitor) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  GetMonitorInfoW(monitor, &info);
  return info.rcWork;
}

DWORD FormStyle(const FormState& form) {
  if (form.border == BorderStyle::kNone) return WS_POPUP;
  DWORD style = WS_CAPTION | WS_SYSMENU;
  // When a pop-up window that was in front goes, Windows brings its owner forward.
  if (!form.inTaskbar) style |= WS_POPUP;
  if (form.border == BorderStyle::kSizable) style |= WS_THICKFRAME;
  if (form.minimizeBox) style |= WS_MINIMIZEBOX;
  if (form.maximizeBox) style |= WS_MAXIMIZEBOX;
  if (form.modalFrame) style |= DS_MODALFRAME;
  return style;
}

DWORD FormExStyle(const FormState& form) {
  DWORD style = WS_EX_CONTROLPARENT;
  if (form.modalFrame) style |= WS_EX_DLGMODALFRAME;
  // An owned window has a place in the taskbar only when it asks for one.
  if (form.inTaskbar) style |= WS_EX_APPWINDOW;
  if (form.aside) style |= WS_EX_NOACTIVATE | WS_EX_TOPMOST;
  return style;
}

RECT FormFrame(const FormState& form, UINT dpi) {
  RECT frame{};
  AdjustWindowRectExForDpi(&frame, FormStyle(form), form.ShowsMenuBar() ? TRUE : FALSE,
                           FormExStyle(form), dpi);
  return frame;
}

FormScale::FormScale(const FormState& form, HWND window)
    : FormScale(form, window, window != nullptr ? GetDpiForWindow(window) : GetDpiForSystem()) {}

FormScale::FormScale(const FormState& form, HWND window, UINT dpi)
    : metrics_(SystemMetricsFor(dpi)),
      monitor_(MonitorOf(window)),
      workArea_(WorkAreaOf(monitor_)),
      monitorDpi_(dpi) {
  const RECT frame = FormFrame(form, dpi);
  const LONG width = workArea_.right - workArea_.left - (frame.right - frame.left);
  const LONG height = workArea_.bottom - workArea_.top - (frame.bottom - frame.top);
  dpi_ =
      static_cast<UINT>(FormDpi(static_cast<int>(dpi), TextHeight(metrics_.lfMessageFont),
                                form.content, static_cast<int>(width), static_cast<int>(height)));
}

bool FormScale::FollowTo(HWND window) {
  const HMONITOR monitor = MonitorOf(window);
  if (monitor == monitor_) return false;
  monitor_ = monitor;
  workArea_ = WorkAreaOf(monitor);
  return true;
}

RECT FormScale::Kept(const RECT& place) const {
  const bool over = MonitorFromRect(&place, MONITOR_DEFAULTTONEAREST) != monitor_;
  return ToRect(KeptOnMonitor(ToPlace(place), ToPlace(workArea_), over));
}

bool FormScale::LooksLike(const FormScale& other) const {
  return dpi_ == other.dpi_ && std::memcmp(&metrics_, &other.metrics_, sizeof(metrics_)) == 0;
}

bool operator==(const FormScale& one, const FormScale& other) {
  return one.LooksLike(other) && EqualRect(&one.workArea_, &other.workArea_) != FALSE;
}

UniqueFont FormScale::MakeFont(LOGFONTW font) const {
  const int height =
      FormTextHeight(static_cast<int>(monitorDpi_), static_cast<int>(dpi_), TextHeight(font));
  font.lfHeight = font.lfHeight < 0 ? -height : height;
  return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace korvale

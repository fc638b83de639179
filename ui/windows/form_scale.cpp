#include "ui/windows/form_scale.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>

#include "ui/form_dpi.h"
#include "ui/windows/system_fonts.h"

namespace korvale {
namespace {

SIZE WorkAreaAround(HWND window) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  // Without a window it is the primary monitor.
  const HMONITOR monitor = window != nullptr ? MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST)
                                             : MonitorFromPoint({}, MONITOR_DEFAULTTOPRIMARY);
  GetMonitorInfoW(monitor, &info);
  return {info.rcWork.right - info.rcWork.left, info.rcWork.bottom - info.rcWork.top};
}

}  // namespace

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

FormScale::FormScale(const FormState& form, HWND window) {
  const UINT dpi = window != nullptr ? GetDpiForWindow(window) : GetDpiForSystem();
  metrics_ = SystemMetricsFor(dpi);
  const SIZE area = WorkAreaAround(window);
  const RECT frame = FormFrame(form, dpi);
  dpi_ = static_cast<UINT>(
      FormDpi(static_cast<int>(dpi), static_cast<int>(std::abs(metrics_.lfMessageFont.lfHeight)),
              form.content, static_cast<int>(area.cx - (frame.right - frame.left)),
              static_cast<int>(area.cy - (frame.bottom - frame.top))));
}

bool operator==(const FormScale& one, const FormScale& other) {
  return one.dpi_ == other.dpi_ &&
         std::memcmp(&one.metrics_, &other.metrics_, sizeof(one.metrics_)) == 0;
}

UniqueFont FormScale::MakeFont(LOGFONTW font) const {
  const LONG highest = UsualTextHeight(static_cast<int>(dpi_));
  font.lfHeight = std::clamp(font.lfHeight, -highest, highest);
  return UniqueFont(CreateFontIndirectW(&font));
}

}  // namespace korvale

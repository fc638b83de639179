#include "ui/windows/windows_screen.h"

#include <windows.h>
// After windows.h, which it needs.
#include <shellscalingapi.h>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"
#include "ui/windows/form_scale.h"
#include "ui/windows/form_window.h"
#include "ui/windows/system_colors.h"
#include "ui/windows/system_fonts.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

TwipsRect WorkAreaInTwips(HMONITOR monitor) {
  return ToScreenTwips(WorkAreaOf(monitor), GetDpiForSystem());
}

HMONITOR MonitorUnderPointer() {
  POINT mouse{};
  GetCursorPos(&mouse);
  return ::MonitorFromPoint(mouse, MONITOR_DEFAULTTONEAREST);
}

}  // namespace

TwipsRect WindowsScreen::GetMonitorInfoW(WindowHandle hwnd) {
  return WorkAreaInTwips(MonitorFromWindow(ToHwnd(hwnd), MONITOR_DEFAULTTONEAREST));
}

TwipsRect WindowsScreen::MonitorFromPoint() { return WorkAreaInTwips(MonitorUnderPointer()); }

int WindowsScreen::GetDpiForMonitor() {
  UINT x = GetDpiForSystem();
  UINT y = x;
  const auto ask = shcore_.Find<decltype(::GetDpiForMonitor)>("GetDpiForMonitor");
  if (ask != nullptr) ask(MonitorUnderPointer(), MDT_EFFECTIVE_DPI, &x, &y);
  return static_cast<int>(x);
}

TwipsRect WindowsScreen::GetWindowRect(WindowHandle hwnd) {
  RECT rect{};
  ::GetWindowRect(ToHwnd(hwnd), &rect);
  return ToScreenTwips(rect, GetDpiForSystem());
}

int WindowsScreen::GetDpiForWindow(WindowHandle hwnd) {
  return static_cast<int>(::GetDpiForWindow(ToHwnd(hwnd)));
}

int WindowsScreen::GetDpiOfForm(WindowHandle hwnd) {
  const auto form = forms_->Find(hwnd);
  return form != nullptr ? static_cast<int>(form->Scale().Dpi()) : GetDpiForWindow(hwnd);
}

Twips WindowsScreen::GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) {
  const NONCLIENTMETRICSW metrics = SystemMetricsFor(::GetDpiForWindow(ToHwnd(hwnd)));
  const UniqueFont font(CreateFontIndirectW(&metrics.lfMenuFont));
  return ToTwips(TextWidth(font.Get(), ToUtf16(text)), GetDpiForSystem());
}

Color WindowsScreen::GetSysColor(Color color) { return static_cast<Color>(ToColorRef(color)); }

bool WindowsScreen::HighContrast() { return IsHighContrastOn(); }

}  // namespace korvale

#include "ui/windows/windows_screen.h"

#include <windows.h>

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

}  // namespace

TwipsRect WindowsScreen::GetMonitorInfoW(WindowHandle hwnd) {
  return WorkAreaInTwips(MonitorFromWindow(ToHwnd(hwnd), MONITOR_DEFAULTTONEAREST));
}

TwipsRect WindowsScreen::MonitorFromPoint() {
  POINT mouse{};
  GetCursorPos(&mouse);
  return WorkAreaInTwips(::MonitorFromPoint(mouse, MONITOR_DEFAULTTONEAREST));
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

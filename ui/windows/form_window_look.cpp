#include <utility>

#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/units.h"

namespace korvale {

void FormWindow::HandleLook(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DPICHANGED:
      OnDpiChanged(LOWORD(wParam), lParam);
      break;
    case WM_SETTINGCHANGE:
    case WM_DISPLAYCHANGE:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE:
      // Whoever sends them: what counts is what has changed, not what the message says.
      OnMetricsChanged();
      OnColorsChanged();
      break;
    default:
      break;
  }
}

void FormWindow::ShowIcons() {
  // The frame of a dialog shows no icon.
  if (form_->modalFrame) return;
  const UINT dpi = GetDpiForWindow(hwnd_);
  const auto show = [&](UniqueIcon& icon, WPARAM kind, int metric) {
    UniqueIcon fresh = LoadProgramIcon(classes_->Instance(), GetSystemMetricsForDpi(metric, dpi));
    SendMessageW(hwnd_, WM_SETICON, kind, reinterpret_cast<LPARAM>(fresh.Get()));
    icon = std::move(fresh);
  };
  show(largeIcon_, ICON_BIG, SM_CXICON);
  show(smallIcon_, ICON_SMALL, SM_CXSMICON);
}

bool FormWindow::Rescale() {
  const FormScale now(*form_, hwnd_);
  if (now == scale_) return false;
  scale_ = now;
  controls_.Rescale();
  return true;
}

void FormWindow::Resize(UINT formerDpi) {
  placing_ = true;
  if (IsIconic(hwnd_) != FALSE || IsZoomed(hwnd_) != FALSE) {
    ResizeRestored(formerDpi);
  } else {
    const PixelPlace place = ToScreenPixels(form_->place, scale_.Dpi());
    SetWindowPos(hwnd_, nullptr, place.left, place.top, place.width, place.height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
  placing_ = false;
  TellPlaced();
}

void FormWindow::ResizeRestored(UINT formerDpi) {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof(placement);
  GetWindowPlacement(hwnd_, &placement);
  const auto scaled = [&](LONG length) {
    return MulDiv(length, static_cast<int>(scale_.Dpi()), static_cast<int>(formerDpi));
  };
  RECT& normal = placement.rcNormalPosition;
  normal.right = normal.left + scaled(normal.right - normal.left);
  normal.bottom = normal.top + scaled(normal.bottom - normal.top);
  placement.showCmd = IsWindowVisible(hwnd_) != FALSE ? SW_SHOWNA : SW_HIDE;
  SetWindowPlacement(hwnd_, &placement);
}

void FormWindow::OnDpiChanged(UINT dpi, LPARAM wanted) {
  RECT place{};
  const bool forged = IsSentByOthers() && dpi != GetDpiForWindow(hwnd_);
  if (forged || !ReadParameter(wanted, place)) return;
  scale_ = FormScale(*form_, hwnd_);
  controls_.Rescale();
  ShowIcons();
  SIZE size{place.right - place.left, place.bottom - place.top};
  // Windows does not know that a dialog grows only as far as there is room for it.
  if (form_->content != TwipsSize{}) {
    size = {ToPixels(form_->place.width, scale_.Dpi()),
            ToPixels(form_->place.height, scale_.Dpi())};
  }
  SetWindowPos(hwnd_, nullptr, place.left, place.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  events_.Tell([](FormEvents& events) { events.OnDpiChanged(); });
}

void FormWindow::OnMetricsChanged() {
  const UINT former = scale_.Dpi();
  if (!Rescale()) return;
  Resize(former);
  events_.Tell([](FormEvents& events) { events.OnMetricsChanged(); });
}

void FormWindow::OnColorsChanged() {
  const SystemColors now = SystemColors::Now();
  if (now == colors_) return;
  colors_ = now;
  brushes_->Clear();
  controls_.TellSysColorChange();
  RedrawWindow(hwnd_, nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  events_.Tell([](FormEvents& events) { events.OnSysColorChange(); });
}

}  // namespace korvale

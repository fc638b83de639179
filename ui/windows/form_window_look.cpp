#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/units.h"

namespace korvale {

void FormWindow::HandleLook(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DPICHANGED:
      OnDpiChanged(LOWORD(wParam), lParam);
      break;
    case WM_ACTIVATE:
    case WM_SETTINGCHANGE:
    case WM_DISPLAYCHANGE:
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE:
      // Whoever sends them: what counts is what has changed, not what the message says.
      OnMetricsChanged();
      if (hwnd_ != nullptr) OnColorsChanged();
      break;
    default:
      break;
  }
}

void FormWindow::ShowIcons() {
  // The frame of a dialog shows no icon.
  if (form_->modalFrame) return;
  const UINT dpi = GetDpiForWindow(hwnd_);
  const auto show = [&](WPARAM kind, int metric) {
    HICON icon = classes_->Icon(GetSystemMetricsForDpi(metric, dpi));
    SendMessageW(hwnd_, WM_SETICON, kind, reinterpret_cast<LPARAM>(icon));
  };
  show(ICON_BIG, SM_CXICON);
  show(ICON_SMALL, SM_CXSMICON);
}

bool FormWindow::Rescale() {
  const FormScale now(*form_, hwnd_);
  if (now == scale_) return false;
  const bool looksOther = !now.LooksLike(scale_);
  scale_ = now;
  if (looksOther) controls_.Rescale();
  return true;
}

void FormWindow::Resize() {
  placing_ = true;
  if (IsIconic(hwnd_) != FALSE || IsZoomed(hwnd_) != FALSE) {
    ResizeRestored();
  } else {
    const PixelPlace place = ToScreenPixels(form_->place, scale_.Dpi());
    SetWindowPos(hwnd_, nullptr, place.left, place.top, place.width, place.height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  }
  placing_ = false;
  TellPlaced();
}

void FormWindow::ResizeRestored() {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof(placement);
  GetWindowPlacement(hwnd_, &placement);
  RECT& normal = placement.rcNormalPosition;
  normal.right = normal.left + ToPixels(restored_.width, scale_.Dpi());
  normal.bottom = normal.top + ToPixels(restored_.height, scale_.Dpi());
  placement.showCmd = IsWindowVisible(hwnd_) != FALSE ? SW_SHOWNA : SW_HIDE;
  SetWindowPlacement(hwnd_, &placement);
}

std::optional<LRESULT> FormWindow::ScaledSize(WPARAM dpi, LPARAM wanted) const {
  constexpr WPARAM kMostDots = 10 * USER_DEFAULT_SCREEN_DPI;
  // Others cannot know an address in our memory.
  const bool known = form_->content != TwipsSize{} && wanted != 0 && !IsSentByOthers();
  if (!known || dpi == 0 || dpi > kMostDots) return std::nullopt;
  const FormScale scale(*form_, hwnd_, static_cast<UINT>(dpi));
  *reinterpret_cast<SIZE*>(wanted) = {ToPixels(form_->place.width, scale.Dpi()),
                                      ToPixels(form_->place.height, scale.Dpi())};
  return TRUE;
}

void FormWindow::OnDpiChanged(UINT dpi, LPARAM wanted) {
  RECT place{};
  const bool forged = IsSentByOthers() && dpi != GetDpiForWindow(hwnd_);
  if (forged || !ReadParameter(wanted, place)) return;
  controls_.CloseLists();
  if (hwnd_ == nullptr) return;
  scale_ = FormScale(*form_, hwnd_);
  controls_.Rescale();
  ShowIcons();
  SIZE size{place.right - place.left, place.bottom - place.top};
  // Where Windows has not asked for it first, it does not know that a dialog grows only as far as
  // there is room for it.
  if (form_->content != TwipsSize{}) {
    size = {ToPixels(form_->place.width, scale_.Dpi()),
            ToPixels(form_->place.height, scale_.Dpi())};
  }
  SetWindowPos(hwnd_, nullptr, place.left, place.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  events_.Tell([](FormEvents& events) { events.OnDpiChanged(); });
}

void FormWindow::OnMetricsChanged() {
  if (!watched_ || destroying_) return;
  // A list that is given another size while it is open closes without a notification.
  if (FormScale(*form_, hwnd_) != scale_) controls_.CloseLists();
  if (hwnd_ == nullptr || !Rescale()) return;
  ShowIcons();
  Resize();
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

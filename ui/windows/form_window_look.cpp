#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

SIZE SizeOf(const RECT& rect) { return {rect.right - rect.left, rect.bottom - rect.top}; }

/// The user has a title bar or an edge of the window in hand.
bool IsDragged(HWND window) {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  return GetGUIThreadInfo(GetCurrentThreadId(), &info) != FALSE &&
         (info.flags & GUI_INMOVESIZE) != 0 && info.hwndMoveSize == window;
}

}  // namespace

void FormWindow::HandleLook(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_DPICHANGED:
      OnDpiChanged(LOWORD(wParam), lParam);
      break;
    case WM_ACTIVATE:
    // The user may have dragged the form to a monitor with less room for it.
    case WM_EXITSIZEMOVE:
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
  if (IsNormal()) {
    const PixelPlace own = ToScreenPixels(form_->place, scale_.Dpi());
    const RECT place = scale_.Kept({own.left, own.top, own.left + own.width, own.top + own.height});
    SetWindowPos(hwnd_, nullptr, place.left, place.top, own.width, own.height,
                 SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
  } else {
    ResizeRestored();
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
  if (wanted == 0 || IsSentByOthers() || dpi == 0 || dpi > kMostDots) return std::nullopt;
  SIZE& size = *reinterpret_cast<SIZE*>(wanted);
  RECT place{};
  GetWindowRect(hwnd_, &place);
  // While the user sizes it, it is to have another size, which only Windows knows.
  const SIZE now = SizeOf(place);
  const bool sized = size.cx != now.cx || size.cy != now.cy;
  if (!TakesOwnSize(*form_, IsNormal(), sized)) return std::nullopt;
  size = OwnSize(FormScale(*form_, hwnd_, static_cast<UINT>(dpi)));
  return TRUE;
}

SIZE FormWindow::OwnSize(const FormScale& scale) const {
  return {ToPixels(form_->place.width, scale.Dpi()), ToPixels(form_->place.height, scale.Dpi())};
}

ScaleCause FormWindow::WhyScaled() const {
  if (IsDragged(hwnd_)) return ScaleCause::kDragged;
  return placing_ ? ScaleCause::kPlaced : ScaleCause::kScreen;
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
  const ScaleCause cause = WhyScaled();
  const bool normal = IsNormal();
  const bool own = TakesOwnSize(*form_, normal, cause == ScaleCause::kDragged);
  const SIZE size = own ? OwnSize(scale_) : SizeOf(place);
  if (StaysOnMonitor(normal, cause)) {
    place = scale_.Kept({place.left, place.top, place.left + size.cx, place.top + size.cy});
  }
  SetWindowPos(hwnd_, nullptr, place.left, place.top, size.cx, size.cy,
               SWP_NOZORDER | SWP_NOACTIVATE);
  TellScale(cause);
}

void FormWindow::OnMetricsChanged() {
  if (!watched_ || destroying_) return;
  // A list that is given another size while it is open closes without a notification.
  if (FormScale(*form_, hwnd_) != scale_) controls_.CloseLists();
  if (hwnd_ == nullptr || !Rescale()) return;
  ShowIcons();
  Resize();
  TellScale(ScaleCause::kScreen);
}

void FormWindow::TellScale(ScaleCause cause) {
  events_.Tell([&](FormEvents& events) { TellScaled(events, cause); });
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

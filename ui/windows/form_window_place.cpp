#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/units.h"

namespace korvale {

void FormWindow::ShowPlace() {
  const PixelPlace place = ToScreenPixels(form_->place, GetDpiForWindow(hwnd_));
  placing_ = true;
  ::MoveWindow(hwnd_, place.left, place.top, place.width, place.height, TRUE);
  placing_ = false;
  TellPlaced();
}

void FormWindow::TellPlaced() {
  // One placing by the model is one event, reported when all of it is done.
  if (placing_ || !events_.Connected()) return;
  ShowState state = ShowState::kNormal;
  if (IsIconic(hwnd_) != FALSE) state = ShowState::kMinimized;
  if (IsZoomed(hwnd_) != FALSE) state = ShowState::kMaximized;
  // Where the pixels match the model's place, that is reported, free of rounding errors.
  TwipsRect place = form_->place;
  if (state != ShowState::kMinimized) {
    const UINT dpi = GetDpiForWindow(hwnd_);
    RECT rect{};
    GetWindowRect(hwnd_, &rect);
    const PixelPlace actual = {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    if (actual != ToScreenPixels(place, dpi)) place = ToScreenTwips(rect, dpi);
  }
  events_.Tell([&](FormEvents& events) { events.OnPlaced(state, place); });
}

void FormWindow::LimitSize(MINMAXINFO& limits) const {
  // The form itself decides how small it may be.
  const UINT dpi = GetDpiForWindow(hwnd_);
  limits.ptMinTrackSize = {ToPixels(form_->limits.minimumWidth, dpi), 0};
  if (form_->limits.height == 0) return;
  const LONG height = ToPixels(form_->limits.height, dpi);
  limits.ptMinTrackSize.y = height;
  limits.ptMaxTrackSize.y = height;
  limits.ptMaxSize.y = height;
}

void FormWindow::KeepHeight(WPARAM edge, RECT& place) const {
  if (form_->limits.height == 0) return;
  const LONG height = ToPixels(form_->limits.height, GetDpiForWindow(hwnd_));
  // The model allows only one height; the edge that is not dragged stays where it is.
  if (edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT) {
    place.top = place.bottom - height;
  } else {
    place.bottom = place.top + height;
  }
}

void FormWindow::OnDpiChanged(UINT dpi, LPARAM wanted) {
  RECT place{};
  const bool forged = IsSentByOthers() && dpi != GetDpiForWindow(hwnd_);
  if (forged || !ReadParameter(wanted, place)) return;
  controls_.ChangeDpi();
  SetWindowPos(hwnd_, nullptr, place.left, place.top, place.right - place.left,
               place.bottom - place.top, SWP_NOZORDER | SWP_NOACTIVATE);
  events_.Tell([](FormEvents& events) { events.OnDpiChanged(); });
}

void FormWindow::OnMetricsChanged() {
  controls_.ChangeDpi();
  events_.Tell([](FormEvents& events) { events.OnDpiChanged(); });
}

}  // namespace korvale

#include <algorithm>

#include "ui/windows/form_window.h"
#include "ui/windows/units.h"

namespace korvale {

void FormWindow::ShowPlace() {
  const auto move = [this] {
    const PixelPlace place = ToScreenPixels(form_->place, scale_.Dpi());
    ::MoveWindow(hwnd_, place.left, place.top, place.width, place.height, TRUE);
  };
  placing_ = true;
  // What the user has changed since then must not be lost to the message that tells of it.
  const bool changed = Rescale();
  move();
  // It may have come to a monitor with more or less room.
  const bool other = scale_.FollowTo(hwnd_) && Rescale();
  if (other) move();
  placing_ = false;
  TellPlaced();
  if (changed || other) TellScale(changed ? ScaleCause::kScreen : ScaleCause::kPlaced);
}

void FormWindow::TellPlaced() {
  // One placing by the model is one event, reported when all of it is done.
  if (placing_ || !events_.Connected()) return;
  scale_.FollowTo(hwnd_);
  ShowState state = ShowState::kNormal;
  if (IsIconic(hwnd_) != FALSE) state = ShowState::kMinimized;
  if (IsZoomed(hwnd_) != FALSE) state = ShowState::kMaximized;
  // Where the pixels match the model's place, that is reported, free of rounding errors.
  TwipsRect place = form_->place;
  if (state != ShowState::kMinimized) {
    const UINT dpi = scale_.Dpi();
    RECT rect{};
    GetWindowRect(hwnd_, &rect);
    const PixelPlace actual = {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
    if (actual != ToScreenPixels(place, dpi)) place = ToScreenTwips(rect, dpi);
  }
  if (state == ShowState::kNormal) restored_ = {place.width, place.height};
  events_.Tell([&](FormEvents& events) { events.OnPlaced(state, place); });
}

void FormWindow::LimitSize(MINMAXINFO& limits) const {
  // The form itself decides how small it may be.
  const UINT dpi = scale_.Dpi();
  limits.ptMinTrackSize = {ToPixels(form_->limits.minimumWidth, dpi), 0};
  limits.ptMaxTrackSize.x =
      std::max<LONG>(limits.ptMaxTrackSize.x, ToPixels(form_->place.width, dpi));
  if (form_->limits.height == 0) return;
  const LONG height = ToPixels(form_->limits.height, dpi);
  limits.ptMinTrackSize.y = height;
  limits.ptMaxTrackSize.y = height;
  limits.ptMaxSize.y = height;
  // What covers the primary monitor Windows fits to the window's own one. A strip does not.
  limits.ptMaxSize.x += scale_.WorkWidth() - GetSystemMetrics(SM_CXSCREEN);
}

void FormWindow::KeepHeight(WPARAM edge, RECT& place) const {
  if (form_->limits.height == 0) return;
  const LONG height = ToPixels(form_->limits.height, scale_.Dpi());
  // The model allows only one height; the edge that is not dragged stays where it is.
  if (edge == WMSZ_TOP || edge == WMSZ_TOPLEFT || edge == WMSZ_TOPRIGHT) {
    place.top = place.bottom - height;
  } else {
    place.bottom = place.top + height;
  }
}

}  // namespace korvale

#include <algorithm>
#include <cstdint>

#include "ui/form.h"
#include "ui/form_collection.h"
#include "ui/form_placement.h"
#include "util/raised_flag.h"

namespace korvale {

void Form::FitIntoWorkArea() {
  if (!IsLoaded() || state_.windowState != ShowState::kNormal || fitting_) return;
  const RaisedFlag fitting(fitting_);
  wished_ = PlaceToKeep();
  wished_->height = place_.height;
  ScreenQueries& screen = forms_->Screen();
  const TwipsRect area = screen.GetMonitorInfoW(handle_);
  const TwipsRect now = screen.GetWindowRect(handle_);
  // It goes there in one step: on the way, most of it might lie on another monitor.
  const std::int64_t width =
      std::int64_t{now.width} * wished_->width / std::max<Twips>(1, place_.width);
  TwipsRect place = *wished_;
  if (width > area.width) {
    place.width = static_cast<Twips>(std::int64_t{place.width} * area.width / width);
  }
  place.left = Inside(place.left, area.left, area.width,
                      static_cast<Twips>(std::clamp<std::int64_t>(width, 0, area.width)));
  place.top = Inside(place.top, area.top, area.height, now.height);
  SetPlace(place);
  if (IsLoaded()) KeepInWorkArea(*this);
  wished_->height = place_.height;
  if (wished_ == place_) wished_.reset();
  inside_ = true;
}

void Form::NoteWhetherInside() {
  if (fitting_ || !IsLoaded() || !state_.visible || state_.windowState != ShowState::kNormal) {
    return;
  }
  if (state_.border == BorderStyle::kSizable) inside_ = IsInWorkArea(*this);
}

void Form::NoteUsersPlace(ShowState state, const TwipsRect& place) {
  if (!wished_ || fitting_ || state != ShowState::kNormal || state != state_.windowState) return;
  if (place.width != state_.place.width) return wished_.reset();
  wished_->left = place.left;
  wished_->top = place.top;
}

}  // namespace korvale

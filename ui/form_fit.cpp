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
  SetPlace(*wished_);
  if (!IsLoaded()) return;
  ScreenQueries& screen = forms_->Screen();
  const TwipsRect area = screen.GetMonitorInfoW(handle_);
  const Twips width = screen.GetWindowRect(handle_).width;
  if (width > area.width) {
    TwipsRect narrow = place_;
    narrow.left = area.left;
    narrow.width = static_cast<Twips>(std::int64_t{narrow.width} * area.width / width);
    SetPlace(narrow);
  }
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

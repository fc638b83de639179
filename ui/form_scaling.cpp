#include "ui/form_scaling.h"

#include "ui/form_placement.h"

namespace korvale {

bool TakesOwnSize(const FormState& form, bool normal, bool sized) {
  // Windows does not know that a dialog grows only as far as there is room for it, and rounds the
  // size of others anew each time.
  return form.content != TwipsSize{} || (normal && !sized);
}

bool StaysOnMonitor(bool normal, ScaleCause cause) {
  return normal && cause != ScaleCause::kDragged;
}

TwipsRect KeptOnMonitor(TwipsRect place, const TwipsRect& workArea, bool over) {
  if (!over) return place;
  place.left = Inside(place.left, workArea.left, workArea.width, place.width);
  place.top = Inside(place.top, workArea.top, workArea.height, place.height);
  return place;
}

void TellScaled(FormEvents& events, ScaleCause cause) {
  if (cause == ScaleCause::kScreen) {
    events.OnMetricsChanged();
  } else {
    events.OnDpiChanged();
  }
}

}  // namespace korvale

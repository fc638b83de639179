#include "ui/form_placement.h"

#include <algorithm>

#include "ui/form_collection.h"

namespace korvale {
namespace {

/// How high the title bar counts, and how much of it must be on a monitor, in both directions, to
/// be dragged.
constexpr Twips kTitleBar = 400;
constexpr Twips kReachable = 300;

void MoveTo(Form& form, Twips left, Twips top) {
  TwipsRect place = form.Place();
  place.left = left;
  place.top = top;
  form.SetPlace(place);
}

/// Where a stretch of this length begins when it is centred in the room.
Twips Centred(Twips start, Twips room, Twips length) { return start + (room - length) / 2; }

/// The length that two stretches have in common, negative when they lie apart.
Twips Overlap(Twips start, Twips length, Twips otherStart, Twips otherLength) {
  return std::min(start + length, otherStart + otherLength) - std::max(start, otherStart);
}

bool CanBeCentredOn(const Form* owner) {
  return owner != nullptr && owner->IsLoaded() && owner->Visible() &&
         owner->WindowState() != ShowState::kMinimized;
}

}  // namespace

Twips Inside(Twips wished, Twips start, Twips room, Twips length) {
  return std::max(start, std::min(wished, start + room - length));
}

void PlaceForm(Form& form, WindowHandle workedIn, const PlaceHints& hints, const Form* owner) {
  ScreenQueries& screen = form.Collection().Screen();
  const TwipsRect area = screen.GetMonitorInfoW(workedIn);
  // The user may work on another monitor than the one where the owner is.
  const bool onOwner = CanBeCentredOn(owner) && screen.GetMonitorInfoW(owner->Handle()) == area;
  // Its size counts the dots of the monitor that it is on.
  if (screen.GetMonitorInfoW(form.Handle()) != area) MoveTo(form, area.left, area.top);
  const TwipsRect room = onOwner ? screen.GetWindowRect(owner->Handle()) : area;
  const TwipsRect size = screen.GetWindowRect(form.Handle());
  MoveTo(form, hints.left != -1 ? hints.left : Centred(room.left, room.width, size.width),
         hints.top != -1 ? hints.top : Centred(room.top, room.height, size.height));
}

void KeepInWorkArea(Form& form) {
  ScreenQueries& screen = form.Collection().Screen();
  const TwipsRect area = screen.GetMonitorInfoW(form.Handle());
  const TwipsRect place = screen.GetWindowRect(form.Handle());
  MoveTo(form, Inside(place.left, area.left, area.width, place.width),
         Inside(place.top, area.top, area.height, place.height));
}

bool IsWithin(const TwipsRect& place, const TwipsRect& area) {
  return Overlap(place.left, place.width, area.left, area.width) == place.width &&
         Overlap(place.top, place.height, area.top, area.height) == place.height;
}

bool IsInWorkArea(Form& form) {
  ScreenQueries& screen = form.Collection().Screen();
  return IsWithin(screen.GetWindowRect(form.Handle()), screen.GetMonitorInfoW(form.Handle()));
}

void BringOntoMonitor(Form& form) {
  ScreenQueries& screen = form.Collection().Screen();
  const TwipsRect area = screen.GetMonitorInfoW(form.Handle());
  const TwipsRect place = screen.GetWindowRect(form.Handle());
  if (Overlap(place.left, place.width, area.left, area.width) < kReachable ||
      Overlap(place.top, kTitleBar, area.top, area.height) < kReachable) {
    KeepInWorkArea(form);
  }
}

}  // namespace korvale

#pragma once

#include "platform/types.h"
#include "ui/form.h"

namespace korvale {

/// Where a form is to come up, in twips of the screen; -1 = unspecified.
struct PlaceHints {
  Twips left = -1;
  Twips top = -1;
};

/// Moves a form to its hints, onto the monitor of the window that the user works in; without hints,
/// to the middle of its owner, if that can be seen on this monitor, or else of the work area.
/// `owner` may be null.
void PlaceForm(Form& form, WindowHandle workedIn, const PlaceHints& hints, const Form* owner);

/// The nearest beginning inside the room, all in twips or all in pixels; what is longer than the
/// room begins where it does.
Twips Inside(Twips wished, Twips start, Twips room, Twips length);

/// Moves a form into the work area of its monitor; a larger one begins where the area does.
void KeepInWorkArea(Form& form);

/// All of the place, in twips of the screen, lies within the area.
bool IsWithin(const TwipsRect& place, const TwipsRect& area);

/// All of a form lies within the work area of its monitor.
bool IsInWorkArea(Form& form);

/// Moves a form onto the monitor nearest to it, when too little of it lies on any to be seen and
/// dragged.
void BringOntoMonitor(Form& form);

}  // namespace korvale

#pragma once

#include <windows.h>

#include "ui/windows/event_sink.h"
#include "ui/windows/form_controls.h"

namespace korvale {

/// Shift, Ctrl, Alt and the Windows keys as they are held now.
unsigned HeldShiftState();

/// Shows a form the keys and characters of its windows before they see them.
class KeyFilter {
 public:
  KeyFilter(HWND form, EventSink& events, FormControls& controls)
      : form_(form), events_(&events), controls_(&controls) {}

  /// True when the message has been dealt with and must not be dispatched.
  bool Filter(const MSG& message);

 private:
  bool FilterDown(int control, const MSG& message);
  bool FilterUp(int control, const MSG& message);
  bool FilterCharacter(int control, const MSG& message);
  void ShowCues(int virtualKey) const;

  HWND form_;
  EventSink* events_;
  FormControls* controls_;
};

}  // namespace korvale

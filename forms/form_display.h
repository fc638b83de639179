#pragma once

#include <cstdint>
#include <string>

#include "desktop/desktop.h"
#include "desktop/window_readers.h"
#include "hotkeys/suspension.h"
#include "ui/form.h"
#include "ui/form_collection.h"
#include "ui/form_placement.h"

namespace korvale {

/// What the callers of ShowFormModal pass as its milliseconds.
inline constexpr std::int32_t kForegroundWait = 1000;

/// How a form is placed and shown; 0 switches a rule off.
struct DisplaySwitches {
  std::int16_t centerOnOwner = 1;   ///< Otherwise, or without owner, centred on the work area.
  std::int16_t keepInWorkArea = 1;  ///< Moved inside the work area of its monitor.
  std::int16_t followTopmost = 1;   ///< Topmost while the main window is always on top.
  std::int16_t takeForeground = 1;  ///< Made the foreground window; 0 = not even active.
};

/// Places and shows the forms of the program on the virtual desktop where the user is. The main
/// window, which owns them all, comes there along with the forms that are shown already.
class FormDisplay {
 public:
  /// `alwaysOnTop` is the live state of the main window.
  FormDisplay(FormCollection& forms, Desktop& desktop, Suspension& suspension,
              const bool& alwaysOnTop);

  /// Shows the form above its owner until it closes, and returns the tag that it has then, its
  /// result. Hot keys are suspended meanwhile. When no other window has taken the foreground by
  /// then, the one that had it before gets it back (ReturnUserTo). `milliseconds` has no effect:
  /// Windows grants or refuses the foreground at once. A form that is shown already is only brought
  /// to the front.
  std::string ShowFormModal(Form& form, const DisplaySwitches& switches, std::int32_t milliseconds,
                            const PlaceHints& hints, Form* owner);

  /// Shows the loaded form until it closes, and leaves the foreground and the other forms as they
  /// are. Hot keys are suspended meanwhile. A form that is shown already stays where it is.
  void ShowFormAside(Form& form);

  /// Brings a loaded form to the front; does nothing when it is not loaded. A form that the user
  /// already sees stays where it is, a minimized one is restored. Denied when it is shown, but
  /// Windows refuses it the foreground.
  RequestResult ShowFormNonModal(Form& form, const DisplaySwitches& switches, Form* owner);

 private:
  void ComeToUser();
  void Place(Form& form, const DisplaySwitches& switches, const PlaceHints& hints,
             const Form* owner);
  RequestResult BringToFront(Form& form, const DisplaySwitches& switches);
  void FollowTopmost(WindowHandle hwnd);
  void GiveForegroundBack(const KnownWindow& before);

  FormCollection* forms_;
  Desktop* desktop_;
  Suspension* suspension_;
  const bool* alwaysOnTop_;
};

}  // namespace korvale

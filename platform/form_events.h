#pragma once

#include <string>

#include "platform/form_model.h"
#include "platform/types.h"

namespace korvale {

/// Shift, Ctrl, Alt and the Windows key as held during a key or mouse event.
enum ShiftState : unsigned { kNoShift = 0, kShift = 1, kCtrl = 2, kAlt = 4, kWindows = 8 };

enum class MouseEvent { kDown, kUp, kMove };
enum class MouseButton { kNone = 0, kLeft = 1, kRight = 2, kMiddle = 4 };

struct MouseInput {
  MouseEvent event = MouseEvent::kMove;
  MouseButton button = MouseButton::kNone;
  unsigned shift = kNoShift;
  Twips x = 0;  ///< Within the control, or within the form's client area for control 0.
  Twips y = 0;
};

/// Why a form is asked to go. `kCode` = the program itself, `kUser` = close box or Alt+F4,
/// `kSession` = the Windows session ends, `kTaskManager` = another program ends this one.
enum class CloseReason { kCode, kUser, kSession, kTaskManager };

/// What the user did with a form, as a FormHost reports it. What it means is decided behind this
/// interface, never in a host. Control 0 is the form itself. Hosts call each method inside a try
/// block and hand whatever is thrown to OnUncaught. One interface for keys, controls and window,
/// since a window has one listener and what one of them means depends on the others.
class FormEvents {
 public:
  virtual ~FormEvents() = default;

  /// A button, check box or option button was clicked, by mouse or space bar. Check boxes and
  /// option buttons do not change by themselves: the form answers with UpdateControl.
  virtual void OnClick(int control) = 0;
  /// The text of a text box or combo box was changed by typing, pasting or the like.
  virtual void OnTextTyped(int control, const std::string& text) = 0;
  /// The user chose an entry of a list or a tab.
  virtual void OnListPicked(int control, int listIndex) = 0;
  virtual void OnListDropDown(int control) = 0;
  virtual void OnListClosedUp(int control) = 0;
  /// A key went down or up while `control` had the focus, before the control sees it; true when it
  /// has been dealt with and the control must not see it. `repeated`: the key was down already and
  /// Windows repeats it.
  virtual bool OnKeyDown(int control, int virtualKey, unsigned shift, bool repeated) = 0;
  virtual bool OnKeyUp(int control, int virtualKey, unsigned shift) = 0;
  /// The keyboard gave a character (WM_CHAR, WM_SYSCHAR) for a key that OnKeyDown did not deal
  /// with, before the control sees it; true when the control must not see it.
  virtual bool OnCharacter(int control, char32_t character, unsigned shift) = 0;
  /// The mouse was used over the form or a control that reports it. A host tells no click on a
  /// label or image: the form makes it of the left button going down and coming up there.
  virtual void OnMouse(int control, const MouseInput& input) = 0;
  virtual void OnFocusMoved(int control) = 0;
  /// A menu of the bar, or the pop-up, is about to be shown, with what the model then holds.
  virtual void OnMenuOpened(MenuItem& menu) = 0;
  virtual void OnMenuClicked(MenuItem& item) = 0;
  virtual void OnActivated() = 0;
  /// The user or Windows moved, sized, minimized or restored the form. May be told again without
  /// any change, and follows every MoveWindow.
  virtual void OnPlaced(ShowState state, const TwipsRect& place) = 0;
  /// The sizes of frame and menu may have changed with the dots per inch of the form's monitor
  /// (WM_DPICHANGED).
  virtual void OnDpiChanged() = 0;
  /// The user has chosen other sizes of text, title bars or menus, or the work area has changed
  /// (WM_SETTINGCHANGE). The form keeps its size in twips, and so may be another one on the screen.
  virtual void OnMetricsChanged() = 0;
  /// The user has chosen other system colours, or turned high contrast on or off
  /// (WM_SYSCOLORCHANGE, WM_SETTINGCHANGE).
  virtual void OnSysColorChange() = 0;
  /// The form is asked to close; the form unloads itself when it agrees.
  virtual void OnCloseRequested(CloseReason reason) = 0;
  virtual void OnTimer(int control) = 0;
  /// Called inside a catch block when one of the above ended with an exception.
  virtual void OnUncaught() noexcept = 0;
};

}  // namespace korvale

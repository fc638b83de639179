#pragma once

#include "platform/form_events.h"
#include "platform/form_model.h"
#include "platform/types.h"

namespace korvale {

/// A part of a text in characters: where it starts (0-based) and how long it is.
struct TextSelection {
  int start = 0;
  int length = 0;
};

/// The windows of forms: the Windows host makes real ones, the headless host none. `hwnd` is always
/// a handle that CreateWindowExW gave.
class FormHost {
 public:
  virtual ~FormHost() = default;

  /// Makes the hidden window of a form with all its controls; 0 when Windows refuses one of them.
  /// Both references stay valid until DestroyWindow.
  virtual WindowHandle CreateWindowExW(const FormState& form, FormEvents& events) = 0;
  virtual void DestroyWindow(WindowHandle hwnd) = 0;

  /// Shows what has changed in the model.
  virtual void UpdateControl(WindowHandle hwnd, int control, ControlProperty property) = 0;
  virtual void SetWindowTextW(WindowHandle hwnd) = 0;
  /// Applies `place` of the model (MoveWindow).
  virtual void MoveWindow(WindowHandle hwnd) = 0;
  /// Shows or hides the menu bar and redraws its captions (SetMenu, DrawMenuBar).
  virtual void DrawMenuBar(WindowHandle hwnd) = 0;
  virtual void EnableWindow(WindowHandle hwnd, bool enable) = 0;
  /// False also while Windows itself has disabled the form, the owner of a message box or dialog.
  virtual bool IsWindowEnabled(WindowHandle hwnd) = 0;
  /// `command` is one of the SW_ values. Tells screen readers of an alert that comes up, as does
  /// every other text of one that is shown (NotifyWinEvent with EVENT_SYSTEM_ALERT).
  virtual void ShowWindow(WindowHandle hwnd, int command) = 0;
  /// Gives the focus to a control of the form, 0 = the form itself; does nothing while the form is
  /// not the active window (it asks again when it is activated).
  virtual void SetFocus(WindowHandle hwnd, int control) = 0;

  /// The list of a combo box is open; false for every other control (CB_GETDROPPEDSTATE).
  virtual bool GetDroppedState(WindowHandle hwnd, int control) = 0;
  virtual TextSelection GetSelection(WindowHandle hwnd, int control) = 0;
  virtual void SetSelection(WindowHandle hwnd, int control, TextSelection selection) = 0;
  /// What the frame and menu bar of the form add to its client area, in twips: `left`/`top` their
  /// thickness on these sides, `width`/`height` the sums of both sides (AdjustWindowRectExForDpi).
  virtual TwipsRect AdjustWindowRectEx(const FormState& form) = 0;
};

}  // namespace korvale

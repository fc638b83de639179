#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/form_model.h"
#include "platform/types.h"

namespace korvale {

/// Shift, Ctrl, Alt and the Windows key as held during a key or mouse event.
enum ShiftState : unsigned { kNoShift = 0, kShift = 1, kCtrl = 2, kAlt = 4, kWindows = 8 };

enum class MouseEvent { kDown, kUp, kMove };
enum class MouseButton { kNone = 0, kLeft = 1, kRight = 2, kMiddle = 4 };

/// Mouse pointers over the program's windows.
enum class MousePointer : std::int16_t { kDefault = 0, kHourglass = 11, kCustom = 99 };

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

/// A part of a text in characters: where it starts (0-based) and how long it is.
struct TextSelection {
  int start = 0;
  int length = 0;
};

/// What the user did with a form, told by the host. The meaning is decided behind this interface,
/// never in a host. Control 0 is the form itself. Hosts call each method inside a try block and
/// hand whatever comes out of it to OnUncaught.
class FormEvents {
 public:
  virtual ~FormEvents() = default;

  /// A button, check box, option button, label or image was clicked, by mouse or space bar. Check
  /// boxes and option buttons do not change by themselves: the form answers with UpdateControl.
  virtual void OnClick(int control) = 0;
  /// The text of a text box or combo box was changed by typing, pasting or the like.
  virtual void OnTextTyped(int control, const std::string& text) = 0;
  /// The user chose an entry of a list or a tab.
  virtual void OnListPicked(int control, int listIndex) = 0;
  virtual void OnListDropDown(int control) = 0;
  virtual void OnListClosedUp(int control) = 0;
  /// A key went down or up while `control` had the focus, before the control sees it; true when it
  /// has been dealt with and the control must not see it.
  /// `repeated`: Windows repeats a key that was down already.
  virtual bool OnKeyDown(int control, int virtualKey, unsigned shift, bool repeated) = 0;
  virtual bool OnKeyUp(int control, int virtualKey, unsigned shift) = 0;
  /// A character came from the keyboard (WM_CHAR, WM_SYSCHAR) out of a key that OnKeyDown did not
  /// deal with, before the control sees it; true when the control must not see it.
  virtual bool OnCharacter(int control, char32_t character, unsigned shift) = 0;
  virtual void OnMouse(int control, const MouseInput& input) = 0;
  virtual void OnFocusMoved(int control) = 0;
  /// A menu of the bar, or the pop-up, is about to be shown; it is shown as the model then stands.
  virtual void OnMenuOpened(MenuItem& menu) = 0;
  virtual void OnMenuClicked(MenuItem& item) = 0;
  virtual void OnActivated() = 0;
  /// The user or Windows moved, sized, minimized or restored the form.
  virtual void OnPlaced(ShowState state, const TwipsRect& place) = 0;
  /// Frame and menu may have other sizes: its monitor has other dots per inch now (WM_DPICHANGED),
  /// or the user wants other metrics (WM_SETTINGCHANGE).
  virtual void OnDpiChanged() = 0;
  /// The user has chosen other system colours, or turned high contrast on or off
  /// (WM_SYSCOLORCHANGE, WM_SETTINGCHANGE).
  virtual void OnSysColorChange() = 0;
  /// The form is asked to close; the form unloads itself when it agrees.
  virtual void OnCloseRequested(CloseReason reason) = 0;
  virtual void OnTimer(int control) = 0;
  /// Called inside a catch block when one of the above ended with an exception.
  virtual void OnUncaught() noexcept = 0;
};

/// Shows forms on a screen: the Windows host makes real windows, the headless host none. `hwnd`
/// is always a handle that CreateWindowExW gave.
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
  /// `command` is one of the SW_ values.
  virtual void ShowWindow(WindowHandle hwnd, int command) = 0;
  /// Gives the focus to a control of the form, 0 = the form itself; does nothing while the form is
  /// not the active window (it asks again when it is activated).
  virtual void SetFocus(WindowHandle hwnd, int control) = 0;
  /// The control of the form that has the focus, 0 = none.
  virtual int GetFocus(WindowHandle hwnd) = 0;

  /// The list of a combo box is open; false for every other control (CB_GETDROPPEDSTATE).
  virtual bool GetDroppedState(WindowHandle hwnd, int control) = 0;
  virtual TextSelection GetSelection(WindowHandle hwnd, int control) = 0;
  virtual void SetSelection(WindowHandle hwnd, int control, TextSelection selection) = 0;
  /// What the frame and menu bar of the form add to its client area, in twips: `left`/`top` their
  /// thickness there, `width`/`height` the sums of both sides (AdjustWindowRectExForDpi).
  virtual TwipsRect AdjustWindowRectEx(const FormState& form) = 0;
  /// The dots per inch with which the window is shown (GetDpiForWindow).
  virtual int GetDpiForWindow(WindowHandle hwnd) = 0;
  /// The work area, in twips, of the monitor that shows the window or is nearest to it
  /// (MonitorFromWindow, GetMonitorInfoW); of the primary monitor when there is no such window.
  virtual TwipsRect GetMonitorInfoW(WindowHandle hwnd) = 0;
  /// The work area, in twips, of the monitor under the mouse pointer (MonitorFromPoint).
  virtual TwipsRect MonitorFromPoint() = 0;
  /// The width of a text in the menus of a form, in twips of the system's dots per inch.
  virtual Twips GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) = 0;
  /// Where the form really stands, place and size in twips of the system's dots per inch, as the
  /// work areas count them (GetWindowRect).
  virtual TwipsRect GetWindowRect(WindowHandle hwnd) = 0;

  /// A message box; returns the number of the pressed button. `style` is a sum of MB_ values.
  virtual std::int16_t MessageBoxW(WindowHandle owner, const std::string& text,
                                   const std::string& title, std::int32_t style) = 0;
  /// Pops a menu of the form up at the mouse position and returns when it has closed; the choice
  /// has then been told through OnMenuClicked (TrackPopupMenuEx).
  virtual void TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) = 0;
  /// Closes the menu that is open in the program, of a bar or popped up; false when there is none.
  /// Whoever shows it gets control back later and is told of no choice (EndMenu).
  virtual bool EndMenu() = 0;

  /// What a colour stands for on this screen, 0x00BBGGRR; other than system colours stay as they
  /// are (GetSysColor).
  virtual Color GetSysColor(Color color) = 0;
  /// The user wants high contrast (SystemParametersInfoW with SPI_GETHIGHCONTRAST).
  virtual bool HighContrast() = 0;
  /// The colour dialog; nothing when the user cancels it. Colours are 0x00BBGGRR.
  virtual std::optional<Color> ChooseColorW(WindowHandle owner, Color initial) = 0;
  /// The pointer over all windows of the program; kDefault leaves it to each window.
  virtual void SetCursor(MousePointer pointer) = 0;

  /// Presses and releases a key with the `shift` keys held, as the user does in this window; does
  /// nothing while it is not in front (SendInput).
  virtual void SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) = 0;

  /// Dispatches messages until `done` is true or the program is to end (GetMessageW).
  virtual void RunMessageLoop(const std::function<bool()>& done) = 0;
  /// Dispatches the messages that are waiting (PeekMessageW).
  virtual void DoEvents() = 0;
  /// Ends every message loop of the program.
  virtual void PostQuitMessage() = 0;
  virtual bool QuitPosted() = 0;
};

}  // namespace korvale

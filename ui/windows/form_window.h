#pragma once

#include <windows.h>

#include <memory>
#include <optional>

#include "platform/form_events.h"
#include "platform/input_devices.h"
#include "ui/form_scaling.h"
#include "ui/windows/brush_cache.h"
#include "ui/windows/event_sink.h"
#include "ui/windows/form_controls.h"
#include "ui/windows/form_menu.h"
#include "ui/windows/form_scale.h"
#include "ui/windows/key_filter.h"
#include "ui/windows/screen_reader.h"
#include "ui/windows/system_colors.h"
#include "ui/windows/window_classes.h"

namespace korvale {

/// The window of one form, with its controls and menus. Lives on while its window procedure runs.
class FormWindow : public std::enable_shared_from_this<FormWindow> {
 public:
  /// `pointer` is the live mouse pointer over all forms.
  FormWindow(const FormState& form, WindowClasses& classes, BrushCache& brushes,
             ScreenReader& reader, const MousePointer& pointer);
  ~FormWindow();
  FormWindow(const FormWindow&) = delete;
  FormWindow& operator=(const FormWindow&) = delete;

  /// Makes the hidden window; 0 when Windows refused. Events are reported after it returns.
  HWND Create(HWND owner, FormEvents& events);
  /// Destroys the window; no event is reported any more.
  void Destroy();

  HWND Handle() const { return hwnd_; }
  const FormState& Model() const { return *form_; }
  FormControls& Controls() { return controls_; }
  const FormScale& Scale() const { return scale_; }

  // Show what has changed in the model.
  void ShowCaption();
  void ShowPlace();
  void ShowMenuBar();
  void Show(int command);
  /// Tells screen readers what a form is called that is more than a window to work in.
  void TellName() const;
  /// Lets screen readers read an alert that is shown; no other form is one.
  void Announce() const;
  void SetFocus(int control);
  void TrackPopup(MenuItem& menu);
  void RequestClose(CloseReason reason);
  /// Sees each message of the form's windows first; true when it must not be dispatched.
  bool Filter(const MSG& message);

 private:
  static LRESULT CALLBACK FormProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK PageProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  static LRESULT CALLBACK ControlProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                           UINT_PTR id, DWORD_PTR form);

  /// True for a message that another program made up: the window's state does not bear it out.
  bool IsForged(UINT message, WPARAM wParam) const;
  bool IsForgedForControl(int control, HWND window, UINT message, WPARAM wParam,
                          LPARAM lParam) const;
  LRESULT Process(UINT message, WPARAM wParam, LPARAM lParam);
  /// Messages that controls and pages send; nothing for any other.
  std::optional<LRESULT> HandleFromControls(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandleMenu(UINT message, WPARAM wParam, LPARAM lParam);
  std::optional<LRESULT> HandleEnd(UINT message, WPARAM wParam);
  std::optional<LRESULT> HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
  /// Messages about the dots per inch, sizes and colours of the screen.
  void HandleLook(UINT message, WPARAM wParam, LPARAM lParam);
  void OnCommand(WPARAM wParam, LPARAM lParam);
  void OnNotify(WPARAM wParam);
  /// A list has closed: Esc may have restored the former choice without a notification.
  void OnListClosed(int control);
  void OnControl(int control, UINT notification);
  void OnCombo(int control, UINT notification);
  std::optional<LRESULT> ControlColors(HDC dc, HWND window);
  void TellMouse(int control, HWND window, UINT message, WPARAM wParam, LPARAM lParam);
  void TellTyped(int control);
  void TellListPicked(int control);
  /// Reports the choice of a list or tab strip when it is not the model's: the message that leads
  /// here may come from another program, the state of the control does not.
  void TellIfPicked(int control);
  void TellPlaced();
  void LimitSize(MINMAXINFO& limits) const;
  void KeepHeight(WPARAM edge, RECT& place) const;
  /// The icons of title bar and taskbar in the size that goes with the monitor.
  void ShowIcons();
  /// Gives the controls the sizes and fonts that are right now; false when they have them.
  bool Rescale();
  /// The window keeps its size in twips, which was another one in pixels.
  void Resize();
  /// Resizes what a minimized or maximized window will be restored to.
  void ResizeRestored();
  /// Neither minimized nor maximized.
  bool IsNormal() const { return IsIconic(hwnd_) == FALSE && IsZoomed(hwnd_) == FALSE; }
  /// The size of the model in pixels.
  SIZE OwnSize(const FormScale& scale) const;
  /// Tells Windows the size that the form will take at these dots per inch (WM_GETDPISCALEDSIZE);
  /// nothing where it is in proportion.
  std::optional<LRESULT> ScaledSize(WPARAM dpi, LPARAM wanted) const;
  void OnDpiChanged(UINT dpi, LPARAM wanted);
  /// Why Windows gives it other dots per inch.
  ScaleCause WhyScaled() const;
  void TellScale(ScaleCause cause);
  void OnMetricsChanged();
  void OnColorsChanged();
  /// Lets the form see the messages of a control, or of the text field in it, first.
  void Watch(HWND control, int id);
  void ForgetRoles();

  const FormState* form_;
  WindowClasses* classes_;
  BrushCache* brushes_;
  ScreenReader* reader_;
  const MousePointer* pointer_;
  EventSink events_;
  FormScale scale_;
  SystemColors colors_ = SystemColors::Now();
  FormControls controls_;
  FormMenu menu_;
  std::optional<KeyFilter> keys_;
  HWND hwnd_ = nullptr;
  TwipsSize restored_;        // The size that it is restored to, in twips.
  POINT lastMouse_{};         // The last reported place of the mouse, on the screen.
  bool placing_ = false;      // The window is being placed by the model.
  bool watched_ = false;      // The window and its controls are complete.
  bool destroying_ = false;   // We are destroying the window ourselves.
  bool menuOpen_ = false;     // The user is in the menus.
  bool barOutdated_ = false;  // The menu bar changed meanwhile.
};

}  // namespace korvale

#pragma once

#include <windows.h>

#include "platform/form_model.h"
#include "platform/windows/handles.h"

namespace korvale {

/// How large a form is shown on its monitor.
class FormScale {
 public:
  /// Nothing known yet.
  FormScale() = default;
  /// As the user has it now; `window` is null for a form that has none yet.
  FormScale(const FormState& form, HWND window);
  /// As it would be on a monitor of so many dots per inch.
  FormScale(const FormState& form, HWND window, UINT dpi);

  /// The dots per inch of places and sizes.
  UINT Dpi() const { return dpi_; }
  /// The width of the work area, in pixels.
  LONG WorkWidth() const { return workArea_.right - workArea_.left; }
  /// The font of messages and of tool tips, no larger than goes with Dpi().
  UniqueFont MakeMessageFont() const { return MakeFont(metrics_.lfMessageFont); }
  UniqueFont MakeToolTipFont() const { return MakeFont(metrics_.lfStatusFont); }

  /// The window has been moved: the work area is that of the monitor where it is now. False when it
  /// is still the same monitor.
  bool FollowTo(HWND window);

  /// Where a window of this place, in pixels, stays on its monitor (MonitorFromRect).
  RECT Kept(const RECT& place) const;

  /// The form looks the same.
  bool LooksLike(const FormScale& other) const;
  /// Neither the looks of the form nor the work area around it differ.
  friend bool operator==(const FormScale& one, const FormScale& other);

 private:
  UniqueFont MakeFont(LOGFONTW font) const;

  NONCLIENTMETRICSW metrics_{};
  HMONITOR monitor_ = nullptr;
  RECT workArea_{};
  UINT monitorDpi_ = USER_DEFAULT_SCREEN_DPI;
  UINT dpi_ = USER_DEFAULT_SCREEN_DPI;
};

/// The work area of a monitor in pixels (GetMonitorInfoW).
RECT WorkAreaOf(HMONITOR monitor);

/// The form that has a place in the taskbar is the main one; its window owns all others.
inline bool IsMainForm(const FormState& form) { return form.inTaskbar; }

/// The style bits and extended style bits of the form's window.
DWORD FormStyle(const FormState& form);
DWORD FormExStyle(const FormState& form);

/// What the frame of a form, and one row of its menu bar, add to each side of its client area, in
/// pixels, negative to the left and above (AdjustWindowRectExForDpi).
RECT FormFrame(const FormState& form, UINT dpi);

}  // namespace korvale

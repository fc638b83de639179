#pragma once

#include <windows.h>

#include "platform/form_host.h"
#include "platform/input_devices.h"
#include "platform/windows/handles.h"
#include "ui/windows/brush_cache.h"
#include "ui/windows/open_forms.h"
#include "ui/windows/screen_reader.h"
#include "ui/windows/window_classes.h"

namespace korvale {

/// Shows forms as real windows. Used from one thread.
class WindowsFormHost : public FormHost {
 public:
  /// Makes the hidden window that owns the main window; it is never shown. Closing it ends the
  /// program. `pointer` is the live mouse pointer over all forms.
  WindowsFormHost(HINSTANCE instance, OpenForms& forms, const MousePointer& pointer);
  ~WindowsFormHost() override;

  WindowHandle CreateWindowExW(const FormState& form, FormEvents& events) override;
  void DestroyWindow(WindowHandle hwnd) override;
  void UpdateControl(WindowHandle hwnd, int control, ControlProperty property) override;
  void SetWindowTextW(WindowHandle hwnd) override;
  void MoveWindow(WindowHandle hwnd) override;
  void DrawMenuBar(WindowHandle hwnd) override;
  void EnableWindow(WindowHandle hwnd, bool enable) override;
  bool IsWindowEnabled(WindowHandle hwnd) override;
  void ShowWindow(WindowHandle hwnd, int command) override;
  void SetFocus(WindowHandle hwnd, int control) override;
  bool GetDroppedState(WindowHandle hwnd, int control) override;
  TextSelection GetSelection(WindowHandle hwnd, int control) override;
  void SetSelection(WindowHandle hwnd, int control, TextSelection selection) override;
  TwipsRect AdjustWindowRectEx(const FormState& form) override;

 private:
  static LRESULT CALLBACK OwnerProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  /// The window that owns a new form: the main form's, or for the main form the hidden one.
  /// Windows keeps a window above its owner and out of the taskbar.
  HWND OwnerOf(const FormState& form) const;

  OpenForms* forms_;
  const MousePointer* pointer_;
  WindowClasses classes_;
  BrushCache brushes_;
  ScreenReader reader_;
  UniqueWindow owner_;
};

}  // namespace korvale

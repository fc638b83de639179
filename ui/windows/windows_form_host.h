#pragma once

#include <windows.h>

#include <array>
#include <map>
#include <memory>
#include <optional>

#include "platform/form_host.h"
#include "platform/windows/handles.h"
#include "ui/windows/brush_cache.h"
#include "ui/windows/form_window.h"
#include "ui/windows/message_loop.h"
#include "ui/windows/window_classes.h"

namespace korvale {

/// Shows forms as real windows. Used from one thread.
class WindowsFormHost : public FormHost {
 public:
  /// Makes the hidden window that owns the main window; it is never shown. Whoever closes it ends
  /// the program.
  explicit WindowsFormHost(HINSTANCE instance);
  ~WindowsFormHost() override;

  WindowHandle CreateWindowExW(const FormState& form, FormEvents& events) override;
  void DestroyWindow(WindowHandle hwnd) override;
  void UpdateControl(WindowHandle hwnd, int control, ControlProperty property) override;
  void SetWindowTextW(WindowHandle hwnd) override;
  void MoveWindow(WindowHandle hwnd) override;
  void DrawMenuBar(WindowHandle hwnd) override;
  void EnableWindow(WindowHandle hwnd, bool enable) override;
  void ShowWindow(WindowHandle hwnd, int command) override;
  void SetFocus(WindowHandle hwnd, int control) override;
  int GetFocus(WindowHandle hwnd) override;
  bool GetDroppedState(WindowHandle hwnd, int control) override;
  TextSelection GetSelection(WindowHandle hwnd, int control) override;
  void SetSelection(WindowHandle hwnd, int control, TextSelection selection) override;
  TwipsRect AdjustWindowRectEx(const FormState& form) override;
  int GetDpiForWindow(WindowHandle hwnd) override;
  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override;
  TwipsRect MonitorFromPoint() override;
  Twips GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) override;
  TwipsRect GetWindowRect(WindowHandle hwnd) override;
  std::int16_t MessageBoxW(WindowHandle owner, const std::string& text, const std::string& title,
                           std::int32_t style) override;
  void TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) override;
  bool EndMenu() override;
  Color GetSysColor(Color color) override;
  bool HighContrast() override;
  std::optional<Color> ChooseColorW(WindowHandle owner, Color initial) override;
  void SetCursor(MousePointer pointer) override;
  void SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) override;
  void RunMessageLoop(const std::function<bool()>& done) override;
  void DoEvents() override;
  void PostQuitMessage() override;
  bool QuitPosted() override;

 private:
  static LRESULT CALLBACK OwnerProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  std::shared_ptr<FormWindow> Find(WindowHandle hwnd) const;
  /// The main form's window; null while there is none.
  std::shared_ptr<FormWindow> FindMain() const;
  /// The window that owns a new form: the main form's, or for the main form the hidden one.
  HWND OwnerOf(const FormState& form) const;

  /// The colours that the user mixed in the colour dialog.
  std::array<COLORREF, 16> customColors_ = {};
  WindowClasses classes_;
  BrushCache brushes_;
  MousePointer pointer_ = MousePointer::kDefault;
  UniqueWindow owner_;
  std::map<WindowHandle, std::shared_ptr<FormWindow>> forms_;
  MessageLoop loop_;
};

}  // namespace korvale

#pragma once

#include <windows.h>

#include <string>

#include "platform/windows/handles.h"
#include "ui/windows/form_scale.h"

namespace korvale {

/// The tool tips of a form. Their window is made when the mouse first comes to the form, since most
/// forms are shown and used by keys.
class ToolTips {
 public:
  /// `scale` is the live scale of the form.
  explicit ToolTips(const FormScale& scale) : scale_(&scale) {}
  ToolTips(const ToolTips&) = delete;
  ToolTips& operator=(const ToolTips&) = delete;

  /// They have their window; until then the other calls do nothing.
  bool Created() const { return static_cast<bool>(window_); }
  void Create(HWND form, HINSTANCE instance);
  /// The scale of the form has changed.
  void Rescale();
  /// The form's window is being destroyed.
  void Drop();

  /// Sets the tip of a control, "" = none. `shown` = the control is visible.
  void Set(HWND control, const std::string& text, bool shown);
  /// Lets the tips follow the mouse; called with each mouse message of the form before it is
  /// dispatched.
  void Relay(const MSG& message);

 private:
  static LRESULT CALLBACK Guard(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                DWORD_PTR tips);
  void Send(UINT message, WPARAM wParam, LPARAM lParam);
  int Dpi() const { return static_cast<int>(scale_->Dpi()); }
  int WidthOf(const std::string& text) const;
  void Add(HWND window, UINT_PTR id, UINT flags, const RECT& area, const std::string& text);
  void Remove(HWND window, UINT_PTR id);

  const FormScale* scale_;
  HWND form_ = nullptr;
  UniqueFont font_;
  UniqueWindow window_;
  bool ours_ = false;  // The window is being told something by us.
};

}  // namespace korvale

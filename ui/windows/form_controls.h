#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "platform/form_model.h"
#include "platform/windows/handles.h"
#include "ui/windows/form_scale.h"
#include "ui/windows/tool_tips.h"

namespace korvale {

/// The windows of a form's controls, kept as the model has them.
class FormControls {
 public:
  /// `scale` is the live scale of the form.
  FormControls(const FormState& form, HINSTANCE instance, const FormScale& scale)
      : form_(&form), instance_(instance), scale_(&scale), toolTips_(scale) {}

  /// Makes the controls in the order of the model; `pageClass` is the window class of pages.
  /// False when Windows refused one of them.
  bool Create(HWND form, const std::wstring& pageClass);
  /// The form's window is being destroyed.
  void Drop() { toolTips_.Drop(); }
  /// Shows what has changed in the model.
  void Update(int control, ControlProperty property);
  /// Closes every open list; its owner is told as if the user had done it.
  void CloseLists() const;
  /// The scale of the form has changed.
  void Rescale();
  /// Common controls learn only from their form that the system's colours have changed.
  void TellSysColorChange();

  /// The window of a control; null for a control without one.
  HWND Window(int control) const;
  /// The control that this window is or belongs to; 0 = none.
  int IdOf(HWND window) const;
  /// The control of this number, as messages carry it; 0 when there is none or it has no window.
  int Find(WPARAM number) const;
  const ControlState& State(int control) const { return form_->Control(control); }
  bool IsListDropped(int control) const;
  /// True while Update runs: events raised then are not the user's.
  bool Updating() const { return updating_; }
  /// Sees each message of the form before it is dispatched; makes the window of the tool tips when
  /// the mouse first comes.
  void Relay(const MSG& message);

 private:
  UINT Dpi() const { return scale_->Dpi(); }
  void PlaceAgain(const ControlState& control);
  void MakeFont();
  bool CreateOne(const ControlState& control, const std::wstring& pageClass);
  void Apply(const ControlState& control, ControlProperty property);
  void ApplyPlace(const ControlState& control);
  void ApplyVisible(const ControlState& control);
  void ApplyTip(const ControlState& control);
  void ApplyIcon(const ControlState& control);
  /// The window that holds the control, and where the control's place is counted from in it.
  HWND Holder(const ControlState& control, POINT& origin) const;

  const FormState* form_;
  HINSTANCE instance_;
  const FormScale* scale_;
  HWND formWindow_ = nullptr;
  std::vector<HWND> windows_;
  std::vector<UniqueIcon> icons_;
  UniqueFont font_;
  ToolTips toolTips_;
  bool updating_ = false;
};

}  // namespace korvale

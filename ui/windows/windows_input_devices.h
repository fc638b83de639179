#pragma once

#include <windows.h>

#include "platform/input_devices.h"
#include "ui/windows/open_forms.h"

namespace korvale {

class WindowsInputDevices : public InputDevices {
 public:
  WindowsInputDevices(HINSTANCE instance, const OpenForms& forms)
      : instance_(instance), forms_(&forms) {}

  /// The live mouse pointer over all forms.
  const MousePointer& Pointer() const { return pointer_; }

  void SetCursor(MousePointer pointer) override;
  void SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) override;
  void SendMouseInput() override;

 private:
  HINSTANCE instance_;
  const OpenForms* forms_;
  MousePointer pointer_ = MousePointer::kDefault;
};

}  // namespace korvale

#pragma once

#include "ui/windows/open_forms.h"
#include "ui/windows/windows_form_host.h"
#include "ui/windows/windows_input_devices.h"
#include "ui/windows/windows_message_loop.h"
#include "ui/windows/windows_screen.h"
#include "ui/windows/windows_system_dialogs.h"

namespace korvale {

/// Everything that shows forms on Windows, for one thread.
struct WindowsUi {
  explicit WindowsUi(HINSTANCE instance)
      : loop(forms),
        screen(forms),
        dialogs(forms),
        input(instance, forms),
        host(instance, forms, input.Pointer()) {}

  OpenForms forms;
  WindowsMessageLoop loop;
  WindowsScreen screen;
  WindowsSystemDialogs dialogs;
  WindowsInputDevices input;
  WindowsFormHost host;
};

}  // namespace korvale

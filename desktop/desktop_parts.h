#pragma once

#include "app/core/message_boxes.h"
#include "desktop/main_window.h"
#include "desktop/previous_window.h"
#include "platform/input_devices.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"
#include "util/forms.h"

namespace korvale {

/// What the routines for the windows of the desktop work with; it must outlive them.
struct DesktopParts {
  WindowQueries& windows;
  WindowCommands& commands;
  InputDevices& input;
  MainWindow& mainWindow;
  const LoadedForms& forms;
  MessageBoxes& messages;
  PreviousWindow& previous;
  VirtualDesktops& virtualDesktops;
};

}  // namespace korvale

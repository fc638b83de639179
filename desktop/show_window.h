#pragma once

#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

/// ShowWindow, or ShowWindowAsync for a window that hangs (IsHungAppWindow), which would otherwise
/// hold up the program. `command` is one of the SW_ values; returns what the call made returns.
bool ShowDesktopWindow(WindowQueries& windows, WindowCommands& commands, WindowHandle hwnd,
                       int command);

}  // namespace korvale

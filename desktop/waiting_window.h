#pragma once

#include <string>

#include "platform/window_api.h"

namespace korvale {

/// The topmost window that takes input (visible and enabled) among those of the thread that made
/// `hwnd`, such as a box, tip or dialog that waits for the user. With a class name, only windows of
/// exactly this class count. 0 when there is none.
WindowHandle FindWaitingWindow(WindowQueries& windows, WindowHandle hwnd,
                               const std::string& className = "");

/// The window that takes the user's input for `hwnd`: itself while it is enabled, otherwise the
/// dialog that disables it. That is the window it owns that was active last, also when it is out of
/// sight with its minimized owner, or else the topmost that is visible and enabled. 0 when nothing
/// takes input.
WindowHandle FindInputWindow(WindowQueries& windows, WindowHandle hwnd);

}  // namespace korvale

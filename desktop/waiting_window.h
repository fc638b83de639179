#pragma once

#include <string>

#include "platform/window_api.h"

namespace korvale {

/// More owners behind each other than any program has.
inline constexpr int kMostOwners = 16;

/// Of the thread that made `hwnd`, the topmost window that takes input: visible and enabled. Where
/// a box, tip or dialog waits for the user, it is that one. With a class name only windows of
/// exactly this class count. 0 when there is none.
WindowHandle FindWaitingWindow(WindowQueries& windows, WindowHandle hwnd,
                               const std::string& className = "");

/// The window that takes the user's input for `hwnd`: itself while it is enabled; otherwise, of the
/// windows that it owns, the one that was active last, or else the topmost that is visible and
/// enabled, so the dialog that disables it. In front of a minimized window it is out of sight, too.
/// 0 when nothing takes input.
WindowHandle FindInputWindow(WindowQueries& windows, WindowHandle hwnd);

}  // namespace korvale

#pragma once

#include <string>

#include "platform/window_api.h"

namespace korvale {

/// Of the thread that made `hwnd`, the topmost window that takes input: visible and enabled. Where
/// a box, tip or dialog waits for the user, it is that one. With a class name only windows of
/// exactly this class count. 0 when there is none.
WindowHandle FindWaitingWindow(WindowQueries& windows, WindowHandle hwnd,
                               const std::string& className = "");

}  // namespace korvale

#pragma once

#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// Moves a window of ours to the virtual desktop where the user is (MoveWindowToDesktop), with the
/// windows that it owns and along with its owners, so that showing it does not take the user to
/// another desktop. Nothing moves when it is there already, or when no window tells which desktop
/// that is.
void BringToUsersDesktop(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd);

}  // namespace korvale

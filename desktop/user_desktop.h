#pragma once

#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// Moves a window of ours to the virtual desktop where the user is (MoveWindowToDesktop), with the
/// windows that it owns and along with its owners, so that showing it does not take the user to
/// another desktop. Does nothing when it is there already. Where no window tells which desktop that
/// is, it is hidden and shown again, which Windows does where the user is.
void BringToUsersDesktop(WindowQueries& windows, WindowCommands& commands,
                         VirtualDesktops& desktops, WindowHandle hwnd);

}  // namespace korvale

#pragma once

#include "desktop/seen_window.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// Windows keeps the window off the screen although it is visible: it stands on another virtual
/// desktop, or its program is suspended.
bool IsCloaked(WindowQueries& windows, WindowHandle hwnd);

/// The window stands on the virtual desktop where the user is: visible (IsWindowVisible), and
/// Windows does not cloak it.
bool IsShownHere(WindowQueries& windows, WindowHandle hwnd);

/// Of the window and its owners, the outermost that Windows cloaks only because it stands on
/// another virtual desktop; 0 when there is none.
WindowHandle FindOnOtherDesktop(WindowQueries& windows, VirtualDesktops& desktops,
                                WindowHandle hwnd);

/// Windows keeps the window off the screen wherever the user goes, as those of suspended Store
/// programs, which are visible to everyone but the user. False when Windows does not tell why a
/// window is cloaked.
bool IsPutAway(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd);
/// The same of a window known to be cloaked; the virtual desktops answer, and messages may be
/// handled meanwhile.
bool IsCloakedWindowPutAway(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd);

/// Visible, by its style, here or on another virtual desktop.
bool IsShown(WindowQueries& windows, VirtualDesktops& desktops, SeenWindow& window);

}  // namespace korvale

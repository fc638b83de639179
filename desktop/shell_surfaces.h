#pragma once

#include <string_view>

namespace korvale {

/// Window class of the Windows shell itself: taskbars, Start, Search, notifications, task switchers
/// and the desktop. The user goes there in passing and never works in them. Folder windows and
/// Store programs are ordinary windows.
bool IsShellSurface(std::string_view className);

/// Window class of the bare desktop, in one of its two guises.
bool IsBareDesktop(std::string_view className);

}  // namespace korvale

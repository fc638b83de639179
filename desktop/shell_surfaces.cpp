#include "desktop/shell_surfaces.h"

#include <algorithm>
#include <iterator>

namespace korvale {
namespace {

constexpr std::string_view kBareDesktop[] = {
    "Progman",
    "WorkerW",  // In front instead of Progman, for example while the wallpaper is a slide show.
};

constexpr std::string_view kOtherSurfaces[] = {
    // Taskbars, the hidden notification icons, thumbnails and menus.
    "Shell_TrayWnd",
    "Shell_SecondaryTrayWnd",
    "NotifyIconOverflowWindow",
    "TopLevelWindowForOverflowXamlIsland",
    "TaskListThumbnailWnd",
    "TaskListOverlayWnd",
    "LauncherTipWnd",
    "#32768",
    // Start, Search, notifications, quick settings, widgets and the choice of the keyboard.
    "Windows.UI.Core.CoreWindow",
    "ControlCenterWindow",
    "WindowsDashboard",
    "Shell_InputSwitchTopLevelWindow",
    // Alt+Tab and Task View, old and new, and what stands in front while they close.
    "MultitaskingViewFrame",
    "XamlExplorerHostIslandWindow",
    "TaskSwitcherWnd",
    "#32771",
    "ForegroundStaging",
    // Stands in for a window that hangs and that Windows hides meanwhile.
    "Ghost",
};

}  // namespace

bool IsShellSurface(std::string_view className) {
  return IsBareDesktop(className) ||
         std::ranges::find(kOtherSurfaces, className) != std::end(kOtherSurfaces);
}

bool IsBareDesktop(std::string_view className) {
  return std::ranges::find(kBareDesktop, className) != std::end(kBareDesktop);
}

}  // namespace korvale

#include "desktop/window_visibility.h"

#include <cstdint>
#include <optional>

#include "desktop/window_readers.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

/// By the shell itself or along with its owner; not by its own program.
bool IsCloakedByShell(WindowQueries& windows, WindowHandle hwnd) {
  constexpr std::uint32_t kByShell = win32::kDwmCloakedShell | win32::kDwmCloakedInherited;
  const std::uint32_t cloaked = windows.DwmGetWindowAttribute(hwnd);
  return (cloaked & kByShell) != 0 && (cloaked & win32::kDwmCloakedApp) == 0;
}

/// What the virtual desktops tell about a window and its owners.
struct Search {
  WindowHandle found = 0;
  bool answered = true;
};

Search SearchOtherDesktops(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd) {
  Search search;
  for (int i = 0; i < kMostOwners && hwnd != 0 && IsCloakedByShell(windows, hwnd); ++i) {
    const std::optional<bool> here = desktops.IsWindowOnCurrentVirtualDesktop(hwnd);
    const std::optional<VirtualDesktopId> desktop =
        here == false ? desktops.GetWindowDesktopId(hwnd) : kNoVirtualDesktop;
    if (!here || !desktop) {
      search.answered = false;
    } else if (*desktop != kNoVirtualDesktop) {
      search.found = hwnd;
    }
    hwnd = windows.GetWindow(hwnd, win32::kGwOwner);
  }
  return search;
}

}  // namespace

bool IsCloaked(WindowQueries& windows, WindowHandle hwnd) {
  return windows.DwmGetWindowAttribute(hwnd) != 0;
}

bool IsShownHere(WindowQueries& windows, WindowHandle hwnd) {
  return windows.IsWindowVisible(hwnd) && !IsCloaked(windows, hwnd);
}

WindowHandle FindOnOtherDesktop(WindowQueries& windows, VirtualDesktops& desktops,
                                WindowHandle hwnd) {
  return SearchOtherDesktops(windows, desktops, hwnd).found;
}

bool IsPutAway(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd) {
  return IsCloaked(windows, hwnd) && IsCloakedWindowPutAway(windows, desktops, hwnd);
}

bool IsCloakedWindowPutAway(WindowQueries& windows, VirtualDesktops& desktops, WindowHandle hwnd) {
  const Search search = SearchOtherDesktops(windows, desktops, hwnd);
  return search.found == 0 && search.answered;
}

bool IsShown(WindowQueries& windows, VirtualDesktops& desktops, SeenWindow& window) {
  if (!window.IsVisible()) return false;
  return window.Cloak() == 0 || !IsCloakedWindowPutAway(windows, desktops, window.Handle());
}

}  // namespace korvale

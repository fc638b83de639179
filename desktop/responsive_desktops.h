#pragma once

#include <optional>

#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// The virtual desktops, but for the time in which the shell, which answers for them, hangs
/// (GetShellWindow, IsHungAppWindow): a call would not return then, and there is no answer.
class ResponsiveDesktops final : public VirtualDesktops {
 public:
  ResponsiveDesktops(WindowQueries& windows, VirtualDesktops& desktops)
      : windows_(&windows), desktops_(&desktops) {}

  std::optional<bool> IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) override;
  std::optional<VirtualDesktopId> GetWindowDesktopId(WindowHandle hwnd) override;
  bool MoveWindowToDesktop(WindowHandle hwnd, const VirtualDesktopId& desktop) override;

 private:
  bool ShellHangs();

  WindowQueries* windows_;
  VirtualDesktops* desktops_;
};

}  // namespace korvale

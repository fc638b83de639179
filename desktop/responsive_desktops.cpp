#include "desktop/responsive_desktops.h"

namespace korvale {

bool ResponsiveDesktops::ShellHangs() {
  return windows_->IsHungAppWindow(windows_->GetShellWindow());
}

std::optional<bool> ResponsiveDesktops::IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) {
  if (ShellHangs()) return std::nullopt;
  return desktops_->IsWindowOnCurrentVirtualDesktop(hwnd);
}

std::optional<VirtualDesktopId> ResponsiveDesktops::GetWindowDesktopId(WindowHandle hwnd) {
  if (ShellHangs()) return std::nullopt;
  return desktops_->GetWindowDesktopId(hwnd);
}

bool ResponsiveDesktops::MoveWindowToDesktop(WindowHandle hwnd, const VirtualDesktopId& desktop) {
  return !ShellHangs() && desktops_->MoveWindowToDesktop(hwnd, desktop);
}

}  // namespace korvale

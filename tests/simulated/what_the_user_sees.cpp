#include <algorithm>

#include "platform/win32_constants.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {

/// The title as it may be read now.
std::string SimulatedLife::TitleOf(const FakeWindow& window) {
  return window.titleReadings < 0 ? window.title : "1 % - " + window.title;
}

/// What a user would call a window: neither the desktop, the taskbar nor Start, and of Korvale only
/// the main window and the Options dialog.
bool SimulatedLife::IsOnDesktop(WindowHandle hwnd) {
  const FakeWindow* const window = desktop.Windows().Find(hwnd);
  if (window == nullptr || !desktop.Windows().IsVisible(hwnd)) return false;
  if (IsSuspended(hwnd)) return false;
  if (window->process != kOtherProcess) return hwnd == korvale_->Handle() || IsOptions(hwnd);
  const std::string& name = window->className;
  return name != "Progman" && name != "Shell_TrayWnd" && name != "Windows.UI.Core.CoreWindow" &&
         (name != "Static" || !TitleOf(*window).empty());
}

/// Alone, or along with the program that owns it.
bool SimulatedLife::IsSuspended(WindowHandle hwnd) {
  const FakeWindows& windows = desktop.Windows();
  return windows.Find(hwnd)->cloaked != 0 || windows.Find(windows.ViewOf(hwnd))->cloaked != 0;
}

/// It is on another virtual desktop, and Windows knows of none for a window that its taskbar does
/// not show: nobody can tell it from one that has been put away.
bool SimulatedLife::IsLost(WindowHandle hwnd) {
  const FakeWindows& windows = desktop.Windows();
  const int number = windows.DesktopOf(hwnd);
  const FakeWindow& view = *windows.Find(windows.ViewOf(hwnd));
  return number != 0 && number != windows.CurrentDesktop() &&
         (view.exStyle & win32::kWsExToolWindow) != 0;
}

bool SimulatedLife::IsOptions(WindowHandle hwnd) {
  const Form* const dialog = korvale_->FindForm("frmOptions");
  return dialog != nullptr && dialog->Handle() == hwnd;
}

/// Korvale follows the user into this window, tagged or not: it is a window of the kinds that they
/// ask for in the options, no ghost of one that hangs, and where they can see it.
bool SimulatedLife::IsFollowed(WindowHandle hwnd) {
  if (!IsOnDesktop(hwnd) || desktop.Windows().CloakOf(hwnd) != 0) return false;
  const FakeWindow& window = *desktop.Windows().Find(hwnd);
  const clsOptions& options = korvale_->Options();
  const bool palette = (window.exStyle & win32::kWsExToolWindow) != 0;
  const bool dialog = (window.style & win32::kDsModalFrame) != 0;
  if (window.className == FakeDesktop::kGhostClass) return false;
  return (options.booAllowNoTextWindow || !TitleOf(window).empty()) &&
         (options.booAllowToolbarWindow || !palette) && (!dialog || IsOptions(hwnd));
}

bool SimulatedLife::CanBeSelected(WindowHandle hwnd) {
  return IsOnDesktop(hwnd) && desktop.Windows().Find(hwnd)->enabled;
}

/// It, or the window that it goes along with, is minimized, and nobody but its own program can
/// change that now.
bool SimulatedLife::CannotBeRestored(WindowHandle hwnd) {
  const FakeWindow* window = desktop.Windows().Find(hwnd);
  for (; window != nullptr; window = desktop.Windows().Find(window->owner)) {
    const bool refuses = window->elevated || window->staysIconic || window->hung ||
                         window->busyUntil > clock.GetTickCount64();
    if (window->iconic && refuses) return true;
  }
  return false;
}

/// Nobody can bring it to where the user is: it cannot be restored, Windows does not tell where it
/// is, or it goes along with a minimized window that is hidden, or with one that is out of sight
/// itself.
bool SimulatedLife::IsStuck(WindowHandle hwnd) {
  const FakeWindows& windows = desktop.Windows();
  const WindowHandle owner = windows.Find(hwnd)->owner;
  const bool ownerHidden = owner != 0 && !windows.IsVisible(owner) &&
                           (windows.Find(owner)->iconic || !windows.IsVisible(hwnd));
  return ownerHidden || IsLost(hwnd) || CannotBeRestored(hwnd);
}

/// The user did not get to this window because nobody can get there, or because Korvale has tried
/// in vain to bring back one that they may have been in later.
bool SimulatedLife::IsExcused(const Before& before, WindowHandle hwnd) {
  if (before.locked || before.stuck.contains(hwnd)) return true;
  if (desktop.Windows().Foreground() != before.foreground) return false;
  return std::ranges::any_of(before.stuck,
                             [&](WindowHandle stuck) { return workedIn_.MayBeLater(stuck, hwnd); });
}

}  // namespace korvale

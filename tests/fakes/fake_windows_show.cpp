#include <algorithm>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/fake_windows.h"

namespace korvale {
namespace {

bool Activates(int command) {
  return command == win32::kSwShowNormal || command == fakes::kSwShowMinimized ||
         command == win32::kSwMaximize || command == win32::kSwShow || command == win32::kSwRestore;
}

bool Restores(int command) {
  return command == win32::kSwShowNormal || command == win32::kSwRestore ||
         command == win32::kSwShowNoActivate || command == win32::kSwMaximize;
}

bool LeavesForeground(int command) {
  return command == win32::kSwHide || command == win32::kSwMinimize;
}

}  // namespace

void FakeWindows::Show(WindowHandle hwnd, int command) {
  FakeWindow* const window = Find(hwnd);
  const bool was_visible = window != nullptr && window->visible;
  if (window == nullptr || (window->iconic && window->staysIconic && Restores(command))) return;
  if (!Apply(*window, command)) return;
  // A window that is shown anew comes up where the user is.
  if (!was_visible && window->virtualDesktop != 0) window->virtualDesktop = current_desktop_;
  if (window->parent == 0) {
    std::vector<WindowHandle> candidates = Following(hwnd);
    if (command == win32::kSwHide && window->owner != 0) {
      candidates.insert(candidates.begin(), window->owner);
    }
    if (command == win32::kSwMinimize) order_.Lower(hwnd);
    if (LeavesForeground(command) && !CanStayInFront(hwnd)) ActivateNext(candidates);
    if (Activates(command)) ActivateByProgram(hwnd);
  }
  Notify([&](DesktopObserver& observer) { observer.OnShown(hwnd); });
}

bool FakeWindows::Apply(FakeWindow& window, int command) {
  switch (command) {
    case win32::kSwHide:
      window.visible = false;
      return true;
    case win32::kSwShowNormal:
    case win32::kSwRestore:
    case win32::kSwShowNoActivate:
      Unfold(window, window.iconic && window.restoresToZoomed);
      return true;
    case win32::kSwMaximize:
      Unfold(window, true);
      return true;
    case win32::kSwMinimize:
    case win32::kSwShowMinNoActive:
    case fakes::kSwShowMinimized:
      Minimize(window);
      return true;
    case win32::kSwShow:
    case win32::kSwShowNa:
      window.visible = true;
      window.hiddenByOwner = false;
      return true;
    default:
      return false;
  }
}

void FakeWindows::Unfold(FakeWindow& window, bool zoomed) {
  window.iconic = false;
  window.zoomed = zoomed;
  window.visible = true;
  window.hiddenByOwner = false;
  if (window.parent != 0) return;
  for (const WindowHandle owned : order_.WithOwned(window.handle)) {
    const std::vector<WindowHandle> owners = order_.WithOwners(owned);
    const bool folded = std::any_of(owners.begin() + 1, owners.end(),
                                    [&](WindowHandle owner) { return windows_.at(owner).iconic; });
    if (!folded) windows_.at(owned).hiddenByOwner = false;
  }
}

void FakeWindows::Minimize(FakeWindow& window) {
  if (!window.iconic) window.restoresToZoomed = window.zoomed;
  window.iconic = true;
  window.zoomed = false;
  window.visible = true;
  window.hiddenByOwner = false;
  if (window.parent != 0) return;
  for (const WindowHandle owned : order_.WithOwned(window.handle)) {
    if (owned != window.handle) windows_.at(owned).hiddenByOwner = true;
  }
}

bool FakeWindows::CanStayInFront(WindowHandle changed) const {
  if (foreground_ == changed) return false;
  const std::vector<WindowHandle> group = order_.WithOwned(changed);
  return std::ranges::find(group, foreground_) == group.end() || IsVisible(foreground_);
}

std::vector<WindowHandle> FakeWindows::Following(WindowHandle hwnd) const {
  std::vector<WindowHandle> windows = order_.Windows();
  const auto place = std::ranges::find(windows, hwnd);
  std::rotate(windows.begin(), place, windows.end());
  std::erase(windows, hwnd);
  return windows;
}

bool FakeWindows::CanTakeOver(WindowHandle hwnd, bool acceptToolWindows) const {
  const FakeWindow* const window = Find(hwnd);
  if (window == nullptr || !IsVisible(hwnd) || !window->enabled || window->iconic) return false;
  if (CloakOf(hwnd) != 0) return false;
  if ((window->exStyle & fakes::kWsExNoActivate) != 0) return false;
  if ((window->exStyle & win32::kWsExToolWindow) == 0) return true;
  return acceptToolWindows && (window->exStyle & win32::kWsExTopmost) == 0;
}

void FakeWindows::ActivateNext(const std::vector<WindowHandle>& candidates) {
  for (const bool acceptToolWindows : {false, true}) {
    for (const WindowHandle candidate : candidates) {
      if (CanTakeOver(candidate, acceptToolWindows)) {
        Activate(candidate);
        return;
      }
    }
  }
  Activate(0);
}

}  // namespace korvale

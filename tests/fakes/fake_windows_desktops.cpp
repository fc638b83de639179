#include <utility>

#include "platform/win32_constants.h"
#include "tests/fakes/fake_windows.h"

namespace korvale {

void FakeWindows::SwitchDesktop(int desktop, FrontOfLeftDesktop front) {
  if (current_desktop_ == desktop) return;
  const int left = std::exchange(current_desktop_, desktop);
  if (front == FrontOfLeftDesktop::kGoes) ActivateNext(order_.Windows());
  if (animates_) leaving_desktop_ = left;
}

void FakeWindows::AnimateSwitch(bool animated) {
  animates_ = animated;
  leaving_desktop_ = 0;
}

WindowHandle FakeWindows::ViewOf(WindowHandle hwnd) const {
  const FakeWindow& window = windows_.at(hwnd);
  const FakeWindow* const owner = Find(window.owner);
  if (owner == nullptr || !owner->visible || (window.exStyle & fakes::kWsExAppWindow) != 0) {
    return hwnd;
  }
  return ViewOf(window.owner);
}

int FakeWindows::DesktopOf(WindowHandle hwnd) const {
  return windows_.at(ViewOf(hwnd)).virtualDesktop;
}

std::uint32_t FakeWindows::CloakOf(WindowHandle hwnd) const {
  const FakeWindow& window = windows_.at(hwnd);
  if (window.parent != 0) return 0;
  const FakeWindow& view = windows_.at(ViewOf(hwnd));
  const bool elsewhere = view.virtualDesktop != 0 && view.virtualDesktop != current_desktop_ &&
                         view.virtualDesktop != leaving_desktop_;
  if (&view == &window) {
    return elsewhere && window.visible ? window.cloaked | win32::kDwmCloakedShell : window.cloaked;
  }
  const bool inherits = window.visible && (elsewhere || view.cloaked != 0);
  return inherits ? window.cloaked | win32::kDwmCloakedInherited : window.cloaked;
}

/// Windows goes to the virtual desktop of the window that comes to the front.
void FakeWindows::FollowToDesktopOf(WindowHandle hwnd) {
  FakeWindow* const window = Find(hwnd);
  if (window == nullptr) return;
  if (window->flyout) window->cloaked = 0;
  const int desktop = DesktopOf(hwnd);
  if (desktop != 0 && IsVisible(hwnd)) current_desktop_ = desktop;
}

}  // namespace korvale

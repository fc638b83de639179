#include <cstdint>

#include "platform/win32_constants.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

/// As long as that of a real desktop, and never empty.
VirtualDesktopId IdOf(int desktop) { return {0xD0, static_cast<std::uint8_t>(desktop)}; }

/// What Windows answers for a window that the user has put on every desktop.
constexpr VirtualDesktopId kEveryDesktop = {0xE0};

}  // namespace

void FakeDesktop::SetSuspended(WindowHandle hwnd, bool suspended) {
  Existing(hwnd).cloaked = suspended ? win32::kDwmCloakedShell : 0;
  const WindowHandle front = windows_.Foreground();
  if (front != 0 && windows_.CloakOf(front) != 0) windows_.Activate(0);
}

void FakeDesktop::SetCloakedByProgram(WindowHandle hwnd, bool cloaked) {
  Existing(hwnd).cloaked = cloaked ? win32::kDwmCloakedApp : 0;
}

/// Windows knows the desktop only of windows that its taskbar shows: not of its own, nor of
/// suspended ones.
const FakeWindow* FakeDesktop::View(const FakeWindow* window) const {
  const bool known = window != nullptr && window->parent == 0 && window->visible &&
                     windows_.ViewOf(window->handle) == window->handle &&
                     (window->exStyle & win32::kWsExToolWindow) == 0 && window->cloaked == 0;
  return known ? window : nullptr;
}

bool FakeDesktop::Answers(std::string_view call) const {
  return !lost_desktop_calls_ || !call.starts_with(*lost_desktop_calls_);
}

std::optional<bool> FakeDesktop::IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) {
  constexpr const char* kCall = "IsWindowOnCurrentVirtualDesktop";
  const FakeWindow* const window = Read(kCall, hwnd);
  if (window == nullptr || !Answers(kCall)) return std::nullopt;
  const FakeWindow* const view = View(window);
  return view == nullptr || view->virtualDesktop == 0 ||
         view->virtualDesktop == windows_.CurrentDesktop();
}

std::optional<VirtualDesktopId> FakeDesktop::GetWindowDesktopId(WindowHandle hwnd) {
  constexpr const char* kCall = "GetWindowDesktopId";
  const FakeWindow* const window = Read(kCall, hwnd);
  if (window == nullptr || !Answers(kCall)) return std::nullopt;
  const FakeWindow* const view = View(window);
  if (view == nullptr) return kNoVirtualDesktop;
  return view->virtualDesktop == 0 ? kEveryDesktop : IdOf(view->virtualDesktop);
}

bool FakeDesktop::MoveWindowToDesktop(WindowHandle hwnd, const VirtualDesktopId& desktop) {
  constexpr const char* kCall = "MoveWindowToDesktop";
  log_.Add(std::string(kCall) + "(" + log_.Window(hwnd) + ")");
  if (!Answers(kCall)) return false;
  const FakeWindow* const view = View(windows_.Find(hwnd));
  if (view == nullptr || view->process == kOtherProcess || desktop == kEveryDesktop) return false;
  Existing(hwnd).virtualDesktop = desktop[1];
  return true;
}

}  // namespace korvale

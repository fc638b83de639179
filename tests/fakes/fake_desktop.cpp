#include "tests/fakes/fake_desktop.h"

#include <limits>
#include <stdexcept>
#include <utility>

#include "platform/win32_constants.h"

namespace korvale {

WindowHandle FakeDesktop::Open(const std::string& title, const NewWindow& options) {
  const WindowHandle hwnd = windows_.Create(title, options);
  log_.NameWindow(hwnd, title);
  return hwnd;
}

WindowHandle FakeDesktop::OpenModalDialog(WindowHandle owner, const std::string& title) {
  NewWindow options;
  options.className = "#32770";
  options.owner = owner;
  options.style = fakes::kWsPopup | fakes::kWsCaption | win32::kDsModalFrame;
  options.process = Existing(owner).process;
  options.elevated = Existing(owner).elevated;
  SetEnabled(owner, false);
  return Open(title, options);
}

void FakeDesktop::CloseModalDialog(WindowHandle dialog) {
  SetEnabled(Existing(dialog).owner, true);
  Close(dialog);
}

void FakeDesktop::OpenShell() {
  Open("Program Manager", {.className = "Progman",
                           .style = fakes::kWsPopup,
                           .exStyle = win32::kWsExToolWindow,
                           .activate = false,
                           .atBottom = true,
                           .onEveryDesktop = true});
  Open("", {.className = "Shell_TrayWnd",
            .style = fakes::kWsPopup,
            .exStyle = win32::kWsExToolWindow | win32::kWsExTopmost,
            .activate = false,
            .onEveryDesktop = true});
  Open("Start", {.className = "Windows.UI.Core.CoreWindow",
                 .style = fakes::kWsPopup,
                 .exStyle = win32::kWsExTopmost,
                 .activate = false,
                 .flyout = true});
}

void FakeDesktop::Close(WindowHandle hwnd) {
  Existing(hwnd);
  windows_.Destroy(hwnd);
}

void FakeDesktop::Rename(WindowHandle hwnd, const std::string& title) {
  Existing(hwnd).title = title;
}

void FakeDesktop::CountReadings(WindowHandle hwnd) { Existing(hwnd).titleReadings = 0; }

void FakeDesktop::UserActivates(WindowHandle hwnd) {
  const FakeWindow& window = Existing(hwnd);
  if (!window.enabled) {
    const WindowHandle popup = windows_.EnabledPopupOf(hwnd);
    if (popup != 0) windows_.Activate(popup);
  } else if (window.iconic) {
    UserRestores(hwnd);
  } else {
    windows_.Activate(hwnd);
  }
}

void FakeDesktop::UserMinimizes(WindowHandle hwnd) {
  Existing(hwnd);
  windows_.Show(hwnd, win32::kSwMinimize);
}

void FakeDesktop::UserMaximizes(WindowHandle hwnd) {
  Existing(hwnd);
  windows_.Show(hwnd, win32::kSwMaximize);
  windows_.Activate(hwnd);
}

void FakeDesktop::UserRestores(WindowHandle hwnd) {
  Existing(hwnd);
  windows_.Show(hwnd, win32::kSwRestore);
  windows_.Activate(hwnd);
}

void FakeDesktop::Hide(WindowHandle hwnd) {
  Existing(hwnd);
  windows_.Show(hwnd, win32::kSwHide);
}

void FakeDesktop::Reveal(WindowHandle hwnd) {
  Existing(hwnd);
  windows_.Show(hwnd, win32::kSwShowNa);
}

void FakeDesktop::SetEnabled(WindowHandle hwnd, bool enabled) { Existing(hwnd).enabled = enabled; }

void FakeDesktop::SetHung(WindowHandle hwnd, bool hung) {
  FakeWindow& window = Existing(hwnd);
  window.hung = hung;
  if (hung) return;
  if (const WindowHandle ghost = std::exchange(window.ghost, 0); ghost != 0) {
    const bool inFront = windows_.Foreground() == ghost;
    window.visible = true;
    if (inFront) windows_.Activate(hwnd);
    windows_.Destroy(ghost);
  }
  ServeFreeWindows();
}

WindowHandle FakeDesktop::ShowGhost(WindowHandle hwnd) {
  SetHung(hwnd, true);
  windows_.Show(hwnd, win32::kSwHide);
  const WindowHandle ghost =
      Open(Title(hwnd) + " (Not Responding)", {.className = kGhostClass, .children = 0});
  Existing(hwnd).ghost = ghost;
  return ghost;
}

void FakeDesktop::UseClock(FakeClock& clock) {
  clock_ = &clock;
  clock.SetTimePassedHandler([this] {
    const bool due = foreground_delayed_until_ <= clock_->GetTickCount64();
    if (foreground_delayed_ && due) DelayForeground(false);
    ServeFreeWindows();
  });
}

void FakeDesktop::SetBusy(WindowHandle hwnd, std::uint64_t milliseconds) {
  if (clock_ == nullptr) throw std::logic_error("a busy window needs a clock");
  Existing(hwnd).busyUntil = clock_->GetTickCount64() + milliseconds;
}

bool FakeDesktop::IsBusy(const FakeWindow& window) const {
  return window.hung || (clock_ != nullptr && window.busyUntil > clock_->GetTickCount64());
}

bool FakeDesktop::WaitFor(WindowHandle hwnd) {
  const FakeWindow& window = Existing(hwnd);
  if (!IsBusy(window)) return true;
  ++calls_that_waited_;
  if (window.hung) return false;
  clock_->Sleep(static_cast<std::uint32_t>(window.busyUntil - clock_->GetTickCount64()));
  return windows_.Find(hwnd) != nullptr;
}

void FakeDesktop::DoWhenFree(WindowHandle hwnd, std::function<void()> action) {
  FakeWindow& window = Existing(hwnd);
  if (IsBusy(window)) {
    window.waiting.push_back(std::move(action));
  } else {
    action();
  }
}

void FakeDesktop::ServeFreeWindows() {
  const std::vector<WindowHandle> all = windows_.TopLevel();
  for (const WindowHandle hwnd : all) {
    FakeWindow* const window = windows_.Find(hwnd);
    if (window == nullptr || IsBusy(*window)) continue;
    for (const auto& action : std::exchange(window->waiting, {})) action();
  }
}

void FakeDesktop::LoseForeground() { windows_.Activate(0); }

void FakeDesktop::DelayForeground(bool delayed) {
  foreground_delayed_ = delayed;
  foreground_delayed_until_ = std::numeric_limits<std::uint64_t>::max();
  if (delayed) return;
  for (const WindowHandle hwnd : std::exchange(coming_forward_, {})) {
    if (windows_.Find(hwnd) != nullptr) windows_.Activate(hwnd);
  }
}

void FakeDesktop::DelayForegroundFor(std::uint64_t milliseconds) {
  if (clock_ == nullptr) throw std::logic_error("a delay needs a clock");
  DelayForeground(true);
  foreground_delayed_until_ = clock_->GetTickCount64() + milliseconds;
}

std::string FakeDesktop::Title(WindowHandle hwnd) const {
  const FakeWindow* const window = windows_.Find(hwnd);
  return window == nullptr ? "" : window->title;
}

std::vector<std::string> FakeDesktop::VisibleTitles() const {
  std::vector<std::string> titles;
  for (const WindowHandle hwnd : windows_.TopLevel()) {
    if (windows_.IsVisible(hwnd) && windows_.CloakOf(hwnd) == 0) titles.push_back(Title(hwnd));
  }
  return titles;
}

bool FakeDesktop::CanChange(WindowHandle hwnd) const {
  const FakeWindow* const window = windows_.Find(hwnd);
  return window != nullptr && !window->elevated;
}

bool FakeDesktop::CanSend(WindowHandle hwnd, std::uint32_t message) const {
  return message == win32::kWmNull ? windows_.Find(hwnd) != nullptr : CanChange(hwnd);
}

FakeWindow& FakeDesktop::Existing(WindowHandle hwnd) {
  FakeWindow* const window = windows_.Find(hwnd);
  if (window == nullptr) throw std::logic_error("the test acts on a window that is gone");
  return *window;
}

}  // namespace korvale

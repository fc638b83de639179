#include "tests/fakes/plain_desktop.h"

#include <algorithm>

#include "platform/win32_constants.h"

namespace korvale {

PlainDesktop::Window* PlainDesktop::Find(WindowHandle hwnd) {
  const auto found = std::ranges::find(windows_, hwnd, &Window::handle);
  return found == windows_.end() ? nullptr : &*found;
}

const PlainDesktop::Window* PlainDesktop::Find(WindowHandle hwnd) const {
  const auto found = std::ranges::find(windows_, hwnd, &Window::handle);
  return found == windows_.end() ? nullptr : &*found;
}

WindowHandle PlainDesktop::Add(const std::string& title, const std::string& className) {
  lastHandle_ += 2;
  Window window;
  window.handle = lastHandle_;
  window.title = title;
  window.className = className;
  windows_.insert(windows_.begin(), window);
  return lastHandle_;
}

WindowHandle PlainDesktop::Create(const FormState& form, int /*children*/) {
  return Add(form.caption, "Korvale." + form.name);
}

WindowHandle PlainDesktop::OpenBox(WindowHandle /*owner*/, const std::string& title) {
  const WindowHandle box = Add(title, "#32770");
  Show(box, win32::kSwShow);
  return box;
}

void PlainDesktop::Destroy(WindowHandle hwnd) {
  std::erase_if(windows_, [&](const Window& window) { return window.handle == hwnd; });
  if (active_ == hwnd) ActivateNext();
}

void PlainDesktop::SetTitle(WindowHandle hwnd, const std::string& title) {
  if (Window* const window = Find(hwnd)) window->title = title;
}

void PlainDesktop::Enable(WindowHandle hwnd, bool enable) {
  if (Window* const window = Find(hwnd)) window->enabled = enable;
}

void PlainDesktop::SetState(WindowHandle hwnd, ShowState state) {
  Window& window = *Find(hwnd);
  if (window.state == state) return;
  if (state == ShowState::kMinimized) {
    window.restoresToMaximized = window.state == ShowState::kMaximized;
  }
  window.state = state;
  if (listener_ != nullptr) listener_->WindowStateChanged(hwnd, state);
}

void PlainDesktop::Show(WindowHandle hwnd, int command) {
  Window* const window = Find(hwnd);
  if (window == nullptr) return;
  window->visible = command != win32::kSwHide;
  ShowState state = window->state;
  if (command == win32::kSwMaximize) state = ShowState::kMaximized;
  if (command == win32::kSwMinimize || command == win32::kSwShowMinNoActive) {
    state = ShowState::kMinimized;
  }
  if (command == win32::kSwRestore || command == win32::kSwShowNormal) {
    const bool maximized = state == ShowState::kMinimized && window->restoresToMaximized;
    state = maximized ? ShowState::kMaximized : ShowState::kNormal;
  }
  SetState(hwnd, state);
  if (command == win32::kSwShowNa) return;
  const bool canBeActive = command != win32::kSwHide && state != ShowState::kMinimized;
  if (canBeActive && command != win32::kSwShowNoActivate) {
    Activate(hwnd);
  } else if (active_ == hwnd && !canBeActive) {
    ActivateNext();
  }
}

void PlainDesktop::Activate(WindowHandle hwnd) {
  const auto at = std::ranges::find(windows_, hwnd, &Window::handle);
  if (at == windows_.end() || active_ == hwnd) return;
  std::rotate(windows_.begin(), at, std::next(at));
  active_ = hwnd;
  if (listener_ != nullptr) listener_->WindowActivated(hwnd);
}

void PlainDesktop::ActivateNext() {
  active_ = 0;
  const auto next = std::ranges::find_if(windows_, [](const Window& window) {
    return window.visible && window.enabled && window.state != ShowState::kMinimized;
  });
  if (next != windows_.end()) Activate(next->handle);
}

bool PlainDesktop::IsShown(WindowHandle hwnd) const {
  const Window* const window = Find(hwnd);
  return window != nullptr && window->visible;
}

bool PlainDesktop::IsEnabled(WindowHandle hwnd) const {
  const Window* const window = Find(hwnd);
  return window != nullptr && window->enabled;
}

ShowState PlainDesktop::State(WindowHandle hwnd) const {
  const Window* const window = Find(hwnd);
  return window == nullptr ? ShowState::kNormal : window->state;
}

std::string PlainDesktop::Title(WindowHandle hwnd) const {
  const Window* const window = Find(hwnd);
  return window == nullptr ? "" : window->title;
}

std::string PlainDesktop::ClassName(WindowHandle hwnd) const {
  const Window* const window = Find(hwnd);
  return window == nullptr ? "" : window->className;
}

}  // namespace korvale

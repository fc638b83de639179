#include "tests/fakes/fake_windows.h"

#include <algorithm>
#include <cstdint>
#include <stdexcept>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr WindowHandle kFirstHandle = 0x10010;
constexpr std::int32_t kStateBits =
    win32::kWsVisible | win32::kWsDisabled | win32::kWsMinimize | fakes::kWsMaximize;

FakeWindow WindowFrom(WindowHandle handle, const std::string& title, const NewWindow& options) {
  FakeWindow window;
  window.handle = handle;
  window.owner = options.owner;
  window.title = title;
  window.className = options.className;
  window.style = options.style & ~kStateBits;
  window.exStyle = options.exStyle;
  window.visible = options.visible;
  window.enabled = options.enabled;
  window.iconic = options.iconic;
  window.zoomed = options.zoomed && !options.iconic;
  window.restoresToZoomed = options.zoomed;
  window.atBottom = options.atBottom;
  window.process = options.process;
  window.elevated = options.elevated;
  window.staysIconic = options.staysIconic;
  window.flyout = options.flyout;
  if (options.flyout) window.cloaked = win32::kDwmCloakedShell;
  window.extraTextLength = options.extraTextLength;
  return window;
}

bool IsTopmost(const FakeWindow& window) { return (window.exStyle & win32::kWsExTopmost) != 0; }

}  // namespace

FakeWindows::FakeWindows()
    : order_([this](WindowHandle hwnd) {
        const FakeWindow& window = windows_.at(hwnd);
        return FakeZOrder::Facts{window.owner, window.visible, IsTopmost(window), window.atBottom};
      }),
      next_handle_(kFirstHandle) {}

WindowHandle FakeWindows::Create(const std::string& title, const NewWindow& options) {
  const WindowHandle handle = NextHandle(options.reuseHandle);
  FakeWindow& window = windows_[handle] = WindowFrom(handle, title, options);
  if (window.owner != 0) {
    const FakeWindow* const owner = Find(window.owner);
    if (owner == nullptr) throw std::logic_error("a window cannot be owned by one that is gone");
    if (IsTopmost(*owner)) window.exStyle |= win32::kWsExTopmost;
  }
  if (!options.onEveryDesktop && !options.flyout) window.virtualDesktop = current_desktop_;
  order_.Add(handle);
  for (int i = 0; i < options.children; ++i) CreateChild(handle, "Child");
  if (options.visible && options.activate && !options.iconic) ActivateByProgram(handle);
  return handle;
}

WindowHandle FakeWindows::CreateChild(WindowHandle parent, const std::string& className) {
  const WindowHandle handle = NextHandle(0);
  FakeWindow& child = windows_[handle];
  child.handle = handle;
  child.parent = parent;
  child.className = className;
  child.style = win32::kWsChild;
  child.visible = true;
  FakeWindow& holder = windows_.at(parent);
  child.process = holder.process;
  holder.children.insert(holder.children.begin(), handle);
  return handle;
}

WindowHandle FakeWindows::NextHandle(WindowHandle reused) {
  if (reused != 0) {
    if (windows_.contains(reused)) throw std::logic_error("the handle is still in use");
    return reused;
  }
  const WindowHandle handle = next_handle_;
  next_handle_ += 2;
  return handle;
}

void FakeWindows::Destroy(WindowHandle hwnd) {
  const FakeWindow* const window = Find(hwnd);
  if (window == nullptr) return;
  if (window->parent != 0) {
    std::erase(windows_.at(window->parent).children, hwnd);
    EraseWithChildren(hwnd);
    return;
  }
  std::vector<WindowHandle> candidates = Following(hwnd);
  if (window->owner != 0) candidates.insert(candidates.begin(), window->owner);
  const std::vector<WindowHandle> doomed = order_.WithOwned(hwnd);
  const bool loses_foreground = std::ranges::find(doomed, foreground_) != doomed.end();
  for (const WindowHandle gone : doomed) order_.Remove(gone);
  for (const WindowHandle gone : doomed) EraseWithChildren(gone);
  if (loses_foreground) ActivateNext(candidates);
  for (const WindowHandle gone : doomed) {
    Notify([&](DesktopObserver& observer) { observer.OnDestroyed(gone); });
  }
}

void FakeWindows::EraseWithChildren(WindowHandle hwnd) {
  for (const WindowHandle child : windows_.at(hwnd).children) EraseWithChildren(child);
  windows_.erase(hwnd);
}

FakeWindow* FakeWindows::Find(WindowHandle hwnd) {
  const auto found = windows_.find(hwnd);
  return found == windows_.end() ? nullptr : &found->second;
}

const FakeWindow* FakeWindows::Find(WindowHandle hwnd) const {
  const auto found = windows_.find(hwnd);
  return found == windows_.end() ? nullptr : &found->second;
}

bool FakeWindows::IsVisible(WindowHandle hwnd) const {
  const FakeWindow* const window = Find(hwnd);
  if (window == nullptr || !window->IsShown()) return false;
  return window->parent == 0 || IsVisible(window->parent);
}

void FakeWindows::Activate(WindowHandle hwnd) {
  if (hwnd != 0) order_.Raise(hwnd);
  if (foreground_ == hwnd) return FollowToDesktopOf(hwnd);
  FakeWindow* const left = Find(foreground_);
  if (left != nullptr && left->flyout) left->cloaked = win32::kDwmCloakedShell;
  foreground_ = hwnd;
  FollowToDesktopOf(hwnd);
  if (hwnd != 0) windows_.at(order_.WithOwners(hwnd).back()).lastActivePopup = hwnd;
  Notify([&](DesktopObserver& observer) { observer.OnForegroundChanged(hwnd); });
}

void FakeWindows::ActivateByProgram(WindowHandle hwnd) {
  if (windows_.at(hwnd).process == kOtherProcess || !IsForegroundLocked()) Activate(hwnd);
}

bool FakeWindows::IsForegroundLocked() const {
  const FakeWindow* const front = Find(foreground_);
  return lock_ != ForegroundLock::kNone && front != nullptr && front->process == kOtherProcess;
}

void FakeWindows::TakeInput() {
  const FakeWindow* const front = Find(foreground_);
  const bool arrives = front == nullptr || !front->elevated;
  if (arrives && lock_ == ForegroundLock::kUntilInput) lock_ = ForegroundLock::kNone;
}

void FakeWindows::Raise(WindowHandle hwnd) { order_.Raise(hwnd); }

void FakeWindows::SetTopmost(WindowHandle hwnd, bool topmost) {
  std::vector<WindowHandle> group = order_.WithOwned(hwnd);
  if (!topmost) {
    const std::vector<WindowHandle> owners = order_.WithOwners(hwnd);
    group.insert(group.end(), owners.begin() + 1, owners.end());
  }
  for (const WindowHandle member : group) {
    std::int32_t& style = windows_.at(member).exStyle;
    style = topmost ? style | win32::kWsExTopmost : style & ~win32::kWsExTopmost;
  }
  order_.Raise(hwnd);
}

WindowHandle FakeWindows::EnabledPopupOf(WindowHandle hwnd) const {
  for (const WindowHandle owned : order_.WithOwned(hwnd)) {
    if (owned != hwnd && IsVisible(owned) && Find(owned)->enabled) return owned;
  }
  return 0;
}

WindowHandle FakeWindows::LastActivePopupOf(WindowHandle hwnd) const {
  const FakeWindow& window = windows_.at(hwnd);
  const std::vector<WindowHandle> group = order_.WithOwned(hwnd);
  const bool owned = std::ranges::find(group, window.lastActivePopup) != group.end();
  return window.owner == 0 && owned ? window.lastActivePopup : hwnd;
}

void FakeWindows::AddObserver(DesktopObserver& observer) { observers_.push_back(&observer); }

void FakeWindows::RemoveObserver(DesktopObserver& observer) { std::erase(observers_, &observer); }

void FakeWindows::Notify(const std::function<void(DesktopObserver&)>& tell) const {
  const std::vector<DesktopObserver*> told = observers_;
  for (DesktopObserver* const observer : told) {
    if (std::ranges::find(observers_, observer) != observers_.end()) tell(*observer);
  }
}

void FakeWindows::NotifyPosted(WindowHandle hwnd, std::uint32_t message) {
  Notify([&](DesktopObserver& observer) { observer.OnMessagePosted(hwnd, message); });
}

}  // namespace korvale

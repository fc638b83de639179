#pragma once

#include <map>
#include <vector>

#include "platform/types.h"
#include "tests/fakes/fake_windows.h"

namespace korvale {

/// Where a user has worked, in order, as a bystander sees it. A window that was in front long
/// enough was certainly worked in, one that was in front for a moment perhaps.
class WorkedIn : private DesktopObserver {
 public:
  explicit WorkedIn(FakeWindows& windows) : windows_(&windows) { windows.AddObserver(*this); }
  ~WorkedIn() override { windows_->RemoveObserver(*this); }
  WorkedIn(const WorkedIn&) = delete;
  WorkedIn& operator=(const WorkedIn&) = delete;

  void ForgetAll() { times_.clear(); }
  /// The user works in this window.
  void Work(WindowHandle hwnd) { times_[hwnd] = {++now_, now_}; }
  /// The user came from this window, earlier than from all that are known.
  void ComeFrom(WindowHandle hwnd) { times_.try_emplace(hwnd); }

  /// The user may have been in `one` after they worked in `other` for certain.
  bool MayBeLater(WindowHandle one, WindowHandle other) const {
    const auto first = times_.find(one);
    const auto second = times_.find(other);
    return first != times_.end() &&
           (second == times_.end() || first->second.perhaps > second->second.certain);
  }

  /// All windows that the user has been in.
  std::vector<WindowHandle> All() const {
    std::vector<WindowHandle> all;
    for (const auto& entry : times_) all.push_back(entry.first);
    return all;
  }

  /// The windows worked in for certain after the last moment that this one was in front.
  std::vector<WindowHandle> LaterThan(WindowHandle hwnd) const {
    std::vector<WindowHandle> later;
    const auto found = times_.find(hwnd);
    const int last = found == times_.end() ? 0 : found->second.perhaps;
    for (const auto& [window, times] : times_) {
      if (times.certain > last) later.push_back(window);
    }
    return later;
  }

 private:
  struct Times {
    int certain = 0;
    int perhaps = 0;
  };

  void OnForegroundChanged(WindowHandle foreground) override {
    ++now_;
    if (front_ != 0) PerhapsWork(front_);
    if (foreground != 0) PerhapsWork(foreground);
    front_ = foreground;
  }
  void OnDestroyed(WindowHandle hwnd) override {
    times_.erase(hwnd);
    if (front_ == hwnd) front_ = 0;
  }

  /// To the user, a dialog is also the window that it disables.
  void PerhapsWork(WindowHandle hwnd) {
    times_[hwnd].perhaps = now_;
    const FakeWindow* const window = windows_->Find(hwnd);
    const FakeWindow* const owner = window == nullptr ? nullptr : windows_->Find(window->owner);
    if (owner != nullptr && !owner->enabled) PerhapsWork(owner->handle);
  }

  FakeWindows* windows_;
  std::map<WindowHandle, Times> times_;
  WindowHandle front_ = 0;
  int now_ = 0;
};

}  // namespace korvale

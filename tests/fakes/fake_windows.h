#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/types.h"
#include "tests/fakes/fake_window.h"
#include "tests/fakes/fake_z_order.h"

namespace korvale {

/// Whether Windows lets our programs change the foreground.
enum class ForegroundLock {
  kNone,
  kUntilInput,  ///< Only after an input of their own.
  kForGood,
};

/// Whether the window in front stays there when the user goes to another virtual desktop.
enum class FrontOfLeftDesktop { kGoes, kStays };

/// Told of what happens to the windows, after it has happened. It may change windows itself.
class DesktopObserver {
 public:
  virtual ~DesktopObserver() = default;

  virtual void OnForegroundChanged(WindowHandle /*foreground*/) {}
  /// The window was shown, hidden, minimized, restored or maximized.
  virtual void OnShown(WindowHandle /*hwnd*/) {}
  virtual void OnDestroyed(WindowHandle /*hwnd*/) {}
  virtual void OnMessagePosted(WindowHandle /*hwnd*/, std::uint32_t /*message*/) {}
};

/// The windows of a desktop and the rules of Windows about them: owners, visibility, minimizing,
/// the foreground and the order. Nothing is logged here.
class FakeWindows {
 public:
  FakeWindows();
  FakeWindows(const FakeWindows&) = delete;
  FakeWindows& operator=(const FakeWindows&) = delete;

  WindowHandle Create(const std::string& title, const NewWindow& options);
  WindowHandle CreateChild(WindowHandle parent, const std::string& className);
  /// Destroys the window with its children and all that it owns; the foreground moves on.
  void Destroy(WindowHandle hwnd);

  /// Null when there is no such window.
  FakeWindow* Find(WindowHandle hwnd);
  const FakeWindow* Find(WindowHandle hwnd) const;
  /// Top-level windows, topmost first.
  const std::vector<WindowHandle>& TopLevel() const { return order_.Windows(); }
  /// Visible with everything that holds it.
  bool IsVisible(WindowHandle hwnd) const;
  WindowHandle Foreground() const { return foreground_; }
  void LockForeground(ForegroundLock lock) { lock_ = lock; }
  /// Never for the program that is in front itself, nor while nothing is.
  bool IsForegroundLocked() const;
  /// One of our programs has sent an input; it does not arrive while the program in front has more
  /// rights.
  void TakeInput();

  /// Carries out one of the SW_ commands.
  void Show(WindowHandle hwnd, int command);
  /// Brings a top-level window to the foreground and to the top; 0 leaves nothing in the
  /// foreground.
  void Activate(WindowHandle hwnd);
  /// As Activate, as a window does that its program shows; one of ours stays where it is while the
  /// foreground is locked.
  void ActivateByProgram(WindowHandle hwnd);
  /// Brings a top-level window to the top of its band.
  void Raise(WindowHandle hwnd);
  /// Moves a window with what it owns into or out of the topmost band; out of it also its owners.
  void SetTopmost(WindowHandle hwnd, bool topmost);

  /// The window of a disabled window's group that takes the user's click: the topmost visible and
  /// enabled one that it owns; 0 when there is none.
  WindowHandle EnabledPopupOf(WindowHandle hwnd) const;

  /// The window, or the one of its group that was active last; only for windows without an owner.
  WindowHandle LastActivePopupOf(WindowHandle hwnd) const;

  // fake_windows_desktops.cpp
  /// The virtual desktop where the user is; they start on the first.
  int CurrentDesktop() const { return current_desktop_; }
  void SwitchDesktop(int desktop, FrontOfLeftDesktop front);
  /// While animated, Windows still shows the desktop that the user has left.
  void AnimateSwitch(bool animated);
  /// The window, or the owner along with which Windows shows it, as it is not in the taskbar
  /// itself.
  WindowHandle ViewOf(WindowHandle hwnd) const;
  /// The window is on this virtual desktop, 0 = on all of them.
  int DesktopOf(WindowHandle hwnd) const;
  /// Why the window is not on the screen, a sum of DWM_CLOAKED_ values.
  std::uint32_t CloakOf(WindowHandle hwnd) const;

  void AddObserver(DesktopObserver& observer);
  void RemoveObserver(DesktopObserver& observer);
  void NotifyPosted(WindowHandle hwnd, std::uint32_t message);

 private:
  WindowHandle NextHandle(WindowHandle reused);
  bool Apply(FakeWindow& window, int command);
  void Unfold(FakeWindow& window, bool zoomed);
  void Minimize(FakeWindow& window);
  bool CanStayInFront(WindowHandle changed) const;
  bool CanTakeOver(WindowHandle hwnd, bool acceptToolWindows) const;
  /// The windows in the order in which they come next when this one goes.
  std::vector<WindowHandle> Following(WindowHandle hwnd) const;
  void ActivateNext(const std::vector<WindowHandle>& candidates);
  void FollowToDesktopOf(WindowHandle hwnd);
  void EraseWithChildren(WindowHandle hwnd);

  void Notify(const std::function<void(DesktopObserver&)>& tell) const;

  std::map<WindowHandle, FakeWindow> windows_;
  FakeZOrder order_;
  WindowHandle foreground_ = 0;
  ForegroundLock lock_ = ForegroundLock::kNone;
  int current_desktop_ = 1;
  int leaving_desktop_ = 0;  ///< Still shown, 0 = none.
  bool animates_ = false;
  WindowHandle next_handle_;
  std::vector<DesktopObserver*> observers_;
};

}  // namespace korvale

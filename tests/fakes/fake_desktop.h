#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/types.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_window.h"
#include "tests/fakes/fake_windows.h"

namespace korvale {

/// A Windows desktop in memory: answers the calls of a program, logs them, and lets a test act as
/// the user and as the other programs. What the test does is not logged.
class FakeDesktop : public WindowQueries, public WindowCommands, public VirtualDesktops {
 public:
  explicit FakeDesktop(CallLog& log) : log_(log) {}

  /// The class of the windows that stand in for hung ones.
  static constexpr const char* kGhostClass = "Ghost";

  // What the user and the programs do.
  WindowHandle Open(const std::string& title, const NewWindow& options = {});
  /// Opens an enabled dialog owned by `owner`, which becomes disabled.
  WindowHandle OpenModalDialog(WindowHandle owner, const std::string& title);
  /// Enables the owner again and closes the dialog.
  void CloseModalDialog(WindowHandle dialog);
  /// Opens the taskbar, the desktop's own window and Start, as they stand on every desktop.
  void OpenShell();
  void Close(WindowHandle hwnd);
  void Rename(WindowHandle hwnd, const std::string& title);
  /// From now on each reading of the title finds another one: "1 % - Alpha", "2 % - Alpha".
  void CountReadings(WindowHandle hwnd);
  /// Clicks the window, or its taskbar button when it is minimized. A disabled window passes the
  /// click on to the dialog that disables it.
  void UserActivates(WindowHandle hwnd);
  void UserMinimizes(WindowHandle hwnd);
  void UserMaximizes(WindowHandle hwnd);
  void UserRestores(WindowHandle hwnd);
  void Hide(WindowHandle hwnd);
  /// Shows a hidden window without activating it.
  void Reveal(WindowHandle hwnd);
  void SetEnabled(WindowHandle hwnd, bool enabled);
  /// A hung window's thread takes no messages; what waited for it is done when it recovers.
  void SetHung(WindowHandle hwnd, bool hung);
  /// The user clicks into a hung window: Windows hides it and shows a ghost in its place, which
  /// takes the click, until the window recovers. Returns the ghost.
  WindowHandle ShowGhost(WindowHandle hwnd);
  /// The clock by which windows are busy; it must outlive the desktop.
  void UseClock(FakeClock& clock);
  /// A busy window's thread takes no messages for this many ms: a call that waits for it takes as
  /// long, and what was asked for without waiting is done then. Windows does not call it hung yet.
  void SetBusy(WindowHandle hwnd, std::uint64_t milliseconds);
  /// Nothing is in the foreground, as for a moment while Windows changes it.
  void LoseForeground();
  /// While locked, SetForegroundWindow refuses, as Windows does for a program without the right.
  void LockForeground(ForegroundLock lock) { windows_.LockForeground(lock); }
  /// While delayed, SetForegroundWindow succeeds at once, but the windows come forward only when
  /// the delay ends, as Windows does with a window of another thread. Nothing is asked of one that
  /// is in front until then, even when another is to take its place.
  void DelayForeground(bool delayed);
  /// The same until so many ms have passed.
  void DelayForegroundFor(std::uint64_t milliseconds);
  /// Goes to a virtual desktop, 1 and up, as with a key; its topmost window comes to the front,
  /// unless the one that the user has left stays there.
  void UserSwitchesDesktop(int number, FrontOfLeftDesktop front = FrontOfLeftDesktop::kGoes) {
    windows_.SwitchDesktop(number, front);
  }
  /// Windows keeps a suspended Store program's window off the screen; it stays visible otherwise.
  void SetSuspended(WindowHandle hwnd, bool suspended);
  /// A program keeps its own window off the screen (DWMWA_CLOAK), which stays in front if it was.
  void SetCloakedByProgram(WindowHandle hwnd, bool cloaked);
  /// From now on calls of the manager of virtual desktops that begin so get no answer.
  void LoseVirtualDesktopManager(const std::string& calls = "") { lost_desktop_calls_ = calls; }

  // What a test looks at.
  std::string Title(WindowHandle hwnd) const;
  /// "" when nothing is in the foreground.
  std::string ForegroundTitle() const { return Title(windows_.Foreground()); }
  /// Titles of the top-level windows on the screen, topmost first.
  std::vector<std::string> VisibleTitles() const;
  /// How many calls would have waited for a hung window.
  int CallsThatWaited() const { return calls_that_waited_; }
  FakeWindows& Windows() { return windows_; }
  CallLog& Log() { return log_; }

  // WindowQueries
  void EnumWindows(const std::function<bool(WindowHandle)>& visit) override;
  WindowHandle GetWindow(WindowHandle hwnd, std::uint32_t command) override;
  WindowHandle GetParent(WindowHandle hwnd) override;
  WindowHandle GetLastActivePopup(WindowHandle hwnd) override;
  std::int32_t GetWindowLongA(WindowHandle hwnd, int index) override;
  int GetWindowTextLengthA(WindowHandle hwnd) override;
  int GetWindowTextA(WindowHandle hwnd, std::span<char> buffer) override;
  int GetClassNameA(WindowHandle hwnd, std::span<char> buffer) override;
  bool IsWindow(WindowHandle hwnd) override;
  bool IsWindowVisible(WindowHandle hwnd) override;
  std::uint32_t DwmGetWindowAttribute(WindowHandle hwnd) override;
  bool IsWindowEnabled(WindowHandle hwnd) override;
  bool IsIconic(WindowHandle hwnd) override;
  bool IsZoomed(WindowHandle hwnd) override;
  bool IsHungAppWindow(WindowHandle hwnd) override;
  std::uint32_t GetWindowThreadProcessId(WindowHandle hwnd) override;
  WindowHandle GetForegroundWindow() override;
  WindowHandle GetShellWindow() override;
  WindowHandle FindWindowA(const std::string& title) override;

  // WindowCommands
  bool ShowWindow(WindowHandle hwnd, int command) override;
  bool ShowWindowAsync(WindowHandle hwnd, int command) override;
  bool SetWindowPos(WindowHandle hwnd, WindowHandle insertAfter, int x, int y, int width,
                    int height, std::uint32_t flags) override;
  bool SetForegroundWindow(WindowHandle hwnd) override;
  bool SendMessageTimeoutW(WindowHandle hwnd, std::uint32_t message,
                           std::uint32_t milliseconds) override;
  bool PostMessageW(WindowHandle hwnd, std::uint32_t message) override;

  // VirtualDesktops
  std::optional<bool> IsWindowOnCurrentVirtualDesktop(WindowHandle hwnd) override;
  std::optional<VirtualDesktopId> GetWindowDesktopId(WindowHandle hwnd) override;
  bool MoveWindowToDesktop(WindowHandle hwnd, const VirtualDesktopId& desktop) override;

 private:
  /// Whether the manager of virtual desktops answers this call.
  bool Answers(std::string_view call) const;
  /// The window when it has a virtual desktop of its own, else null.
  const FakeWindow* View(const FakeWindow* window) const;
  /// Logs a reading call on a window, then gives the window, null when it is gone.
  const FakeWindow* Read(const char* call, WindowHandle hwnd, const std::string& argument = "");
  FakeWindow& Existing(WindowHandle hwnd);
  /// Whether the window is there and lets programs with fewer rights change it.
  bool CanChange(WindowHandle hwnd) const;
  /// As CanChange, but for messages: WM_NULL reaches every window.
  bool CanSend(WindowHandle hwnd, std::uint32_t message) const;
  /// Lets a call wait for the window's thread; false when that never takes it.
  bool WaitFor(WindowHandle hwnd);
  bool IsBusy(const FakeWindow& window) const;
  /// Does something now, or as soon as the window's thread takes messages.
  void DoWhenFree(WindowHandle hwnd, std::function<void()> action);
  void ServeFreeWindows();
  void Place(WindowHandle hwnd, WindowHandle insertAfter, const PixelRect& place,
             std::uint32_t flags);

  CallLog& log_;
  FakeWindows windows_;
  FakeClock* clock_ = nullptr;
  bool foreground_delayed_ = false;
  std::uint64_t foreground_delayed_until_ = 0;  // A moment of the clock; only while delayed.
  std::optional<std::string> lost_desktop_calls_;
  std::vector<WindowHandle> coming_forward_;
  int calls_that_waited_ = 0;
};

}  // namespace korvale

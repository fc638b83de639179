#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/hot_key_api.h"
#include "platform/types.h"
#include "tests/fakes/call_log.h"

namespace korvale {

/// The hot keys that a user has who has changed nothing: those of ten Tags and five operations.
inline constexpr std::size_t kAllHotKeys = 15;

/// Hot keys as Windows keeps them: a combination belongs to one registration at most, and an
/// identifier that is registered again has two. Presses arrive at the window's procedure.
class FakeHotKeys : public HotKeyApi {
 public:
  struct Registration {
    WindowHandle hwnd = 0;
    int id = 0;
    std::uint32_t modifiers = 0;
    std::uint32_t key = 0;

    friend bool operator==(const Registration&, const Registration&) = default;
  };
  using IsWindow = std::function<bool(WindowHandle)>;
  /// What the shell of Windows 10 and 11 takes along with Windows: nearly every digit and letter.
  static constexpr std::string_view kShellKeys = "0123456789ABCDEFGHIKLMNOPQRSTUVWXZ";

  /// `isWindow` tells which windows exist; without it all do.
  explicit FakeHotKeys(CallLog& log, IsWindow isWindow = {});

  // What the user and the other programs do.
  /// Presses a combination once. True when a window of the program got WM_HOTKEY for it.
  bool Press(std::uint32_t modifiers, std::uint32_t key);
  /// Presses a combination while the program is too busy to take messages: WM_HOTKEY waits in the
  /// queue. True when the combination was a hot key.
  bool PressWhileBusy(std::uint32_t modifiers, std::uint32_t key);
  /// Delivers what waits in the queue, as the message loop does.
  void DeliverQueued();
  /// Calls the procedure of a window, as Windows does with each of its messages.
  std::intptr_t Deliver(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam = 0,
                        std::intptr_t lParam = 0);
  /// Another program takes a combination; false when it is taken already.
  bool RegisterForeign(std::uint32_t modifiers, std::uint32_t key);
  /// The shell starts, and takes its keys.
  void StartShell();
  void ReleaseForeign(std::uint32_t modifiers, std::uint32_t key);
  /// The computer wakes up: the windows that asked for it are told so, and all others, too, unless
  /// it has Modern Standby.
  void EndSleep();
  /// The user unlocks the session, or connects to it: the windows that asked for it are told so.
  void ChangeSession(std::uintptr_t event);
  /// Drops all that belongs to a window, as its destruction does.
  void ForgetWindow(WindowHandle hwnd);

  // What a test looks at.
  /// In the order of their registration.
  const std::vector<Registration>& Registered() const { return registered_; }
  bool IsHooked(WindowHandle hwnd) const { return Current(hwnd) != kOwnProcedure; }
  /// How often a window has asked to be told of its session.
  std::size_t SessionWatches(WindowHandle hwnd) const { return sessionWatchers_.count(hwnd); }

  bool HearsOfSleep(WindowHandle hwnd) const { return sleepWatchers_.contains(hwnd); }

  bool modernStandby = true;
  /// Windows tells nobody of sleep and session, as while its services are starting.
  bool refuseNotifications = false;
  /// What a window's own procedure returns.
  std::intptr_t answer = 0;

  // HotKeyApi
  bool RegisterHotKey(WindowHandle hwnd, int id, std::uint32_t modifiers,
                      std::uint32_t key) override;
  /// Of several registrations of the identifier, the latest one is removed.
  bool UnregisterHotKey(WindowHandle hwnd, int id) override;
  bool WTSRegisterSessionNotification(WindowHandle hwnd) override;
  void WTSUnRegisterSessionNotification(WindowHandle hwnd) override;
  bool RegisterSuspendResumeNotification(WindowHandle hwnd) override;
  void UnregisterSuspendResumeNotification(WindowHandle hwnd) override;
  std::optional<QueuedMessage> PeekMessageW(WindowHandle hwnd, std::uint32_t message) override;
  PreviousProcedure SetWindowLongPtrA(WindowHandle hwnd, WindowProcedure& procedure) override;
  void SetWindowLongPtrA(WindowHandle hwnd, PreviousProcedure previous) override;
  std::intptr_t CallWindowProcA(PreviousProcedure previous, WindowHandle hwnd,
                                std::uint32_t message, std::uintptr_t wParam,
                                std::intptr_t lParam) override;
  /// Delivered after what waits in the queue, once the message that is being handled is done.
  bool PostMessageW(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                    std::intptr_t lParam) override;

 private:
  struct Queued {
    WindowHandle hwnd = 0;
    std::uint32_t message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
    std::uint64_t number = 0;  ///< In the order in which they were posted.
  };

  static constexpr PreviousProcedure kOwnProcedure = 0x7000;

  bool Exists(WindowHandle hwnd) const { return !is_window_ || is_window_(hwnd); }
  bool IsTaken(std::uint32_t modifiers, std::uint32_t key) const;
  PreviousProcedure Current(WindowHandle hwnd) const;
  std::intptr_t Run(PreviousProcedure procedure, WindowHandle hwnd, std::uint32_t message,
                    std::uintptr_t wParam, std::intptr_t lParam);

  CallLog& log_;
  IsWindow is_window_;
  std::vector<Registration> registered_;
  std::deque<Queued> queue_;
  std::vector<std::pair<std::uint32_t, std::uint32_t>> foreign_;
  std::multiset<WindowHandle> sessionWatchers_;
  std::set<WindowHandle> sleepWatchers_;
  std::map<PreviousProcedure, WindowProcedure*> procedures_;
  std::map<WindowHandle, PreviousProcedure> current_;
  std::uint64_t posted_ = 0;
  int delivering_ = 0;
};

}  // namespace korvale

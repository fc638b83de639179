#pragma once

#include <cstdint>
#include <optional>

#include "platform/types.h"

namespace korvale {

/// A window procedure that portable code puts in front of the one that a window has.
class WindowProcedure {
 public:
  virtual ~WindowProcedure() = default;

  /// The four arguments of a WNDPROC. An exception that leaves this call is caught by the adapter
  /// and handed to OnUncaught; it never reaches Windows.
  virtual std::intptr_t Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                             std::intptr_t lParam) = 0;

  /// Called, inside a catch block, when Call ended with an exception.
  virtual void OnUncaught() noexcept = 0;
};

/// The parameters of a message that was taken out of a queue.
struct QueuedMessage {
  std::uintptr_t wParam = 0;
  std::intptr_t lParam = 0;

  friend bool operator==(const QueuedMessage&, const QueuedMessage&) = default;
};

/// Identifies a window's former procedure; only for CallWindowProcA and for putting it back.
using PreviousProcedure = std::intptr_t;

/// System-wide hot keys and the window procedure that receives them.
class HotKeyApi {
 public:
  virtual ~HotKeyApi() = default;

  /// False when the combination is taken. `id` lies in 0..0xBFFF; `modifiers` is a sum of MOD_
  /// values and `key` a virtual-key code, both passed on unchanged.
  virtual bool RegisterHotKey(WindowHandle hwnd, int id, std::uint32_t modifiers,
                              std::uint32_t key) = 0;
  /// False when no hot key of this id belongs to the window.
  virtual bool UnregisterHotKey(WindowHandle hwnd, int id) = 0;

  /// From now on the window hears of changes of its session (WM_WTSSESSION_CHANGE), as when the
  /// user unlocks it; false when this Windows tells nobody. To be taken back before the window
  /// goes.
  virtual bool WTSRegisterSessionNotification(WindowHandle hwnd) = 0;
  /// Takes one such registration back; the window must still be there.
  virtual void WTSUnRegisterSessionNotification(WindowHandle hwnd) = 0;

  /// From now on the window hears when the computer falls asleep and wakes up
  /// (WM_POWERBROADCAST), also where Modern Standby tells only the windows that asked for it; false
  /// when Windows refused. Asking again changes nothing.
  virtual bool RegisterSuspendResumeNotification(WindowHandle hwnd) = 0;
  /// Takes this back.
  virtual void UnregisterSuspendResumeNotification(WindowHandle hwnd) = 0;

  /// Takes the oldest message of this kind out of the window's queue; nothing when there is none
  /// (PeekMessageW with PM_REMOVE).
  virtual std::optional<QueuedMessage> PeekMessageW(WindowHandle hwnd, std::uint32_t message) = 0;

  /// SetWindowLongPtrA with GWLP_WNDPROC: puts `procedure`, which must outlive the hook, in front.
  virtual PreviousProcedure SetWindowLongPtrA(WindowHandle hwnd, WindowProcedure& procedure) = 0;
  /// SetWindowLongPtrA with GWLP_WNDPROC: puts a former procedure back.
  virtual void SetWindowLongPtrA(WindowHandle hwnd, PreviousProcedure previous) = 0;
  virtual std::intptr_t CallWindowProcA(PreviousProcedure previous, WindowHandle hwnd,
                                        std::uint32_t message, std::uintptr_t wParam,
                                        std::intptr_t lParam) = 0;
  /// Puts a message at the end of the queue; it comes to the window's procedure in its turn.
  virtual bool PostMessageW(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                            std::intptr_t lParam) = 0;
};

}  // namespace korvale

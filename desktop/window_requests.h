#pragma once

#include <cstdint>
#include <functional>

#include "desktop/desktop_parts.h"
#include "platform/clock.h"
#include "platform/types.h"

namespace korvale {

enum class RequestResult {
  kDone,
  kFailed,  ///< The window is gone, or was not in a state for it.
  kDenied,  ///< Windows refuses it to this program, although the window is there.
};

/// Asks windows for changes. The thread of a window of another program makes them in its own time,
/// so no window can hold up this program; what the next step needs is waited for, but only briefly.
class WindowRequests {
 public:
  /// The longest that consecutive waits may take together, in ms; each may end one tick of the
  /// system's timer (16 ms) late.
  static constexpr std::uint64_t kPatience = 80;

  WindowRequests(const DesktopParts& parts, Clock& clock);

  /// ShowWindow for our own windows, ShowWindowAsync for others. `command` is one of the SW_
  /// values; fails when the window was hidden before or is gone.
  RequestResult Show(WindowHandle hwnd, int command);
  /// Finds out whether Windows lets this program change a window: asks for nothing, which an
  /// elevated program's window denies as it would any change (SetWindowPos). Our own are not asked.
  RequestResult ChangeNothing(WindowHandle hwnd);
  /// Makes a window topmost or not, without moving it (SetWindowPos), and waits until it is. Only a
  /// visible window of our own is activated.
  RequestResult SetTopmost(WindowHandle hwnd, bool topmost);
  /// Brings a window to the front. When Windows refuses, asks once more after an input of our own
  /// (SendMouseInput).
  RequestResult SetForegroundWindow(WindowHandle hwnd);

  /// Waits until `done` holds for the window; false when the patience runs out first, or the
  /// window hangs or is gone.
  bool Await(WindowHandle hwnd, const std::function<bool()>& done);
  /// Waits until the window's thread has finished what it is doing (SendMessageTimeoutW), for half
  /// of the patience that is left. False when it has not by then, or the window hangs or is gone.
  bool AwaitAnswer(WindowHandle hwnd);
  /// As Await, for one window of several: takes half of the patience that is left, so that a busy
  /// one leaves some to the others.
  bool AwaitOneOfMany(WindowHandle hwnd, const std::function<bool()>& done);

 private:
  bool IsOurs(WindowHandle hwnd);
  RequestResult Refused(WindowHandle hwnd);
  std::uint64_t PatienceLeft();
  void Spend(std::uint64_t start);
  bool AwaitFor(WindowHandle hwnd, std::uint64_t milliseconds, const std::function<bool()>& done);

  WindowQueries* windows_;
  WindowCommands* commands_;
  InputDevices* input_;
  const MainWindow* mainWindow_;
  Clock* clock_;
  std::uint64_t spent_ = 0;     // Patience that waits have used up and time has not given back.
  std::uint64_t lastWait_ = 0;  // When the last wait ended.
};

}  // namespace korvale

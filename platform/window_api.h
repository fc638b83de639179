#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "platform/types.h"

namespace korvale {

/// A buffer of this size holds any ordinary title.
inline constexpr std::size_t kOrdinaryTitle = 512;

/// Reads the windows of the desktop. Every method is the user32 call of its name, but texts are
/// UTF-8 also where that is an A call; a window that is gone gives the call's own failure value (0
/// or false), never an exception.
class WindowQueries {
 public:
  virtual ~WindowQueries() = default;

  /// Calls `visit` for each top-level window, topmost first, until it returns false.
  virtual void EnumWindows(const std::function<bool(WindowHandle)>& visit) = 0;
  /// `command` is one of the GW_ values; 0 when there is no such window.
  virtual WindowHandle GetWindow(WindowHandle hwnd, std::uint32_t command) = 0;
  virtual WindowHandle GetParent(WindowHandle hwnd) = 0;
  /// Of the window and those that it owns, the one that was active last. For a window that has an
  /// owner this is always the window itself; for one that is gone, 0 or the window itself.
  virtual WindowHandle GetLastActivePopup(WindowHandle hwnd) = 0;
  /// `index` is GWL_STYLE or GWL_EXSTYLE.
  virtual std::int32_t GetWindowLongA(WindowHandle hwnd, int index) = 0;
  /// Length of the title in bytes; may be more than the title needs, never less.
  virtual int GetWindowTextLengthA(WindowHandle hwnd) = 0;
  /// Copies at most buffer.size()-1 bytes of the title and a NUL; returns the bytes copied.
  virtual int GetWindowTextA(WindowHandle hwnd, std::span<char> buffer) = 0;
  /// Copies at most buffer.size()-1 bytes of the class name and a NUL; returns the bytes copied.
  virtual int GetClassNameA(WindowHandle hwnd, std::span<char> buffer) = 0;
  virtual bool IsWindow(WindowHandle hwnd) = 0;
  virtual bool IsWindowVisible(WindowHandle hwnd) = 0;
  /// Why Windows keeps a visible window off the screen (DWMWA_CLOAKED), a sum of DWM_CLOAKED_
  /// values; 0 for a window on the screen, and where Windows cannot tell.
  virtual std::uint32_t DwmGetWindowAttribute(WindowHandle hwnd) = 0;
  virtual bool IsWindowEnabled(WindowHandle hwnd) = 0;
  virtual bool IsIconic(WindowHandle hwnd) = 0;
  virtual bool IsZoomed(WindowHandle hwnd) = 0;
  /// The thread that the window belongs to; 0 when the window is gone.
  virtual std::uint32_t GetWindowThreadProcessId(WindowHandle hwnd) = 0;
  /// True when the window's thread has not taken a message for about five seconds.
  virtual bool IsHungAppWindow(WindowHandle hwnd) = 0;
  virtual WindowHandle GetForegroundWindow() = 0;
  /// The desktop's own window of the shell (Progman); 0 while the shell is not running.
  virtual WindowHandle GetShellWindow() = 0;
  /// The topmost top-level window with exactly this title, of any class; 0 when there is none.
  virtual WindowHandle FindWindowA(const std::string& title) = 0;
};

/// Changes the windows of the desktop. Every method is the user32 call of its name.
class WindowCommands {
 public:
  virtual ~WindowCommands() = default;

  /// `command` is one of the SW_ values; returns whether the window was visible before.
  virtual bool ShowWindow(WindowHandle hwnd, int command) = 0;
  /// As ShowWindow, without waiting for the window's thread; returns whether it was started.
  virtual bool ShowWindowAsync(WindowHandle hwnd, int command) = 0;
  /// `insertAfter` is HWND_TOPMOST, HWND_NOTOPMOST or HWND_TOP; place and size in pixels.
  virtual bool SetWindowPos(WindowHandle hwnd, WindowHandle insertAfter, int x, int y, int width,
                            int height, std::uint32_t flags) = 0;
  virtual bool SetForegroundWindow(WindowHandle hwnd) = 0;
  /// Sends a message without parameters and waits for the answer of the window's thread, at most
  /// that many ms (SMTO_ABORTIFHUNG, SMTO_BLOCK); false when none came.
  virtual bool SendMessageTimeoutW(WindowHandle hwnd, std::uint32_t message,
                                   std::uint32_t milliseconds) = 0;
  /// Posts a message without parameters (PostMessageW).
  virtual bool PostMessageW(WindowHandle hwnd, std::uint32_t message) = 0;
};

}  // namespace korvale

#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "platform/types.h"
#include "tests/fakes/windows_numbers.h"

namespace korvale {

/// The process of windows that are not ours.
inline constexpr int kOtherProcess = 0;

/// How a window comes into being.
struct NewWindow {
  std::string className = "Window";
  WindowHandle owner = 0;
  std::int32_t style = fakes::kWsOverlappedWindow;  ///< WS_VISIBLE and the like are added.
  std::int32_t exStyle = 0;
  bool visible = true;
  bool enabled = true;
  bool iconic = false;
  bool zoomed = false;
  bool activate = true;          ///< Comes to the foreground when it is visible and not iconic.
  bool atBottom = false;         ///< Stays below all others, like the desktop's own window.
  int children = 1;              ///< Child windows made along with it.
  int process = kOtherProcess;   ///< kOtherProcess, or a number of one of our programs.
  bool elevated = false;         ///< Its program runs as administrator.
  bool staysIconic = false;      ///< Its program lets nobody restore it (WM_QUERYOPEN).
  bool onEveryDesktop = false;   ///< On all virtual desktops, like the taskbar.
  bool flyout = false;           ///< Cloaked unless it is in front, like Start.
  int extraTextLength = 0;       ///< Added by GetWindowTextLengthA.
  WindowHandle reuseHandle = 0;  ///< Takes this handle of a window that is gone.
};

struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 200;
  int height = 100;

  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// A window as the fake desktop keeps it. `style` lacks the bits that stand for the flags below.
struct FakeWindow {
  WindowHandle handle = 0;
  WindowHandle parent = 0;
  WindowHandle owner = 0;
  std::string title;
  std::string className;
  std::int32_t style = 0;
  std::int32_t exStyle = 0;
  bool visible = false;
  bool enabled = true;
  bool iconic = false;
  bool zoomed = false;
  bool restoresToZoomed = false;
  bool hiddenByOwner = false;  ///< Out of sight while its owner is minimized.
  bool hung = false;
  WindowHandle ghost = 0;  ///< What stands in for it while it hangs.
  bool staysIconic = false;
  std::uint64_t busyUntil = 0;       ///< A moment of the clock.
  WindowHandle lastActivePopup = 0;  ///< Of those that it owns and itself; kept without an owner.
  bool atBottom = false;
  int process = kOtherProcess;
  bool elevated = false;
  int virtualDesktop = 0;     ///< 0 = all of them.
  std::uint32_t cloaked = 0;  ///< DWM_CLOAKED_ values, but for the virtual desktops.
  bool flyout = false;
  int extraTextLength = 0;
  int titleReadings = -1;  ///< Counted in front of the title; -1 = not counted.
  PixelRect place;
  std::vector<WindowHandle> children;            ///< Topmost first.
  std::vector<std::function<void()>> waiting{};  ///< What others asked for while it was busy.

  /// WS_VISIBLE.
  bool IsShown() const { return visible && !hiddenByOwner; }
};

}  // namespace korvale

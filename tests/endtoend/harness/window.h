#pragma once

#include <windows.h>

#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {

/// A window of any process, seen from outside. Every reader asks the live window.
class Window {
 public:
  Window() = default;
  explicit Window(HWND handle) : handle_(handle) {}

  HWND handle() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }
  bool operator==(const Window&) const = default;

  bool Exists() const { return IsWindow(handle_) != 0; }
  bool Visible() const { return IsWindowVisible(handle_) != 0; }
  bool Enabled() const { return IsWindowEnabled(handle_) != 0; }
  bool Minimized() const { return IsIconic(handle_) != 0; }
  bool Maximized() const { return IsZoomed(handle_) != 0; }
  bool Topmost() const { return (ExtendedStyle() & WS_EX_TOPMOST) != 0; }

  /// The title as the desktop knows it; works for a hung window too.
  std::string Title() const;
  std::string ClassName() const;
  /// The content of a control: asks the window itself, at most one second.
  std::string Text() const;
  LONG_PTR Style() const { return GetWindowLongPtrW(handle_, GWL_STYLE); }
  LONG_PTR ExtendedStyle() const { return GetWindowLongPtrW(handle_, GWL_EXSTYLE); }
  DWORD ProcessId() const;

  /// Direct children, in the order of their creation.
  std::vector<Window> Children() const;
  /// Direct visible children of one class (case ignored), in the order of their creation.
  std::vector<Window> Controls(const std::string& class_name) const;

  /// True when the window answers a message within one second.
  bool Responds() const;
  /// SendMessageTimeoutW with one second; 0 when the window did not answer.
  LRESULT Send(UINT message, WPARAM wparam = 0, LPARAM lparam = 0) const;

  void SetTitle(const std::string& title) const;
  /// Posts WM_CLOSE and waits until the window is gone.
  bool Close() const;

 private:
  HWND handle_ = nullptr;
};

/// The foreground window; none while Windows passes the foreground on.
Window Foreground();

/// The control that has the focus in the window's program.
Window FocusOf(Window window);

/// True when the user can work in the window: it is in front, its program has taken notice of that
/// and has given it the focus, so keys reach it.
bool HasInput(Window window);

/// Waits until the programs on the screen have done what they were told before, and so bring no
/// window forward any more. One that hangs is waited for for one second.
void LetProgramsFinish();

/// Brings the window to the front as a user would, who first lets the programs finish; true once it
/// has the input.
bool BringToFront(Window window);

/// All top-level windows, topmost first.
std::vector<Window> TopLevelWindows();

/// The first top-level window, topmost first, for which `test` holds.
Window FindTopLevel(const std::function<bool(Window)>& test);

/// Waits for a top-level window for which `test` holds; none when it never comes.
Window WaitForTopLevel(const std::function<bool(Window)>& test);

}  // namespace korvale::endtoend

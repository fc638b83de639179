#include "ui/windows/windows_message_loop.h"

#include <memory>

#include "ui/windows/form_window.h"

namespace korvale {
namespace {

/// Counts a loop while it runs.
class Running {
 public:
  explicit Running(int& depth) : depth_(&depth) { ++depth; }
  ~Running() { --*depth_; }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  int* depth_;
};

/// Handled by this program alone, again and again; a message box or menu that it shows meanwhile
/// wakes the guard.
bool IsDaily(UINT message) { return message == WM_TIMER || message == WM_HOTKEY; }

}  // namespace

WindowsMessageLoop::~WindowsMessageLoop() {
  MSG message;
  if (quitPosted_) PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

void WindowsMessageLoop::RunMessageLoop(const std::function<bool()>& done) {
  const Running running(depth_);
  while (!quitPosted_ && !done()) {
    MSG message;
    if (GetMessageW(&message, nullptr, 0, 0) > 0) {
      // Below the outermost loop there is no other one.
      if (depth_ == 1 && IsDaily(message.message)) {
        guard_.Rest();
      } else {
        guard_.Watch();
      }
      Dispatch(message);
    } else {
      PostQuitMessage();
    }
  }
}

void WindowsMessageLoop::DoEvents() {
  const Running running(depth_);
  MSG message;
  while (!quitPosted_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage();
    } else {
      guard_.Watch();
      Dispatch(message);
    }
  }
}

bool WindowsMessageLoop::QuitPosted() {
  // A message box that meets WM_QUIT posts it again.
  MSG message;
  return quitPosted_ || PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != FALSE;
}

void WindowsMessageLoop::PostQuitMessage() {
  quitPosted_ = true;
  // Posted again for a loop of Windows' own, such as that of a message box, which may run around
  // the one that has met it and must end too.
  ::PostQuitMessage(0);
}

void WindowsMessageLoop::Dispatch(MSG& message) {
  MessageGuard::Disarm(message);
  const std::shared_ptr<FormWindow> form = forms_->Around(message.hwnd);
  if (form != nullptr && form->Filter(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace korvale

#include "ui/windows/windows_message_loop.h"

#include <memory>

#include "ui/windows/form_window.h"

namespace korvale {

WindowsMessageLoop::~WindowsMessageLoop() {
  MSG message;
  if (quitPosted_) PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

void WindowsMessageLoop::RunMessageLoop(const std::function<bool()>& done) {
  while (!quitPosted_ && !done()) {
    MSG message;
    if (GetMessageW(&message, nullptr, 0, 0) > 0) {
      Dispatch(message);
    } else {
      PostQuitMessage();
    }
  }
}

void WindowsMessageLoop::DoEvents() {
  MSG message;
  while (!quitPosted_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage();
    } else {
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

void WindowsMessageLoop::Dispatch(const MSG& message) {
  const std::shared_ptr<FormWindow> form = forms_->Around(message.hwnd);
  if (form != nullptr && form->Filter(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace korvale

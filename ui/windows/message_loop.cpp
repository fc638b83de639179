#include "ui/windows/message_loop.h"

#include "ui/windows/form_window.h"

namespace korvale {

MessageLoop::~MessageLoop() {
  MSG message;
  if (quitPosted_) PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);
}

void MessageLoop::Run(const std::function<bool()>& done) {
  while (!quitPosted_ && !done()) {
    MSG message;
    if (GetMessageW(&message, nullptr, 0, 0) > 0) {
      Dispatch(message);
    } else {
      TakeQuit();
    }
  }
}

void MessageLoop::DoEvents() {
  MSG message;
  while (!quitPosted_ && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    if (message.message == WM_QUIT) {
      TakeQuit();
    } else {
      Dispatch(message);
    }
  }
}

bool MessageLoop::QuitPosted() const {
  // A message box that is told to quit passes the order on.
  MSG message;
  return quitPosted_ || PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_NOREMOVE) != FALSE;
}

void MessageLoop::Wake() const { PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); }

void MessageLoop::PostQuit() {
  quitPosted_ = true;
  ::PostQuitMessage(0);
}

void MessageLoop::TakeQuit() {
  quitPosted_ = true;
  // A loop of Windows' own, as that of a message box, may run around this one and has to end too.
  ::PostQuitMessage(0);
}

void MessageLoop::Dispatch(const MSG& message) {
  const std::shared_ptr<FormWindow> form = findForm_(message.hwnd);
  if (form != nullptr && form->Filter(message)) return;
  TranslateMessage(&message);
  DispatchMessageW(&message);
}

}  // namespace korvale

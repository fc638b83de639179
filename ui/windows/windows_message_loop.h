#pragma once

#include <windows.h>

#include <functional>

#include "platform/message_loop.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/open_forms.h"

namespace korvale {

/// The message loops of the thread that made it; each message passes the form that it is for.
class WindowsMessageLoop : public MessageLoop {
 public:
  explicit WindowsMessageLoop(const OpenForms& forms) : forms_(&forms) {}
  ~WindowsMessageLoop() override;
  WindowsMessageLoop(const WindowsMessageLoop&) = delete;
  WindowsMessageLoop& operator=(const WindowsMessageLoop&) = delete;

  void RunMessageLoop(const std::function<bool()>& done) override;
  void DoEvents() override;
  void PostQuitMessage() override;
  /// Also true when no loop has met WM_QUIT yet.
  bool QuitPosted() override;

 private:
  void Dispatch(MSG& message);

  const OpenForms* forms_;
  MessageGuard guard_;
  /// Loops of ours that are running, one inside the other.
  int depth_ = 0;
  bool quitPosted_ = false;
};

}  // namespace korvale

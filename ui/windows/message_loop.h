#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "ui/windows/message_guard.h"

namespace korvale {

class FormWindow;

/// The program's message loops, which may run inside each other.
class MessageLoop {
 public:
  /// Finds the form that a window of ours belongs to; null for other windows.
  using FindForm = std::function<std::shared_ptr<FormWindow>(HWND)>;

  explicit MessageLoop(FindForm findForm) : findForm_(std::move(findForm)) {}
  ~MessageLoop();
  MessageLoop(const MessageLoop&) = delete;
  MessageLoop& operator=(const MessageLoop&) = delete;

  /// Dispatches messages until `done` is true or the program is to end.
  void Run(const std::function<bool()>& done);
  /// Dispatches the messages that are waiting.
  void DoEvents();
  /// Lets the running loops look again whether they are done.
  void Wake() const;
  void PostQuit();
  bool IsOurs(HWND window) const { return findForm_(window) != nullptr; }
  /// True when the program is to end, also when no loop has met the order yet.
  bool QuitPosted() const;

 private:
  void Dispatch(const MSG& message);
  void TakeQuit();

  FindForm findForm_;
  MessageGuard guard_;
  bool quitPosted_ = false;
};

}  // namespace korvale

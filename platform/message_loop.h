#pragma once

#include <functional>

namespace korvale {

/// The message loops of the program, which may run inside each other.
class MessageLoop {
 public:
  virtual ~MessageLoop() = default;

  /// Dispatches messages until `done` is true or the program is to end (GetMessageW).
  virtual void RunMessageLoop(const std::function<bool()>& done) = 0;
  /// Dispatches the messages that are waiting (PeekMessageW).
  virtual void DoEvents() = 0;
  /// Ends every message loop of the program.
  virtual void PostQuitMessage() = 0;
  /// True once the program is to end: by PostQuitMessage, or by a WM_QUIT that still waits.
  virtual bool QuitPosted() = 0;
};

}  // namespace korvale

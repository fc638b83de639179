#pragma once

#include <windows.h>

#include <stdexcept>

#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Keeps the thread of a window from its messages while this exists.
class StoppedThread {
 public:
  explicit StoppedThread(Window window)
      : thread_(OpenThread(THREAD_SUSPEND_RESUME, FALSE,
                           GetWindowThreadProcessId(window.handle(), nullptr))) {
    if (SuspendThread(thread_) == static_cast<DWORD>(-1)) throw std::runtime_error("no thread");
  }
  StoppedThread(const StoppedThread&) = delete;
  StoppedThread& operator=(const StoppedThread&) = delete;
  ~StoppedThread() {
    ResumeThread(thread_);
    CloseHandle(thread_);
  }

 private:
  HANDLE thread_;
};

}  // namespace korvale::endtoend

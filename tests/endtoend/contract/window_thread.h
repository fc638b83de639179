#pragma once

#include <windows.h>

#include <functional>
#include <future>
#include <thread>

namespace korvale {

/// A thread with a message loop that owns windows, as another program does.
class WindowThread {
 public:
  WindowThread();
  ~WindowThread();
  WindowThread(const WindowThread&) = delete;
  WindowThread& operator=(const WindowThread&) = delete;

  /// Runs `work` on the thread, after everything that its loop still has to do, and waits until it
  /// is done.
  void Run(const std::function<void()>& work);

 private:
  static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  void Loop();

  std::promise<HWND> ready_;
  std::thread thread_{[this] { Loop(); }};
  HWND controller_ = ready_.get_future().get();
};

}  // namespace korvale

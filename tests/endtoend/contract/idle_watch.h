#pragma once

#include <windows.h>

#include <functional>

namespace korvale {

/// Calls back whenever a message loop of this thread, Windows' own loops included, has nothing
/// else to do.
class IdleWatch {
 public:
  explicit IdleWatch(std::function<void()> idle);
  ~IdleWatch();
  IdleWatch(const IdleWatch&) = delete;
  IdleWatch& operator=(const IdleWatch&) = delete;

 private:
  static LRESULT CALLBACK Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

  std::function<void()> idle_;
  HWND window_;
};

}  // namespace korvale

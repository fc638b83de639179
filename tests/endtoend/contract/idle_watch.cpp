#include "tests/endtoend/contract/idle_watch.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

constexpr UINT_PTR kTimer = 1;
constexpr UINT kMilliseconds = 10;

}  // namespace

IdleWatch::IdleWatch(std::function<void()> idle)
    : idle_(std::move(idle)),
      window_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                              nullptr)) {
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
  // A timer's message comes only when there is no other message.
  SetTimer(window_, kTimer, kMilliseconds, nullptr);
}

IdleWatch::~IdleWatch() { DestroyWindow(window_); }

LRESULT CALLBACK IdleWatch::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  auto* const watch = reinterpret_cast<IdleWatch*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (message != WM_TIMER || watch == nullptr) return DefWindowProcW(hwnd, message, wParam, lParam);
  try {
    watch->idle_();
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what();
  }
  return 0;
}

}  // namespace korvale

#include "tests/endtoend/contract/window_thread.h"

namespace korvale {
namespace {

constexpr UINT kWork = WM_APP;
constexpr UINT kEnd = WM_APP + 1;

struct Work {
  const std::function<void()>* work;
  std::promise<void> done;
};

}  // namespace

WindowThread::WindowThread() = default;

WindowThread::~WindowThread() {
  PostMessageW(controller_, kEnd, 0, 0);
  thread_.join();
}

void WindowThread::Run(const std::function<void()>& work) {
  Work order{&work, {}};
  std::future<void> done = order.done.get_future();
  PostMessageW(controller_, kWork, 0, reinterpret_cast<LPARAM>(&order));
  // The windows may send messages to those of the caller.
  while (done.wait_for(std::chrono::milliseconds(1)) != std::future_status::ready) {
    MSG message;
    PeekMessageW(&message, nullptr, 0, 0, PM_NOREMOVE);
  }
}

LRESULT CALLBACK WindowThread::Procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == kWork) {
    auto& order = *reinterpret_cast<Work*>(lParam);
    (*order.work)();
    order.done.set_value();
    return 0;
  }
  if (message == kEnd) PostQuitMessage(0);
  return DefWindowProcW(hwnd, message, wParam, lParam);
}

void WindowThread::Loop() {
  const HWND controller =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  SetWindowLongPtrW(controller, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure));
  ready_.set_value(controller);
  MSG message;
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  DestroyWindow(controller);
}

}  // namespace korvale

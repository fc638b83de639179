#include "platform/windows/windows_clock.h"

#include <windows.h>

#include <set>

#include "platform/windows/handles.h"

namespace korvale {
namespace {

/// Removes the ticks of one timer from the queue. Those of other timers come out with them and are
/// put back.
void DropQueuedTicks(HWND hwnd, WPARAM id) {
  std::set<WPARAM> others;
  MSG message;
  while (PeekMessageW(&message, hwnd, WM_TIMER, WM_TIMER, PM_REMOVE | PM_QS_POSTMESSAGE) != FALSE) {
    if (message.message == WM_QUIT) {
      PostQuitMessage(static_cast<int>(message.wParam));
      break;
    }
    if (message.wParam != id && !others.insert(message.wParam).second) break;
  }
  for (const WPARAM other : others) PostMessageW(hwnd, WM_TIMER, other, 0);
}

}  // namespace

std::uint64_t WindowsClock::GetTickCount64() { return ::GetTickCount64(); }

LocalTime WindowsClock::GetLocalTime() {
  SYSTEMTIME now;
  ::GetLocalTime(&now);
  return {now.wYear, now.wMonth, now.wDay, now.wHour, now.wMinute, now.wSecond, now.wDayOfWeek};
}

void WindowsClock::Sleep(std::uint32_t milliseconds) { ::Sleep(milliseconds); }

void WindowsTimers::SetTimer(WindowHandle hwnd, int id, std::uint32_t milliseconds) {
  ::SetTimer(ToHwnd(hwnd), static_cast<UINT_PTR>(id), milliseconds, nullptr);
}

void WindowsTimers::KillTimer(WindowHandle hwnd, int id) {
  const auto timer = static_cast<UINT_PTR>(id);
  if (::KillTimer(ToHwnd(hwnd), timer) != FALSE) DropQueuedTicks(ToHwnd(hwnd), timer);
}

}  // namespace korvale

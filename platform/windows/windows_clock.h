#pragma once

#include "platform/clock.h"

namespace korvale {

class WindowsClock final : public Clock {
 public:
  std::uint64_t GetTickCount64() override;
  LocalTime GetLocalTime() override;
  void Sleep(std::uint32_t milliseconds) override;
};

/// Timers of our own windows (SetTimer, KillTimer); ticks arrive as WM_TIMER.
class WindowsTimers final : public TimerApi {
 public:
  void SetTimer(WindowHandle hwnd, int id, std::uint32_t milliseconds) override;
  void KillTimer(WindowHandle hwnd, int id) override;
};

}  // namespace korvale

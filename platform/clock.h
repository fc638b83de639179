#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/types.h"

namespace korvale {

/// A moment of local time (GetLocalTime). `dayOfWeek` counts from 0 = Sunday.
struct LocalTime {
  int year = 0;
  int month = 0;
  int day = 0;
  int hour = 0;
  int minute = 0;
  int second = 0;
  int dayOfWeek = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;

  /// Milliseconds since a fixed moment; never goes back (GetTickCount64).
  virtual std::uint64_t GetTickCount64() = 0;
  virtual LocalTime GetLocalTime() = 0;
  /// Lets other threads run for about this long; no message is handled meanwhile (Sleep).
  virtual void Sleep(std::uint32_t milliseconds) = 0;
};

/// A timer of a form, as the floors below the forms see it. Its tag belongs to them.
class TimerControl {
 public:
  virtual ~TimerControl() = default;

  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  virtual const std::string& Tag() const = 0;
  virtual void SetTag(std::string_view tag) = 0;
  /// Milliseconds, at least 10, or 0 to keep it from ticking. Setting it restarts a running timer.
  virtual void SetInterval(std::uint32_t milliseconds) = 0;
};

/// Repeating timers of our own windows; a tick arrives as FormEvents::OnTimer of that window.
class TimerApi {
 public:
  virtual ~TimerApi() = default;

  /// Starts the timer, or restarts it with a new interval; `id` is at least 1 and belongs to the
  /// window, `milliseconds` is at least 10.
  virtual void SetTimer(WindowHandle hwnd, int id, std::uint32_t milliseconds) = 0;
  /// Stops the timer; a tick that is already on its way is dropped.
  virtual void KillTimer(WindowHandle hwnd, int id) = 0;
};

}  // namespace korvale

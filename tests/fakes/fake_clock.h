#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "tests/fakes/call_log.h"

namespace korvale {

/// Time that the test moves, and the timers that tick in it.
class FakeClock : public Clock, public TimerApi {
 public:
  using Tick = std::function<void(WindowHandle hwnd, int id)>;

  FakeClock() = default;
  /// Logs each start and stop of a timer as a reading call: it changes nothing on the desktop.
  explicit FakeClock(CallLog& log) : log_(&log) {}

  /// Who gets the ticks.
  void SetTickHandler(Tick tick) { tick_ = std::move(tick); }

  std::uint64_t GetTickCount64() override { return now_; }
  LocalTime GetLocalTime() override { return local_; }
  void Sleep(std::uint32_t milliseconds) override;
  /// Called after time has passed, before anything that is due then happens.
  void SetTimePassedHandler(std::function<void()> passed) { passed_ = std::move(passed); }
  void SetLocalTime(const LocalTime& local) { local_ = local; }

  void SetTimer(WindowHandle hwnd, int id, std::uint32_t milliseconds) override;
  void KillTimer(WindowHandle hwnd, int id) override;

  /// Lets this much time pass; each timer ticks when it is due, the earliest first.
  void Advance(std::uint64_t milliseconds);
  /// Lets time pass up to the next tick and delivers it; false when no timer runs.
  bool AdvanceToNextTick();
  /// The interval of a running timer.
  std::optional<std::uint32_t> IntervalOf(WindowHandle hwnd, int id) const;
  bool AnyTimerOf(WindowHandle hwnd) const;

 private:
  struct Timer {
    WindowHandle hwnd;
    int id;
    std::uint32_t interval;
    std::uint64_t due;
  };

  bool IsWatched() const { return log_ != nullptr && log_->TakesReads(); }
  void Log(const std::string& call, WindowHandle hwnd, const std::string& arguments);
  void Erase(WindowHandle hwnd, int id);
  std::vector<Timer>::iterator Earliest();
  void Deliver(std::vector<Timer>::iterator timer);

  void PassUntil(std::uint64_t moment);

  CallLog* log_ = nullptr;
  Tick tick_;
  std::function<void()> passed_;
  std::uint64_t now_ = 1'000'000;
  LocalTime local_;
  std::vector<Timer> timers_;
};

}  // namespace korvale

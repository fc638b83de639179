#include "tests/fakes/fake_clock.h"

#include <algorithm>
#include <string>

namespace korvale {

void FakeClock::SetTimer(WindowHandle hwnd, int id, std::uint32_t milliseconds) {
  if (IsWatched()) Log("SetTimer", hwnd, std::to_string(id) + ", " + std::to_string(milliseconds));
  Erase(hwnd, id);
  timers_.push_back({hwnd, id, milliseconds, now_ + milliseconds});
}

void FakeClock::KillTimer(WindowHandle hwnd, int id) {
  if (IsWatched()) Log("KillTimer", hwnd, std::to_string(id));
  Erase(hwnd, id);
}

void FakeClock::Log(const std::string& call, WindowHandle hwnd, const std::string& arguments) {
  log_->AddRead(call + "(" + log_->Window(hwnd) + ", " + arguments + ")");
}

void FakeClock::Erase(WindowHandle hwnd, int id) {
  std::erase_if(timers_, [&](const Timer& timer) { return timer.hwnd == hwnd && timer.id == id; });
}

std::vector<FakeClock::Timer>::iterator FakeClock::Earliest() {
  return std::ranges::min_element(timers_, {}, &Timer::due);
}

void FakeClock::Deliver(std::vector<Timer>::iterator timer) {
  const std::uint64_t due = timer->due;
  timer->due += timer->interval;
  // The tick may stop this timer, so only copies are used from here on.
  const Timer ticking = *timer;
  PassUntil(due);
  if (tick_) tick_(ticking.hwnd, ticking.id);
}

void FakeClock::PassUntil(std::uint64_t moment) {
  now_ = std::max(now_, moment);
  if (passed_) passed_();
}

/// Timers tick only when messages are taken again.
void FakeClock::Sleep(std::uint32_t milliseconds) { PassUntil(now_ + milliseconds); }

void FakeClock::Advance(std::uint64_t milliseconds) {
  const std::uint64_t end = now_ + milliseconds;
  for (auto next = Earliest(); next != timers_.end() && next->due <= end; next = Earliest()) {
    Deliver(next);
  }
  PassUntil(end);
}

bool FakeClock::AdvanceToNextTick() {
  const auto next = Earliest();
  if (next == timers_.end()) return false;
  Deliver(next);
  return true;
}

std::optional<std::uint32_t> FakeClock::IntervalOf(WindowHandle hwnd, int id) const {
  const auto found = std::ranges::find_if(
      timers_, [&](const Timer& timer) { return timer.hwnd == hwnd && timer.id == id; });
  if (found == timers_.end()) return std::nullopt;
  return found->interval;
}

bool FakeClock::AnyTimerOf(WindowHandle hwnd) const {
  return std::ranges::any_of(timers_, [&](const Timer& timer) { return timer.hwnd == hwnd; });
}

}  // namespace korvale

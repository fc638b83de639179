#include "tests/fakes/fake_hot_keys.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <string>
#include <string_view>

#include "platform/win32_constants.h"

namespace korvale {
namespace {

constexpr int kLastId = 0xBFFF;
/// Only tells Windows not to repeat; not part of the combination.
constexpr std::uint32_t kModNoRepeat = 0x4000;

}  // namespace

FakeHotKeys::FakeHotKeys(CallLog& log, IsWindow isWindow)
    : log_(log), is_window_(std::move(isWindow)) {}

bool FakeHotKeys::Press(std::uint32_t modifiers, std::uint32_t key) {
  if (!PressWhileBusy(modifiers, key)) return false;
  DeliverQueued();
  return true;
}

bool FakeHotKeys::PressWhileBusy(std::uint32_t modifiers, std::uint32_t key) {
  const auto pressed = std::ranges::find_if(registered_, [&](const Registration& registration) {
    return (registration.modifiers & ~kModNoRepeat) == modifiers && registration.key == key;
  });
  if (pressed == registered_.end()) return false;
  queue_.push_back({pressed->hwnd, win32::kWmHotKey, static_cast<std::uintptr_t>(pressed->id),
                    static_cast<std::intptr_t>(modifiers | key << 16U), posted_++});
  return true;
}

void FakeHotKeys::DeliverQueued() {
  // A loop inside the handling of a message does not reach what was posted meanwhile.
  const std::uint64_t end = delivering_ > 0 ? posted_ : std::numeric_limits<std::uint64_t>::max();
  ++delivering_;
  while (!queue_.empty() && queue_.front().number < end) {
    const Queued message = queue_.front();
    queue_.pop_front();
    Deliver(message.hwnd, message.message, message.wParam, message.lParam);
  }
  --delivering_;
}

std::intptr_t FakeHotKeys::Deliver(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                                   std::intptr_t lParam) {
  ++delivering_;
  const std::intptr_t result = Run(Current(hwnd), hwnd, message, wParam, lParam);
  --delivering_;
  if (delivering_ == 0) DeliverQueued();
  return result;
}

bool FakeHotKeys::RegisterForeign(std::uint32_t modifiers, std::uint32_t key) {
  if (IsTaken(modifiers, key)) return false;
  foreign_.emplace_back(modifiers, key);
  return true;
}

void FakeHotKeys::StartShell() {
  for (const char key : kShellKeys) {
    RegisterForeign(win32::kModWin, static_cast<std::uint32_t>(key));
  }
}

void FakeHotKeys::ReleaseForeign(std::uint32_t modifiers, std::uint32_t key) {
  std::erase(foreign_, std::pair(modifiers, key));
}

void FakeHotKeys::EndSleep() {
  std::set<WindowHandle> windows = sleepWatchers_;
  if (!modernStandby) {
    for (const auto& [hwnd, procedure] : current_) windows.insert(hwnd);
  }
  for (const std::uint32_t event : {win32::kPbtApmResumeAutomatic, win32::kPbtApmResumeSuspend}) {
    for (const WindowHandle hwnd : windows) Deliver(hwnd, win32::kWmPowerBroadcast, event);
  }
}

void FakeHotKeys::ChangeSession(std::uintptr_t event) {
  const auto windows = sessionWatchers_;
  for (const WindowHandle hwnd : windows) Deliver(hwnd, win32::kWmWtsSessionChange, event, 1);
}

void FakeHotKeys::ForgetWindow(WindowHandle hwnd) {
  std::erase_if(registered_,
                [&](const Registration& registration) { return registration.hwnd == hwnd; });
  current_.erase(hwnd);
  sessionWatchers_.erase(hwnd);
  sleepWatchers_.erase(hwnd);
  std::erase_if(queue_, [&](const Queued& message) { return message.hwnd == hwnd; });
}

bool FakeHotKeys::RegisterHotKey(WindowHandle hwnd, int id, std::uint32_t modifiers,
                                 std::uint32_t key) {
  log_.Add("RegisterHotKey(" + log_.Window(hwnd) + ", " + std::to_string(id) + ", " +
           std::to_string(modifiers) + ", " + std::to_string(key) + ")");
  if (!Exists(hwnd) || id < 0 || id > kLastId || IsTaken(modifiers, key)) return false;
  registered_.push_back({hwnd, id, modifiers, key});
  return true;
}

bool FakeHotKeys::UnregisterHotKey(WindowHandle hwnd, int id) {
  log_.Add("UnregisterHotKey(" + log_.Window(hwnd) + ", " + std::to_string(id) + ")");
  const auto latest =
      std::find_if(registered_.rbegin(), registered_.rend(), [&](const Registration& registration) {
        return registration.hwnd == hwnd && registration.id == id;
      });
  if (latest == registered_.rend()) return false;
  registered_.erase(std::next(latest).base());
  return true;
}

bool FakeHotKeys::WTSRegisterSessionNotification(WindowHandle hwnd) {
  log_.Add("WTSRegisterSessionNotification(" + log_.Window(hwnd) + ")");
  if (!Exists(hwnd) || refuseNotifications) return false;
  sessionWatchers_.insert(hwnd);
  return true;
}

void FakeHotKeys::WTSUnRegisterSessionNotification(WindowHandle hwnd) {
  log_.Add("WTSUnRegisterSessionNotification(" + log_.Window(hwnd) + ")");
  const auto watch = sessionWatchers_.find(hwnd);
  if (watch != sessionWatchers_.end()) sessionWatchers_.erase(watch);
}

bool FakeHotKeys::RegisterSuspendResumeNotification(WindowHandle hwnd) {
  log_.Add("RegisterSuspendResumeNotification(" + log_.Window(hwnd) + ")");
  if (!Exists(hwnd) || refuseNotifications) return false;
  sleepWatchers_.insert(hwnd);
  return true;
}

void FakeHotKeys::UnregisterSuspendResumeNotification(WindowHandle hwnd) {
  log_.Add("UnregisterSuspendResumeNotification(" + log_.Window(hwnd) + ")");
  sleepWatchers_.erase(hwnd);
}

std::optional<QueuedMessage> FakeHotKeys::PeekMessageW(WindowHandle hwnd, std::uint32_t message) {
  log_.AddRead("PeekMessageW(" + log_.Window(hwnd) + ", " + HexText(message) + ")");
  const auto found = std::ranges::find_if(queue_, [&](const Queued& queued) {
    return queued.hwnd == hwnd && queued.message == message;
  });
  if (found == queue_.end()) return std::nullopt;
  const QueuedMessage taken{found->wParam, found->lParam};
  queue_.erase(found);
  return taken;
}

PreviousProcedure FakeHotKeys::SetWindowLongPtrA(WindowHandle hwnd, WindowProcedure& procedure) {
  log_.Add("SetWindowLongPtrA(" + log_.Window(hwnd) + ", procedure)");
  if (!Exists(hwnd)) return 0;
  const PreviousProcedure previous = Current(hwnd);
  const auto token = kOwnProcedure + 1 + static_cast<PreviousProcedure>(procedures_.size());
  procedures_[token] = &procedure;
  current_[hwnd] = token;
  return previous;
}

void FakeHotKeys::SetWindowLongPtrA(WindowHandle hwnd, PreviousProcedure previous) {
  log_.Add("SetWindowLongPtrA(" + log_.Window(hwnd) + ", previous)");
  if (Exists(hwnd)) current_[hwnd] = previous;
}

std::intptr_t FakeHotKeys::CallWindowProcA(PreviousProcedure previous, WindowHandle hwnd,
                                           std::uint32_t message, std::uintptr_t wParam,
                                           std::intptr_t lParam) {
  log_.Add("CallWindowProcA(" + log_.Window(hwnd) + ", " + HexText(message) + ", " +
           std::to_string(wParam) + ", " + std::to_string(lParam) + ")");
  return Run(previous, hwnd, message, wParam, lParam);
}

bool FakeHotKeys::PostMessageW(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                               std::intptr_t lParam) {
  log_.Add("PostMessageW(" + log_.Window(hwnd) + ", " + HexText(message) + ", " +
           std::to_string(wParam) + ", " + std::to_string(lParam) + ")");
  if (!Exists(hwnd)) return false;
  queue_.push_back({hwnd, message, wParam, lParam, posted_++});
  return true;
}

bool FakeHotKeys::IsTaken(std::uint32_t modifiers, std::uint32_t key) const {
  const std::uint32_t wanted = modifiers & ~kModNoRepeat;
  if (std::ranges::find(foreign_, std::pair(wanted, key)) != foreign_.end()) return true;
  return std::ranges::any_of(registered_, [&](const Registration& registration) {
    return (registration.modifiers & ~kModNoRepeat) == wanted && registration.key == key;
  });
}

PreviousProcedure FakeHotKeys::Current(WindowHandle hwnd) const {
  const auto current = current_.find(hwnd);
  return current == current_.end() ? kOwnProcedure : current->second;
}

std::intptr_t FakeHotKeys::Run(PreviousProcedure procedure, WindowHandle hwnd,
                               std::uint32_t message, std::uintptr_t wParam, std::intptr_t lParam) {
  const auto installed = procedures_.find(procedure);
  if (installed == procedures_.end()) return answer;
  WindowProcedure& called = *installed->second;
  try {
    return called.Call(hwnd, message, wParam, lParam);
  } catch (...) {
    called.OnUncaught();
    return 0;
  }
}

}  // namespace korvale

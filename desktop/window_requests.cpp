#include "desktop/window_requests.h"

#include <algorithm>

#include "platform/win32_constants.h"

namespace korvale {

WindowRequests::WindowRequests(const DesktopParts& parts, Clock& clock)
    : windows_(&parts.windows),
      commands_(&parts.commands),
      input_(&parts.input),
      mainWindow_(&parts.mainWindow),
      clock_(&clock) {}

/// All our windows belong to the thread of the main window.
bool WindowRequests::IsOurs(WindowHandle hwnd) {
  const std::uint32_t thread = windows_->GetWindowThreadProcessId(mainWindow_->MainHandle());
  return thread != 0 && windows_->GetWindowThreadProcessId(hwnd) == thread;
}

RequestResult WindowRequests::Refused(WindowHandle hwnd) {
  return windows_->IsWindow(hwnd) ? RequestResult::kDenied : RequestResult::kFailed;
}

RequestResult WindowRequests::Show(WindowHandle hwnd, int command) {
  const bool ours = IsOurs(hwnd);
  const bool wasVisible =
      ours ? commands_->ShowWindow(hwnd, command) : windows_->IsWindowVisible(hwnd);
  if (!ours && !commands_->ShowWindowAsync(hwnd, command)) return Refused(hwnd);
  return wasVisible ? RequestResult::kDone : RequestResult::kFailed;
}

RequestResult WindowRequests::ChangeNothing(WindowHandle hwnd) {
  if (IsOurs(hwnd)) return RequestResult::kDone;
  constexpr std::uint32_t kNothing = win32::kSwpNoSize | win32::kSwpNoMove | win32::kSwpNoZOrder |
                                     win32::kSwpNoActivate | win32::kSwpAsyncWindowPos;
  const bool allowed = commands_->SetWindowPos(hwnd, win32::kHwndTop, 0, 0, 0, 0, kNothing);
  return allowed ? RequestResult::kDone : Refused(hwnd);
}

RequestResult WindowRequests::SetTopmost(WindowHandle hwnd, bool topmost) {
  std::uint32_t flags = win32::kSwpNoSize | win32::kSwpNoMove;
  // What another program does in its own time must not take the foreground from what came next.
  if (!IsOurs(hwnd)) flags |= win32::kSwpAsyncWindowPos | win32::kSwpNoActivate;
  if (!windows_->IsWindowVisible(hwnd)) flags |= win32::kSwpNoActivate;
  if (!commands_->SetWindowPos(hwnd, topmost ? win32::kHwndTopmost : win32::kHwndNoTopmost, 0, 0, 0,
                               0, flags)) {
    return Refused(hwnd);
  }
  if ((flags & win32::kSwpAsyncWindowPos) == 0) return RequestResult::kDone;
  Await(hwnd, [&] {
    const std::int32_t style = windows_->GetWindowLongA(hwnd, win32::kGwlExStyle);
    return ((style & win32::kWsExTopmost) != 0) == topmost;
  });
  return RequestResult::kDone;
}

RequestResult WindowRequests::SetForegroundWindow(WindowHandle hwnd) {
  if (commands_->SetForegroundWindow(hwnd)) return RequestResult::kDone;
  if (!windows_->IsWindow(hwnd)) return RequestResult::kFailed;
  input_->SendMouseInput();
  return commands_->SetForegroundWindow(hwnd) ? RequestResult::kDone : Refused(hwnd);
}

bool WindowRequests::Await(WindowHandle hwnd, const std::function<bool()>& done) {
  return AwaitFor(hwnd, PatienceLeft(), done);
}

bool WindowRequests::AwaitAnswer(WindowHandle hwnd) {
  const std::uint64_t left = PatienceLeft() / 2;
  if (IsOurs(hwnd)) return true;
  if (left == 0 || windows_->IsHungAppWindow(hwnd)) return false;
  const std::uint64_t start = clock_->GetTickCount64();
  const bool answered =
      commands_->SendMessageTimeoutW(hwnd, win32::kWmNull, static_cast<std::uint32_t>(left));
  Spend(start);
  return answered;
}

bool WindowRequests::AwaitOneOfMany(WindowHandle hwnd, const std::function<bool()>& done) {
  return AwaitFor(hwnd, PatienceLeft() / 2, done);
}

/// Time that passes without a wait gives patience back, so each user command starts with all of it.
std::uint64_t WindowRequests::PatienceLeft() {
  const std::uint64_t rested = clock_->GetTickCount64() - lastWait_;
  spent_ -= std::min(spent_, rested);
  return kPatience - std::min(spent_, kPatience);
}

bool WindowRequests::AwaitFor(WindowHandle hwnd, std::uint64_t milliseconds,
                              const std::function<bool()>& done) {
  constexpr std::uint32_t kStep = 1;
  const std::uint64_t start = clock_->GetTickCount64();
  bool came = done();
  while (!came && clock_->GetTickCount64() - start < milliseconds && windows_->IsWindow(hwnd) &&
         !windows_->IsHungAppWindow(hwnd)) {
    clock_->Sleep(kStep);
    came = done();
  }
  Spend(start);
  return came;
}

/// Takes the time since `start` from the patience.
void WindowRequests::Spend(std::uint64_t start) {
  lastWait_ = clock_->GetTickCount64();
  spent_ += lastWait_ - start;
}

}  // namespace korvale

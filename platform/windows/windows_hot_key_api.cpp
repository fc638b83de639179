#include "platform/windows/windows_hot_key_api.h"

#include <windows.h>
// After windows.h, which it needs.
#include <wtsapi32.h>

#include "platform/windows/handles.h"

namespace korvale {

struct WindowsHotKeyApi::Hook : std::enable_shared_from_this<Hook> {
  WindowProcedure* procedure = nullptr;
  WNDPROC previous = nullptr;
  bool passedOn = false;  // The message being handled has reached `previous`.
};

namespace {

using HookedWindows = std::map<HWND, WindowsHotKeyApi::Hook*>;

/// A window procedure knows nothing but its window, on which any program can put what it likes.
HookedWindows& HookedOfThread() {
  static thread_local HookedWindows windows;
  return windows;
}

WindowsHotKeyApi::Hook* HookOf(HWND hwnd) {
  const auto found = HookedOfThread().find(hwnd);
  return found == HookedOfThread().end() ? nullptr : found->second;
}

LRESULT PassOn(WNDPROC previous, HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  if (previous == nullptr) return DefWindowProcA(hwnd, message, wParam, lParam);
  return CallWindowProcA(previous, hwnd, message, wParam, lParam);
}

LRESULT CALLBACK CallHook(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
  WindowsHotKeyApi::Hook* const found = HookOf(hwnd);
  if (found == nullptr) return DefWindowProcA(hwnd, message, wParam, lParam);
  const std::shared_ptr<WindowsHotKeyApi::Hook> hook = found->shared_from_this();
  // Sent by another program, it does not mean that the window ends.
  if (message == WM_NCDESTROY && InSendMessage() == FALSE) HookedOfThread().erase(hwnd);
  const bool outer = std::exchange(hook->passedOn, false);
  LRESULT result = 0;
  try {
    result = hook->procedure->Call(ToWindowHandle(hwnd), message, wParam, lParam);
  } catch (...) {
    hook->procedure->OnUncaught();
    if (!hook->passedOn) result = PassOn(hook->previous, hwnd, message, wParam, lParam);
  }
  hook->passedOn = outer;
  return result;
}

}  // namespace

WindowsHotKeyApi::WindowsHotKeyApi() = default;

WindowsHotKeyApi::~WindowsHotKeyApi() {
  while (!hooks_.empty()) {
    const auto [hwnd, hook] = *hooks_.begin();
    SetWindowLongPtrA(hwnd, reinterpret_cast<PreviousProcedure>(hook->previous));
  }
}

bool WindowsHotKeyApi::RegisterHotKey(WindowHandle hwnd, int id, std::uint32_t modifiers,
                                      std::uint32_t key) {
  return ::RegisterHotKey(ToHwnd(hwnd), id, modifiers, key) != FALSE;
}

bool WindowsHotKeyApi::UnregisterHotKey(WindowHandle hwnd, int id) {
  return ::UnregisterHotKey(ToHwnd(hwnd), id) != FALSE;
}

bool WindowsHotKeyApi::WTSRegisterSessionNotification(WindowHandle hwnd) {
  auto* const start =
      sessions_.Find<decltype(::WTSRegisterSessionNotification)>("WTSRegisterSessionNotification");
  return start != nullptr && start(ToHwnd(hwnd), NOTIFY_FOR_THIS_SESSION) != FALSE;
}

void WindowsHotKeyApi::WTSUnRegisterSessionNotification(WindowHandle hwnd) {
  auto* const stop = sessions_.Find<decltype(::WTSUnRegisterSessionNotification)>(
      "WTSUnRegisterSessionNotification");
  if (stop != nullptr) stop(ToHwnd(hwnd));
}

void WindowsHotKeyApi::StopPowerNotification::operator()(void* registration) const {
  ::UnregisterSuspendResumeNotification(registration);
}

bool WindowsHotKeyApi::RegisterSuspendResumeNotification(WindowHandle hwnd) {
  auto& registration = powerNotifications_[hwnd];
  if (registration == nullptr) {
    registration.reset(
        ::RegisterSuspendResumeNotification(ToHwnd(hwnd), DEVICE_NOTIFY_WINDOW_HANDLE));
  }
  return registration != nullptr;
}

void WindowsHotKeyApi::UnregisterSuspendResumeNotification(WindowHandle hwnd) {
  powerNotifications_.erase(hwnd);
}

std::optional<QueuedMessage> WindowsHotKeyApi::PeekMessageW(WindowHandle hwnd,
                                                            std::uint32_t message) {
  // Peeking also delivers messages that other threads send, which nothing here expects.
  constexpr UINT kAnyPosted = QS_POSTMESSAGE | QS_HOTKEY;
  if ((HIWORD(GetQueueStatus(kAnyPosted)) & kAnyPosted) == 0) return std::nullopt;
  constexpr UINT kPosted = PM_REMOVE | PM_QS_POSTMESSAGE;
  MSG taken;
  if (::PeekMessageW(&taken, ToHwnd(hwnd), message, message, kPosted) == FALSE) return std::nullopt;
  if (taken.message != WM_QUIT) return QueuedMessage{taken.wParam, taken.lParam};
  // WM_QUIT passes every filter.
  PostQuitMessage(static_cast<int>(taken.wParam));
  return std::nullopt;
}

PreviousProcedure WindowsHotKeyApi::SetWindowLongPtrA(WindowHandle hwnd,
                                                      WindowProcedure& procedure) {
  std::shared_ptr<Hook>& hook = hooks_[hwnd];
  if (!hook || HookOf(ToHwnd(hwnd)) != hook.get()) {
    hook = std::make_shared<Hook>();
    HookedOfThread()[ToHwnd(hwnd)] = hook.get();
    hook->procedure = &procedure;
    hook->previous = reinterpret_cast<WNDPROC>(
        ::SetWindowLongPtrA(ToHwnd(hwnd), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(CallHook)));
  }
  hook->procedure = &procedure;
  return reinterpret_cast<PreviousProcedure>(hook->previous);
}

void WindowsHotKeyApi::SetWindowLongPtrA(WindowHandle hwnd, PreviousProcedure previous) {
  const auto found = hooks_.find(hwnd);
  if (found == hooks_.end()) return;
  if (HookOf(ToHwnd(hwnd)) == found->second.get()) {
    ::SetWindowLongPtrA(ToHwnd(hwnd), GWLP_WNDPROC, previous);
    HookedOfThread().erase(ToHwnd(hwnd));
  }
  hooks_.erase(found);
}

std::intptr_t WindowsHotKeyApi::CallWindowProcA(PreviousProcedure previous, WindowHandle hwnd,
                                                std::uint32_t message, std::uintptr_t wParam,
                                                std::intptr_t lParam) {
  const auto found = hooks_.find(hwnd);
  if (found != hooks_.end()) found->second->passedOn = true;
  return PassOn(reinterpret_cast<WNDPROC>(previous), ToHwnd(hwnd), message, wParam, lParam);
}

bool WindowsHotKeyApi::PostMessageW(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                                    std::intptr_t lParam) {
  return ::PostMessageW(ToHwnd(hwnd), message, wParam, lParam) != FALSE;
}

}  // namespace korvale

#pragma once

#include <map>
#include <memory>

#include "platform/hot_key_api.h"
#include "platform/windows/system_library.h"

namespace korvale {

/// Hot keys and the window procedure in front of a window through user32, the session through
/// wtsapi32. A window has one such procedure at a time; a second one replaces the first.
class WindowsHotKeyApi final : public HotKeyApi {
 public:
  WindowsHotKeyApi();
  ~WindowsHotKeyApi() override;

  bool RegisterHotKey(WindowHandle hwnd, int id, std::uint32_t modifiers,
                      std::uint32_t key) override;
  bool UnregisterHotKey(WindowHandle hwnd, int id) override;
  bool WTSRegisterSessionNotification(WindowHandle hwnd) override;
  void WTSUnRegisterSessionNotification(WindowHandle hwnd) override;
  bool RegisterSuspendResumeNotification(WindowHandle hwnd) override;
  void UnregisterSuspendResumeNotification(WindowHandle hwnd) override;
  std::optional<QueuedMessage> PeekMessageW(WindowHandle hwnd, std::uint32_t message) override;
  PreviousProcedure SetWindowLongPtrA(WindowHandle hwnd, WindowProcedure& procedure) override;
  void SetWindowLongPtrA(WindowHandle hwnd, PreviousProcedure previous) override;
  std::intptr_t CallWindowProcA(PreviousProcedure previous, WindowHandle hwnd,
                                std::uint32_t message, std::uintptr_t wParam,
                                std::intptr_t lParam) override;
  bool PostMessageW(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                    std::intptr_t lParam) override;

  struct Hook;

 private:
  struct StopPowerNotification {
    void operator()(void* registration) const;
  };

  std::map<WindowHandle, std::shared_ptr<Hook>> hooks_;
  std::map<WindowHandle, std::unique_ptr<void, StopPowerNotification>> powerNotifications_;
  SystemLibrary sessions_{L"wtsapi32.dll"};
};

}  // namespace korvale

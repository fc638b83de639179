#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "desktop/main_window.h"
#include "hotkeys/hot_key_actions.h"
#include "hotkeys/hot_key_processor.h"
#include "hotkeys/hot_key_table.h"
#include "platform/hot_key_api.h"
#include "platform/system_dialogs.h"

namespace korvale {

/// The hook on the main window's message procedure that receives the hot keys.
class WindowProcHook : public WindowProcedure {
 public:
  /// `reportUncaught` is called inside a catch block and must not throw.
  WindowProcHook(HotKeyApi& hotKeys, SystemDialogs& dialogs, const MainWindow& mainWindow,
                 HotKeyTable& table, HotKeyProcessor& processor, HotKeyActions& actions,
                 std::function<void()> reportUncaught);

  /// "SET" installs the hot-key window procedure on the main window, "REMOVE" puts the former one
  /// back (SetWindowLongPtrA), and the window hears of its session and of sleep meanwhile
  /// (WTSRegisterSessionNotification, RegisterSuspendResumeNotification). Any other mode does
  /// nothing, nor does a second "SET" in a row or a "REMOVE" without "SET".
  void HookWindowProc(std::string_view mode, WindowHandle hWnd);

  /// Hands a WM_HOTKEY of the main window to the processor; when the user is back after sleep, a
  /// locked session or another connection, has refused hot keys registered again. Passes every
  /// message on then (CallWindowProcA), even when that failed. A WM_HOTKEY that arrives while a
  /// menu is open closes the menu and is posted again, with those behind it, to be carried out once
  /// the menu is gone.
  std::intptr_t HotKeyWindowProc(WindowHandle hWnd, std::uint32_t uMsg, std::uintptr_t wParam,
                                 std::intptr_t lParam);

  std::intptr_t Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                     std::intptr_t lParam) override;
  void OnUncaught() noexcept override;

 private:
  void Dispatch(std::uintptr_t identifier, std::intptr_t lParam);
  void RetryRefused();
  void Postpone(const QueuedMessage& hotKey);
  bool IsPressOfPopUp(const QueuedMessage& hotKey) const;

  HotKeyApi* hotKeys_;
  SystemDialogs* dialogs_;
  const MainWindow* mainWindow_;
  HotKeyTable* table_;
  HotKeyProcessor* processor_;
  HotKeyActions* actions_;
  std::function<void()> reportUncaught_;
  PreviousProcedure prevWindowProc_ = 0;
  bool hearsOfSession_ = false;
  bool hearsOfSleep_ = false;
};

}  // namespace korvale

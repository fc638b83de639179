#include "hotkeys/window_proc_hook.h"

#include <string>
#include <utility>
#include <vector>

#include "hotkeys/hot_key_names.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

/// Whether a message says that the user is back at this desktop. Other programs have lost or given
/// up hot keys meanwhile, as they do when the computer sleeps or the session is locked.
bool IsReturn(std::uint32_t message, std::uintptr_t event) {
  switch (message) {
    case win32::kWmPowerBroadcast:
      return event == win32::kPbtApmResumeAutomatic || event == win32::kPbtApmResumeSuspend;
    case win32::kWmWtsSessionChange:
      return event == win32::kWtsConsoleConnect || event == win32::kWtsRemoteConnect ||
             event == win32::kWtsSessionUnlock;
    default:
      return false;
  }
}

}  // namespace

WindowProcHook::WindowProcHook(HotKeyApi& hotKeys, SystemDialogs& dialogs,
                               const MainWindow& mainWindow, HotKeyTable& table,
                               HotKeyProcessor& processor, HotKeyActions& actions,
                               std::function<void()> reportUncaught)
    : hotKeys_(&hotKeys),
      dialogs_(&dialogs),
      mainWindow_(&mainWindow),
      table_(&table),
      processor_(&processor),
      actions_(&actions),
      reportUncaught_(std::move(reportUncaught)) {}

void WindowProcHook::HookWindowProc(std::string_view mode, WindowHandle hWnd) {
  if (mode == "SET") {
    // A second hook would find itself as the previous procedure and call itself for ever.
    if (prevWindowProc_ != 0) return;
    prevWindowProc_ = hotKeys_->SetWindowLongPtrA(hWnd, *this);
    if (prevWindowProc_ == 0) return;
    hearsOfSession_ = hotKeys_->WTSRegisterSessionNotification(hWnd);
    hearsOfSleep_ = hotKeys_->RegisterSuspendResumeNotification(hWnd);
  } else if (mode == "REMOVE") {
    if (prevWindowProc_ == 0) return;
    if (hearsOfSession_) hotKeys_->WTSUnRegisterSessionNotification(hWnd);
    if (hearsOfSleep_) hotKeys_->UnregisterSuspendResumeNotification(hWnd);
    hotKeys_->SetWindowLongPtrA(hWnd, prevWindowProc_);
    prevWindowProc_ = 0;
  }
}

std::intptr_t WindowProcHook::HotKeyWindowProc(WindowHandle hWnd, std::uint32_t uMsg,
                                               std::uintptr_t wParam, std::intptr_t lParam) {
  // A hot key may end the program, which removes the hook.
  const PreviousProcedure previous = prevWindowProc_;
  if (hWnd == mainWindow_->MainHandle()) {
    if (uMsg == win32::kWmHotKey) Dispatch(wParam, lParam);
    if (IsReturn(uMsg, wParam)) RetryRefused();
  }
  return hotKeys_->CallWindowProcA(previous, hWnd, uMsg, wParam, lParam);
}

void WindowProcHook::Dispatch(std::uintptr_t identifier, std::intptr_t lParam) {
  // Any program may post whatever numbers it likes.
  if (!table_->IsPress(identifier, lParam)) return;
  try {
    // A copy: the toggle rebuilds the table while the name is in use.
    const std::string name = table_->NameOf(identifier);
    if (dialogs_->EndMenu()) {
      Postpone({identifier, lParam});
    } else {
      processor_->udmProcessHotKey(name, true, false, "");
    }
  } catch (...) {
    reportUncaught_();
  }
}

void WindowProcHook::RetryRefused() {
  try {
    if (table_->RetryRefused()) actions_->HotKeysRegistered();
  } catch (...) {
    reportUncaught_();
  }
}

/// The menu's own loop is still running: Windows shows no second menu inside it, and what showed
/// the first one must have ended before the next command begins. Hot keys that were pressed after
/// this one stay behind it. Of presses of the pop-up in a row, which a held key leaves in a busy
/// program's queue, one does: each further one would only close its menu and pop it up again.
void WindowProcHook::Postpone(const QueuedMessage& hotKey) {
  const WindowHandle main = mainWindow_->MainHandle();
  std::vector<QueuedMessage> hotKeys = {hotKey};
  while (const auto next = hotKeys_->PeekMessageW(main, win32::kWmHotKey)) {
    if (*next != hotKeys.back() || !IsPressOfPopUp(*next)) hotKeys.push_back(*next);
  }
  for (const QueuedMessage& each : hotKeys) {
    hotKeys_->PostMessageW(main, win32::kWmHotKey, each.wParam, each.lParam);
  }
}

bool WindowProcHook::IsPressOfPopUp(const QueuedMessage& hotKey) const {
  return table_->IsPress(hotKey.wParam, hotKey.lParam) &&
         table_->NameOf(hotKey.wParam) == kHotKeyWindowMenuPopup;
}

std::intptr_t WindowProcHook::Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                                   std::intptr_t lParam) {
  return HotKeyWindowProc(hwnd, message, wParam, lParam);
}

void WindowProcHook::OnUncaught() noexcept { reportUncaught_(); }

}  // namespace korvale

#include "hotkeys/window_proc_hook.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/win32_constants.h"

namespace korvale {

WindowProcHook::WindowProcHook(HotKeyApi& hotKeys, SystemDialogs& dialogs,
                               const MainWindow& mainWindow, const HotKeyTable& table,
                               HotKeyProcessor& processor, std::function<void()> reportUncaught)
    : hotKeys_(&hotKeys),
      dialogs_(&dialogs),
      mainWindow_(&mainWindow),
      table_(&table),
      processor_(&processor),
      reportUncaught_(std::move(reportUncaught)) {}

void WindowProcHook::HookWindowProc(std::string_view mode, WindowHandle hWnd) {
  if (mode == "SET") {
    // A second hook would find itself as the previous procedure and call itself for ever.
    if (prevWindowProc_ == 0) prevWindowProc_ = hotKeys_->SetWindowLongPtrA(hWnd, *this);
  } else if (mode == "REMOVE") {
    if (prevWindowProc_ != 0) hotKeys_->SetWindowLongPtrA(hWnd, prevWindowProc_);
    prevWindowProc_ = 0;
  }
}

std::intptr_t WindowProcHook::HotKeyWindowProc(WindowHandle hWnd, std::uint32_t uMsg,
                                               std::uintptr_t wParam, std::intptr_t lParam) {
  // A hot key may end the program, which removes the hook.
  const PreviousProcedure previous = prevWindowProc_;
  if (uMsg == win32::kWmHotKey && hWnd == mainWindow_->MainHandle()) Dispatch(wParam, lParam);
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

/// The menu's own loop is still running: Windows shows no second menu inside it, and what showed
/// the first one must have ended before the next command begins. Hot keys that were pressed after
/// this one stay behind it.
void WindowProcHook::Postpone(const QueuedMessage& hotKey) {
  const WindowHandle main = mainWindow_->MainHandle();
  std::vector<QueuedMessage> hotKeys = {hotKey};
  while (const auto next = hotKeys_->PeekMessageW(main, win32::kWmHotKey)) hotKeys.push_back(*next);
  for (const QueuedMessage& each : hotKeys) {
    hotKeys_->PostMessageW(main, win32::kWmHotKey, each.wParam, each.lParam);
  }
}

std::intptr_t WindowProcHook::Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                                   std::intptr_t lParam) {
  return HotKeyWindowProc(hwnd, message, wParam, lParam);
}

void WindowProcHook::OnUncaught() noexcept { reportUncaught_(); }

}  // namespace korvale

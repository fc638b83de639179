#include "hotkeys/window_proc_hook.h"

#include <utility>

#include "platform/win32_constants.h"

namespace korvale {

WindowProcHook::WindowProcHook(HotKeyApi& hotKeys, const HotKeyTable& table,
                               const MainWindow& mainWindow,
                               std::function<void(const std::string&)> process,
                               std::function<void()> reportUncaught)
    : hotKeys_(&hotKeys),
      table_(&table),
      mainWindow_(&mainWindow),
      process_(std::move(process)),
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
  if (uMsg == win32::kWmHotKey && hWnd == mainWindow_->MainHandle()) Dispatch(wParam);
  return hotKeys_->CallWindowProcA(previous, hWnd, uMsg, wParam, lParam);
}

void WindowProcHook::Dispatch(std::uintptr_t identifier) {
  try {
    // A copy: the toggle rebuilds the table while the name is in use.
    const std::string name = table_->NameOf(identifier);
    process_(name);
  } catch (...) {
    reportUncaught_();
  }
}

std::intptr_t WindowProcHook::Call(WindowHandle hwnd, std::uint32_t message, std::uintptr_t wParam,
                                   std::intptr_t lParam) {
  return HotKeyWindowProc(hwnd, message, wParam, lParam);
}

void WindowProcHook::OnUncaught() noexcept { reportUncaught_(); }

}  // namespace korvale

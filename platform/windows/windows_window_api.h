#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <dwmapi.h>

#include "platform/window_api.h"
#include "platform/windows/system_library.h"

namespace korvale {

/// The windows of the desktop through user32. Texts are read with the Unicode calls and handed on
/// as UTF-8, so that they do not depend on the code page of the process.
class WindowsWindowApi final : public WindowQueries, public WindowCommands {
 public:
  WindowsWindowApi();
  ~WindowsWindowApi() override;
  WindowsWindowApi(const WindowsWindowApi&) = delete;
  WindowsWindowApi& operator=(const WindowsWindowApi&) = delete;

  void EnumWindows(const std::function<bool(WindowHandle)>& visit) override;
  WindowHandle GetWindow(WindowHandle hwnd, std::uint32_t command) override;
  WindowHandle GetParent(WindowHandle hwnd) override;
  WindowHandle GetLastActivePopup(WindowHandle hwnd) override;
  std::int32_t GetWindowLongA(WindowHandle hwnd, int index) override;
  int GetWindowTextLengthA(WindowHandle hwnd) override;
  int GetWindowTextA(WindowHandle hwnd, std::span<char> buffer) override;
  int GetClassNameA(WindowHandle hwnd, std::span<char> buffer) override;
  bool IsWindow(WindowHandle hwnd) override;
  bool IsWindowVisible(WindowHandle hwnd) override;
  std::uint32_t DwmGetWindowAttribute(WindowHandle hwnd) override;
  bool IsWindowEnabled(WindowHandle hwnd) override;
  bool IsIconic(WindowHandle hwnd) override;
  bool IsZoomed(WindowHandle hwnd) override;
  bool IsHungAppWindow(WindowHandle hwnd) override;
  std::uint32_t GetWindowThreadProcessId(WindowHandle hwnd) override;
  WindowHandle GetForegroundWindow() override;
  WindowHandle GetShellWindow() override;
  WindowHandle FindWindowA(const std::string& title) override;

  bool ShowWindow(WindowHandle hwnd, int command) override;
  bool ShowWindowAsync(WindowHandle hwnd, int command) override;
  bool SetWindowPos(WindowHandle hwnd, WindowHandle insertAfter, int x, int y, int width,
                    int height, std::uint32_t flags) override;
  bool SetForegroundWindow(WindowHandle hwnd) override;
  bool SendMessageTimeoutW(WindowHandle hwnd, std::uint32_t message,
                           std::uint32_t milliseconds) override;
  bool PostMessageW(WindowHandle hwnd, std::uint32_t message) override;

 private:
  SystemLibrary dwmapi_{L"dwmapi.dll"};
  decltype(::DwmGetWindowAttribute)* const dwmGetWindowAttribute_ =
      dwmapi_.Find<decltype(::DwmGetWindowAttribute)>("DwmGetWindowAttribute");
};

}  // namespace korvale

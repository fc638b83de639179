#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"
#include "platform/windows/windows_window_api.h"
#include "tests/contract/desktop_changing_contract.h"
#include "tests/contract/desktop_reading_contract.h"
#include "tests/contract/desktop_under_test.h"

namespace korvale {
namespace {

/// The desktop counts as settled when no message has come for this many milliseconds.
constexpr DWORD kQuiet = 30;

DWORD StyleOf(const ContractWindow& window) {
  DWORD style = window.popup ? WS_POPUP | WS_CAPTION : WS_OVERLAPPEDWINDOW;
  if (!window.boxes) style &= ~static_cast<DWORD>(WS_MINIMIZEBOX | WS_MAXIMIZEBOX);
  return window.enabled ? style : style | WS_DISABLED;
}

/// The desktop on which this program runs, with windows of its own.
class RealDesktop : public DesktopUnderTest {
 public:
  RealDesktop() = default;
  ~RealDesktop() override {
    for (const HWND window : windows_) ::DestroyWindow(window);
    Settle();
  }
  RealDesktop(const RealDesktop&) = delete;
  RealDesktop& operator=(const RealDesktop&) = delete;

  WindowQueries& Queries() override { return api_; }
  WindowCommands& Commands() override { return api_; }

  WindowHandle Open(const ContractWindow& window) override {
    const std::wstring className = ToUtf16(window.className);
    Register(className);
    const HINSTANCE instance = ::GetModuleHandleW(nullptr);
    const HWND hwnd = ::CreateWindowExW(window.toolWindow ? WS_EX_TOOLWINDOW : 0, className.c_str(),
                                        ToUtf16(window.title).c_str(), StyleOf(window), 20, 20, 300,
                                        200, ToHwnd(window.owner), nullptr, instance, nullptr);
    for (int i = 0; i < window.children; ++i) {
      ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, hwnd, nullptr,
                        instance, nullptr);
    }
    if (window.visible) {
      ::ShowWindow(hwnd, SW_SHOW);
      ::SetForegroundWindow(hwnd);
    }
    windows_.push_back(hwnd);
    return ToWindowHandle(hwnd);
  }

  void Close(WindowHandle hwnd) override { ::DestroyWindow(ToHwnd(hwnd)); }

  void Rename(WindowHandle hwnd, const std::string& title) override {
    ::SetWindowTextW(ToHwnd(hwnd), ToUtf16(title).c_str());
  }

  void Settle() override {
    do {
      MSG message;
      while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) ::DispatchMessageW(&message);
    } while (::MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuiet, QS_ALLINPUT) != WAIT_TIMEOUT);
  }

 private:
  static void Register(const std::wstring& className) {
    WNDCLASSW windowClass = {};
    windowClass.lpfnWndProc = ::DefWindowProcW;
    windowClass.hInstance = ::GetModuleHandleW(nullptr);
    windowClass.lpszClassName = className.c_str();
    // Fails for a class that is registered already, which then serves as well.
    ::RegisterClassW(&windowClass);
  }

  WindowsWindowApi api_;
  std::vector<HWND> windows_;
};

}  // namespace

std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest() { return std::make_unique<RealDesktop>(); }

}  // namespace korvale

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

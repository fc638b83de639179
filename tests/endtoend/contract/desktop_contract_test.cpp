#include <windows.h>

#include <set>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"
#include "platform/windows/windows_virtual_desktops.h"
#include "platform/windows/windows_window_api.h"
#include "tests/contract/desktop_changing_contract.h"
#include "tests/contract/desktop_reading_contract.h"
#include "tests/endtoend/contract/window_thread.h"

namespace korvale {
namespace {

DWORD StyleOf(const ContractWindow& window) {
  if (window.popup) return WS_POPUP | WS_CAPTION;
  const DWORD boxes = window.boxes ? WS_MINIMIZEBOX | WS_MAXIMIZEBOX : 0U;
  return WS_CAPTION | WS_SYSMENU | WS_THICKFRAME | boxes;
}

void Register(const std::wstring& className) {
  WNDCLASSW description{};
  description.lpfnWndProc = DefWindowProcW;
  description.hInstance = GetModuleHandleW(nullptr);
  description.lpszClassName = className.c_str();
  RegisterClassW(&description);  // Fails for a class that an earlier test has registered.
}

HWND Make(const ContractWindow& window) {
  const std::wstring className = ToUtf16(window.className);
  Register(className);
  const HINSTANCE instance = GetModuleHandleW(nullptr);
  const HWND hwnd = CreateWindowExW(window.toolWindow ? WS_EX_TOOLWINDOW : 0U, className.c_str(),
                                    ToUtf16(window.title).c_str(), StyleOf(window), 100, 100, 400,
                                    300, ToHwnd(window.owner), nullptr, instance, nullptr);
  for (int child = 0; child < window.children; ++child) {
    CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, hwnd, nullptr, instance,
                    nullptr);
  }
  if (!window.enabled) EnableWindow(hwnd, FALSE);
  if (window.visible) {
    ShowWindow(hwnd, SW_SHOW);
    SetForegroundWindow(hwnd);
  }
  return hwnd;
}

/// COM for the manager of virtual desktops, as the program has it.
class Com {
 public:
  Com() = default;
  ~Com() {
    if (SUCCEEDED(ready_)) CoUninitialize();
  }
  Com(const Com&) = delete;
  Com& operator=(const Com&) = delete;

 private:
  HRESULT ready_ = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
};

class WindowsDesktopUnderTest final : public DesktopUnderTest {
 public:
  ~WindowsDesktopUnderTest() override {
    thread_.Run([this] {
      for (const HWND hwnd : opened_) DestroyWindow(hwnd);
    });
  }

  WindowQueries& Queries() override { return api_; }
  WindowCommands& Commands() override { return api_; }
  VirtualDesktops& Desktops() override { return virtualDesktops_; }

  WindowHandle Open(const ContractWindow& window) override {
    HWND hwnd = nullptr;
    thread_.Run([&] { hwnd = Make(window); });
    opened_.insert(hwnd);
    return ToWindowHandle(hwnd);
  }
  void Close(WindowHandle hwnd) override {
    thread_.Run([&] { DestroyWindow(ToHwnd(hwnd)); });
    opened_.erase(ToHwnd(hwnd));
  }
  void Rename(WindowHandle hwnd, const std::string& title) override {
    thread_.Run([&] { SetWindowTextW(ToHwnd(hwnd), ToUtf16(title).c_str()); });
  }
  void Settle() override {
    // An order may cause the next one to be posted, and the order of the windows comes last.
    constexpr int kRounds = 3;
    constexpr ULONGLONG kLongestMilliseconds = 1000;
    const ULONGLONG end = GetTickCount64() + kLongestMilliseconds;
    do {
      for (int round = 0; round < kRounds; ++round) thread_.Run([] {});
    } while (!ForegroundIsOnTop() && GetTickCount64() < end);
  }

 private:
  static bool IsTopmost(HWND hwnd) {
    return (GetWindowLongW(hwnd, GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
  }

  /// No visible window of the tests lies above the one in the foreground that belongs below it.
  bool ForegroundIsOnTop() {
    const HWND front = GetForegroundWindow();
    if (!opened_.contains(front) || IsWindowVisible(front) == FALSE) return true;
    HWND top = nullptr;
    api_.EnumWindows([&](WindowHandle each) {
      const HWND hwnd = ToHwnd(each);
      const bool comparable = opened_.contains(hwnd) && IsWindowVisible(hwnd) != FALSE &&
                              IsTopmost(hwnd) == IsTopmost(front) &&
                              GetWindow(hwnd, GW_OWNER) != front;
      if (comparable) top = hwnd;
      return top == nullptr;
    });
    return top == front;
  }

  WindowsWindowApi api_;
  Com com_;
  WindowsVirtualDesktops virtualDesktops_{[] {}};
  WindowThread thread_;
  std::set<HWND> opened_;
};

}  // namespace

std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest() {
  return std::make_unique<WindowsDesktopUnderTest>();
}

TEST_F(DesktopContract, AnErrorOfTheVisitorComesOutOfTheEnumeration) {
  EXPECT_THROW(
      queries_.EnumWindows([](WindowHandle) -> bool { throw std::runtime_error("visit"); }),
      std::runtime_error);
}

}  // namespace korvale

#include <memory>
#include <string>

#include "platform/win32_constants.h"
#include "tests/contract/desktop_changing_contract.h"
#include "tests/contract/desktop_reading_contract.h"
#include "tests/contract/desktop_under_test.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

class FakeDesktopUnderTest : public DesktopUnderTest {
 public:
  WindowQueries& Queries() override { return desktop_; }
  WindowCommands& Commands() override { return desktop_; }
  VirtualDesktops& Desktops() override { return desktop_; }
  WindowHandle Open(const ContractWindow& window) override {
    NewWindow options;
    options.className = window.className;
    options.owner = window.owner;
    if (window.popup) options.style = fakes::kWsPopup | fakes::kWsCaption;
    if (!window.boxes) options.style &= ~(win32::kWsMinimizeBox | win32::kWsMaximizeBox);
    if (window.toolWindow) options.exStyle = win32::kWsExToolWindow;
    options.visible = window.visible;
    options.enabled = window.enabled;
    options.children = window.children;
    return desktop_.Open(window.title, options);
  }
  void Close(WindowHandle hwnd) override { desktop_.Close(hwnd); }
  void Rename(WindowHandle hwnd, const std::string& title) override {
    desktop_.Rename(hwnd, title);
  }
  void Settle() override {}

 private:
  CallLog log_;
  FakeDesktop desktop_{log_};
};

}  // namespace

std::unique_ptr<DesktopUnderTest> MakeDesktopUnderTest() {
  return std::make_unique<FakeDesktopUnderTest>();
}

}  // namespace korvale

#include <gtest/gtest.h>

#include "platform/windows/windows_clock.h"
#include "tests/endtoend/contract/windows_user.h"
#include "ui/windows/windows_ui.h"

namespace korvale {
namespace {

class WindowsHostUnderTest final : public HostUnderTest {
 public:
  FormHost& Host() override { return ui_.host; }
  MessageLoop& Loop() override { return loop_; }
  ScreenQueries& Screen() override { return ui_.screen; }
  SystemDialogs& Dialogs() override { return ui_.dialogs; }
  TimerApi& Timers() override { return timers_; }
  UserHands& User() override { return user_; }

 private:
  WindowsUi ui_{GetModuleHandleW(nullptr)};
  WatchedMessageLoop loop_{ui_.loop};
  WindowsTimers timers_;
  WindowsUser user_{loop_};
};

}  // namespace

std::unique_ptr<HostUnderTest> MakeHostUnderTest() {
  return std::make_unique<WindowsHostUnderTest>();
}

}  // namespace korvale

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

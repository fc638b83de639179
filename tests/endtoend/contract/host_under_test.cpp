#include <gtest/gtest.h>

#include "platform/windows/windows_clock.h"
#include "tests/endtoend/contract/windows_user.h"

namespace korvale {
namespace {

class WindowsHostUnderTest final : public HostUnderTest {
 public:
  FormHost& Host() override { return host_; }
  TimerApi& Timers() override { return timers_; }
  UserHands& User() override { return user_; }

 private:
  WatchedFormHost host_{GetModuleHandleW(nullptr)};
  WindowsTimers timers_;
  WindowsUser user_{host_};
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

#include "tests/contract/form_host_contract.h"
#include "tests/fakes/headless_user.h"
#include "tests/fakes/plain_desktop.h"

namespace korvale {
namespace {

class HeadlessUnderTest : public HostUnderTest {
 public:
  FormHost& Host() override { return host_; }
  MessageLoop& Loop() override { return host_; }
  ScreenQueries& Screen() override { return host_; }
  SystemDialogs& Dialogs() override { return host_; }
  TimerApi& Timers() override { return clock_; }
  UserHands& User() override { return user_; }

 private:
  CallLog log_;
  PlainDesktop desktop_;
  FakeClock clock_;
  HeadlessFormHost host_{desktop_, log_};
  HeadlessUser user_{host_, clock_};
};

}  // namespace

std::unique_ptr<HostUnderTest> MakeHostUnderTest() { return std::make_unique<HeadlessUnderTest>(); }

}  // namespace korvale

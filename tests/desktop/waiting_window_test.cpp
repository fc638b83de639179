#include "desktop/waiting_window.h"

#include <gtest/gtest.h>

#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

class WaitingWindowTest : public testing::Test {
 protected:
  static constexpr int kOurs = 1;

  WindowHandle Open(const std::string& title, int process, const std::string& className = "Form") {
    return desktop_.Open(title, {.className = className, .process = process});
  }

  CallLog log_;
  FakeDesktop desktop_{log_};
};

TEST_F(WaitingWindowTest, IsTheTopmostOfTheProgramThatTakesInput) {
  const WindowHandle main = Open("Main", kOurs);
  const WindowHandle tip = Open("Tip", kOurs);
  desktop_.SetEnabled(Open("Blocked", kOurs), false);
  desktop_.Hide(Open("Hidden", kOurs));
  Open("Another program's", kOtherProcess);

  EXPECT_EQ(FindWaitingWindow(desktop_, main), tip);
}

TEST_F(WaitingWindowTest, MayBeOfOneClassOnly) {
  const WindowHandle main = Open("Main", kOurs);
  EXPECT_EQ(FindWaitingWindow(desktop_, main, "#32770"), 0);
  const WindowHandle box = Open("Box", kOurs, "#32770");
  Open("Tip", kOurs);
  EXPECT_EQ(FindWaitingWindow(desktop_, main, "#32770"), box);
}

TEST_F(WaitingWindowTest, IsNoneForAWindowThatIsGone) {
  Open("Main", kOtherProcess);
  EXPECT_EQ(FindWaitingWindow(desktop_, 0), 0);
}

TEST_F(WaitingWindowTest, ForTheInputIsTheWindowItselfWhileItIsEnabled) {
  const WindowHandle main = Open("Main", kOtherProcess);
  desktop_.Open("Find", {.owner = main});
  EXPECT_EQ(FindInputWindow(desktop_, main), main);
  EXPECT_EQ(FindInputWindow(desktop_, 0), 0);
}

TEST_F(WaitingWindowTest, ForTheInputIsTheInnermostDialogThatTakesIt) {
  const WindowHandle main = Open("Main", kOtherProcess);
  const WindowHandle outer = desktop_.OpenModalDialog(main, "Outer");
  const WindowHandle inner = desktop_.OpenModalDialog(outer, "Inner");
  EXPECT_EQ(FindInputWindow(desktop_, main), inner);
  EXPECT_EQ(FindInputWindow(desktop_, outer), inner);
  desktop_.CloseModalDialog(inner);
  EXPECT_EQ(FindInputWindow(desktop_, main), outer);
}

TEST_F(WaitingWindowTest, ForTheInputIsNoWindowThatOnlyHoversAboveTheDialog) {
  const WindowHandle main = Open("Main", kOtherProcess);
  const WindowHandle dialog = desktop_.OpenModalDialog(main, "Dialog");
  desktop_.Open("Hint", {.owner = main, .activate = false});
  EXPECT_EQ(FindInputWindow(desktop_, main), dialog);
}

TEST_F(WaitingWindowTest, ForTheInputIsNoneWhenNothingTakesIt) {
  const WindowHandle main = Open("Main", kOtherProcess);
  desktop_.Hide(desktop_.Open("Helper", {.owner = main}));
  Open("Another", kOtherProcess);
  desktop_.SetEnabled(main, false);
  EXPECT_EQ(FindInputWindow(desktop_, main), 0);
}

TEST_F(WaitingWindowTest, ForTheInputIsTheHiddenDialogOfAMinimizedWindow) {
  const WindowHandle main = Open("Main", kOtherProcess);
  const WindowHandle dialog = desktop_.OpenModalDialog(main, "Dialog");
  desktop_.UserMinimizes(main);
  EXPECT_EQ(FindInputWindow(desktop_, main), dialog);
}

}  // namespace
}  // namespace korvale

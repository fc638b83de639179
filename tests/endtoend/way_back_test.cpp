#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

/// Alt+0 goes to the window worked in before the one in front.
class WayBack : public KorvaleTest {
 protected:
  /// Starts with Tag 1 for Alpha and Tag 2 for Beta, not found yet, and works in Gamma, Beta and
  /// Alpha.
  void StartInAlpha() {
    installation_.StoreTag(1, "Alpha", kClass);
    installation_.StoreTag(2, "Beta", kClass);
    Start();
    gamma_ = WorkInNew("Gamma");
    beta_ = WorkInNew("Beta");
    alpha_ = WorkInNew("Alpha");
  }

  /// A dialog of the window, which it disables.
  Window OpenDialog(Window window) {
    EnableWindow(window.handle(), FALSE);
    const Window dialog =
        Open({.title = "Dialog", .style = WS_POPUP | WS_CAPTION | DS_MODALFRAME, .owner = window});
    EXPECT_TRUE(InFront(dialog));
    EXPECT_TRUE(StaysInFront(dialog));
    return dialog;
  }

  /// Alt+0 brings the window forward, which stays there.
  ::testing::AssertionResult LeadsTo(Window window) {
    Press(TagKey(0));
    return ComesToStay(window);
  }

  /// Waits until the window is in front and stays there; it may be so before another one comes.
  ::testing::AssertionResult ComesToStay(Window window) {
    if (WaitFor([&] { return static_cast<bool>(StaysInFront(window)); })) {
      return ::testing::AssertionSuccess();
    }
    return InFront(window);
  }

  Window alpha_;
  Window beta_;
  Window gamma_;
};

class WayBackFromAlpha : public WayBack {
 protected:
  void SetUp() override { StartInAlpha(); }
};

TEST_F(WayBackFromAlpha, IsKeptByTheTagOfTheWindowInFront) {
  Press(TagKey(1));
  ASSERT_TRUE(StaysInFront(alpha_));
  EXPECT_TRUE(LeadsTo(beta_));
}

TEST_F(WayBackFromAlpha, IsKeptByATagPressedInAToolWindow) {
  const Window tool = Open({.title = "Tool", .extended_style = WS_EX_TOOLWINDOW});
  ASSERT_TRUE(BringToFront(tool));
  ASSERT_TRUE(StaysInFront(tool));
  Press(TagKey(1));
  ASSERT_TRUE(InFront(alpha_));
  EXPECT_TRUE(LeadsTo(beta_));
  EXPECT_TRUE(LeadsTo(alpha_));
}

TEST_F(WayBackFromAlpha, IsKeptByTwoQuickKeys) {
  Press(TagKey(0));
  Press(TagKey(1));
  ASSERT_TRUE(ComesToStay(alpha_));
  EXPECT_TRUE(LeadsTo(beta_));
}

TEST_F(WayBackFromAlpha, IsKeptByAQuickTagAfterMinimizing) {
  Press({MOD_ALT, VK_DOWN});
  Press(TagKey(1));
  ASSERT_TRUE(ComesToStay(alpha_));
  EXPECT_TRUE(LeadsTo(beta_));
}

TEST_F(WayBackFromAlpha, IsKeptByAQuickTagAfterAClick) {
  SetForegroundWindow(gamma_.handle());
  ASSERT_TRUE(WaitFor([&] { return Foreground() == gamma_; }));
  Press(TagKey(1));
  ASSERT_TRUE(InFront(alpha_));
  EXPECT_TRUE(LeadsTo(gamma_));
}

TEST_F(WayBackFromAlpha, IsKeptWhenTheWindowInFrontCloses) {
  ASSERT_TRUE(alpha_.Close());
  ASSERT_TRUE(BringToFront(beta_));
  ASSERT_TRUE(StaysInFront(beta_));
  EXPECT_TRUE(LeadsTo(gamma_));
  EXPECT_TRUE(LeadsTo(beta_));
}

TEST_F(WayBackFromAlpha, IsTheDialogInWhichTheUserWas) {
  const Window dialog = OpenDialog(alpha_);
  EXPECT_TRUE(LeadsTo(beta_));
  EXPECT_TRUE(LeadsTo(dialog));
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  EXPECT_EQ(korvale_->TargetTitle(), "Alpha");
  EXPECT_TRUE(LeadsTo(dialog));
  EnableWindow(alpha_.handle(), TRUE);
  ASSERT_TRUE(dialog.Close());
  ASSERT_TRUE(WorkIn(alpha_));
  EXPECT_TRUE(LeadsTo(main()));
  EXPECT_TRUE(LeadsTo(alpha_));
}

TEST_F(WayBackFromAlpha, IsTheDialogOfAMinimizedWindow) {
  const Window dialog = OpenDialog(alpha_);
  ShowWindow(alpha_.handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return alpha_.Minimized(); }));
  ASSERT_TRUE(WorkIn(beta_));
  EXPECT_TRUE(LeadsTo(dialog));
  EXPECT_FALSE(alpha_.Minimized());
}

TEST_F(WayBackFromAlpha, IsNotTheMainWindowAfterThePopUp) {
  ShowWindow(main().handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return main().Minimized(); }));
  ASSERT_TRUE(BringToFront(alpha_));
  ASSERT_TRUE(StaysInFront(alpha_));
  ASSERT_TRUE(PopUpWindowMenu());
  ASSERT_TRUE(HoldsFor([&] { return korvale_->HasMenu(); }));
  Press({0, '2'});
  ASSERT_TRUE(InFront(beta_));
  ASSERT_TRUE(StaysInFront(beta_));
  EXPECT_TRUE(LeadsTo(alpha_));
  EXPECT_TRUE(main().Minimized());
}

TEST_F(WayBack, IsAliveAfterAStartThatIsAlwaysOnTop) {
  ASSERT_TRUE(BringToFront(Open("Earlier")));
  installation_.settings().Set("Startup", "AlwaysOnTop", "True");
  Start();
  EXPECT_TRUE(Target("Earlier"));
  Press(TagKey(0));
  EXPECT_TRUE(WaitFor([&] { return Foreground().Title() == "Earlier"; }));
}

TEST_F(WayBack, IsTakenByAStartThatIsAlwaysOnTopWhenTheOptionSaysSo) {
  const Window earlier = Open("Earlier");
  ASSERT_TRUE(BringToFront(earlier));
  installation_.MarkAsUsed();
  installation_.settings().Set("Startup", "AlwaysOnTop", "True");
  installation_.SetOption("SelectPrevWinOnStart", "True");
  korvale_.emplace(installation_);
  ASSERT_TRUE(main());
  EXPECT_TRUE(Target("Earlier"));
  EXPECT_TRUE(InFront(earlier));
  EXPECT_TRUE(StaysInFront(earlier));
}

TEST_F(WayBackFromAlpha, MarksAWindowThatHasMadeItselfTopmost) {
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  SetWindowPos(alpha_.handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  ASSERT_TRUE(WaitFor([&] { return alpha_.Topmost(); }));
  // Its entry takes the window out of the topmost ones again.
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([&] { return !alpha_.Topmost(); }));
}

}  // namespace
}  // namespace korvale::endtoend

#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

class PreviousWindow : public KorvaleTest {
 protected:
  void OpenAlphaAndBeta() {
    alpha_ = WorkInNew("Alpha");
    beta_ = WorkInNew("Beta");
  }

  /// Shows the window for as long as three ticks, then goes back to Beta.
  void VisitAndReturnToBeta(Window visited) {
    ASSERT_TRUE(BringToFront(visited));
    ASSERT_TRUE(StaysInFront(visited));
    ASSERT_TRUE(BringToFront(beta_));
    ASSERT_TRUE(StaysInFront(beta_));
  }

  Window alpha_;
  Window beta_;
};

/// Alpha is the Previous Window, the user works in Beta.
class PreviousOfTwoWindows : public PreviousWindow {
 protected:
  void SetUp() override {
    Start();
    OpenAlphaAndBeta();
  }
};

TEST_F(PreviousOfTwoWindows, IsOneKeyAwayThereAndBack) {
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_TRUE(Target("Alpha"));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(beta_));
}

TEST_F(PreviousWindow, ShowsItsTitleAndClassInTheMainWindow) {
  Start();
  WorkInNew({.title = "Счёт - 会計 🧮", .class_name = "Special.Class"});
  EXPECT_EQ(korvale_->TargetTitle(), "Счёт - 会計 🧮");
  EXPECT_EQ(korvale_->TargetClass(), "Special.Class");
}

TEST_F(PreviousOfTwoWindows, StaysTheSameWhileTheMainWindowIsInFront) {
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  EXPECT_EQ(korvale_->TargetTitle(), "Beta");
  Press(TagKey(0));
  EXPECT_TRUE(InFront(beta_));
}

TEST_F(PreviousOfTwoWindows, IsTheMainWindowForTheUserWhoCameFromIt) {
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(BringToFront(alpha_));
  ASSERT_TRUE(Target("Alpha"));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(main()));
}

TEST_F(PreviousOfTwoWindows, IsNeverAToolWindow) {
  VisitAndReturnToBeta(Open({.title = "Tool", .extended_style = WS_EX_TOOLWINDOW}));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
}

TEST_F(PreviousWindow, IsAToolWindowWhenTheOptionAllowsIt) {
  installation_.SetOption("AllowToolbarWindow", "True");
  Start();
  OpenAlphaAndBeta();
  const Window tool = WorkInNew({.title = "Tool", .extended_style = WS_EX_TOOLWINDOW});
  ASSERT_TRUE(WorkIn(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(tool));
}

TEST_F(PreviousOfTwoWindows, IsNeverAnUntitledWindow) {
  VisitAndReturnToBeta(Open({.title = ""}));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
}

TEST_F(PreviousWindow, IsShownAsAWindowWithoutATitleWhenTheOptionAllowsIt) {
  installation_.SetOption("AllowNoTextWindow", "True");
  Start();
  OpenAlphaAndBeta();
  const Window untitled = Open({.title = ""});
  EXPECT_TRUE(Target("(window without a title)"));
  ASSERT_TRUE(WorkIn(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(untitled));
}

TEST_F(PreviousOfTwoWindows, IsNeverAWindowWithAModalFrame) {
  VisitAndReturnToBeta(Open({.title = "Framed", .style = WS_OVERLAPPEDWINDOW | DS_MODALFRAME}));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
}

TEST_F(PreviousOfTwoWindows, IsNeverASystemModalWindow) {
  VisitAndReturnToBeta(Open({.title = "Urgent", .style = WS_OVERLAPPEDWINDOW | DS_SYSMODAL}));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
}

TEST_F(PreviousWindow, IsNeverAnUntitledStaticWindowWhateverTheOptions) {
  installation_.SetOption("AllowNoTextWindow", "True");
  Start();
  OpenAlphaAndBeta();
  VisitAndReturnToBeta(Open({.title = "", .class_name = "Static"}));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
}

TEST_F(PreviousWindow, IsAnyWindowThatIsOnlyTitledLikeTheDesktop) {
  Start();
  const Window titled = WorkInNew("Program Manager");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(titled));
}

TEST_F(PreviousWindow, IsAToolWindowThatTheUserTagged) {
  installation_.StoreTag(1, "Tool", "Test.Window");
  Start();
  OpenAlphaAndBeta();
  const Window tool = WorkInNew({.title = "Tool", .extended_style = WS_EX_TOOLWINDOW});
  ASSERT_TRUE(WorkIn(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(tool));
}

TEST_F(PreviousWindow, IsAModalFrameThatTheUserTagged) {
  installation_.StoreTag(1, "Framed", "Test.Window");
  Start();
  OpenAlphaAndBeta();
  const Window framed =
      WorkInNew({.title = "Framed", .style = WS_OVERLAPPEDWINDOW | DS_MODALFRAME});
  ASSERT_TRUE(WorkIn(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(framed));
}

TEST_F(PreviousOfTwoWindows, IsSelectedAlthoughItsTitleChanged) {
  alpha_.SetTitle("Alpha, edited");
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_TRUE(Target("Alpha, edited"));
}

TEST_F(PreviousOfTwoWindows, IsRestoredWhenItIsMinimized) {
  ShowWindow(alpha_.handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return alpha_.Minimized(); }));
  ASSERT_TRUE(BringToFront(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
  EXPECT_TRUE(WaitFor([&] { return !alpha_.Minimized(); }));
}

TEST_F(PreviousOfTwoWindows, FallsBackToTheOneBeforeWhenItCloses) {
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(beta_.Close());
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, VK_ESCAPE});
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(Target("Alpha"));
}

TEST_F(PreviousOfTwoWindows, IsEmptyWhenBothAreGone) {
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(beta_.Close());
  ASSERT_TRUE(alpha_.Close());
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, VK_ESCAPE});
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(Target(""));
  EXPECT_EQ(korvale_->TargetClass(), "");
}

TEST_F(PreviousWindow, IsTheWindowThatWasInFrontBeforeTheProgramStarted) {
  ASSERT_TRUE(BringToFront(Open("Earlier")));
  Start();
  EXPECT_TRUE(Target("Earlier"));
}

TEST_F(PreviousWindow, ComesForwardAtTheStartWhenTheOptionSaysSo) {
  installation_.MarkAsUsed();
  installation_.SetOption("SelectPrevWinOnStart", "True");
  const Window earlier = Open("Earlier");
  korvale_.emplace(installation_);
  ASSERT_TRUE(main());
  EXPECT_TRUE(Target("Earlier"));
  EXPECT_TRUE(InFront(earlier));
  EXPECT_TRUE(StaysInFront(earlier));
}

}  // namespace
}  // namespace korvale::endtoend

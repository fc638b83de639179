#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr DWORD kNoMinimizeBox = WS_CAPTION | WS_SYSMENU | WS_MAXIMIZEBOX;
constexpr DWORD kNoMaximizeBox = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

class WindowActions : public KorvaleTest {
 protected:
  void SetUp() override { Start(); }
  Window HiddenOwner() { return Open({.title = "Owner", .show = SW_HIDE}); }

  /// What this desktop makes of the call that puts a window on top.
  static bool GoesOnTop(Window window) {
    SetWindowPos(window.handle(), HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    return WaitFor([&] { return window.Topmost(); }, kWhile);
  }

  /// The window keeps its size for as long as three ticks.
  static bool StaysAsItIs(Window window) {
    const bool minimized = window.Minimized();
    const bool maximized = window.Maximized();
    return HoldsFor(
        [&] { return window.Minimized() == minimized && window.Maximized() == maximized; });
  }
};

TEST_F(WindowActions, MinimizeKeyMinimizesAndBringsThePreviousWindow) {
  const Window alpha = WorkInNew("Alpha");
  const Window beta = WorkInNew("Beta");
  Press(kMinimizeKey);
  EXPECT_TRUE(WaitFor([&] { return beta.Minimized(); }));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(WindowActions, MinimizeKeyLeavesAWindowWithoutMinimizeBoxAlone) {
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const Window fixed = WorkInNew({.title = "Fixed", .style = kNoMinimizeBox});
  Press(kMinimizeKey);
  EXPECT_TRUE(StaysInFront(fixed));
  EXPECT_FALSE(fixed.Minimized());
}

TEST_F(WindowActions, MinimizeKeyMinimizesTheOwner) {
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const Window owner = WorkInNew("Owner");
  const Window owned = WorkInNew({.title = "Owned", .owner = owner});
  Press(kMinimizeKey);
  EXPECT_TRUE(WaitFor([&] { return owner.Minimized(); }));
  EXPECT_FALSE(owned.Minimized());
}

TEST_F(WindowActions, MaximizeKeyMaximizesAndRestores) {
  const Window alpha = WorkInNew("Alpha");
  Press(kMaximizeKey);
  EXPECT_TRUE(WaitFor([&] { return alpha.Maximized(); }));
  Press(kMaximizeKey);
  EXPECT_TRUE(WaitFor([&] { return !alpha.Maximized(); }));
  EXPECT_FALSE(alpha.Minimized());
}

TEST_F(WindowActions, MaximizeKeyLeavesAWindowWithoutMaximizeBoxAlone) {
  const Window fixed = WorkInNew({.title = "Fixed", .style = kNoMaximizeBox});
  Press(kMaximizeKey);
  EXPECT_TRUE(StaysAsItIs(fixed));
}

TEST_F(WindowActions, MinimizeAllAndRestoreAllSkipWhatTheyMayNotTouch) {
  const Window plain = Open("Plain");
  const Window fixed = Open({.title = "Fixed", .style = kNoMinimizeBox});
  const Window disabled = Open({.title = "Disabled", .style = WS_OVERLAPPEDWINDOW | WS_DISABLED});
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'M'});
  EXPECT_TRUE(WaitFor([&] { return plain.Minimized(); }));
  EXPECT_FALSE(fixed.Minimized());
  EXPECT_FALSE(disabled.Minimized());
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, 'R'});
  EXPECT_TRUE(WaitFor([&] { return !plain.Minimized(); }));
  EXPECT_TRUE(InFront(main()));
}

TEST_F(WindowActions, TheMainWindowGoesOnTopAndComesDownAgain) {
  const auto stored = [&] { return installation_.settings().Get("Startup", "AlwaysOnTop"); };
  // Wine leaves a window with a hidden owner among the others; the main window is such a one.
  const bool granted = GoesOnTop(Open({.title = "Owned", .owner = HiddenOwner()}));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'O'});
  EXPECT_TRUE(WaitFor([&] { return stored() == "True"; }));
  EXPECT_TRUE(WaitFor([&] { return main().Topmost() == granted; }));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'O'});
  EXPECT_TRUE(WaitFor([&] { return stored() == "False" && !main().Topmost(); }));
}

TEST_F(WindowActions, ThePreviousWindowGoesOnTopAndComesDownAgain) {
  const Window alpha = WorkInNew("Alpha");
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([&] { return alpha.Topmost(); }));
  EXPECT_TRUE(InFront(main()));
  EXPECT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([&] { return !alpha.Topmost(); }));
}

}  // namespace
}  // namespace korvale::endtoend

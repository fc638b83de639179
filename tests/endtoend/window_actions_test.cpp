#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr DWORD kNoMinimizeBox = WS_CAPTION | WS_SYSMENU | WS_MAXIMIZEBOX;
constexpr DWORD kNoMaximizeBox = WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX;

class WindowActions : public KorvaleTest {
 protected:
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
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  Press(kMinimizeKey);
  EXPECT_TRUE(WaitFor([&] { return beta.Minimized(); }));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(WindowActions, MinimizeKeyLeavesAWindowWithoutMinimizeBoxAlone) {
  Start();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const Window fixed = Open({.title = "Fixed", .style = kNoMinimizeBox});
  ASSERT_TRUE(WorkIn(fixed));
  Press(kMinimizeKey);
  EXPECT_TRUE(StaysInFront(fixed));
  EXPECT_FALSE(fixed.Minimized());
}

TEST_F(WindowActions, MinimizeKeyMinimizesTheOwner) {
  Start();
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  const Window owner = Open("Owner");
  ASSERT_TRUE(WorkIn(owner));
  const Window owned = Open({.title = "Owned", .owner = owner});
  ASSERT_TRUE(WorkIn(owned));
  Press(kMinimizeKey);
  EXPECT_TRUE(WaitFor([&] { return owner.Minimized(); }));
  EXPECT_FALSE(owned.Minimized());
}

TEST_F(WindowActions, MaximizeKeyMaximizesAndRestores) {
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  Press(kMaximizeKey);
  EXPECT_TRUE(WaitFor([&] { return alpha.Maximized(); }));
  Press(kMaximizeKey);
  EXPECT_TRUE(WaitFor([&] { return !alpha.Maximized(); }));
  EXPECT_FALSE(alpha.Minimized());
}

TEST_F(WindowActions, MaximizeKeyLeavesAWindowWithoutMaximizeBoxAlone) {
  Start();
  const Window fixed = Open({.title = "Fixed", .style = kNoMaximizeBox});
  ASSERT_TRUE(WorkIn(fixed));
  Press(kMaximizeKey);
  EXPECT_TRUE(StaysAsItIs(fixed));
}

TEST_F(WindowActions, MinimizeAllAndRestoreAllSkipWhatTheyMayNotTouch) {
  Start();
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
  Start();
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
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([&] { return alpha.Topmost(); }));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([&] { return !alpha.Topmost(); }));
}

}  // namespace
}  // namespace korvale::endtoend

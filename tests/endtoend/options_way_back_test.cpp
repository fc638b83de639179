#include <functional>
#include <vector>

#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

/// Where the user is after a visit to the Options dialog.
class OptionsWayBack : public OptionsTest {
 protected:
  using Close = std::function<void(const OptionsDialog&)>;

  void StartInAlpha() {
    Start();
    beta_ = WorkInNew("Beta");
    alpha_ = WorkInNew("Alpha");
  }

  static std::vector<Close> WaysToClose() {
    return {[](const OptionsDialog& dialog) { EXPECT_TRUE(dialog.Cancel()); },
            [](const OptionsDialog& dialog) { EXPECT_TRUE(dialog.Confirm()); },
            [](const OptionsDialog& dialog) {
              Press({MOD_ALT, VK_F4});
              EXPECT_TRUE(WaitFor([&] { return dialog.IsGone(); }));
            },
            [](const OptionsDialog& dialog) { EXPECT_TRUE(dialog.form().Close()); }};
  }

  Window alpha_;
  Window beta_;
};

TEST_F(OptionsWayBack, LeadsToTheMainWindowThatOpenedThem) {
  StartInAlpha();
  for (const Close& close : WaysToClose()) {
    ASSERT_TRUE(BringToFront(main()));
    ASSERT_TRUE(StaysInFront(main()));
    const OptionsDialog dialog = OpenOptionsByMenu();
    ASSERT_TRUE(Target("Korvale - Options"));
    close(dialog);
    EXPECT_TRUE(InFront(main()));
    EXPECT_TRUE(StaysInFront(main()));
    EXPECT_TRUE(Target("Alpha"));
    Press(TagKey(0));
    EXPECT_TRUE(InFront(alpha_));
  }
}

TEST_F(OptionsWayBack, LeadsToTheWindowThatWasInFront) {
  StartInAlpha();
  for (const Close& close : WaysToClose()) {
    const OptionsDialog dialog = OpenOptions();
    ASSERT_TRUE(Target("Korvale - Options"));
    close(dialog);
    EXPECT_TRUE(InFront(alpha_));
    EXPECT_TRUE(StaysInFront(alpha_));
    EXPECT_TRUE(Target("Alpha"));
    Press(TagKey(0));
    EXPECT_TRUE(InFront(beta_));
    ASSERT_TRUE(WorkIn(alpha_));
  }
}

TEST_F(OptionsWayBack, LeavesTheMainWindowMinimized) {
  StartInAlpha();
  ShowWindow(main().handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return main().Minimized(); }));
  ASSERT_TRUE(WorkIn(alpha_));
  for (const Close& close : WaysToClose()) {
    close(OpenOptions());
    EXPECT_TRUE(InFront(alpha_));
    EXPECT_TRUE(StaysInFront(alpha_));
    EXPECT_TRUE(main().Minimized());
  }
}

TEST_F(OptionsWayBack, LeavesTheWindowInFrontAloneWhenTheyCloseBehindIt) {
  StartInAlpha();
  const OptionsDialog dialog = OpenOptions();
  ASSERT_TRUE(WorkIn(beta_));
  ASSERT_TRUE(dialog.form().Close());
  EXPECT_TRUE(StaysInFront(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
}

}  // namespace
}  // namespace korvale::endtoend

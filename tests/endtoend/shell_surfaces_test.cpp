#include <ostream>
#include <string>

#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

/// Looks like a part of the shell: a window of its class that takes the whole attention.
struct Surface {
  const char* class_name;
  const char* title;
};

void PrintTo(const Surface& surface, std::ostream* out) { *out << surface.class_name; }

/// The user has come from Alpha to Beta, with every kind of window allowed in the options.
class ShellSurface : public KorvaleTest, public ::testing::WithParamInterface<Surface> {
 protected:
  void SetUp() override {
    installation_.SetOption("AllowNoTextWindow", "True");
    installation_.SetOption("AllowToolbarWindow", "True");
    Start();
    alpha_ = WorkInNew("Alpha");
    beta_ = WorkInNew("Beta");
    surface_ = Open({.title = GetParam().title, .class_name = GetParam().class_name});
    ASSERT_TRUE(BringToFront(surface_));
    ASSERT_TRUE(StaysInFront(surface_));
  }

  Window alpha_;
  Window beta_;
  Window surface_;
};

INSTANTIATE_TEST_SUITE_P(Windows, ShellSurface,
                         ::testing::Values(Surface{"Windows.UI.Core.CoreWindow", "Search"},
                                           Surface{"XamlExplorerHostIslandWindow", ""},
                                           Surface{"MultitaskingViewFrame", "Task View"},
                                           Surface{"ForegroundStaging", ""},
                                           Surface{"Shell_SecondaryTrayWnd", ""},
                                           Surface{"WorkerW", ""}));

TEST_P(ShellSurface, AVisitChangesNothing) {
  EXPECT_EQ(korvale_->TargetTitle(), "Beta");
  ASSERT_TRUE(BringToFront(beta_));
  ASSERT_TRUE(StaysInFront(beta_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha_));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(beta_));
}

TEST_P(ShellSurface, IsNotMinimizedByTheHotKey) {
  Press({MOD_ALT, VK_DOWN});
  EXPECT_TRUE(StaysInFront(surface_));
  EXPECT_FALSE(surface_.Minimized());
}

}  // namespace
}  // namespace korvale::endtoend

#include "desktop/user_return.h"

#include <gtest/gtest.h>

#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

/// Beta and Alpha were worked in, Gamma is to get the user back but has gone.
class UserReturnsFromGamma : public ForegroundTracking {
 protected:
  UserReturnsFromGamma() {
    WorkIn(beta);
    WorkIn(alpha);
    desktop.Close(gamma);
  }
  void Return() { ReturnUserTo(routines, {gamma, "Window"}); }
};

TEST_F(UserReturnsFromGamma, ToTheLastWindowWorkedInWhenNothingIsInFront) {
  desktop.LoseForeground();
  Return();
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(UserReturnsFromGamma, ButNotFromWhereTheyHaveGoneThemselves) {
  desktop.UserActivates(beta);
  Return();
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

}  // namespace
}  // namespace korvale

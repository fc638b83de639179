#pragma once

#include "tests/endtoend/harness/installed.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {

/// The setup program, and copies of Korvale that it installed.
class SetupTest : public KorvaleTest {
 protected:
  void SetUp() override;

  /// Leaves settings as an earlier run would have, so that nothing is asked, and starts the copy.
  void Use(const Installed& place);
  /// Works in a new window and gives it that Tag.
  Window TagNew(const char* title, int tag);
  /// Waits until the copy that was used last has closed by itself.
  ::testing::AssertionResult Closed();
};

}  // namespace korvale::endtoend

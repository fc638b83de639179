#include <cstddef>

#include "tests/program/korvale_world.h"

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();

namespace korvale {
namespace {

class ConstantMemory : public KorvaleWorld {
 protected:
  /// The bytes in use after so many switches between two windows.
  std::size_t AfterSwitches(int count) {
    for (int i = 0; i < count; ++i) {
      PressTag(1 + i % 2);
      LetTick();
      log.Clear();
    }
    return __sanitizer_get_current_allocated_bytes();
  }
};

TEST_F(ConstantMemory, StaysThroughAThousandSwitches) {
  Open("Alpha");
  Open("Beta");
  StoreTag(1, "Alpha");
  StoreTag(2, "Beta");
  KorvaleCopy& korvale = StartedCopy();
  const std::size_t before = AfterSwitches(100);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(AfterSwitches(1000), before);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale.TargetWindow(), "Beta");
}

}  // namespace
}  // namespace korvale
#endif

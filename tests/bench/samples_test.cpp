#include "bench/measure/samples.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <stdexcept>

namespace korvale::bench {
namespace {

Samples Of(std::initializer_list<double> values) {
  Samples samples;
  for (const double value : values) samples.Add(value);
  return samples;
}

TEST(Samples, HaveTheValueInTheMiddleForMedian) {
  EXPECT_DOUBLE_EQ(Of({5}).Median(), 5);
  EXPECT_DOUBLE_EQ(Of({9, 1, 2}).Median(), 2);
  EXPECT_DOUBLE_EQ(Of({9, 1, 2, 4}).Median(), 3);
}

TEST(Samples, KnowTheirWorst) { EXPECT_DOUBLE_EQ(Of({1, 9, 2}).Worst(), 9); }

TEST(Samples, TellNothingWhenNothingWasMeasured) {
  EXPECT_THROW(Samples().Median(), std::runtime_error);
  EXPECT_THROW(Samples().Worst(), std::runtime_error);
}

// A message takes the floor 10 ms and the program 20 ms; a loop over the large desktop 5 ms more
// than one over the small desktop, of which the floor makes one and the program three.
TEST(LoopsMore, CountsOnlyWhatALargerDesktopCosts) {
  const ByDesktop loop = {{9, Of({1})}, {200, Of({6})}};
  const ByDesktop floor = {{9, Of({11})}, {200, Of({16})}};
  const ByDesktop program = {{9, Of({23})}, {200, Of({38})}};
  EXPECT_DOUBLE_EQ(LoopsMore(program, floor, loop, 9, 200), 2);
}

TEST(LoopsMore, NeedsEveryDesktop) {
  const ByDesktop times = {{9, Of({1})}, {200, {}}};
  EXPECT_THROW(LoopsMore(times, times, times, 9, 200), std::runtime_error);
}

}  // namespace
}  // namespace korvale::bench

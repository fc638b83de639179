
#include "tests/program/simulated_life.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr int kLives = 8;
constexpr std::int32_t kStepsOfALife = 25'000;

/// KORVALE_SEED sets the seed of the first life, the others count on from it; KORVALE_STEPS the
/// length of each.
class SimulatedUserTest : public SimulatedLife, public testing::WithParamInterface<int> {};

TEST_P(SimulatedUserTest, NothingThatMustAlwaysHoldIsEverBroken) {
  Live(static_cast<std::uint32_t>(Setting("KORVALE_SEED", kFirstSeed) + GetParam()),
       Setting("KORVALE_STEPS", kStepsOfALife));
}

INSTANTIATE_TEST_SUITE_P(Lives, SimulatedUserTest, testing::Range(0, kLives));

}  // namespace
}  // namespace korvale

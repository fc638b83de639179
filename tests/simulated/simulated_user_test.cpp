#include <cstddef>

#include "tests/program/dice.h"
#include "tests/simulated/life_run.h"

namespace korvale {
namespace {

/// As many steps as a life may have for its failure to be shortened soon.
constexpr int kStepsOfALife = 2'500;
constexpr int kLivesOfAShare = 10;
constexpr std::int32_t kShares = 8;

/// KORVALE_SEED sets the seed of the first life, the others count on from it; KORVALE_SHARES how
/// many shares of 25,000 steps are lived.
class SimulatedUserTest : public testing::TestWithParam<int> {
 protected:
  static void ExpectNoFailure(std::uint32_t seed, const LifeScript& script,
                              const LifeOutcome& outcome) {
    if (outcome.failedCheck.empty()) return;
    const LifeOutcome shortest = RunLife(ShortestLife(script));
    ADD_FAILURE() << "the life of seed " << seed << " fails after " << outcome.steps
                  << " steps; the shortest one left of it that still fails:\n"
                  << Told(shortest);
  }
};

TEST_P(SimulatedUserTest, NothingThatMustAlwaysHoldIsEverBroken) {
  const int first = Setting("KORVALE_SEED", kFirstSeed) + kLivesOfAShare * GetParam();
  std::vector<int> taken(SimulatedSteps().size(), 0);
  int steps = 0;
  for (int life = 0; life < kLivesOfAShare; ++life) {
    const auto seed = static_cast<std::uint32_t>(first + life);
    const LifeScript script = WriteLife(seed, kStepsOfALife);
    const LifeOutcome outcome = RunLife(script);
    ExpectNoFailure(seed, script, outcome);
    for (std::size_t row = 0; row < taken.size(); ++row) taken[row] += outcome.taken[row];
    steps += outcome.steps;
  }
  RecordProperty("steps", steps);
  RecordProperty("lives", kLivesOfAShare);
  RecordProperty("first_seed", first);
  RecordProperty("last_seed", first + kLivesOfAShare - 1);
  for (std::size_t row = 0; row < taken.size() && !HasFailure(); ++row) {
    EXPECT_GT(taken[row], 0) << "it never happened: " << SimulatedSteps()[row].fault;
  }
}

INSTANTIATE_TEST_SUITE_P(Shares, SimulatedUserTest,
                         testing::Range(0, Setting("KORVALE_SHARES", kShares)));

}  // namespace
}  // namespace korvale

#include "tests/simulated/life_script.h"

#include "tests/program/dice.h"
#include "tests/simulated/simulated_steps.h"

namespace korvale {
namespace {

std::size_t SomeRow(Dice& dice) {
  int total = 0;
  for (const SimulatedStep& step : SimulatedSteps()) total += step.weight;
  int left = dice.Below(total);
  std::size_t row = 0;
  while ((left -= SimulatedSteps()[row].weight) >= 0) ++row;
  return row;
}

}  // namespace

LifeScript WriteLife(std::uint32_t seed, int steps) {
  Dice dice(seed);
  LifeScript script;
  for (int i = 0; i < steps; ++i) script.push_back({SomeRow(dice), dice.Number()});
  return script;
}

}  // namespace korvale

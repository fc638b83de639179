#include "tests/simulated/life_run.h"

#include <gtest/gtest-spi.h>

#include "tests/simulated/shrink.h"

namespace korvale {
namespace {

/// A minute or two.
constexpr int kMostStepsOfShrinking = 500'000;

std::string PlaceOf(const testing::TestPartResult& result) {
  const char* const file = result.file_name();
  return (file == nullptr ? "?" : file) + std::string(":") + std::to_string(result.line_number());
}

}  // namespace

LifeOutcome RunLife(const LifeScript& script, const SimulatedLife::AfterStep& afterStep) {
  using Reporter = testing::ScopedFakeTestPartResultReporter;
  LifeOutcome outcome;
  testing::TestPartResultArray results;
  const Reporter reporter(Reporter::INTERCEPT_ONLY_CURRENT_THREAD, &results);
  {
    SimulatedLife life(afterStep);
    life.Live(script, [&] { return results.size() > 0; });
    outcome.steps = life.StepsTaken();
    outcome.taken = life.Taken();
    outcome.journal = life.Journal();
    outcome.calls = life.log.Calls();
    if (life.LastRow()) outcome.expected = SimulatedSteps()[*life.LastRow()].seen;
  }
  if (results.size() == 0) return outcome;
  outcome.failedCheck = PlaceOf(results.GetTestPartResult(0));
  outcome.failure = results.GetTestPartResult(0).message();
  return outcome;
}

LifeScript ShortestLife(const LifeScript& script, const SimulatedLife::AfterStep& afterStep) {
  const LifeOutcome whole = RunLife(script, afterStep);
  LifeScript lived = script;
  lived.resize(static_cast<std::size_t>(whole.steps));
  int stepsLeft = kMostStepsOfShrinking;
  return Shrunk<ScriptStep>(lived, [&](const LifeScript& shorter) {
    if (stepsLeft <= 0) return false;
    const LifeOutcome outcome = RunLife(shorter, afterStep);
    stepsLeft -= outcome.steps;
    return outcome.failedCheck == whole.failedCheck;
  });
}

std::string Told(const LifeOutcome& outcome) {
  std::string told = outcome.failedCheck + ": " + outcome.failure;
  if (!outcome.expected.empty()) told += "\nexpected: " + outcome.expected;
  told += "\nafter " + std::to_string(outcome.steps) + " steps:";
  for (const std::string& line : outcome.journal) told += "\n  " + line;
  told += "\nKorvale's calls in the last one:";
  for (const std::string& call : outcome.calls) told += "\n  " + call;
  return told;
}

}  // namespace korvale

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "tests/simulated/life_script.h"
#include "tests/simulated/simulated_life.h"

namespace korvale {

/// What has become of a life.
struct LifeOutcome {
  /// The check that failed first, as "file:line", "" = none, and what it says.
  std::string failedCheck;
  std::string failure;
  /// What the user should have seen after the step at which it failed.
  std::string expected;
  int steps = 0;
  std::vector<int> taken;
  std::vector<std::string> journal;
  /// What Korvale asked of Windows in the last step.
  std::vector<std::string> calls;
};

/// Lives a life up to its end or its first failed check, which does not fail the running test.
LifeOutcome RunLife(const LifeScript& script, const SimulatedLife::AfterStep& afterStep = {});

/// The shortest life left of a failing one in which the same check still fails.
LifeScript ShortestLife(const LifeScript& script, const SimulatedLife::AfterStep& afterStep = {});

/// For the user of the test: the failure and all that happened.
std::string Told(const LifeOutcome& outcome);

}  // namespace korvale

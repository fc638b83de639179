#pragma once

#include <vector>

namespace korvale {

class SimulatedLife;

/// Something that a user, their programs or Windows may do at any time.
struct SimulatedStep {
  const char* fault;  ///< What happens.
  int weight;         ///< How often, among all.
  /// Does it, and notes what it did. Notes nothing when there was nothing to do it with.
  void (SimulatedLife::*take)();
  /// What the user must see then, next to all that must always hold.
  const char* seen;
  /// It may also happen while Korvale waits for an answer.
  bool atAnyTime = false;
};

const std::vector<SimulatedStep>& SimulatedSteps();

}  // namespace korvale

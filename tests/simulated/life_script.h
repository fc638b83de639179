#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace korvale {

/// One step of a life: what happens, as a row of the table of steps, and the chance by which it
/// happens in this way or that. It draws on nothing that other steps have drawn, so a life without
/// some of its steps gives the others the same meaning.
struct ScriptStep {
  std::size_t row = 0;
  std::uint32_t seed = 0;
};

using LifeScript = std::vector<ScriptStep>;

/// A life of this many steps, the same for the same seed on every machine.
LifeScript WriteLife(std::uint32_t seed, int steps);

}  // namespace korvale

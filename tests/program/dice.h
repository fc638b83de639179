#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>

#include "util/text.h"

namespace korvale {

/// Chance that repeats itself with the same seed on every machine.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : state_(seed) {}

  /// The next of a splitmix64 row, which costs nothing to begin.
  std::uint32_t Number() {
    state_ += 0x9E3779B97F4A7C15;
    std::uint64_t mixed = (state_ ^ (state_ >> 30)) * 0xBF58476D1CE4E5B9;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EB;
    return static_cast<std::uint32_t>(mixed >> 32);
  }
  /// 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(Number() % static_cast<std::uint32_t>(count)); }
  bool OneIn(int count) { return Below(count) == 0; }
  template <typename List>
  const auto& Pick(const List& list) {
    return *std::next(std::begin(list), Below(static_cast<int>(std::size(list))));
  }

 private:
  std::uint64_t state_;
};

/// The seed of the first run; KORVALE_SEED gives another one.
inline constexpr std::int32_t kFirstSeed = 1;

/// A number from the environment, otherwise ours.
inline std::int32_t Setting(const char* name, std::int32_t otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : ParseInt32(text).value_or(otherwise);
}

}  // namespace korvale

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <random>

#include "util/text.h"

namespace korvale {

/// Chance that repeats itself with the same seed on every machine.
class Dice {
 public:
  explicit Dice(std::uint32_t seed) : numbers_(seed) {}

  /// 0 to `count` - 1.
  int Below(int count) {
    return static_cast<int>(numbers_() % static_cast<std::uint_fast32_t>(count));
  }
  bool OneIn(int count) { return Below(count) == 0; }
  template <typename List>
  const auto& Pick(const List& list) {
    return *std::next(std::begin(list), Below(static_cast<int>(std::size(list))));
  }

 private:
  std::mt19937 numbers_;
};

/// The seed of the first run; KORVALE_SEED gives another one.
inline constexpr std::int32_t kFirstSeed = 1;

/// A number from the environment, otherwise ours.
inline std::int32_t Setting(const char* name, std::int32_t otherwise) {
  const char* const text = std::getenv(name);
  return text == nullptr ? otherwise : ParseInt32(text).value_or(otherwise);
}

}  // namespace korvale

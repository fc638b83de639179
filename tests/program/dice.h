#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

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

}  // namespace korvale

#pragma once

#include <cstdint>

namespace korvale {

/// Every tip has its own fixed number, the position of its flag in the record of silenced tips.
enum class TipNumber : std::int32_t {
  kCustomizeColors = 1,
  kOtherInstance = 10,
  kHotKeysDeactivated = 14,
  kCommandLine = 17,
  kHotKeysRefused = 18,
};

}  // namespace korvale

#pragma once

#include <cstddef>
#include <span>

namespace korvale::endtoend {

/// How many settings an installation stores: those of the Options dialog, what else the main window
/// remembers, and both.
inline constexpr std::size_t kAllOptions = 26;
inline constexpr std::size_t kAllStartupSettings = 14;
inline constexpr std::size_t kAllSettings = kAllOptions + kAllStartupSettings;

/// What is stored for one setting out of the box, and a value beyond what it can hold ("" = there
/// is none).
struct DefaultSetting {
  const char* section;
  const char* key;
  const char* value;
  const char* beyond;
};

/// Every setting of an installation, deliberately written down a second time.
std::span<const DefaultSetting> DefaultSettings();

}  // namespace korvale::endtoend

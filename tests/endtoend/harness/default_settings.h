#pragma once

#include <span>

namespace korvale::endtoend {

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

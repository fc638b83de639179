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

/// Every setting of an installation, written down a second time on purpose.
std::span<const DefaultSetting> DefaultSettings();

}  // namespace korvale::endtoend

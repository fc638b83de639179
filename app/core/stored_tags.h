#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "util/text.h"

namespace korvale {

/// Tags that a window can be given have the numbers 1 to this one; Tag 0 is never stored.
inline constexpr int kTagCount = 9;

constexpr bool IsTag(int number) { return number >= 1 && number <= kTagCount; }

/// Characters of a Tag's caption before its blanks and identification text: "&" and the digit.
inline constexpr int kTagPrefixLength = 2;

/// The caption of a Tag's entry in the Window menu, which is also what is stored.
inline std::string TagCaption(int number, std::string_view identification) {
  return "&" + DecimalText(number) + "  " + std::string(identification);
}

/// The identification text of a Tag's caption: without the first two characters, trimmed.
inline std::string WithoutTagPrefix(std::string_view caption) {
  return Trim(MidCharacters(caption, kTagPrefixLength + 1));
}

/// One Tag as it is kept between runs.
struct StoredTag {
  int number = 1;
  std::string caption;
  /// Window class, "" = any class.
  std::string className;

  friend bool operator==(const StoredTag&, const StoredTag&) = default;
};

/// The Tag list as it is kept between runs, in ascending order of the Tags.
using StoredTagList = std::vector<StoredTag>;

}  // namespace korvale

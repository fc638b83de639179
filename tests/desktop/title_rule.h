#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>

#include "app/core/stored_tags.h"
#include "desktop/title_match.h"
#include "desktop/window_names.h"
#include "util/characters.h"
#include "util/text.h"

namespace korvale {

inline std::string WithoutBlanksAtItsEnds(std::string text) {
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

/// The rule as it reads, on the text of a caption without blanks at its ends.
inline bool Identifies(const std::string& text, const std::string& title) {
  if (text == title || text == WithoutBlanksAtItsEnds(title)) return true;
  const std::string separator = " - ";
  if (text.size() >= 6 && text.substr(text.size() - 6) == " - ***") {
    return title.substr(0, title.find(separator)) == text.substr(0, text.size() - 6);
  }
  if (text.substr(0, 6) == "*** - ") {
    const std::size_t last = title.rfind(separator);
    return (last == std::string::npos ? title : title.substr(last + 3)) == text.substr(6);
  }
  return title.find(text) != std::string::npos;
}

inline bool IsWhole(std::string_view text) {
  return std::ranges::all_of(SplitCharacters(text), [](std::string_view character) {
    return FirstCharacter(character).valid;
  });
}

inline void ExpectMatchedByTheRule(const std::string& text, const std::string& title) {
  EXPECT_EQ(TitleMatches(text, title, false), Identifies(text, title)) << text << "|" << title;
  EXPECT_EQ(TitleMatches(TagCaption(7, text), title, true),
            Identifies(WithoutBlanksAtItsEnds(text), title))
      << text << "|" << title;
}

inline void ExpectToFindItself(const std::string& title) {
  EXPECT_TRUE(TitleMatches(TagCaption(1, title), title, true)) << title;
  EXPECT_TRUE(TitleMatches(WithoutTagPrefix(TagCaption(1, title)), title, false)) << title;
}

/// Unless blanks or marks are in the way.
inline void ExpectPartsToFindIt(const std::string& title) {
  const std::string left(LeftTitlePart(title));
  const std::string right(RightTitlePart(title));
  if (!left.starts_with(' ') && !left.empty()) {
    EXPECT_TRUE(TitleMatches(TagCaption(1, left + " - ***"), title, true)) << title;
  }
  const std::string byRight = "*** - " + right;
  if (!right.ends_with(' ') && !right.empty() && !byRight.ends_with(" - ***")) {
    EXPECT_TRUE(TitleMatches(TagCaption(1, byRight), title, true)) << title;
  }
}

inline void ExpectNamedOnOneLine(const std::string& title) {
  const std::string named = InBrackets(title);
  EXPECT_TRUE(named.starts_with("Window:  [") && named.ends_with("]")) << named;
  EXPECT_TRUE(std::ranges::none_of(named, [](char c) { return c >= 0 && c < ' '; })) << named;
  EXPECT_TRUE(IsWhole(named) || !IsWhole(title)) << named;
  EXPECT_LE(CharacterCount(named), 10 + 2 * 255 + 4);
}

}  // namespace korvale

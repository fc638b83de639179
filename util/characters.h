#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace korvale {

/// The first character of a text: its bytes and its code point. `valid` is false for a byte that
/// belongs to no valid UTF-8 sequence.
struct Character {
  std::string_view bytes;
  char32_t codePoint = 0;
  bool valid = false;
};

/// Reads the first character of `text`, which must not be empty. Overlong forms, surrogates and
/// values past U+10FFFF are invalid.
Character FirstCharacter(std::string_view text);

/// All characters of `text`, as views into it.
std::vector<std::string_view> SplitCharacters(std::string_view text);

/// Upper case of one code point; unchanged when it has none of the same length.
char32_t UpperCase(char32_t codePoint);

/// The code point as UTF-8; it must be a valid one.
std::string EncodeUtf8(char32_t codePoint);

}  // namespace korvale

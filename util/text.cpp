#include "util/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <system_error>
#include <vector>

#include "platform/run_time_error.h"
#include "util/characters.h"

namespace korvale {
namespace {

void RequireCall(bool valid) {
  if (!valid) throw RunTimeError(RunTimeError::kInvalidCall);
}

/// The size in bytes of the first `count` characters.
std::size_t PrefixSize(std::string_view text, std::int32_t count) {
  std::size_t size = 0;
  for (; count > 0 && size < text.size(); --count) {
    size += FirstCharacter(text.substr(size)).bytes.size();
  }
  return size;
}

std::string Repeated(char character, std::int32_t count) {
  return std::string(static_cast<std::size_t>(count), character);
}

/// True when the characters from `position` on begin with all of `sought`.
bool OccursAt(const std::vector<std::string_view>& text, std::size_t position,
              const std::vector<std::string_view>& sought) {
  if (position > text.size() || text.size() - position < sought.size()) return false;
  for (std::size_t i = 0; i < sought.size(); ++i) {
    if (text[position + i] != sought[i]) return false;
  }
  return true;
}

/// Control characters, and the separators of lines and paragraphs.
bool TearsLines(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
         character == 0x2029;
}

template <typename Integer>
std::optional<Integer> ParseInteger(std::string_view text) {
  const std::string trimmed = Trim(text);
  std::string_view digits = trimmed;
  if (digits.starts_with('+')) {
    digits.remove_prefix(1);
    if (digits.starts_with('-')) return std::nullopt;
  }
  Integer value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stopped, error] = std::from_chars(digits.data(), end, value);
  if (error != std::errc() || stopped != end) return std::nullopt;
  return value;
}

}  // namespace

std::int32_t CharacterCount(std::string_view text) {
  std::int32_t count = 0;
  for (; !text.empty(); ++count) text.remove_prefix(FirstCharacter(text).bytes.size());
  return count;
}

std::string LeftCharacters(std::string_view text, std::int32_t count) {
  RequireCall(count >= 0);
  return std::string(text.substr(0, PrefixSize(text, count)));
}

std::string MidCharacters(std::string_view text, std::int32_t from) {
  RequireCall(from >= 1);
  return std::string(text.substr(PrefixSize(text, from - 1)));
}

std::string Trim(std::string_view text) { return std::string(TrimmedView(text)); }

std::string_view TrimmedView(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UpperCase(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  while (!text.empty()) {
    const Character character = FirstCharacter(text);
    if (character.valid) {
      result += EncodeUtf8(UpperCase(character.codePoint));
    } else {
      result += character.bytes;
    }
    text.remove_prefix(character.bytes.size());
  }
  return result;
}

bool EqualsIgnoreCase(std::string_view left, std::string_view right) {
  if (left == right) return true;
  while (!left.empty() && !right.empty()) {
    if (left.front() == right.front() && static_cast<unsigned char>(left.front()) < 0x80) {
      left.remove_prefix(1);
      right.remove_prefix(1);
      continue;
    }
    const Character one = FirstCharacter(left);
    const Character other = FirstCharacter(right);
    const bool same = one.valid && other.valid
                          ? UpperCase(one.codePoint) == UpperCase(other.codePoint)
                          : one.bytes == other.bytes;
    if (!same) return false;
    left.remove_prefix(one.bytes.size());
    right.remove_prefix(other.bytes.size());
  }
  return left.empty() && right.empty();
}

std::string PadText(std::string_view text, std::int16_t width, std::string_view mode) {
  const std::int32_t missing = width - CharacterCount(text);
  std::string result(text);
  if (missing <= 0) return result;
  if (mode == "LEFT_SPACES") return Repeated(' ', missing) + result;
  if (mode == "RIGHT_SPACES") return result + Repeated(' ', missing);
  if (mode == "LEFT_ZEROES") return Repeated('0', missing) + result;
  return result;
}

std::string TwoDigits(int number) { return PadText(DecimalText(number), 2, "LEFT_ZEROES"); }

std::string OnOneLine(std::string_view text) {
  std::string line;
  line.reserve(text.size());
  for (; !text.empty(); text.remove_prefix(FirstCharacter(text).bytes.size())) {
    const Character character = FirstCharacter(text);
    line += character.valid && TearsLines(character.codePoint) ? " " : character.bytes;
  }
  return line;
}

std::string WithDirectionsEnded(std::string_view text) {
  constexpr char32_t kEndOfEmbedding = 0x202C;
  constexpr char32_t kEndOfIsolate = 0x2069;
  std::vector<char32_t> ends;
  for (const std::string_view bytes : SplitCharacters(text)) {
    const char32_t character = FirstCharacter(bytes).codePoint;
    if (character >= 0x202A && character <= 0x202E && character != kEndOfEmbedding) {
      ends.push_back(kEndOfEmbedding);
    } else if (character >= 0x2066 && character <= 0x2068) {
      ends.push_back(kEndOfIsolate);
    } else if (character == kEndOfEmbedding && !ends.empty() && ends.back() == kEndOfEmbedding) {
      ends.pop_back();
    } else if (character == kEndOfIsolate) {
      // Ends the embeddings inside as well.
      const auto isolate = std::find(ends.rbegin(), ends.rend(), kEndOfIsolate);
      if (isolate != ends.rend()) ends.erase(std::next(isolate).base(), ends.end());
    }
  }
  std::string ended(text);
  for (; !ends.empty(); ends.pop_back()) ended += EncodeUtf8(ends.back());
  return ended;
}

std::string ReplaceText(std::string_view text, std::string_view sought,
                        std::string_view replacement, bool firstOnly, bool caseSensitive) {
  if (sought.empty()) return std::string(text);
  const std::string searched = caseSensitive ? std::string(text) : UpperCase(text);
  const std::string wanted = caseSensitive ? std::string(sought) : UpperCase(sought);
  const auto original = SplitCharacters(text);
  const auto searchedCharacters = SplitCharacters(searched);
  const auto wantedCharacters = SplitCharacters(wanted);
  std::string result;
  bool done = false;
  for (std::size_t i = 0; i < original.size();) {
    if (!done && OccursAt(searchedCharacters, i, wantedCharacters)) {
      result += replacement;
      i += wantedCharacters.size();
      done = firstOnly;
    } else {
      result += original[i++];
    }
  }
  return result;
}

std::int16_t ReverseFind(std::string_view text, std::string_view sought, std::int16_t start,
                         bool caseSensitive) {
  if (!caseSensitive) return ReverseFind(UpperCase(text), UpperCase(sought), start, true);
  const auto textCharacters = SplitCharacters(text);
  const auto soughtCharacters = SplitCharacters(sought);
  const auto length = static_cast<std::int32_t>(textCharacters.size());
  const auto soughtLength = static_cast<std::int32_t>(soughtCharacters.size());
  for (std::int32_t i = length - (soughtLength - 1) - (start - 1); i >= 1; --i) {
    if (OccursAt(textCharacters, static_cast<std::size_t>(i - 1), soughtCharacters)) {
      return ToInt16(length - i - soughtLength + 2);
    }
  }
  return 0;
}

std::string DecimalText(std::int32_t value) { return std::to_string(value); }

std::string HexadecimalText(std::uint64_t value) {
  std::array<char, 16> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), value, 16).ptr;
  return {digits.begin(), end};
}

std::optional<std::int32_t> ParseInt32(std::string_view text) {
  return ParseInteger<std::int32_t>(text);
}

std::optional<std::int16_t> ParseInt16(std::string_view text) {
  return ParseInteger<std::int16_t>(text);
}

std::optional<bool> ParseBoolean(std::string_view text) {
  const std::string word = Trim(text);
  if (EqualsIgnoreCase(word, "True")) return true;
  if (EqualsIgnoreCase(word, "False")) return false;
  return std::nullopt;
}

}  // namespace korvale

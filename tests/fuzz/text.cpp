#include "util/text.h"

#include <cstdint>
#include <optional>
#include <vector>

#include "tests/fuzz/fuzz.h"
#include "ui/shortened_text.h"
#include "util/characters.h"
#include "util/graphemes.h"

namespace korvale {
namespace {

constexpr std::int32_t kLongest = 300;

/// How many bytes of a text belong to the valid UTF-8 sequence that it begins with, 0 = to none;
/// by the table of well-formed sequences in the Unicode standard.
std::size_t ValidLength(std::string_view text) {
  const auto in = [&](std::size_t at, int least, int most) {
    if (at >= text.size()) return false;
    const int byte = static_cast<unsigned char>(text[at]);
    return byte >= least && byte <= most;
  };
  const auto tail = [&](std::size_t at) { return in(at, 0x80, 0xBF); };
  if (in(0, 0x00, 0x7F)) return 1;
  if (in(0, 0xC2, 0xDF) && tail(1)) return 2;
  if (((in(0, 0xE0, 0xE0) && in(1, 0xA0, 0xBF)) || (in(0, 0xE1, 0xEC) && tail(1)) ||
       (in(0, 0xED, 0xED) && in(1, 0x80, 0x9F)) || (in(0, 0xEE, 0xEF) && tail(1))) &&
      tail(2)) {
    return 3;
  }
  if (((in(0, 0xF0, 0xF0) && in(1, 0x90, 0xBF)) || (in(0, 0xF1, 0xF3) && tail(1)) ||
       (in(0, 0xF4, 0xF4) && in(1, 0x80, 0x8F))) &&
      tail(2) && tail(3)) {
    return 4;
  }
  return 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = ValidLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

void CheckCharacters(std::string_view text) {
  std::string_view left = text;
  for (const std::string_view character : SplitCharacters(text)) {
    const std::size_t length = ValidLength(left);
    const Character read = FirstCharacter(left);
    EXPECT_EQ(read.valid, length > 0);
    EXPECT_EQ(read.bytes, left.substr(0, length > 0 ? length : 1));
    EXPECT_EQ(character, read.bytes);
    if (read.valid) {
      EXPECT_EQ(EncodeUtf8(read.codePoint), read.bytes);
    }
    left.remove_prefix(character.size());
  }
  EXPECT_TRUE(left.empty());
}

void CheckCuts(const std::string& text) {
  const std::int32_t count = CharacterCount(text);
  EXPECT_EQ(static_cast<std::size_t>(count), SplitCharacters(text).size());
  for (std::int32_t cut = 0; cut <= count + 1; ++cut) {
    const std::string left = LeftCharacters(text, cut);
    EXPECT_EQ(left + MidCharacters(text, cut + 1), text);
    EXPECT_EQ(CharacterCount(left), std::min(cut, count));
    if (IsUtf8(text)) {
      EXPECT_TRUE(IsUtf8(left));
    }
  }
  const auto width = static_cast<std::int16_t>(count + 3);
  EXPECT_EQ(PadText(text, width, "LEFT_SPACES"), "   " + text);
  EXPECT_EQ(PadText(text, width, "RIGHT_SPACES"), text + "   ");
  EXPECT_EQ(PadText(text, width, "LEFT_ZEROES"), "000" + text);
  EXPECT_EQ(PadText(text, static_cast<std::int16_t>(count), "LEFT_ZEROES"), text);
}

/// Where a text may be cut: between its clusters.
bool IsBound(std::string_view text, std::size_t at) {
  std::size_t end = 0;
  for (const std::string_view cluster : SplitClusters(text)) {
    if (end == at) return true;
    end += cluster.size();
  }
  return end == at;
}

/// The plainest rule: a mark is not torn from the Latin letter that it stands on.
bool TearsMark(std::string_view text, std::size_t at) {
  if (at == 0 || at >= text.size()) return false;
  const Character next = FirstCharacter(text.substr(at));
  const char letter = static_cast<char>(text[at - 1] | 0x20);
  return next.valid && next.codePoint >= 0x300 && next.codePoint <= 0x36F && letter >= 'a' &&
         letter <= 'z';
}

void CheckClusters(const std::string& text) {
  std::string all;
  for (const std::string_view cluster : SplitClusters(text)) {
    EXPECT_EQ(FirstCluster(cluster), cluster);
    all += cluster;
  }
  EXPECT_EQ(all, text);
  const std::string_view first = text.empty() ? "" : FirstCluster(text);
  for (std::int32_t cut = 0; cut <= CharacterCount(text) + 1; ++cut) {
    const std::string left = LeftClusters(text, cut);
    EXPECT_TRUE(text.starts_with(left));
    EXPECT_LE(CharacterCount(left), cut);
    if (left.size() < first.size()) continue;
    EXPECT_TRUE(IsBound(text, left.size()));
    EXPECT_FALSE(TearsMark(text, left.size()));
  }
}

void CheckShortened(const std::string& text) {
  for (const int columns : {4, 10, 50}) {
    if (ColumnCount(text) <= columns) continue;
    const std::string shown = ShortenedText(text, columns);
    // Ended directions may stand between the beginning of the text and the dots.
    std::size_t same = 0;
    while (same < text.size() && same < shown.size() && text[same] == shown[same]) ++same;
    while (WithDirectionsEnded(text.substr(0, same)) + "..." != shown && same > 0) --same;
    EXPECT_TRUE(IsBound(text, same));
    EXPECT_FALSE(TearsMark(text, same));
  }
}

void CheckCase(const std::string& text, const std::string& other) {
  const std::string upper = UpperCase(text);
  EXPECT_EQ(CharacterCount(upper), CharacterCount(text));
  EXPECT_EQ(UpperCase(upper), upper);
  EXPECT_TRUE(EqualsIgnoreCase(text, upper));
  EXPECT_EQ(EqualsIgnoreCase(text, other), upper == UpperCase(other));
  EXPECT_EQ(EqualsIgnoreCase(text, other), EqualsIgnoreCase(other, text));
}

void CheckShownText(const std::string& text) {
  const std::string line = OnOneLine(text);
  EXPECT_EQ(CharacterCount(line), CharacterCount(text));
  EXPECT_EQ(OnOneLine(line), line);
  for (const char byte : line) EXPECT_TRUE(byte < 0 || (byte >= ' ' && byte != 0x7F));
  const std::string ended = WithDirectionsEnded(text);
  EXPECT_TRUE(ended.starts_with(text));
  EXPECT_EQ(WithDirectionsEnded(ended), ended);
  for (std::string_view added = std::string_view(ended).substr(text.size()); !added.empty();
       added.remove_prefix(3)) {
    EXPECT_TRUE(added.starts_with("\u202c") || added.starts_with("\u2069"));
  }
  const std::string trimmed = Trim(text);
  EXPECT_FALSE(trimmed.starts_with(' ') || trimmed.ends_with(' '));
  const std::size_t at = text.find(trimmed);
  ASSERT_NE(at, std::string::npos);
  EXPECT_EQ(std::string(at, ' ') + trimmed + std::string(text.size() - trimmed.size() - at, ' '),
            text);
}

void CheckSearch(const std::string& text, const std::string& sought, const std::string& instead) {
  // In valid UTF-8 no character is found inside another one.
  if (!IsUtf8(text) || !IsUtf8(sought) || sought.empty()) return;
  std::string replaced;
  std::string first = text;
  std::size_t from = 0;
  for (std::size_t at = text.find(sought); at != std::string::npos; at = text.find(sought, from)) {
    if (from == 0 && first == text) {
      first = text.substr(0, at) + instead + text.substr(at + sought.size());
    }
    replaced += text.substr(from, at - from) + instead;
    from = at + sought.size();
  }
  EXPECT_EQ(ReplaceText(text, sought, instead, false, true), replaced + text.substr(from));
  if (instead != sought) {
    EXPECT_EQ(ReplaceText(text, sought, instead, true, true), first);
  }
  const std::size_t last = text.rfind(sought);
  const int behind = last == std::string::npos
                         ? -1
                         : CharacterCount(std::string_view(text).substr(last + sought.size()));
  EXPECT_EQ(ReverseFind(text, sought, 1, true), behind + 1);
  const std::int16_t anyCase = ReverseFind(text, sought, 1, false);
  EXPECT_EQ(anyCase, ReverseFind(UpperCase(text), UpperCase(sought), 1, true));
}

/// The number that a text of an optional sign and digits between blanks stands for.
std::optional<double> Number(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  double number = 0;
  for (const char digit : text) {
    if (digit < '0' || digit > '9') return std::nullopt;
    number = number * 10 + (digit - '0');
  }
  return negative ? -number : number;
}

void CheckNumbers(const std::string& text) {
  const std::optional<double> number = Number(text);
  const auto between = [&](double least, double most) {
    return number && *number >= least && *number <= most;
  };
  const std::optional<std::int32_t> wide = ParseInt32(text);
  EXPECT_EQ(wide.has_value(), between(-2147483648.0, 2147483647.0));
  if (wide) {
    EXPECT_EQ(*wide, *number);
    EXPECT_EQ(ParseInt32(DecimalText(*wide)), wide);
  }
  const std::optional<std::int16_t> narrow = ParseInt16(text);
  EXPECT_EQ(narrow.has_value(), between(-32768, 32767));
  if (narrow) {
    EXPECT_EQ(*narrow, *number);
  }
  const std::string word = UpperCase(Trim(text));
  const std::optional<bool> boolean = ParseBoolean(text);
  EXPECT_EQ(boolean.has_value(), word == "TRUE" || word == "FALSE");
  if (boolean) {
    EXPECT_EQ(*boolean, word == "TRUE");
  }
}

}  // namespace

/// A line to look for, a line to put in its place, and the text.
void Fuzz(std::string_view input) {
  const std::string sought = TakeLine(input);
  const std::string instead = TakeLine(input);
  const std::string text = LeftCharacters(input, kLongest);
  CheckCharacters(text);
  CheckCuts(text);
  CheckClusters(text);
  CheckShortened(text);
  CheckCase(text, sought);
  CheckShownText(text);
  CheckSearch(text, sought, instead);
  CheckNumbers(text);
}

}  // namespace korvale

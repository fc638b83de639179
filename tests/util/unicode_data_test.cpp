#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "util/characters.h"
#include "util/grapheme_classes.h"
#include "util/graphemes.h"

namespace korvale {
namespace {

using enum GraphemeClass;

/// Unicode's own tables, as Debian's unicode-data 15.0 has them.
const std::filesystem::path kUnicode = "/usr/share/unicode";
constexpr char32_t kCodePoints = 0x110000;

char32_t CodePoint(std::string_view digits) {
  std::uint32_t number = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), number, 16);
  return number;
}

/// What a table says last of each code point: lines such as "0300..036F ; Extend # ...".
class UnicodeTable {
 public:
  explicit UnicodeTable(const char* file) : values_(kCodePoints) {
    std::ifstream lines(kUnicode / file);
    for (std::string line; std::getline(lines, line);) {
      std::istringstream words(line.substr(0, line.find('#')));
      std::string range, semicolon, value;
      if (!(words >> range >> semicolon >> value)) continue;
      Set(range, value);
    }
  }

  const std::string& operator[](char32_t codePoint) const { return values_[codePoint]; }

 private:
  void Set(const std::string& range, const std::string& value) {
    const std::size_t dots = range.find("..");
    const char32_t first = CodePoint(range.substr(0, dots));
    const char32_t last = dots == std::string::npos ? first : CodePoint(range.substr(dots + 2));
    for (char32_t codePoint = first; codePoint <= last; ++codePoint) values_[codePoint] = value;
  }

  std::vector<std::string> values_;
};

/// The capital letters that Unicode names for single characters.
std::map<char32_t, char32_t> Capitals() {
  constexpr int kCapital = 12;
  std::map<char32_t, char32_t> capitals;
  std::ifstream lines(kUnicode / "UnicodeData.txt");
  for (std::string line; std::getline(lines, line);) {
    std::istringstream fields(line);
    std::string first, field;
    std::getline(fields, first, ';');
    for (int i = 1; i <= kCapital; ++i) std::getline(fields, field, ';');
    if (!field.empty()) capitals[CodePoint(first)] = CodePoint(field);
  }
  return capitals;
}

/// Letters that have a capital beside them in the same part of Unicode. The one left out shares its
/// capital with another letter.
bool HasOurCapital(char32_t letter) {
  constexpr std::pair<char32_t, char32_t> kParts[] = {
      {U'a', U'z'},     {0xE0, 0xFF},     {0x100, 0x130},   {0x132, 0x17E},
      {0x218, 0x21B},   {0x3AC, 0x3CE},   {0x430, 0x52F},   {0x561, 0x586},
      {0x1E00, 0x1E9A}, {0x1EA0, 0x1EFF}, {0xFF41, 0xFF5A},
  };
  return std::ranges::any_of(
      kParts, [=](const auto& part) { return letter >= part.first && letter <= part.second; });
}

class UnicodeDataTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!exists(kUnicode)) GTEST_SKIP() << "Unicode's tables are not here";
  }
};

/// Indic scripts whose consonants a virama joins.
bool JoinsConsonants(const std::string& script) {
  return script == "Devanagari" || script == "Bengali" || script == "Gujarati" ||
         script == "Oriya" || script == "Telugu" || script == "Malayalam";
}

TEST_F(UnicodeDataTest, KnowsNoOtherCapitalOfALetterThanUnicode) {
  const std::map<char32_t, char32_t> capitals = Capitals();
  ASSERT_GT(capitals.size(), 1000U);
  std::size_t ours = 0;
  for (char32_t letter = 1; letter < kCodePoints; ++letter) {
    const auto number = static_cast<std::uint32_t>(letter);
    const char32_t capital = UpperCase(letter);
    const auto known = capitals.find(letter);
    if (capital != letter) {
      ++ours;
      EXPECT_TRUE(known != capitals.end() && known->second == capital) << number;
    } else if (known != capitals.end()) {
      EXPECT_FALSE(HasOurCapital(letter)) << number;
    }
  }
  EXPECT_GT(ours, 500U);
}

TEST_F(UnicodeDataTest, KnowsTheClassOfEveryCharacter) {
  const std::map<std::string, GraphemeClass> kClasses = {
      {"", kOther},
      {"CR", kControl},
      {"LF", kControl},
      {"Control", kControl},
      {"Extend", kMark},
      {"SpacingMark", kMark},
      {"Prepend", kPrepended},
      {"ZWJ", kZeroWidthJoiner},
      {"L", kHangulLeading},
      {"V", kHangulVowel},
      {"T", kHangulTrailing},
      {"LV", kHangulOpen},
      {"LVT", kHangulClosed},
      {"Regional_Indicator", kRegionalIndicator}};
  const UnicodeTable breaks("auxiliary/GraphemeBreakProperty.txt");
  const UnicodeTable pictographs("emoji/emoji-data.txt");
  const UnicodeTable syllables("IndicSyllabicCategory.txt");
  const UnicodeTable scripts("Scripts.txt");
  ASSERT_EQ(breaks['\n'], "LF");

  for (char32_t codePoint = 0; codePoint < kCodePoints; ++codePoint) {
    // Where no script is named, no character stands yet.
    if (scripts[codePoint].empty()) continue;
    GraphemeClass expected = kClasses.at(breaks[codePoint]);
    if (pictographs[codePoint] == "Extended_Pictographic") expected = kPictograph;
    if (JoinsConsonants(scripts[codePoint])) {
      if (syllables[codePoint] == "Virama") expected = kLinker;
      if (syllables[codePoint] == "Consonant") expected = kConsonant;
    }
    EXPECT_EQ(GraphemeClassOf(codePoint), expected)
        << std::hex << static_cast<std::uint32_t>(codePoint) << ' ' << breaks[codePoint];
  }
}

/// Lines such as "÷ 0020 × 0308 ÷ 0020 ÷ # ...": divided at each ÷.
TEST_F(UnicodeDataTest, DividesUnicodesOwnExamples) {
  std::ifstream lines(kUnicode / "auxiliary/GraphemeBreakTest.txt");
  int examples = 0;
  for (std::string line; std::getline(lines, line);) {
    std::istringstream words(line.substr(0, line.find('#')));
    std::vector<std::string> clusters;
    std::string text;
    for (std::string word; words >> word;) {
      if (word == "÷") {
        clusters.emplace_back();
      } else if (word != "×") {
        clusters.back() += EncodeUtf8(CodePoint(word));
        text += EncodeUtf8(CodePoint(word));
      }
    }
    if (clusters.empty()) continue;
    clusters.pop_back();
    const std::vector<std::string_view> divided = SplitClusters(text);
    EXPECT_EQ(std::vector<std::string>(divided.begin(), divided.end()), clusters) << line;
    ++examples;
  }
  EXPECT_GT(examples, 600);
}

}  // namespace
}  // namespace korvale

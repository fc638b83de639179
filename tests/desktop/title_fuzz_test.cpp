#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "app/core/stored_tags.h"
#include "desktop/title_match.h"
#include "desktop/window_selection.h"
#include "util/characters.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr int kRounds = 20000;

/// Titles of what is likely to go wrong, always the same ones.
class RandomTitles {
 public:
  std::string Next() {
    std::string title;
    for (int left = Below(12); left > 0; --left) title += Part();
    return title;
  }

 private:
  int Below(int count) {
    return static_cast<int>(dice_() % static_cast<std::uint_fast32_t>(count));
  }
  std::string Part() {
    constexpr std::string_view kParts[] = {
        " ",  "-",    "*", " - ", "***", "*** - ", " - ***", "&",      "&1",     "a",     "b", "\t",
        "\n", "\x1f", "é", "日",  "😀",   "\u200d", "\u200f", "\u202e", "\u0301", "\uFFFD"};
    if (Below(20) == 0) return std::string(1, static_cast<char>(Below(256)));
    return std::string(kParts[Below(static_cast<int>(std::size(kParts)))]);
  }

  std::mt19937 dice_{1};
};

std::string WithoutBlanksAtItsEnds(std::string text) {
  while (text.starts_with(' ')) text.erase(0, 1);
  while (text.ends_with(' ')) text.pop_back();
  return text;
}

/// The rule as it reads, on the text of a caption without blanks at its ends.
bool Identifies(const std::string& text, const std::string& title) {
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

bool IsWhole(std::string_view text) {
  return std::ranges::all_of(SplitCharacters(text), [](std::string_view character) {
    return FirstCharacter(character).valid;
  });
}

TEST(TitleFuzz, AnyTextIsMatchedByTheRuleWithAndWithoutItsPrefix) {
  RandomTitles titles;
  for (int round = 0; round < kRounds; ++round) {
    const std::string text = titles.Next();
    const std::string title = round % 2 == 0 ? titles.Next() : text + titles.Next();
    EXPECT_EQ(TitleMatches(text, title, false), Identifies(text, title)) << text << "|" << title;
    EXPECT_EQ(TitleMatches(TagCaption(7, text), title, true),
              Identifies(WithoutBlanksAtItsEnds(text), title))
        << text << "|" << title;
  }
}

TEST(TitleFuzz, AnyTitleFindsItself) {
  RandomTitles titles;
  for (int round = 0; round < kRounds; ++round) {
    const std::string title = titles.Next();
    EXPECT_TRUE(TitleMatches(TagCaption(1, title), title, true)) << title;
    EXPECT_TRUE(TitleMatches(WithoutTagPrefix(TagCaption(1, title)), title, false)) << title;
  }
}

TEST(TitleFuzz, APartOfAnyTitleFindsItUnlessBlanksOrMarksAreInTheWay) {
  RandomTitles titles;
  for (int round = 0; round < kRounds; ++round) {
    const std::string title = titles.Next();
    const std::string left(LeftTitlePart(title));
    const std::string right(RightTitlePart(title));
    if (!left.starts_with(' ') && !left.empty()) {
      EXPECT_TRUE(TitleMatches(TagCaption(1, left + " - ***"), title, true)) << title;
    }
    if (!right.ends_with(' ') && !right.empty() && right != "***") {
      EXPECT_TRUE(TitleMatches(TagCaption(1, "*** - " + right), title, true)) << title;
    }
  }
}

TEST(TitleFuzz, AMessageNamesAnyTitleOnOneLineWithoutBreakingACharacter) {
  RandomTitles titles;
  for (int round = 0; round < kRounds / 10; ++round) {
    std::string title;
    while (title.size() < 400) title += titles.Next() + "x";
    if (round % 2 == 0) title.resize(20);
    const std::string named = InBrackets(title);
    EXPECT_TRUE(named.starts_with("Window:  [") && named.ends_with("]")) << named;
    EXPECT_TRUE(std::ranges::none_of(named, [](char c) { return c >= 0 && c < ' '; })) << named;
    EXPECT_TRUE(IsWhole(named) || !IsWhole(title)) << named;
    EXPECT_LE(CharacterCount(named), 10 + 2 * 255 + 4);
  }
}

TEST(InBracketsTest, NamesAWindowInFullUpTo255Characters) {
  std::string longest;
  for (int i = 0; i < 51; ++i) longest += "日四四四 ";
  EXPECT_EQ(InBrackets(longest), "Window:  [" + longest + "]");
  EXPECT_EQ(InBrackets(longest + "y"), "Window:  [" + longest + "...]");
}

TEST(InBracketsTest, ShowsNoWordThatIsLongerThan100Characters) {
  const std::string word = std::string(99, 'x') + "日";
  EXPECT_EQ(InBrackets("a " + word + " b"), "Window:  [a " + word + " b]");
  EXPECT_EQ(InBrackets("a " + word + "y b"), "Window:  [a " + word + "...]");
}

TEST(InBracketsTest, KeepsTheDirectionOfATitleFromTheWordsBehindIt) {
  EXPECT_EQ(InBrackets("\u202eabc"), "Window:  [\u202eabc\u202c]");
}

}  // namespace
}  // namespace korvale

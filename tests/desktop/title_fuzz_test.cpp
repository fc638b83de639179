#include <iterator>
#include <random>
#include <string>
#include <string_view>

#include "tests/desktop/title_rule.h"

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

TEST(TitleFuzz, AnyTextIsMatchedByTheRuleWithAndWithoutItsPrefix) {
  RandomTitles titles;
  for (int round = 0; round < kRounds; ++round) {
    const std::string text = titles.Next();
    const std::string title = round % 2 == 0 ? titles.Next() : text + titles.Next();
    ExpectMatchedByTheRule(text, title);
  }
}

TEST(TitleFuzz, AnyTitleFindsItself) {
  RandomTitles titles;
  for (int round = 0; round < kRounds; ++round) ExpectToFindItself(titles.Next());
}

TEST(TitleFuzz, APartOfAnyTitleFindsItUnlessBlanksOrMarksAreInTheWay) {
  RandomTitles titles;
  for (int round = 0; round < kRounds; ++round) ExpectPartsToFindIt(titles.Next());
}

TEST(TitleFuzz, AMessageNamesAnyTitleOnOneLineWithoutBreakingACharacter) {
  RandomTitles titles;
  for (int round = 0; round < kRounds / 10; ++round) {
    std::string title;
    while (title.size() < 400) title += titles.Next() + "x";
    if (round % 2 == 0) title.resize(20);
    ExpectNamedOnOneLine(title);
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

TEST(InBracketsTest, IsCutBetweenWhatReadersTakeForCharacters) {
  const std::string word(98, 'x');
  EXPECT_EQ(InBrackets("a " + word + "👩‍💻"), "Window:  [a " + word + "...]");
  EXPECT_EQ(InBrackets("a " + word + "🇩🇪🇫🇷"), "Window:  [a " + word + "🇩🇪...]");
  EXPECT_EQ(InBrackets("a " + word + "ye\u0301"), "Window:  [a " + word + "y...]");
}

TEST(InBracketsTest, KeepsTheDirectionOfATitleFromTheWordsBehindIt) {
  EXPECT_EQ(InBrackets("\u202eabc"), "Window:  [\u202eabc\u202c]");
}

}  // namespace
}  // namespace korvale

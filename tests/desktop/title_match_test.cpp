#include "desktop/title_match.h"

#include <gtest/gtest.h>

#include <string>

namespace korvale {
namespace {

struct Case {
  const char* name;
  std::string stored;
  std::string title;
  bool matches;
  /// Without the blanks at the ends, which a caption loses.
  bool ofCaption = matches;
};

void PrintTo(const Case& matchCase, std::ostream* out) { *out << matchCase.name; }

class TitleMatch : public testing::TestWithParam<Case> {};

TEST_P(TitleMatch, FollowsTheFormOfTheIdentification) {
  EXPECT_EQ(TitleMatches(GetParam().stored, GetParam().title, false), GetParam().matches);
}

TEST_P(TitleMatch, TakesACaptionForItsTextWithoutBlanksAtTheEnds) {
  const Case& matchCase = GetParam();
  EXPECT_EQ(TitleMatches("&3  " + matchCase.stored, matchCase.title, true), matchCase.ofCaption);
}

INSTANTIATE_TEST_SUITE_P(
    Plain, TitleMatch,
    testing::Values(Case{"Whole", "Untitled - Notepad", "Untitled - Notepad", true},
                    Case{"Part", "Note", "Notes - Editor", true},
                    Case{"PartInTheMiddle", "b - c", "a - b - c", true},
                    Case{"LongerThanTitle", "Notepad 2", "Notepad", false},
                    Case{"OtherCase", "notepad", "Notepad", false},
                    Case{"EmptyMatchesEverything", "", "Anything", true},
                    Case{"EmptyMatchesEmpty", "", "", true},
                    Case{"TextAgainstEmptyTitle", "Note", "", false},
                    Case{"WholeThatBeginsLikeARightPart", "*** - a - b", "*** - a - b", true},
                    Case{"WholeThatEndsLikeALeftPart", "a - b - ***", "a - b - ***", true},
                    Case{"WholeWithBlanksAtItsEnds", "*** - a - b", " *** - a - b  ", true},
                    Case{"MarkInTheMiddleIsPlain", "a - *** b", "x a - *** b y", true},
                    Case{"MarkWithoutABlankIsPlain", "a -***", "a - b", false},
                    Case{"Cyrillic", "Блокнот", "Безымянный — Блокнот", true},
                    Case{"CyrillicOtherCase", "блокнот", "Безымянный — Блокнот", false},
                    Case{"Japanese", "メモ帳", "無題 - メモ帳", true},
                    Case{"Emoji", "🦊", "a 🦊 b", true},
                    Case{"OtherEmoji", "🦊", "a 🦝 b", false}),
    [](const auto& param) { return param.param.name; });

INSTANTIATE_TEST_SUITE_P(
    LeftPart, TitleMatch,
    testing::Values(Case{"OneSeparator", "Untitled - ***", "Untitled - Notepad", true},
                    Case{"BeforeTheFirst", "a - ***", "a - b - c", true},
                    Case{"NotBeforeTheLast", "a - b - ***", "a - b - c", false},
                    Case{"PartOfTheLeft", "Unt - ***", "Untitled - Notepad", false},
                    Case{"NoSeparatorWholeTitle", "Untitled - ***", "Untitled", true},
                    Case{"NoSeparatorPartOfTitle", "Untitled - ***", "Untitled 2", false},
                    Case{"OtherCase", "untitled - ***", "Untitled - Notepad", false},
                    Case{"EmptyAgainstSeparatorFirst", " - ***", " - Notepad", true, false},
                    Case{"EmptyAgainstEmpty", " - ***", "", true, false},
                    Case{"EmptyAgainstTitle", " - ***", "a - b", false},
                    Case{"BothMarksAreALeftPart", "*** - x - ***", "*** - x", false},
                    Case{"BothMarksOverlapping", "*** - ***", "*** - Notepad", true},
                    Case{"BothMarksTitleWithoutSeparator", "*** - ***", "***", true},
                    Case{"BlankEndsOfTheTitleCount", "a - ***", "a  - b", false},
                    Case{"Cyrillic", "Безымянный - ***", "Безымянный - Блокнот", true},
                    Case{"Japanese", "無題 - ***", "無題 - メモ帳", true},
                    Case{"Emoji", "🦊🦝 - ***", "🦊🦝 - 👩‍💻 - x", true},
                    Case{"EmDashSeparatesNothing", "Безымянный - ***", "Безымянный — Блокнот",
                         false}),
    [](const auto& param) { return param.param.name; });

INSTANTIATE_TEST_SUITE_P(
    RightPart, TitleMatch,
    testing::Values(Case{"OneSeparator", "*** - Notepad", "Untitled - Notepad", true},
                    Case{"AfterTheLast", "*** - c", "a - b - c", true},
                    Case{"NotAfterTheFirst", "*** - b - c", "a - b - c", false},
                    Case{"PartOfTheRight", "*** - Note", "Untitled - Notepad", false},
                    Case{"NoSeparatorWholeTitle", "*** - Notepad", "Notepad", true},
                    Case{"NoSeparatorPartOfTitle", "*** - Notepad", "Notepad 2", false},
                    Case{"OtherCase", "*** - notepad", "Untitled - Notepad", false},
                    Case{"EmptyAgainstSeparatorLast", "*** - ", "Untitled - ", true, false},
                    Case{"EmptyAgainstEmpty", "*** - ", "", true, false},
                    Case{"EmptyAgainstTitle", "*** - ", "Untitled - Notepad", false},
                    Case{"OverlappingSeparators", "*** - b", "a - - b", true},
                    Case{"Cyrillic", "*** - Блокнот", "Безымянный - Блокнот", true},
                    Case{"Japanese", "*** - メモ帳", "無題 - メモ帳", true},
                    Case{"Emoji", "*** - 👩‍💻", "🦊 - x - 👩‍💻", true}),
    [](const auto& param) { return param.param.name; });

// The table of README.md and of web/help.html.
INSTANTIATE_TEST_SUITE_P(
    ExampleOfTheReadme, TitleMatch,
    testing::Values(Case{"RightPart", "*** - Notepad", "Notes.txt - Notepad", true},
                    Case{"RightPartOfAnother", "*** - Notepad", "Letter.txt - Notepad", true},
                    Case{"NotTheRightPart", "*** - Notepad", "Notepad - Help", false},
                    Case{"LeftPart", "Inbox - ***", "Inbox - Anna - Mail", true},
                    Case{"NotTheLeftPart", "Inbox - ***", "Inbox (3) - Anna - Mail", false},
                    Case{"Typed", "Budget", "Budget 2027.ods - Sheets", true},
                    Case{"TypedInTheMiddle", "Budget", "Old Budget - Notes", true},
                    Case{"NotTyped", "Budget", "budget.txt - Notepad", false}));

TEST(TitleMatchOfCaption, KeepsTheWholeCaptionWhenNotToldToStripIt) {
  EXPECT_FALSE(TitleMatches("&3  Notepad", "Notepad", false));
  EXPECT_TRUE(TitleMatches("&3  Notepad", "Notepad", true));
}

TEST(TitleMatchOfCaption, CutsTwoCharactersNotTwoBytes) {
  EXPECT_TRUE(TitleMatches("Жж  Блокнот", "Блокнот", true));
}

TEST(TitleMatchOfCaption, TrimsBlanksOnBothEnds) {
  EXPECT_TRUE(TitleMatches("&3  Notepad   ", "Notepad", true));
  EXPECT_FALSE(TitleMatches("Notepad ", "Notepad", false));
}

TEST(TitleMatchOfCaption, TrimmingTurnsAnEmptyPartIntoPlainText) {
  EXPECT_FALSE(TitleMatches("&3  *** - ", "Untitled - ", true));
  EXPECT_TRUE(TitleMatches("&3  *** - ", "a *** - b", true));
}

TEST(TitleMatchOfCaption, MatchesEverythingWhenNothingIsLeft) {
  EXPECT_TRUE(TitleMatches("&3", "Notepad", true));
  EXPECT_TRUE(TitleMatches("", "Notepad", true));
}

TEST(TitleMatchOfLongTitles, FindsTheLastSeparatorFarFromTheEnd) {
  const std::string right(40000, 'x');
  EXPECT_TRUE(TitleMatches("*** - " + right, "a - " + right, false));
}

}  // namespace
}  // namespace korvale

#include "util/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "platform/run_time_error.h"

namespace korvale {
namespace {

TEST(CharacterCountTest, CountsCodePointsNotBytes) {
  EXPECT_EQ(CharacterCount(""), 0);
  EXPECT_EQ(CharacterCount("Notepad"), 7);
  EXPECT_EQ(CharacterCount("Блокнот"), 7);
  EXPECT_EQ(CharacterCount("メモ帳"), 3);
  EXPECT_EQ(CharacterCount("a😀b"), 3);
}

TEST(CharacterCountTest, CountsEachInvalidByteAsOneCharacter) {
  EXPECT_EQ(CharacterCount("a\x80z"), 3);
  EXPECT_EQ(CharacterCount("\xC3"), 1);
  EXPECT_EQ(CharacterCount("\xF0\x9F\x98"), 3);
  EXPECT_EQ(CharacterCount("\xFF\xFE"), 2);
  EXPECT_EQ(CharacterCount("\xE2\x82z"), 3);
}

TEST(CharacterCountTest, TakesOverlongFormsSurrogatesAndTooLargeValuesAsInvalid) {
  EXPECT_EQ(CharacterCount("\xC0\x80"), 2);
  EXPECT_EQ(CharacterCount("\xE0\x80\x80"), 3);
  EXPECT_EQ(CharacterCount("\xED\xA0\x80"), 3);
  EXPECT_EQ(CharacterCount("\xF4\x90\x80\x80"), 4);
  EXPECT_EQ(CharacterCount("\xF4\x8F\xBF\xBF"), 1);
  EXPECT_EQ(CharacterCount("\xC1\xBF"), 2);
  EXPECT_EQ(CharacterCount("\xE0\x9F\xBF"), 3);
  EXPECT_EQ(CharacterCount("\xED\x9F\xBF"), 1) << "before the surrogates";
  EXPECT_EQ(CharacterCount("\xED\xBF\xBF"), 3) << "the last surrogate";
  EXPECT_EQ(CharacterCount("\xEE\x80\x80"), 1) << "behind the surrogates";
  EXPECT_EQ(CharacterCount("\xF0\x8F\xBF\xBF"), 4);
  EXPECT_EQ(CharacterCount("\xF8\x88\x80\x80\x80"), 5);
}

TEST(CharacterCountTest, TakesTheFirstAndLastCharacterOfEachLength) {
  for (const char* text : {"\x01", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xEF\xBF\xBF",
                           "\xF0\x90\x80\x80", "\xF1\x80\x80\x80", "\xF3\xBF\xBF\xBF"}) {
    EXPECT_EQ(CharacterCount(text), 1) << text;
    EXPECT_EQ(UpperCase(text), text) << "is taken apart and put together again";
  }
}

TEST(LeftCharactersTest, CutsByCharacter) {
  EXPECT_EQ(LeftCharacters("Блокнот", 3), "Бло");
  EXPECT_EQ(LeftCharacters("😀😀", 1), "😀");
  EXPECT_EQ(LeftCharacters("ab", 0), "");
  EXPECT_EQ(LeftCharacters("ab", 5), "ab");
  EXPECT_EQ(LeftCharacters("\x80\x81", 1), "\x80");
  EXPECT_THROW(LeftCharacters("ab", -1), RunTimeError);
}

TEST(MidCharactersTest, StartsAtTheCharacterCountedFromOne) {
  EXPECT_EQ(MidCharacters("Блокнот", 1), "Блокнот");
  EXPECT_EQ(MidCharacters("Блокнот", 5), "нот");
  EXPECT_EQ(MidCharacters("ab", 3), "");
  EXPECT_EQ(MidCharacters("ab", 9), "");
  EXPECT_THROW(MidCharacters("ab", 0), RunTimeError);
}

TEST(TrimTest, RemovesBlanksAtBothEndsOnly) {
  EXPECT_EQ(Trim("  a  b "), "a  b");
  EXPECT_EQ(Trim("   "), "");
  EXPECT_EQ(Trim(""), "");
  EXPECT_EQ(Trim("\ta\n"), "\ta\n");
  EXPECT_EQ(Trim("\u00A0a"), "\u00A0a");
}

struct CasePair {
  const char* lower;
  const char* upper;
};

class UpperCaseTest : public testing::TestWithParam<CasePair> {};

TEST_P(UpperCaseTest, UpperCasesEveryLetter) {
  EXPECT_EQ(UpperCase(GetParam().lower), GetParam().upper);
  EXPECT_EQ(UpperCase(GetParam().upper), GetParam().upper);
  EXPECT_TRUE(EqualsIgnoreCase(GetParam().lower, GetParam().upper));
}

INSTANTIATE_TEST_SUITE_P(
    Letters, UpperCaseTest,
    testing::Values(
        CasePair{"azAZ019[`{", "AZAZ019[`{"}, CasePair{"àáöøùþÿ", "ÀÁÖØÙÞŸ"},
        CasePair{"āėįĳķĺňŋŷźž", "ĀĖĮĲĶĹŇŊŶŹŽ"}, CasePair{"ơưǎșțȳ", "ƠƯǍȘȚȲ"},
        CasePair{"tiếngviệtḁẕạỹ", "TIẾNGVIỆTḀẔẠỸ"}, CasePair{"ａｚ", "ＡＺ"},
        CasePair{"ıſŉǰẖẛẞა", "ıſŉǰẖẛẞა"}, CasePair{"άέήίαπρςσωϊϋόύώ", "ΆΈΉΊΑΠΡΣΣΩΪΫΌΎΏ"},
        CasePair{"абяёѐџѡҁҋҿӂӄӎӏӑԯ", "АБЯЁЀЏѠҀҊҾӁӃӍӀӐԮ"},
        CasePair{"աֆ", "ԱՖ"}, CasePair{"ß÷×ΐΰϏևメモ😀", "ß÷×ΐΰϏևメモ😀"},
        CasePair{"a\xE4\x80\x80\x80", "A\xE4\x80\x80\x80"}, CasePair{"\x80z", "\x80Z"}));

TEST(EqualsIgnoreCaseTest, TellsDifferentTextsApart) {
  EXPECT_TRUE(EqualsIgnoreCase("frmMsgBox2", "FRMMSGBOX2"));
  EXPECT_FALSE(EqualsIgnoreCase("frmMsgBox2", "frmMsgBox"));
  EXPECT_FALSE(EqualsIgnoreCase("a", "b"));
  EXPECT_FALSE(EqualsIgnoreCase("\xC3\xA4", "\xC3\xB6"));
  EXPECT_FALSE(EqualsIgnoreCase("\xC3", "\xC3\xA4"));
  EXPECT_TRUE(EqualsIgnoreCase("a\xFF", "A\xFF"));
}

TEST(PadTextTest, FillsUpToTheWidthOnTheSideOfTheMode) {
  EXPECT_EQ(PadText("7", 3, "LEFT_SPACES"), "  7");
  EXPECT_EQ(PadText("7", 3, "RIGHT_SPACES"), "7  ");
  EXPECT_EQ(PadText("7", 3, "LEFT_ZEROES"), "007");
}

TEST(PadTextTest, NeverTruncates) {
  EXPECT_EQ(PadText("1234", 3, "LEFT_SPACES"), "1234");
  EXPECT_EQ(PadText("123", 3, "RIGHT_SPACES"), "123");
  EXPECT_EQ(PadText("1", -1, "LEFT_ZEROES"), "1");
}

TEST(PadTextTest, LeavesTheTextAloneInAnyOtherMode) {
  EXPECT_EQ(PadText("7", 3, ""), "7");
  EXPECT_EQ(PadText("7", 3, "left_spaces"), "7");
}

TEST(PadTextTest, MeasuresTheWidthInCharacters) {
  EXPECT_EQ(PadText("Бло", 5, "RIGHT_SPACES"), "Бло  ");
  EXPECT_EQ(PadText("😀", 2, "LEFT_SPACES"), " 😀");
}

TEST(ReplaceTextTest, DoublesEachAmpersandOnce) {
  EXPECT_EQ(ReplaceText("A&B&C", "&", "&&", false, true), "A&&B&&C");
  EXPECT_EQ(ReplaceText("&&", "&", "&&", false, true), "&&&&");
}

TEST(ReplaceTextTest, StopsAfterTheFirstWhenAskedTo) {
  EXPECT_EQ(ReplaceText("a-b-c", "-", "+", true, true), "a+b-c");
}

TEST(ReplaceTextTest, IgnoresCaseOnlyWhenAskedTo) {
  EXPECT_EQ(ReplaceText("abAB", "AB", "x", false, true), "abx");
  EXPECT_EQ(ReplaceText("abAB", "aB", "x", false, false), "xx");
  EXPECT_EQ(ReplaceText("ПриветПРИВЕТ", "привет", "x", false, false), "xx");
}

TEST(ReplaceTextTest, KeepsTheCaseOfWhatIsNotReplaced) {
  EXPECT_EQ(ReplaceText("Straße ONE", "one", "two", false, false), "Straße two");
  EXPECT_EQ(ReplaceText("ÿÿb", "B", "c", false, false), "ÿÿc");
}

TEST(ReplaceTextTest, FindsNothingForAnEmptyOrLongerSought) {
  EXPECT_EQ(ReplaceText("abc", "", "x", false, true), "abc");
  EXPECT_EQ(ReplaceText("ab", "abc", "x", false, true), "ab");
  EXPECT_EQ(ReplaceText("", "a", "x", false, true), "");
}

TEST(ReplaceTextTest, RemovesWithAnEmptyReplacementAndDoesNotOverlap) {
  EXPECT_EQ(ReplaceText("aaaaa", "aa", "", false, true), "a");
}

TEST(ReplaceTextTest, NeverMatchesInsideACharacter) {
  EXPECT_EQ(ReplaceText("é", "\xA9", "x", false, true), "é");
}

TEST(ReverseFindTest, CountsOneMoreThanTheCharactersBehindTheLastOccurrence) {
  EXPECT_EQ(ReverseFind("a - b - c", " - ", 1, true), 2);
  EXPECT_EQ(ReverseFind("a - ", " - ", 1, true), 1);
  EXPECT_EQ(ReverseFind(" - abc", " - ", 1, true), 4);
  EXPECT_EQ(ReverseFind("Блокнот - メモ帳", " - ", 1, true), 4);
}

TEST(ReverseFindTest, IsZeroWhenNothingMatches) {
  EXPECT_EQ(ReverseFind("abc", " - ", 1, true), 0);
  EXPECT_EQ(ReverseFind("", " - ", 1, true), 0);
  EXPECT_EQ(ReverseFind("ab", "abc", 1, true), 0);
}

TEST(ReverseFindTest, LeavesOutCharactersAtTheEndForALaterStart) {
  EXPECT_EQ(ReverseFind("a\\b\\c", "\\", 1, true), 2);
  EXPECT_EQ(ReverseFind("a\\b\\c", "\\", 2, true), 2);
  EXPECT_EQ(ReverseFind("a\\b\\c", "\\", 3, true), 4);
  EXPECT_EQ(ReverseFind("a\\b\\c", "\\", 5, true), 0);
  EXPECT_EQ(ReverseFind("a\\b\\c", "\\", 9, true), 0);
}

TEST(ReverseFindTest, MatchesNothingPastTheEndForAStartBelowOne) {
  EXPECT_EQ(ReverseFind("ab", "b", 0, true), 1);
  EXPECT_EQ(ReverseFind("ab", "b", -5, true), 1);
}

TEST(ReverseFindTest, FindsAnEmptyTextBehindTheLastCharacter) {
  EXPECT_EQ(ReverseFind("abc", "", 1, true), 1);
  EXPECT_EQ(ReverseFind("", "", 1, true), 1);
  EXPECT_EQ(ReverseFind("abc", "", 2, true), 2);
}

TEST(ReverseFindTest, UpperCasesBothWhenCaseDoesNotMatter) {
  EXPECT_EQ(ReverseFind("xABy", "ab", 1, true), 0);
  EXPECT_EQ(ReverseFind("xABy", "ab", 1, false), 2);
  EXPECT_EQ(ReverseFind("Окно", "ОК", 1, false), 3);
}

TEST(ReverseFindTest, OverflowsWhenThePositionNeedsMoreThanSixteenBits) {
  EXPECT_EQ(ReverseFind("|" + std::string(32766, 'a'), "|", 1, true), 32767);
  EXPECT_EQ(ReverseFind(std::string(40000, 'a') + "|", "|", 1, true), 1);
  EXPECT_THROW(ReverseFind("|" + std::string(32767, 'a'), "|", 1, true), RunTimeError);
}

TEST(HexadecimalTextTest, WritesSmallDigitsWithoutLeadingZeroes) {
  EXPECT_EQ(HexadecimalText(0), "0");
  EXPECT_EQ(HexadecimalText(0xC0000005), "c0000005");
  EXPECT_EQ(HexadecimalText(0xFFFFFFFFFFFFFFFF), "ffffffffffffffff");
}

TEST(DecimalTextTest, WritesSignAndDigits) {
  EXPECT_EQ(DecimalText(0), "0");
  EXPECT_EQ(DecimalText(-2147483647 - 1), "-2147483648");
}

TEST(ParseInt32Test, ReadsDecimalNumbers) {
  EXPECT_EQ(ParseInt32("0"), 0);
  EXPECT_EQ(ParseInt32(" 8454143 "), 8454143);
  EXPECT_EQ(ParseInt32("-2147483648"), -2147483647 - 1);
  EXPECT_EQ(ParseInt32("+7"), 7);
}

TEST(ParseInt32Test, RefusesEverythingElse) {
  for (const char* text :
       {"", " ", "x", "1x", "1 2", "+-1", "+", "-", "2147483648", "1.5", "&H1"}) {
    EXPECT_EQ(ParseInt32(text), std::nullopt) << text;
  }
}

TEST(ParseInt16Test, RefusesWhatNeedsMoreThanSixteenBits) {
  EXPECT_EQ(ParseInt16("32767"), std::int16_t{32767});
  EXPECT_EQ(ParseInt16("-32768"), std::int16_t{-32768});
  EXPECT_EQ(ParseInt16("32768"), std::nullopt);
}

TEST(ParseBooleanTest, ReadsBothWordsInAnyCase) {
  EXPECT_EQ(ParseBoolean("True"), true);
  EXPECT_EQ(ParseBoolean("fALSE"), false);
  EXPECT_EQ(ParseBoolean(" TRUE "), true);
}

TEST(ParseBooleanTest, RefusesEverythingElse) {
  EXPECT_EQ(ParseBoolean(""), std::nullopt);
  EXPECT_EQ(ParseBoolean("1"), std::nullopt);
  EXPECT_EQ(ParseBoolean("Yes"), std::nullopt);
}

TEST(OnOneLineTest, ReplacesEachControlCharacterByABlankAndNothingElse) {
  EXPECT_EQ(OnOneLine("a\tb\r\nc\x1f\x7f d"), "a b  c   d");
  EXPECT_EQ(OnOneLine(std::string("\0x", 2)), " x");
  EXPECT_EQ(OnOneLine("a\u0080b\u0085c\u009fd\u2028e\u2029f"), "a b c d e f");
  EXPECT_EQ(OnOneLine("Ж 日 😀 \u00a0\u200f\xff"), "Ж 日 😀 \u00a0\u200f\xff");
}

TEST(WithDirectionsEndedTest, EndsWhatIsLeftOpenAndNothingElse) {
  EXPECT_EQ(WithDirectionsEnded("שלום \u200f x"), "שלום \u200f x");
  EXPECT_EQ(WithDirectionsEnded("\u202bשלום\u202c"), "\u202bשלום\u202c");
  EXPECT_EQ(WithDirectionsEnded("\u202eabc"), "\u202eabc\u202c");
  EXPECT_EQ(WithDirectionsEnded("\u202aa\u2067b\u202ec"),
            "\u202aa\u2067b\u202ec\u202c\u2069\u202c");
  EXPECT_EQ(WithDirectionsEnded("\u2068a\u202eb\u2069c"), "\u2068a\u202eb\u2069c");
  EXPECT_EQ(WithDirectionsEnded("\u202c\u2069\u202ea"), "\u202c\u2069\u202ea\u202c");
  EXPECT_EQ(WithDirectionsEnded("\u2067a\u202cb"), "\u2067a\u202cb\u2069");
  EXPECT_EQ(WithDirectionsEnded("\u2066a\u2066b\u2069"), "\u2066a\u2066b\u2069\u2069");
  EXPECT_EQ(WithDirectionsEnded("\u2029 \u202f \u2065 \u206a"), "\u2029 \u202f \u2065 \u206a");
}

}  // namespace
}  // namespace korvale

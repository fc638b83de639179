#include "ui/shortened_text.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

TEST(ColumnCountTest, CountsCharactersNotBytes) {
  EXPECT_EQ(ColumnCount(""), 0);
  EXPECT_EQ(ColumnCount("Notes"), 5);
  EXPECT_EQ(ColumnCount("Счёт"), 4);
}

TEST(ColumnCountTest, CountsWideCharactersTwice) {
  EXPECT_EQ(ColumnCount("会計"), 4);
  EXPECT_EQ(ColumnCount("🧮"), 2);
  EXPECT_EQ(ColumnCount("한"), 2);
}

TEST(ColumnCountTest, TheWideScriptsAreWideFromTheirFirstCharacterToTheirLast) {
  struct Script {
    const char* before;
    const char* first;
    const char* last;
    const char* behind;
  };
  for (const Script& script : {
           Script{"\u10FF", "\u1100", "\u115F", "\u1160"},
           Script{"\u2E7F", "\u2E80", "\uA4CF", "\uA4D0"},
           Script{"\uABFF", "\uAC00", "\uD7A3", "\uD7A4"},
           Script{"\uF8FF", "\uF900", "\uFAFF", "\uFB00"},
           Script{"\uFE2F", "\uFE30", "\uFE6F", "\uFE70"},
           Script{"\uFEFF", "\uFF00", "\uFF60", "\uFF61"},
           Script{"\uFFDF", "\uFFE0", "\uFFE6", "\uFFE7"},
           Script{"\U0001F2FF", "\U0001F300", "\U0001FAFF", "\U0001FB00"},
           Script{"\U0001FFFF", "\U00020000", "\U0002FFFD", "\U0002FFFE"},
           Script{"\U0002FFFF", "\U00030000", "\U0003FFFD", "\U0003FFFE"},
       }) {
    EXPECT_EQ(ColumnCount(script.before), 1) << script.first;
    EXPECT_EQ(ColumnCount(script.first), 2) << script.first;
    EXPECT_EQ(ColumnCount(script.last), 2) << script.last;
    EXPECT_EQ(ColumnCount(script.behind), 1) << script.last;
  }
}

TEST(ColumnCountTest, CountsAByteOfNoCharacterOnce) { EXPECT_EQ(ColumnCount("a\xFF"), 2); }

TEST(ShortenedTextTest, LeavesAShortTextAlone) {
  EXPECT_EQ(ShortenedText("1234567890", 10), "1234567890");
  EXPECT_EQ(ShortenedText("1234", 10, " - ***"), "1234 - ***");
  EXPECT_EQ(ShortenedText("", 10), "");
}

TEST(ShortenedTextTest, CutsALongTextBeforeTheEllipsis) {
  EXPECT_EQ(ShortenedText("12345678901", 10), "1234567...");
}

TEST(ShortenedTextTest, KeepsTheTail) {
  EXPECT_EQ(ShortenedText("1234567890", 14, " - ***"), "12345... - ***");
}

TEST(ShortenedTextTest, NeverCutsThroughACharacter) {
  EXPECT_EQ(ShortenedText("会計会計会計", 10), "会計会...");
  EXPECT_EQ(ShortenedText("a会計会計会計", 10), "a会計会...");
  EXPECT_EQ(ShortenedText("123456e\u0301789", 10), "123456...");
  EXPECT_EQ(ShortenedText("1234👩‍💻789", 10), "1234...");
  EXPECT_EQ(ShortenedText("123456🇩🇪🇫🇷", 10), "123456🇩🇪🇫🇷");
  EXPECT_EQ(ShortenedText("123456🇩🇪🇫🇷7", 10), "123456...");
}

TEST(ShortenedTextTest, KeepsTheDirectionOfTheTextFromWhatFollows) {
  EXPECT_EQ(ShortenedText("\u202eabc", 10, " - ***"), "\u202eabc\u202c - ***");
  EXPECT_EQ(ShortenedText("\u202e12345678901", 10), "\u202e123456\u202c...");
}

}  // namespace
}  // namespace korvale

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
}

}  // namespace
}  // namespace korvale

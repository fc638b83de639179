#include "util/graphemes.h"

#include <gtest/gtest.h>

#include <string>

namespace korvale {
namespace {

std::string Divided(std::string_view text) {
  std::string divided;
  for (const std::string_view cluster : SplitClusters(text)) {
    divided.append(divided.empty() ? "" : "|").append(cluster);
  }
  return divided;
}

std::string WithoutBars(std::string text) {
  std::erase(text, '|');
  return text;
}

struct Script {
  const char* name;
  const char* clusters;
};

void PrintTo(const Script& script, std::ostream* out) { *out << script.name; }

class SplitClustersTest : public testing::TestWithParam<Script> {};

TEST_P(SplitClustersTest, DividesATextWhereItsReadersWould) {
  EXPECT_EQ(Divided(WithoutBars(GetParam().clusters)), GetParam().clusters);
}

constexpr Script kScripts[] = {
    {"Latin", "A|n|g|s|t|r|o\u0308|m| |e\u0301\u0323|1|,|-"},
    {"Vietnamese", "T|i|e\u0302\u0301|n|g| |V|i|ệ|t"},
    {"Greek", "Κ|α\u0313\u0301|λ|α|ς"},
    {"Cyrillic", "и\u0306|о|ж|и\u0306\u0301"},
    {"Hebrew", "ש\u05b8\u05c1|ל|ו\u05b9|ם"},
    {"Arabic", "م\u064f|ح|م\u064e\u0651|د|ل|ا"},
    {"ArabicNumberSign", "\u0600\u0661|\u0662"},
    {"ArabicNumberSignBeforeAnEmoji", "\u0600😀|\u0662"},
    {"Devanagari", "न|म|स्ते| |क्षि|ति| |हि|न्दी"},
    {"DevanagariThreeConsonants", "स्त्री"},
    {"DevanagariJoined", "क्\u200dष|क्\u200c|ष"},
    {"DevanagariNukta", "क़्ष|क"},
    {"Bengali", "বাং|লা| |ক্ষ"},
    {"Gujarati", "ગુ|જ|રા|તી| |ક્ષ"},
    {"Oriya", "ଓ|ଡ଼ି|ଆ| |କ୍ଷ"},
    {"Telugu", "తె|లు|గు| |క్ష"},
    {"Malayalam", "മ|ല|യാ|ളം| |ക്ഷ"},
    {"Tamil", "த|மி|ழ்| |கொ|ண்|டு"},
    {"Sinhala", "සිං|හ|ල"},
    {"Thai", "ภ|า|ษ|า|ไ|ท|ย| |น้ำ| |กี่"},
    {"Khmer", "ភា|សា|ខ្|មែ|រ"},
    {"Burmese", "မြ|န်|မ|ာ"},
    {"Tibetan", "བོ|ད"},
    {"Chinese", "會|計|𠮷|葛\U000E0100|字"},
    {"Japanese", "が|か\u3099|ー|ハ\u309a|ﾊﾟ"},
    {"Korean", "한|글| |\u1112\u1161\u11ab|\u1100\u1173\u11af|가\u11a8|각\u11a8|ㄱ"},
    {"KoreanOldLetters", "\ua960\ud7b0\ud7cb|\u1100"},
    {"Georgian", "ქ|ა|რ|თ"},
    {"Armenian", "Հ|ա|յ|ե|և"},
    {"Ethiopic", "አ|ማ|ር|ኛ|ሀ\u135d"},
    {"Adlam", "𞤀|𞤣\U0001E944|𞤤"},
    {"EmojiWithSkin", "👍🏽|👍🏽|👍|a"},
    {"EmojiWithSelector", "☺\ufe0f|☺|©\ufe0f"},
    {"Keycap", "1\ufe0f\u20e3|2"},
    {"Families",
     "👨‍👩‍👧‍👦|👩🏿‍💻|❤️‍🔥|🏳️‍🌈|a\u200d|👧"},
    {"Flags", "🇩🇪|🇫🇷|🇯🇵|🇺|a|🇺"},
    {"FlagOfAPart", "🏴󠁧󠁢󠁷󠁬󠁳󠁿|🏴"},
    {"ControlCharacters", "a|\t|\u0301|\r\n|\n|\r|\u200b|\u0301"},
};

std::string ScriptName(const testing::TestParamInfo<Script>& test) { return test.param.name; }

INSTANTIATE_TEST_SUITE_P(Scripts, SplitClustersTest, testing::ValuesIn(kScripts), ScriptName);

TEST(SplitClustersEdgeTest, TakesABrokenByteForALetter) {
  EXPECT_EQ(Divided("\xff\xfe\u0301x"), "\xff|\xfe\u0301|x");
  EXPECT_TRUE(SplitClusters("").empty());
}

TEST(LeftClustersTest, CountsCodePointsAndCutsBetweenClusters) {
  EXPECT_EQ(LeftClusters("abc", 2), "ab");
  EXPECT_EQ(LeftClusters("abc", 9), "abc");
  EXPECT_EQ(LeftClusters("", 3), "");
  EXPECT_EQ(LeftClusters("ae\u0301o", 2), "a");
  EXPECT_EQ(LeftClusters("ae\u0301o", 3), "ae\u0301");
  EXPECT_EQ(LeftClusters("🇩🇪🇫🇷", 3), "🇩🇪");
  EXPECT_EQ(LeftClusters("नमस्ते", 5), "नम");
}

TEST(LeftClustersTest, ShowsTheBeginningOfAClusterThatIsTooLong) {
  EXPECT_EQ(LeftClusters("👨‍👩‍👧‍👦", 3), "👨‍👩");
  EXPECT_EQ(LeftClusters("👨‍👩‍👧‍👦", 0), "");
}

}  // namespace
}  // namespace korvale

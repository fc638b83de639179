#include "platform/version_resource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace korvale {
namespace {

using Content = std::vector<std::byte>;

void AddWord(Content& bytes, unsigned word) {
  bytes.push_back(static_cast<std::byte>(word & 0xFFU));
  bytes.push_back(static_cast<std::byte>(word >> 8U));
}

void SetWord(Content& bytes, std::size_t at, unsigned word) {
  bytes.at(at) = static_cast<std::byte>(word & 0xFFU);
  bytes.at(at + 1) = static_cast<std::byte>(word >> 8U);
}

void Align(Content& bytes) { bytes.resize((bytes.size() + 3) / 4 * 4); }

Content TextBytes(std::u16string_view text) {
  Content bytes;
  for (const char16_t unit : text) AddWord(bytes, unit);
  AddWord(bytes, 0);
  return bytes;
}

Content NewBlock(std::u16string_view name, bool isText, const Content& value,
                 const std::vector<Content>& inside = {}) {
  Content bytes;
  AddWord(bytes, 0);
  AddWord(bytes, static_cast<unsigned>(value.size() / (isText ? 2 : 1)));
  AddWord(bytes, isText ? 1 : 0);
  const Content key = TextBytes(name);
  bytes.insert(bytes.end(), key.begin(), key.end());
  Align(bytes);
  bytes.insert(bytes.end(), value.begin(), value.end());
  for (const Content& block : inside) {
    Align(bytes);
    bytes.insert(bytes.end(), block.begin(), block.end());
  }
  SetWord(bytes, 0, static_cast<unsigned>(bytes.size()));
  return bytes;
}

Content StringBlock(std::u16string_view name, std::u16string_view text) {
  return NewBlock(name, true, TextBytes(text));
}

Content Table(std::u16string_view language, std::u16string_view description) {
  return NewBlock(
      language, true, {},
      {StringBlock(u"CompanyName", u"Odd"), StringBlock(u"FileDescription", description),
       StringBlock(u"LegalCopyright", u"A notice")});
}

/// Languages as pairs of language and code page.
Content Languages(const std::vector<unsigned>& words) {
  Content value;
  for (const unsigned word : words) AddWord(value, word);
  return NewBlock(u"VarFileInfo", true, {}, {NewBlock(u"Translation", false, value)});
}

Content Fixed() {
  Content value(52);
  SetWord(value, 0, 0x04BD);
  SetWord(value, 2, 0xFEEF);
  SetWord(value, 8, 3);
  SetWord(value, 10, 2);
  SetWord(value, 12, 9);
  SetWord(value, 14, 40'000);
  return value;
}

Content Resource(const std::vector<Content>& inside, const Content& fixed = Fixed()) {
  return NewBlock(u"VS_VERSION_INFO", false, fixed, inside);
}

Content Usual() {
  return Resource({NewBlock(u"StringFileInfo", true, {}, {Table(u"040904b0", u"Жук")}),
                   Languages({0x409, 0x4b0})});
}

/// Where a text begins.
std::size_t Place(const Content& bytes, std::u16string_view text) {
  Content wanted = TextBytes(text);
  wanted.resize(wanted.size() - 2);
  const auto found = std::ranges::search(bytes, wanted);
  return static_cast<std::size_t>(found.begin() - bytes.begin());
}

TEST(VersionResourceTest, TellsNumbersAndTexts) {
  const VersionResource read = ReadVersionResource(Usual());
  EXPECT_EQ(read.major, 2);
  EXPECT_EQ(read.minor, 3);
  EXPECT_EQ(read.revision, 40'000);
  EXPECT_EQ(read.fileDescription, u"Жук");
  EXPECT_EQ(read.legalCopyright, u"A notice");
}

TEST(VersionResourceTest, SpeaksItsFirstLanguage) {
  const Content tables = NewBlock(u"StringFileInfo", true, {},
                                  {Table(u"040704b0", u"German"), Table(u"040904B0", u"English"),
                                   Table(u"041904b0", u"Russian")});
  EXPECT_EQ(ReadVersionResource(Resource({tables, Languages({0x409, 0x4b0, 0x407, 0x4b0})}))
                .fileDescription,
            u"English");
  EXPECT_EQ(ReadVersionResource(Resource({Languages({0x419, 0x4b0}), tables})).fileDescription,
            u"Russian");
  EXPECT_EQ(ReadVersionResource(Resource({tables, Languages({0x40c, 0x4b0})})).fileDescription,
            u"");
}

TEST(VersionResourceTest, KnowsNamesInAnyLetters) {
  const Content texts = NewBlock(
      u"040904B0", true, {},
      {StringBlock(u"FILEDESCRIPTION", u"Жук"), StringBlock(u"LEGALCOPYRIGHT", u"A notice")});
  Content language;
  AddWord(language, 0x409);
  AddWord(language, 0x4b0);
  const VersionResource read = ReadVersionResource(
      Resource({NewBlock(u"STRINGFILEINFO", true, {}, {texts}),
                NewBlock(u"VARFILEINFO", true, {}, {NewBlock(u"TRANSLATION", false, language)})}));
  EXPECT_EQ(read.fileDescription, u"Жук");
  EXPECT_EQ(read.legalCopyright, u"A notice");
}

TEST(VersionResourceTest, WithoutStringsStillTellsItsNumbers) {
  for (const Content& resource :
       {Resource({}), Resource({Languages({})}), Resource({Languages({0x409})}),
        Resource({NewBlock(u"StringFileInfo", true, {}), Languages({0x409, 0x4b0})}),
        Resource({NewBlock(u"StringFileInfo", true, {}, {Table(u"040904b0", u"x")})})}) {
    const VersionResource read = ReadVersionResource(resource);
    EXPECT_EQ(read.major, 2);
    EXPECT_EQ(read.fileDescription, u"");
    EXPECT_EQ(read.legalCopyright, u"");
  }
}

TEST(VersionResourceTest, WithoutNumbersStillTellsItsTexts) {
  Content wrong = Fixed();
  SetWord(wrong, 2, 0xFEEE);
  for (const Content& fixed : {Content{}, Content(51), Content(52), wrong}) {
    const Content resource =
        Resource({NewBlock(u"StringFileInfo", true, {}, {Table(u"040904b0", u"x")}),
                  Languages({0x409, 0x4b0})},
                 fixed);
    const VersionResource read = ReadVersionResource(resource);
    EXPECT_EQ(read.major, 0);
    EXPECT_EQ(read.minor, 0);
    EXPECT_EQ(read.fileDescription, u"x");
  }
}

TEST(VersionResourceTest, TruncatedGivesNothing) {
  const Content whole = Usual();
  ASSERT_EQ(ReadVersionResource(whole).fileDescription, u"Жук");
  for (std::size_t size = 0; size < whole.size(); ++size) {
    // On the heap, so that a look behind the end is seen.
    const Content part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    const VersionResource read = ReadVersionResource(part);
    EXPECT_EQ(read.major, 0) << size;
    EXPECT_EQ(read.fileDescription, u"") << size;
    EXPECT_EQ(read.legalCopyright, u"") << size;
  }
}

TEST(VersionResourceTest, SurvivesAnyWrongWord) {
  const Content whole = Usual();
  for (std::size_t at = 0; at + 1 < whole.size(); at += 2) {
    for (const unsigned word : {0U, 1U, 5U, 6U, 7U, 0x7FFFU, 0x8000U, 0xFFFFU}) {
      Content wrong = whole;
      SetWord(wrong, at, word);
      EXPECT_LE(ReadVersionResource(wrong).fileDescription.size(), wrong.size());
    }
  }
}

TEST(VersionResourceTest, EndsATextWithItsBlock) {
  Content resource = Usual();
  const std::size_t text = Place(resource, u"A notice");
  ASSERT_LT(text, resource.size());
  // The length of the value lies two words before the name.
  SetWord(resource, Place(resource, u"LegalCopyright") - 4, 0xFFFF);
  EXPECT_EQ(ReadVersionResource(resource).legalCopyright, u"A notice");
  SetWord(resource, Place(resource, u"LegalCopyright") - 4, 3);
  EXPECT_EQ(ReadVersionResource(resource).legalCopyright, u"A n");
}

TEST(VersionResourceTest, ReadsFromAnyAddress) {
  Content shifted = {std::byte{7}};
  const Content whole = Usual();
  shifted.insert(shifted.end(), whole.begin(), whole.end());
  EXPECT_EQ(ReadVersionResource(std::span(shifted).subspan(1)).fileDescription, u"Жук");
}

TEST(VersionResourceTest, BehindItsEndMayLieAnything) {
  Content padded = Usual();
  padded.resize(padded.size() + 7, std::byte{0xFF});
  EXPECT_EQ(ReadVersionResource(padded).fileDescription, u"Жук");
}

}  // namespace
}  // namespace korvale

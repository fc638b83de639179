#include "ui/access_key.h"

#include <gtest/gtest.h>

namespace korvale {
namespace {

TEST(AccessKeyTest, TheCharacterBehindTheAmpersandIsTheAccessKey) {
  EXPECT_EQ(AccessKey("&File"), "F");
  EXPECT_EQ(AccessKey("E&xit"), "x");
  EXPECT_EQ(AccessKey("&0  Previous Window"), "0");
  EXPECT_EQ(AccessKey("&Ж1"), "Ж");
  EXPECT_EQ(AccessKey("&\U0001F600"), "\U0001F600");
}

TEST(AccessKeyTest, DoubledAmpersandsMarkNothing) {
  EXPECT_EQ(AccessKey("R&&D"), "");
  EXPECT_EQ(AccessKey("R&&&D"), "D");
  EXPECT_EQ(AccessKey("plain"), "");
  EXPECT_EQ(AccessKey(""), "");
  EXPECT_EQ(AccessKey("end&"), "");
}

TEST(AccessKeyTest, TheFirstMarkCounts) { EXPECT_EQ(AccessKey("&One &Two"), "O"); }

TEST(HasAccessKeyTest, CaseDoesNotMatterInAnyScript) {
  EXPECT_TRUE(HasAccessKey("&Remove", U'r'));
  EXPECT_TRUE(HasAccessKey("Re&move", U'M'));
  EXPECT_TRUE(HasAccessKey("&Ж", U'ж'));
  EXPECT_TRUE(HasAccessKey("&日", U'日'));
  EXPECT_FALSE(HasAccessKey("&Remove", U'e'));
  EXPECT_FALSE(HasAccessKey("Remove", U'R'));
}

}  // namespace
}  // namespace korvale

#include "util/flag_string.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "platform/run_time_error.h"

namespace korvale {
namespace {

TEST(FlagStringTest, EveryFlagOfAnEmptyStringIsSetWhenPaddedWithOne) {
  std::string flags;
  EXPECT_TRUE(FlagString(flags, 14, "GET", true, false));
  EXPECT_EQ(flags, "11111111111111");
}

TEST(FlagStringTest, NoFlagOfAnEmptyStringIsSetWhenPaddedWithZero) {
  std::string flags;
  EXPECT_FALSE(FlagString(flags, 3, "GET", false, false));
  EXPECT_EQ(flags, "000");
}

TEST(FlagStringTest, OneMissingFlagIsPadded) {
  std::string flags = "11";
  EXPECT_FALSE(FlagString(flags, 3, "GET", false, false));
  EXPECT_EQ(flags, "110");
}

TEST(FlagStringTest, SilencingTipFourteenLeavesThirteenOnesAndAZero) {
  std::string flags;
  FlagString(flags, 14, "SET", true, false);
  EXPECT_EQ(flags, "11111111111110");
  EXPECT_FALSE(FlagString(flags, 14, "GET", true, false));
  EXPECT_TRUE(FlagString(flags, 13, "GET", true, false));
}

TEST(FlagStringTest, SilencingTipOneInAnEmptyStringGivesZero) {
  std::string flags;
  FlagString(flags, 1, "SET", true, false);
  EXPECT_EQ(flags, "0");
}

TEST(FlagStringTest, WritesOneFlagInTheMiddleAndNoOther) {
  std::string flags = "000";
  EXPECT_FALSE(FlagString(flags, 2, "SET", true, true));
  EXPECT_EQ(flags, "010");
}

TEST(FlagStringTest, AnythingButZeroCountsAsSet) {
  std::string flags = "x é0";
  EXPECT_TRUE(FlagString(flags, 1, "GET", true, false));
  EXPECT_TRUE(FlagString(flags, 2, "GET", true, false));
  EXPECT_TRUE(FlagString(flags, 3, "GET", true, false));
  EXPECT_FALSE(FlagString(flags, 4, "GET", true, false));
}

TEST(FlagStringTest, CountsPositionsInCharacters) {
  std::string flags = "é11";
  FlagString(flags, 2, "SET", true, false);
  EXPECT_EQ(flags, "é01");
}

TEST(FlagStringTest, AnyOtherModeDoesNothing) {
  std::string flags = "1";
  EXPECT_FALSE(FlagString(flags, 3, "get", true, true));
  EXPECT_FALSE(FlagString(flags, 0, "get", true, true));
  EXPECT_EQ(flags, "1");
}

TEST(FlagStringTest, RefusesPositionsBelowOne) {
  std::string flags = "1";
  EXPECT_THROW(FlagString(flags, 0, "GET", true, false), RunTimeError);
  EXPECT_THROW(FlagString(flags, -1, "SET", true, false), RunTimeError);
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  EXPECT_THROW(FlagString(flags, kLeast, "GET", true, false), RunTimeError);
  EXPECT_EQ(flags, "1");
}

}  // namespace
}  // namespace korvale

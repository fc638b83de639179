#include "platform/run_time_error.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace korvale {
namespace {

TEST(RunTimeErrorTest, CarriesItsNumberAndDescription) {
  const RunTimeError error(RunTimeError::kTypeMismatch);
  EXPECT_EQ(error.Number(), 13);
  EXPECT_STREQ(error.what(), "Type mismatch");
}

TEST(RunTimeErrorTest, PutsTheArgumentIntoTheDescription) {
  const RunTimeError error(RunTimeError::kNoSuchControlArrayElement, "7");
  EXPECT_STREQ(error.what(), "Control array element '7' doesn't exist");
}

TEST(RunTimeErrorTest, DescribesTheKnownNumbers) {
  EXPECT_EQ(RunTimeErrorDescription(5), "Invalid procedure call or argument");
  EXPECT_EQ(RunTimeErrorDescription(6), "Overflow");
  EXPECT_EQ(RunTimeErrorDescription(9), "Subscript out of range");
  EXPECT_EQ(RunTimeErrorDescription(11), "Division by zero");
  EXPECT_EQ(RunTimeErrorDescription(70), "Permission denied");
  EXPECT_EQ(RunTimeErrorDescription(75), "Path/File access error");
  EXPECT_EQ(RunTimeErrorDescription(76), "Path not found");
  EXPECT_EQ(RunTimeErrorDescription(340), "Control array element '|' doesn't exist");
  EXPECT_EQ(RunTimeErrorDescription(360), "Object already loaded");
  EXPECT_EQ(RunTimeErrorDescription(362), "Can't unload controls created at design time");
}

TEST(RunTimeErrorTest, DescribesUnknownNumbersInGeneral) {
  EXPECT_EQ(RunTimeErrorDescription(4711), "Application-defined or object-defined error");
}

std::int16_t NumberOfErrorIn(std::int16_t left, std::int16_t right) {
  try {
    AddInt16(left, right);
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(AddInt16Test, AddsWhatFits) {
  EXPECT_EQ(AddInt16(32766, 1), 32767);
  EXPECT_EQ(AddInt16(-32767, -1), -32768);
}

TEST(AddInt16Test, OverflowsBeyondSixteenBits) {
  EXPECT_EQ(NumberOfErrorIn(32767, 1), 6);
  EXPECT_EQ(NumberOfErrorIn(-32768, -1), 6);
}

TEST(ToInt16Test, KeepsWhatFitsAndOverflowsOtherwise) {
  EXPECT_EQ(ToInt16(-32768), -32768);
  EXPECT_THROW(ToInt16(32768), RunTimeError);
  EXPECT_THROW(ToInt16(-32769), RunTimeError);
}

}  // namespace
}  // namespace korvale

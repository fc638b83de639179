#include "platform/run_time_error.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/fakes/error_of.h"

namespace korvale {
namespace {

TEST(RunTimeErrorTest, CarriesItsNumberAndDescription) {
  const RunTimeError error(RunTimeError::kPermissionDenied);
  EXPECT_EQ(error.Number(), 70);
  EXPECT_STREQ(error.what(), "Permission denied");
}

TEST(RunTimeErrorTest, PutsTheArgumentIntoTheDescription) {
  const RunTimeError error(RunTimeError::kNoSuchControlArrayElement, "7");
  EXPECT_STREQ(error.what(), "Control array element '7' doesn't exist");
}

struct KnownError {
  std::int16_t number;
  const char* description;
};

constexpr KnownError kKnownErrors[] = {
    {5, "Invalid procedure call or argument"},
    {6, "Overflow"},
    {7, "Out of memory"},
    {9, "Subscript out of range"},
    {51, "Internal error"},
    {70, "Permission denied"},
    {75, "Path/File access error"},
    {91, "Object variable or With block variable not set"},
    {340, "Control array element '|' doesn't exist"},
    {360, "Object already loaded"},
    {362, "Can't unload controls created at design time"},
    {380, "Invalid property value"},
};

TEST(RunTimeErrorTest, DescribesTheKnownNumbers) {
  for (const auto& [number, description] : kKnownErrors) {
    EXPECT_EQ(RunTimeErrorDescription(number), description) << number;
  }
}

TEST(RunTimeErrorTest, DescribesUnknownNumbersInGeneral) {
  EXPECT_EQ(RunTimeErrorDescription(4711), "Application-defined or object-defined error");
}

TEST(AddInt16Test, AddsWhatFits) {
  EXPECT_EQ(AddInt16(32766, 1), 32767);
  EXPECT_EQ(AddInt16(-32767, -1), -32768);
}

TEST(AddInt16Test, OverflowsBeyondSixteenBits) {
  EXPECT_EQ(ErrorOf([] { AddInt16(32767, 1); }), 6);
  EXPECT_EQ(ErrorOf([] { AddInt16(-32768, -1); }), 6);
}

TEST(ToInt16Test, KeepsWhatFitsAndOverflowsOtherwise) {
  EXPECT_EQ(ToInt16(-32768), -32768);
  EXPECT_THROW(ToInt16(32768), RunTimeError);
  EXPECT_THROW(ToInt16(-32769), RunTimeError);
}

}  // namespace
}  // namespace korvale

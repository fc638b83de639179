#include "util/lists.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "platform/form_model.h"
#include "platform/run_time_error.h"

namespace korvale {
namespace {

std::vector<ListItem> Keys() { return {{"None", 0}, {"Down", 40}, {"Up", 38}, {"Down", 38}}; }

TEST(FindListIndexTest, FindsTheFirstItemWithTheItemData) {
  EXPECT_EQ(FindListIndex(Keys(), 38, "ITEM_DATA"), 2);
  EXPECT_EQ(FindListIndex(Keys(), "38", "ITEM_DATA"), 2);
}

TEST(FindListIndexTest, FindsTheFirstItemWithTheText) {
  EXPECT_EQ(FindListIndex(Keys(), "Down", "LIST_TEXT"), 1);
}

TEST(FindListIndexTest, ComparesTextsExactly) {
  EXPECT_EQ(FindListIndex(Keys(), "down", "LIST_TEXT"), -1);
  EXPECT_EQ(FindListIndex(Keys(), "Dow", "LIST_TEXT"), -1);
}

TEST(FindListIndexTest, ComparesANumberWithTextsAsDecimalText) {
  const std::vector<ListItem> digits = {{"0", 48}, {"1", 49}};
  EXPECT_EQ(FindListIndex(digits, 1, "LIST_TEXT"), 1);
}

TEST(FindListIndexTest, IsMinusOneWhenNothingMatches) {
  EXPECT_EQ(FindListIndex(Keys(), 99, "ITEM_DATA"), -1);
  EXPECT_EQ(FindListIndex(Keys(), "Down", "ITEM_DATA"), -1);
}

TEST(FindListIndexTest, IsMinusOneForAnEmptyList) {
  EXPECT_EQ(FindListIndex({}, 0, "ITEM_DATA"), -1);
  EXPECT_EQ(FindListIndex({}, "", "LIST_TEXT"), -1);
}

TEST(FindListIndexTest, IsMinusOneInAnyOtherMode) {
  EXPECT_EQ(FindListIndex(Keys(), 40, "list"), -1);
  EXPECT_EQ(FindListIndex(Keys(), "40", ""), -1);
}

TEST(FindListIndexTest, OverflowsBeyondSixteenBits) {
  std::vector<ListItem> items(32769);
  items.back().itemData = 1;
  EXPECT_THROW(FindListIndex(items, 1, "ITEM_DATA"), RunTimeError);
}

TEST(SelectedOptionIndexTest, FindsTheFirstSelectedButton) {
  EXPECT_EQ(SelectedOptionIndex(std::array{false, true, true}), 1);
  EXPECT_EQ(SelectedOptionIndex(std::vector<bool>{true}), 0);
}

TEST(SelectedOptionIndexTest, IsMinusOneWhenNoneIsSelected) {
  EXPECT_EQ(SelectedOptionIndex(std::array{false, false}), -1);
  EXPECT_EQ(SelectedOptionIndex(std::vector<bool>{}), -1);
}

TEST(SelectedOptionIndexTest, AsksTheGivenMember) {
  struct Button {
    bool value;
  };
  EXPECT_EQ(SelectedOptionIndex(std::array{Button{false}, Button{true}}, &Button::value), 1);
}

}  // namespace
}  // namespace korvale

#include <string>
#include <vector>

#include "tests/forms/options_test.h"

namespace korvale {
namespace {

using OptionsExchangeTest = OptionsTest;

clsOptions EverythingChanged() {
  clsOptions options;
  options.booSplashScreen = false;
  options.booSelectPrevWinOnStart = true;
  options.booAllowNoTextWindow = true;
  options.booAllowToolbarWindow = true;
  options.colHotKeyEnabled = 0x123456;
  options.intHotKeyModParent = 2;
  options.booHotKeyParent = {false, true, false, true, false, true, false, true, false, true};
  options.intHotKeyModAction = {4, 8};
  options.intHotKeyAction = {0x70, 0x2E};
  options.intHotKeyModGeneral = {0, 1, 2};
  options.intHotKeyGeneral = {65, 90, 0x6E};
  return options;
}

TEST_F(OptionsExchangeTest, ShowsEveryOption) {
  Record() = EverythingChanged();
  OpenDialog();
  EXPECT_EQ(Look(dialog_, "chkSplashScreen").value, 0);
  EXPECT_EQ(Look(dialog_, "chkSelectPrevWinOnStart").value, 1);
  EXPECT_EQ(Look(dialog_, "chkAllowToolbarWindow").value, 1);
  EXPECT_EQ(Look(dialog_, "chkAllowNoTextWindow").value, 1);
  EXPECT_EQ(Back("lblLegend", 1), 0x123456);
  EXPECT_EQ(Text(dialog_, "cboHotKeyModParent"), "Ctrl");
  for (int tag = 0; tag < 10; ++tag) {
    EXPECT_EQ(Look(dialog_, "chkHotKeyParent", tag).value, tag % 2) << tag;
  }
  EXPECT_EQ(Text(dialog_, "cboHotKeyModAction", 0), "Shift");
  EXPECT_EQ(Text(dialog_, "cboHotKeyModAction", 1), "Windows®");
  EXPECT_EQ(Text(dialog_, "cboHotKeyAction", 0), "F1");
  EXPECT_EQ(Text(dialog_, "cboHotKeyAction", 1), "Delete");
  EXPECT_EQ(Text(dialog_, "cboHotKeyModGeneral", 0), " ");
  EXPECT_EQ(Text(dialog_, "cboHotKeyModGeneral", 1), "Alt");
  EXPECT_EQ(Text(dialog_, "cboHotKeyModGeneral", 2), "Ctrl");
  EXPECT_EQ(Text(dialog_, "cboHotKeyGeneral", 0), "A");
  EXPECT_EQ(Text(dialog_, "cboHotKeyGeneral", 1), "Z");
  EXPECT_EQ(Text(dialog_, "cboHotKeyGeneral", 2), "Numpad .");
}

TEST_F(OptionsExchangeTest, TakesBackWhatItShows) {
  Record() = EverythingChanged();
  OpenDialog();
  clsOptions taken;
  dialog_.UpdateInto(taken);
  EXPECT_EQ(taken, EverythingChanged());
}

TEST_F(OptionsExchangeTest, TakesWhatTheUserChose) {
  OpenDialog();
  Click(dialog_, "chkHotKeyParent", 7);
  PickEntry("cboHotKeyModParent", -1, 2);
  PickEntry("cboHotKeyGeneral", 2, 0);
  PickTab(1);
  Click(dialog_, "chkSplashScreen");
  clsOptions taken;
  dialog_.UpdateInto(taken);
  clsOptions expected;
  expected.booHotKeyParent[7] = false;
  expected.intHotKeyModParent = 2;
  expected.intHotKeyGeneral[2] = 0;
  expected.booSplashScreen = false;
  EXPECT_EQ(taken, expected);
}

TEST_F(OptionsExchangeTest, LeavesTheOptionAloneThatHasNoControl) {
  OpenDialog();
  clsOptions taken;
  taken.booAllowModalFrameWindow = true;
  dialog_.UpdateInto(taken);
  EXPECT_TRUE(taken.booAllowModalFrameWindow);
}

TEST_F(OptionsExchangeTest, SelectsNothingForAValueThatIsNotInTheListAndKeepsIt) {
  Record().intHotKeyModAction[0] = 3;
  Record().intHotKeyAction[0] = '5';
  OpenDialog();
  EXPECT_EQ(user_.ListIndex(dialog_.Handle(), Id(dialog_, "cboHotKeyModAction", 0)), -1);
  EXPECT_EQ(user_.ListIndex(dialog_.Handle(), Id(dialog_, "cboHotKeyAction", 0)), -1);
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Record().intHotKeyModAction[0], 3);
  EXPECT_EQ(Record().intHotKeyAction[0], '5');
}

TEST_F(OptionsExchangeTest, FollowsTheRecordWhenItIsRefreshed) {
  OpenDialog();
  Record() = EverythingChanged();
  owner_.udmOptions("LOAD_AND_OR_REFRESH");
  EXPECT_EQ(Text(dialog_, "cboHotKeyModParent"), "Ctrl");
  EXPECT_EQ(Back("lblTagParent", 1), 0x123456);
  EXPECT_FALSE(Border("lblTagParent", 2));
}

TEST_F(OptionsExchangeTest, FillsEveryListInItsOrder) {
  OpenDialog();
  const auto entries = [this](const char* list, int index) {
    return user_.ListEntries(dialog_.Handle(), Id(dialog_, list, index));
  };
  const std::vector<std::string> modifiers = {" ", "Alt", "Ctrl", "Shift", "Windows®"};
  EXPECT_EQ(entries("cboHotKeyModParent", -1), modifiers);
  const std::vector<std::string> keys = entries("cboHotKeyAction", 0);
  ASSERT_EQ(keys.size(), 60U);
  EXPECT_EQ(keys.front(), " ");
  EXPECT_EQ(keys.at(1), "F1");
  EXPECT_EQ(keys.back(), "UpArrow");
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(entries("cboHotKeyModGeneral", i), modifiers) << i;
    EXPECT_EQ(entries("cboHotKeyGeneral", i), keys) << i;
    if (i == 2) continue;
    EXPECT_EQ(entries("cboHotKeyModAction", i), modifiers) << i;
    EXPECT_EQ(entries("cboHotKeyAction", i), keys) << i;
  }
}

}  // namespace
}  // namespace korvale

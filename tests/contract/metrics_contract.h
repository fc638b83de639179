#pragma once

#include "tests/contract/contract_fixture.h"

namespace korvale {

/// The user changes the size of all text, or what a taskbar leaves of the screen.
class MetricsContract : public FormHostContract {
 protected:
  MetricsContract() { User().ChangeTextSize(100); }

  TwipsRect OnScreen(const RecordingForm& form) { return Screen().GetWindowRect(form.Handle()); }
};

TEST_F(MetricsContract, BiggerTextEnlargesAFormThatTheUserSizesAndLeavesItsTwips) {
  strip_.Show();
  const int resizes = strip_.resizes;
  EXPECT_EQ(Screen().GetDpiOfForm(strip_.Handle()), 96);
  User().ChangeTextSize(200);
  EXPECT_EQ(Screen().GetDpiOfForm(strip_.Handle()), 192);
  EXPECT_EQ(OnScreen(strip_).width, 12000);
  EXPECT_EQ(strip_.Place(), kStripDesign.place);
  EXPECT_GT(strip_.resizes, resizes);
  User().ChangeTextSize(100);
  EXPECT_EQ(OnScreen(strip_), kStripDesign.place);
}

TEST_F(MetricsContract, BiggerTextEnlargesWhatAFormOfAFixedSizeHolds) {
  ShowForm();
  const TwipsRect before = OnScreen(form_);
  User().ChangeTextSize(150);
  EXPECT_EQ(Screen().GetDpiOfForm(Window()), 144);
  EXPECT_NEAR(OnScreen(form_).width, before.width + 3000, 15);
  User().ChangeTextSize(100);
  EXPECT_EQ(OnScreen(form_), before);
}

TEST_F(MetricsContract, BiggerTextReachesAHiddenFormWhenItIsShown) {
  strip_.Load();
  User().ChangeTextSize(200);
  EXPECT_FALSE(User().IsShown(strip_.Handle()));
  strip_.Show();
  EXPECT_EQ(OnScreen(strip_).width, 12000);
}

TEST_F(MetricsContract, BiggerTextLeavesAMaximizedFormAsItIsUntilItIsRestored) {
  strip_.Show();
  strip_.SetWindowState(ShowState::kMaximized);
  const Twips width = OnScreen(strip_).width;
  User().ChangeTextSize(200);
  EXPECT_EQ(strip_.WindowState(), ShowState::kMaximized);
  EXPECT_NEAR(OnScreen(strip_).width, width, 15);
  strip_.SetWindowState(ShowState::kNormal);
  EXPECT_EQ(OnScreen(strip_).width, 12000);
}

TEST_F(MetricsContract, BiggerTextClosesAnOpenListAndLeavesTheFocus) {
  ShowForm();
  int closed = 0;
  form_.WhenClosedUp("cboSize", [&](int) { ++closed; });
  User().OpenList(Window(), Id("cboSize"));
  User().ChangeTextSize(150);
  EXPECT_EQ(closed, 1);
  EXPECT_FALSE(User().IsListOpen(Window(), Id("cboSize")));
  EXPECT_EQ(Focus(), "cboSize");
}

TEST_F(MetricsContract, AFormAtTheRightEdgeFollowsTheWorkAreaThereAndBack) {
  strip_.Show();
  const TwipsRect area = Screen().GetMonitorInfoW(strip_.Handle());
  TwipsRect place = strip_.Place();
  place.left = area.left + area.width - place.width;
  strip_.SetPlace(place);
  if (!User().NarrowWorkArea(1500)) GTEST_SKIP() << "the monitors keep their work areas";
  EXPECT_EQ(Screen().GetMonitorInfoW(strip_.Handle()).width, area.width - 1500);
  EXPECT_EQ(strip_.Place().left, place.left - 1500);
  User().NarrowWorkArea(-1500);
  EXPECT_EQ(strip_.Place(), place);
}

}  // namespace korvale

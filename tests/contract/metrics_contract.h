#pragma once

#include <algorithm>
#include <optional>

#include "tests/contract/contract_fixture.h"
#include "ui/form_placement.h"

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

TEST_F(MetricsContract, AtEveryScaleTheTwipsStayAndTenTimesThereAndBackChangeNothing) {
  ShowForm();
  strip_.Show();
  const Twips room = Screen().GetMonitorInfoW(strip_.Handle()).width;
  const TwipsRect before = OnScreen(form_);
  for (const int percent : {125, 150, 175, 200, 250, 300}) {
    std::optional<TwipsRect> moved;
    for (int times = 0; times < (percent == 300 ? 10 : 1); ++times) {
      User().ChangeTextSize(percent);
      EXPECT_EQ(Screen().GetDpiOfForm(strip_.Handle()), 96 * percent / 100);
      EXPECT_NEAR(OnScreen(strip_).width, std::min(60 * percent, room), 15);
      EXPECT_EQ(strip_.PlaceToKeep(), kStripDesign.place);
      EXPECT_TRUE(IsInWorkArea(form_));
      User().ChangeTextSize(100);
      EXPECT_EQ(OnScreen(strip_), kStripDesign.place);
      // Where it would have hung over the edge it has been moved, once.
      const TwipsRect after = OnScreen(form_);
      EXPECT_EQ(after.width, before.width);
      EXPECT_EQ(after.height, before.height);
      EXPECT_EQ(after, moved.value_or(after));
      moved = after;
    }
  }
}

TEST_F(MetricsContract, AMaximizedFormOfOneHeightIsAsWideAsWhatTaskbarsLeave) {
  strip_.Show();
  if (!User().NarrowWorkArea(1500)) GTEST_SKIP() << "the monitors keep their work areas";
  strip_.SetSizeLimits({.minimumWidth = 1500, .height = 1500});
  strip_.SetWindowState(ShowState::kMaximized);
  // The frame may lie beyond the edges.
  EXPECT_NEAR(OnScreen(strip_).width, Screen().GetMonitorInfoW(strip_.Handle()).width, 300);
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

#include <utility>

#include "platform/win32_constants.h"
#include "tests/ui/form_test.h"

namespace korvale {
namespace {

/// Forms of a user who has made all text bigger.
class FormTextSizeTest : public FormTest {
 protected:
  /// On the screen, in twips of the usual text.
  TwipsRect OnScreen(Form& form) { return host_.GetWindowRect(form.Handle()); }

  /// 3000 by 1500 twips, 2910 by 1100 of them within the frame.
  RecordingForm dialog_{DialogDesign("frmDialog"), forms_};
};

TEST_F(FormTextSizeTest, ADialogGrowsWithTheTextAndItsFrameDoesNot) {
  host_.ChangeTextSize(200);
  dialog_.Show();
  EXPECT_EQ(OnScreen(dialog_), (TwipsRect{2100, 2100, 2 * 2910 + 90, 2 * 1100 + 400}));
  EXPECT_EQ(dialog_.Place(), (TwipsRect{2100, 2100, 3000, 1500}));
}

TEST_F(FormTextSizeTest, AnOpenDialogFollowsTheTextThereAndBack) {
  dialog_.Show();
  const TwipsRect before = OnScreen(dialog_);
  host_.ChangeTextSize(200);
  EXPECT_EQ(OnScreen(dialog_), (TwipsRect{2100, 2100, 2 * 2910 + 90, 2 * 1100 + 400}));
  host_.ChangeTextSize(100);
  EXPECT_EQ(OnScreen(dialog_), before);
  EXPECT_EQ(dialog_.Place(), (TwipsRect{2100, 2100, 3000, 1500}));
}

TEST_F(FormTextSizeTest, ADialogGrowsOnlyAsFarAsTheScreenHasRoom) {
  host_.SetWorkArea({0, 0, 4500, 11100});
  host_.ChangeTextSize(225);
  dialog_.Show();
  EXPECT_LE(OnScreen(dialog_).width, 4500);
  EXPECT_GT(OnScreen(dialog_).width, 4400);
  EXPECT_GT(OnScreen(dialog_).height, 1900);
}

TEST_F(FormTextSizeTest, ADialogThatTheScreenHasNoRoomForOpensAsItStays) {
  host_.SetWorkArea({0, 0, 4500, 11100});
  host_.ChangeTextSize(225);
  const auto width = [&] { return OnScreen(dialog_).width; };
  for (int opening = 1; opening <= 2; ++opening) {
    dialog_.Show();
    const Twips opened = width();
    host_.ChangeTextSize(225);
    EXPECT_EQ(width(), opened) << opening;
    dialog_.SetPlace({0, 0, 3300, 1500});
    const Twips sized = width();
    host_.ChangeTextSize(225);
    EXPECT_EQ(width(), sized) << opening;
    dialog_.Unload();
  }
}

TEST_F(FormTextSizeTest, ADialogThatNobodySeesGrows) {
  dialog_.Load();
  host_.ChangeTextSize(200);
  dialog_.Show();
  EXPECT_EQ(OnScreen(dialog_), (TwipsRect{2100, 2100, 2 * 2910 + 90, 2 * 1100 + 400}));
}

TEST_F(FormTextSizeTest, AnOpenDialogThatGrowsStaysWithinTheWorkArea) {
  dialog_.Show();
  user_.Drag(dialog_.Handle(), {11900, 9000, 3000, 1500});
  host_.ChangeTextSize(200);
  EXPECT_EQ(OnScreen(dialog_), (TwipsRect{15360 - 5910, 11100 - 2600, 5910, 2600}));
}

TEST_F(FormTextSizeTest, ADialogBecomesSmallerWithTheWorkAreaAndComesBack) {
  host_.ChangeTextSize(200);
  dialog_.Show();
  host_.ChangeWorkArea({0, 0, 4500, 11100});
  EXPECT_LE(OnScreen(dialog_).width, 4500);
  EXPECT_GE(OnScreen(dialog_).left, 0);
  host_.ChangeWorkArea({0, 0, 15360, 11100});
  EXPECT_EQ(OnScreen(dialog_).width, 5910);
}

TEST_F(FormTextSizeTest, AFormThatTheUserSizesKeepsItsTwips) {
  RecordingForm strip(kStripDesign, forms_);
  strip.Show();
  user_.Drag(strip.Handle(), {300, 300, 6000, strip.Place().height});
  const TwipsRect place = strip.Place();
  for (const int percent : {225, 100, 150, 100}) {
    host_.ChangeTextSize(percent);
    EXPECT_EQ(strip.Place(), place);
    EXPECT_EQ(OnScreen(strip).width, 60 * percent);
  }
}

/// A form that the user sizes, at the right edge of a screen of 15360 by 11100 twips.
class StripTextSizeTest : public FormTextSizeTest {
 protected:
  StripTextSizeTest() {
    strip_.Show();
    user_.Drag(strip_.Handle(), kAtTheRight);
  }

  static constexpr TwipsRect kAtTheRight{9360, 300, 6000, 1500};
  RecordingForm strip_{kStripDesign, forms_};
};

TEST_F(StripTextSizeTest, StaysOnTheScreenAndComesBack) {
  for (const int percent : {150, 225, 150}) {
    host_.ChangeTextSize(percent);
    EXPECT_EQ(OnScreen(strip_).left, 15360 - 60 * percent);
    EXPECT_EQ(OnScreen(strip_).width, 60 * percent);
    EXPECT_EQ(strip_.PlaceToKeep(), kAtTheRight);
  }
  host_.ChangeTextSize(100);
  EXPECT_EQ(strip_.Place(), kAtTheRight);
}

TEST_F(StripTextSizeTest, IsAsNarrowAsTheScreenWhereItMustBe) {
  user_.Drag(strip_.Handle(), {1500, 300, 9000, 1500});
  host_.ChangeTextSize(225);
  EXPECT_EQ(OnScreen(strip_).left, 0);
  EXPECT_NEAR(OnScreen(strip_).width, 15360, 2);
  EXPECT_EQ(strip_.PlaceToKeep(), (TwipsRect{1500, 300, 9000, 1500}));
  host_.ChangeTextSize(150);
  EXPECT_EQ(OnScreen(strip_).width, 13500);
  host_.ChangeTextSize(100);
  EXPECT_EQ(strip_.Place(), (TwipsRect{1500, 300, 9000, 1500}));
}

TEST_F(StripTextSizeTest, StaysBeyondTheEdgeWhereTheUserHasPutIt) {
  user_.Drag(strip_.Handle(), {12000, 300, 6000, 1500});
  host_.ChangeTextSize(150);
  EXPECT_EQ(strip_.Place(), (TwipsRect{12000, 300, 6000, 1500}));
}

TEST_F(StripTextSizeTest, ComesOntoTheScreenWhenTheEdgeBeyondWhichItStoodMovesAway) {
  user_.Drag(strip_.Handle(), {12000, 300, 6000, 1500});
  host_.ChangeWorkArea({0, 0, 10000, 11100});
  EXPECT_EQ(strip_.Place(), (TwipsRect{4000, 300, 6000, 1500}));
}

TEST_F(StripTextSizeTest, FollowsTheWorkAreaThereAndBack) {
  host_.ChangeWorkArea({0, 0, 13000, 11100});
  EXPECT_EQ(strip_.Place().left, 7000);
  host_.ChangeWorkArea({600, 0, 5400, 11100});
  EXPECT_EQ(OnScreen(strip_), (TwipsRect{600, 300, 5400, 1500}));
  host_.ChangeWorkArea({0, 0, 15360, 11100});
  EXPECT_EQ(strip_.Place(), kAtTheRight);
}

TEST_F(StripTextSizeTest, ComesBackFromAWorkAreaWithoutRoomForIt) {
  strip_.SetSizeLimits({.minimumWidth = 5800});
  host_.ChangeWorkArea({600, 0, 5400, 11100});
  EXPECT_EQ(OnScreen(strip_), (TwipsRect{600, 300, 5800, 1500}));
  host_.ChangeWorkArea({0, 0, 15360, 11100});
  EXPECT_EQ(strip_.Place(), kAtTheRight);
}

TEST_F(StripTextSizeTest, KeepsTheSizeThatTheUserGivesItMeanwhile) {
  host_.ChangeTextSize(225);
  user_.Drag(strip_.Handle(), {300, 600, 4000, 1500});
  host_.ChangeTextSize(100);
  EXPECT_EQ(strip_.Place(), (TwipsRect{300, 600, 4000, 1500}));
}

TEST_F(StripTextSizeTest, KeepsItsWidthWhereTheUserMovesItMeanwhile) {
  user_.Drag(strip_.Handle(), {1500, 300, 9000, 1500});
  host_.ChangeTextSize(225);
  TwipsRect moved = strip_.Place();
  moved.top = 3000;
  user_.Drag(strip_.Handle(), moved);
  host_.ChangeTextSize(100);
  EXPECT_EQ(strip_.Place(), (TwipsRect{0, 3000, 9000, 1500}));
}

TEST_F(StripTextSizeTest, ComesUpOnTheScreenWhenItWasMinimizedMeanwhile) {
  strip_.SetWindowState(ShowState::kMinimized);
  host_.ChangeTextSize(150);
  strip_.SetWindowState(ShowState::kNormal);
  EXPECT_EQ(OnScreen(strip_).left, 15360 - 9000);
}

TEST_F(StripTextSizeTest, OpenedAgainItStandsWhereItIsDesigned) {
  host_.ChangeTextSize(150);
  EXPECT_NE(strip_.PlaceToKeep(), strip_.Place());
  strip_.Unload();
  strip_.Load();
  EXPECT_EQ(strip_.Place(), kStripDesign.place);
  EXPECT_EQ(strip_.PlaceToKeep(), kStripDesign.place);
}

TEST_F(FormTextSizeTest, AFormMayCloseWheneverItIsToldOfItsNewSize) {
  for (const int closing : {1, 2}) {
    for (const auto& [from, to] : {std::pair(100, 225), std::pair(225, 100)}) {
      host_.ChangeTextSize(100);
      RecordingForm strip(kStripDesign, forms_);
      strip.Show();
      user_.Drag(strip.Handle(), {1500, 300, 9000, 1500});
      host_.ChangeTextSize(from);
      strip.onResize = [&, told = 0]() mutable {
        if (++told == closing) strip.Unload();
      };
      host_.ChangeTextSize(to);
      EXPECT_FALSE(strip.IsLoaded()) << closing << " at " << to;
    }
  }
}

TEST_F(FormTextSizeTest, AnOpenListClosesAndItsFormIsTold) {
  form_.Show();
  Lines told;
  form_.WhenClosedUp("cboSize", [&](int) { told.emplace_back("closed"); });
  user_.OpenList(form_.Handle(), Id(form_, "cboSize"));
  host_.ChangeTextSize(150);
  EXPECT_EQ(told, Lines{"closed"});
  EXPECT_FALSE(user_.IsListOpen(form_.Handle(), Id(form_, "cboSize")));
}

TEST_F(FormTextSizeTest, AMaximizedFormFillsTheScreenAtEverySize) {
  RecordingForm strip(kStripDesign, forms_);
  strip.Show();
  const TwipsRect place = strip.Place();
  strip.SetWindowState(ShowState::kMaximized);
  host_.ChangeTextSize(200);
  EXPECT_EQ(OnScreen(strip).width, 15360);
  EXPECT_EQ(strip.State().place.width, 15360 / 2);
  strip.SetWindowState(ShowState::kNormal);
  EXPECT_EQ(strip.Place(), place);
}

TEST_F(FormTextSizeTest, TheFocusStaysAndNoControlRaisesAnything) {
  form_.Show();
  Press(form_, win32::kVkTab);
  const std::string focus = Focus(form_);
  form_.Take();
  const int resizes = form_.resizes;
  for (int told = 1; told <= 2; ++told) {
    host_.ChangeTextSize(150);
    EXPECT_EQ(Focus(form_), focus);
    EXPECT_EQ(form_.resizes, resizes + told);
  }
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(StripTextSizeTest, GrowsOnItsOwnMonitorAlsoWhereAnotherBegins) {
  host_.SetMonitors({{{0, 0, 15360, 11100}, {0, 0, 15360, 11100}, 96},
                     {{15360, 0, 20000, 12000}, {15360, 0, 20000, 12000}, 192}});
  for (const int percent : {150, 225, 300, 200, 100}) {
    host_.ChangeTextSize(percent);
    EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 96);
    EXPECT_LE(OnScreen(strip_).left + OnScreen(strip_).width, 15360);
  }
}

}  // namespace
}  // namespace korvale

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/contract/contract_form.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/headless_form_host.h"
#include "tests/fakes/headless_user.h"
#include "tests/fakes/plain_desktop.h"

namespace korvale {
namespace {

/// A screen whose user has chosen other sizes.
class HeadlessMetricsTest : public testing::Test {
 protected:
  CallLog log_;
  PlainDesktop desktop_;
  FakeClock clock_;
  HeadlessFormHost host_{desktop_, log_};
  HeadlessUser user_{host_, clock_};
  FormCollection forms_{host_, host_, host_, clock_};
  RecordingForm strip_{kStripDesign, forms_};
};

TEST_F(HeadlessMetricsTest, BiggerTextMakesTwipsOfAFormLargerAndItsFrameNot) {
  strip_.Show();
  host_.ChangeTextSize(200);
  EXPECT_EQ(host_.GetDpiOfForm(strip_.Handle()), 192);
  EXPECT_EQ(host_.AdjustWindowRectEx(strip_.State()), (TwipsRect{23, 178, 45, 200}));
  EXPECT_EQ(host_.GetWindowRect(strip_.Handle()), (TwipsRect{1500, 900, 12000, 3000}));
  EXPECT_EQ(host_.GetTextExtentPoint32W(strip_.Handle(), "menu"), 800);
}

TEST_F(HeadlessMetricsTest, ATextThatIsTooLongHasNoWidth) {
  strip_.Show();
  host_.MeasureUpTo(4);
  EXPECT_EQ(host_.GetTextExtentPoint32W(strip_.Handle(), "menu"), 400);
  EXPECT_EQ(host_.GetTextExtentPoint32W(strip_.Handle(), "menus"), 0);
}

TEST_F(HeadlessMetricsTest, OnAFineScreenBiggerTextCountsFromItsDots) {
  host_.SetDpi(144);
  strip_.Show();
  host_.ChangeTextSize(150);
  EXPECT_EQ(host_.GetDpiOfForm(strip_.Handle()), 216);
  EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 144);
  EXPECT_EQ(host_.GetWindowRect(strip_.Handle()).width, 9000);
}

TEST_F(HeadlessMetricsTest, AFormOfAFixedSizeGrowsOnlyIntoTheWorkArea) {
  RecordingForm dialog(DialogDesign("frmDialog"), forms_);
  dialog.Show();
  host_.SetWorkArea({0, 0, 3000, 1515});
  host_.ChangeTextSize(225);
  EXPECT_EQ(host_.GetDpiOfForm(dialog.Handle()), 96);
}

TEST_F(HeadlessMetricsTest, EveryFormIsToldOnce) {
  RecordingForm dialog(DialogDesign("frmDialog"), forms_);
  strip_.Show();
  dialog.Show();
  const int strip = strip_.resizes;
  const int other = dialog.resizes;
  host_.ChangeTextSize(150);
  EXPECT_EQ(strip_.resizes, strip + 1);
  EXPECT_EQ(dialog.resizes, other + 1);
}

TEST_F(HeadlessMetricsTest, OnlyShownAlertsAreAnnounced) {
  FormDesign design = DialogDesign("frmAlert");
  design.role = FormRole::kAlert;
  design.caption = "Alert";
  RecordingForm alert(design, forms_);
  alert.Load();
  alert.Find("cmdOK").SetText("Fine");
  strip_.Show();
  EXPECT_TRUE(host_.Announced().empty());
  alert.Show();
  EXPECT_EQ(host_.Announced(), std::vector<std::string>{"Alert"});
  alert.Show();
  EXPECT_EQ(host_.Announced().size(), 1U);
}

/// A monitor of the usual dots with a finer one on its left, whose taskbar is at the top.
class HeadlessMonitorsTest : public HeadlessMetricsTest {
 protected:
  HeadlessMonitorsTest() {
    host_.SetMonitors({{{0, 0, 28800, 16200}, {0, 0, 28800, 15600}, 96},
                       {{-30000, 0, 30000, 18000}, {-30000, 1200, 30000, 16800}, 192}});
    strip_.onResize = [this] { ++told_; };
    strip_.Show();
    told_ = 0;
  }

  TwipsRect OnScreen() { return host_.GetWindowRect(strip_.Handle()); }

  int told_ = 0;
};

TEST_F(HeadlessMonitorsTest, TheUsersDragGivesAFormTheDotsOfItsMonitorAndTellsIt) {
  user_.Drag(strip_.Handle(), {-3000, 900, 6000, 1500});
  EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 96);
  EXPECT_EQ(told_, 0);
  user_.Drag(strip_.Handle(), {-3001, 900, 6000, 1500});
  EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 192);
  EXPECT_EQ(OnScreen(), (TwipsRect{-3001, 900, 12000, 3000}));
  EXPECT_EQ(strip_.Place(), (TwipsRect{-3001, 900, 6000, 1500}));
  EXPECT_EQ(told_, 1);
}

TEST_F(HeadlessMonitorsTest, ThePlaceThatTheFormGivesItselfDoesTheSame) {
  strip_.SetPlace({-29000, 1800, 6000, 1500});
  EXPECT_EQ(OnScreen(), (TwipsRect{-29000, 1800, 12000, 3000}));
  EXPECT_EQ(host_.GetMonitorInfoW(strip_.Handle()), (TwipsRect{-30000, 1200, 30000, 16800}));
  EXPECT_EQ(told_, 1);
  strip_.SetWindowState(ShowState::kMaximized);
  EXPECT_EQ(OnScreen(), (TwipsRect{-30000, 1200, 30000, 16800}));
}

TEST_F(HeadlessMonitorsTest, APlaceOnNoMonitorBelongsToTheNearest) {
  strip_.SetPlace({-90000, 20000, 6000, 1500});
  EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 192);
  strip_.SetPlace({90000, -20000, 6000, 1500});
  EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 96);
}

TEST_F(HeadlessMonitorsTest, OtherMonitorsAreToldAndTakeOverTheForms) {
  strip_.SetPlace({-29000, 1800, 6000, 1500});
  told_ = 0;
  host_.ChangeMonitors({host_.Monitors().front()});
  EXPECT_EQ(host_.GetDpiForWindow(strip_.Handle()), 96);
  EXPECT_GT(told_, 0);
}

TEST_F(HeadlessMonitorsTest, PointerAndOtherWindowsStandWhereTheyWerePut) {
  EXPECT_EQ(host_.GetDpiForMonitor(), 96);
  host_.PointAtMonitor(1);
  host_.PutOnMonitor(77, 1);
  EXPECT_EQ(host_.GetDpiForMonitor(), 192);
  EXPECT_EQ(host_.MonitorFromPoint().left, -30000);
  EXPECT_EQ(host_.GetMonitorInfoW(77).left, -30000);
  EXPECT_EQ(host_.GetMonitorInfoW(78).left, 0);
}

}  // namespace
}  // namespace korvale

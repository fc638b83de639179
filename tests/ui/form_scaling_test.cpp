#include "ui/form_scaling.h"

#include "tests/ui/form_test.h"

namespace korvale {
namespace {

using FormScalingTest = FormTest;

constexpr TwipsRect kWorkArea{1000, 0, 1920, 1040};

FormState Sizable() { return {}; }
FormState Dialog() {
  FormState form;
  form.content = {7500, 6000};
  return form;
}

TEST_F(FormScalingTest, ADialogHasItsOwnSizeOnEveryMonitor) {
  for (const bool normal : {false, true}) {
    EXPECT_TRUE(TakesOwnSize(Dialog(), normal, false)) << normal;
    EXPECT_TRUE(TakesOwnSize(Dialog(), normal, true)) << normal;
  }
}

TEST_F(FormScalingTest, WhoseSizeTheUserOrWindowsGivesKeepsThat) {
  EXPECT_TRUE(TakesOwnSize(Sizable(), true, false));
  EXPECT_FALSE(TakesOwnSize(Sizable(), true, true)) << "in the user's hand";
  EXPECT_FALSE(TakesOwnSize(Sizable(), false, false)) << "maximized or minimized";
  EXPECT_FALSE(TakesOwnSize(Sizable(), false, true));
}

TEST_F(FormScalingTest, StaysOnItsMonitorUnlessTheUserTakesItToAnother) {
  EXPECT_TRUE(StaysOnMonitor(true, ScaleCause::kScreen));
  EXPECT_TRUE(StaysOnMonitor(true, ScaleCause::kPlaced));
  EXPECT_FALSE(StaysOnMonitor(true, ScaleCause::kDragged));
  EXPECT_FALSE(StaysOnMonitor(false, ScaleCause::kScreen)) << "Windows places it";
  EXPECT_FALSE(StaysOnMonitor(false, ScaleCause::kPlaced));
  EXPECT_FALSE(StaysOnMonitor(false, ScaleCause::kDragged));
}

TEST_F(FormScalingTest, WhatGrowsOverTheEdgeOfItsMonitorIsMovedBack) {
  EXPECT_EQ(KeptOnMonitor({2400, 900, 800, 300}, kWorkArea, true),
            (TwipsRect{2120, 740, 800, 300}));
  EXPECT_EQ(KeptOnMonitor({300, -90, 800, 300}, kWorkArea, true), (TwipsRect{1000, 0, 800, 300}));
  // The work area has no room for it: its title bar stays in sight.
  EXPECT_EQ(KeptOnMonitor({900, 100, 2500, 2000}, kWorkArea, true),
            (TwipsRect{1000, 0, 2500, 2000}));
}

TEST_F(FormScalingTest, WhereTheUserPutItAcrossTheEdgeItRemains) {
  EXPECT_EQ(KeptOnMonitor({2400, 900, 800, 300}, kWorkArea, false),
            (TwipsRect{2400, 900, 800, 300}));
}

TEST_F(FormScalingTest, OnlyAScreenThatChangesBringsAFormIn) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  RecordingForm dialog(DialogDesign("frmDialog"), forms_);
  dialog.Show();
  dialog.SetPlace({8500, 100, 3000, 1500});
  TellScaled(dialog, ScaleCause::kDragged);
  TellScaled(dialog, ScaleCause::kPlaced);
  EXPECT_EQ(dialog.Place(), (TwipsRect{8500, 100, 3000, 1500}));
  TellScaled(dialog, ScaleCause::kScreen);
  EXPECT_EQ(dialog.Place(), (TwipsRect{7000, 100, 3000, 1500}));
}

}  // namespace
}  // namespace korvale

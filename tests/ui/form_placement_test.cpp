#include "ui/form_placement.h"

#include "tests/ui/form_test.h"

namespace korvale {
namespace {

using FormPlacementTest = FormTest;

TEST_F(FormPlacementTest, BringsAFormThatIsOnNoMonitorOntoTheNearestOne) {
  host_.SetWorkArea({0, 0, 10000, 8000});
  RecordingForm form(Bare("frmBare"), forms_);
  form.Load();
  const auto brought = [&](Twips left, Twips top) {
    form.SetPlace({left, top, 3000, 2000});
    BringOntoMonitor(form);
    return form.Place();
  };
  EXPECT_EQ(brought(30000, -20000), (TwipsRect{7000, 0, 3000, 2000}));
  EXPECT_EQ(brought(-2800, 8000), (TwipsRect{0, 6000, 3000, 2000}));
  EXPECT_EQ(brought(9700, 7700), (TwipsRect{9700, 7700, 3000, 2000}));
  EXPECT_EQ(brought(9701, 7700), (TwipsRect{7000, 6000, 3000, 2000}));
  EXPECT_EQ(brought(-2700, -100), (TwipsRect{-2700, -100, 3000, 2000}));
  EXPECT_EQ(brought(4000, -101), (TwipsRect{4000, 0, 3000, 2000}));
}

}  // namespace
}  // namespace korvale

#include <array>

#include "platform/win32_constants.h"
#include "tests/ui/form_test.h"

namespace korvale {
namespace {

constexpr std::array kTwoGroups = {
    ControlRow{ControlKind::kFrame, "fraA", -1, "A", "", {0, 0, 1500, 900}},
    ControlRow{ControlKind::kOptionButton, "optA", 0, "a0", "", {0, 0, 900, 300}, "fraA"},
    ControlRow{ControlKind::kOptionButton, "optA", 1, "a1", "", {0, 300, 900, 300}, "fraA"},
    ControlRow{ControlKind::kFrame, "fraB", -1, "B", "", {0, 1200, 1500, 900}},
    ControlRow{ControlKind::kOptionButton, "optB", 0, "b0", "", {0, 0, 900, 300}, "fraB"},
    ControlRow{ControlKind::kOptionButton, "optB", 1, "b1", "", {0, 300, 900, 300}, "fraB"},
};

class OptionGroupTest : public FormTest {
 protected:
  OptionGroupTest() {
    groups_.Show();
    groups_.Find("optA", 1).SetValue(1);
    groups_.Find("optB", 0).SetValue(1);
    groups_.Take();
  }

  int FocusId() { return user_.Focus(groups_.Handle()); }

  RecordingForm groups_{
      {.name = "frmGroups", .caption = "", .place = {0, 0, 3000, 3000}, .controls = kTwoGroups},
      forms_};
};

TEST_F(OptionGroupTest, OptionsOfAnotherFrameKeepTheirMark) {
  EXPECT_EQ(groups_.Find("optA", 1).Value(), 1);
  Click(groups_, "optB", 1);
  EXPECT_EQ(groups_.Find("optA", 1).Value(), 1);
  EXPECT_EQ(groups_.Find("optB", 0).Value(), 0);
}

TEST_F(OptionGroupTest, ClickingTheChosenOptionRaisesNothing) {
  Click(groups_, "optA", 1);
  EXPECT_EQ(groups_.Take(), Lines{});
}

TEST_F(OptionGroupTest, EachGroupIsOneTabStop) {
  groups_.Find("optA", 1).SetFocus();
  Press(groups_, win32::kVkTab);
  EXPECT_EQ(FocusId(), Id(groups_, "optB", 0));
  Press(groups_, win32::kVkTab);
  EXPECT_EQ(FocusId(), Id(groups_, "optA", 1));
}

TEST_F(OptionGroupTest, ArrowsStayInTheirGroup) {
  groups_.Find("optA", 1).SetFocus();
  Press(groups_, win32::kVkDown);
  EXPECT_EQ(FocusId(), Id(groups_, "optA", 0));
  EXPECT_EQ(groups_.Take(), Lines{"click optA(0)"});
  EXPECT_EQ(groups_.Find("optB", 0).Value(), 1);
}

TEST_F(OptionGroupTest, TheFocusIsThereWhenItsClickIsRaised) {
  groups_.Find("optA", 1).SetFocus();
  int focus = 0;
  groups_.onClick = [&](const std::string&) { focus = FocusId(); };
  Press(groups_, win32::kVkDown);
  EXPECT_EQ(focus, Id(groups_, "optA", 0));
}

}  // namespace
}  // namespace korvale

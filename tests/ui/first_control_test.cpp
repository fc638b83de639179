#include <array>

#include "platform/win32_constants.h"
#include "tests/ui/form_test.h"

namespace korvale {
namespace {

/// Forms whose first control is one that the user works with.
class FirstControlTest : public FormTest {
 protected:
  static FormDesign With(std::span<const ControlRow> controls) {
    FormDesign design = Bare("frmFirst");
    design.controls = controls;
    return design;
  }
  bool IsDrawnAsDefault(Form& form, std::string_view name) {
    return (Look(form, name).flags & kDefaultButton) != 0;
  }
};

TEST_F(FirstControlTest, AButtonIsTheDefaultWhileItHasTheFocus) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kButton, "cmdA", -1, "&A", "", {0, 0, 900, 300}},
      MakeRow(ControlKind::kButton, "cmdB", -1, "&B", "", {0, 300, 900, 300}, kDefaultButton),
  };
  RecordingForm form(With(kControls), forms_);
  form.Show();
  EXPECT_EQ(Focus(form), "cmdA");
  EXPECT_TRUE(IsDrawnAsDefault(form, "cmdA"));
  EXPECT_FALSE(IsDrawnAsDefault(form, "cmdB"));
  Press(form, win32::kVkReturn);
  EXPECT_EQ(form.Take(), Lines{"click cmdA"});
  Click(form, "cmdA");
  EXPECT_EQ(form.Take(), Lines{"click cmdA"});
  RecordingForm beside(With(kControls), forms_);
  beside.ShowInactive();
  EXPECT_TRUE(IsDrawnAsDefault(beside, "cmdA"));
}

TEST_F(FirstControlTest, AccessKeysReachBothControlsFromEither) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kButton, "cmdA", -1, "&A", "", {0, 0, 900, 300}},
      ControlRow{ControlKind::kButton, "cmdB", -1, "&B", "", {0, 300, 900, 300}},
  };
  RecordingForm form(With(kControls), forms_);
  form.Show();
  form.onClick = [&](const std::string& name) { EXPECT_EQ(Focus(form), name); };
  for (const char key : {'A', 'A', 'B', 'B', 'A'}) Press(form, key, kAlt);
  EXPECT_EQ(form.Take(),
            (Lines{"click cmdA", "click cmdA", "click cmdB", "click cmdB", "click cmdA"}));
}

TEST_F(FirstControlTest, AnOpenListKeepsEnter) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kDropDownList, "cboA", -1, "", "", {0, 0, 900, 300}},
      MakeRow(ControlKind::kButton, "cmdB", -1, "B", "", {0, 300, 900, 300}, kDefaultButton),
  };
  RecordingForm form(With(kControls), forms_);
  form.Show();
  form.Find("cboA").AddItem("one");
  Press(form, win32::kVkF4);
  ASSERT_TRUE(user_.IsListOpen(form.Handle(), Id(form, "cboA")));
  Press(form, win32::kVkReturn);
  EXPECT_EQ(form.Take(), Lines{});
  Press(form, win32::kVkReturn);
  EXPECT_EQ(form.Take(), Lines{"click cmdB"});
}

TEST_F(FirstControlTest, ArrowsAndTabLeaveAnOption) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kOptionButton, "optA", 0, "a0", "", {0, 0, 900, 300}},
      ControlRow{ControlKind::kOptionButton, "optA", 1, "a1", "", {0, 300, 900, 300}},
      ControlRow{ControlKind::kTextBox, "txtB", -1, "", "", {0, 600, 900, 300}},
  };
  RecordingForm form(With(kControls), forms_);
  form.Show();
  EXPECT_EQ(user_.Focus(form.Handle()), Id(form, "optA", 0));
  Press(form, win32::kVkTab);
  EXPECT_EQ(Focus(form), "txtB");
  Press(form, win32::kVkTab, kShift);
  EXPECT_EQ(user_.Focus(form.Handle()), Id(form, "optA", 0));
  Press(form, win32::kVkDown);
  EXPECT_EQ(form.Take(), Lines{"click optA(1)"});
}

TEST_F(FirstControlTest, ATextTakesLettersAndGivesTheFocusOnWhenItGoes) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kTextBox, "txtA", -1, "", "", {0, 0, 900, 300}},
      ControlRow{ControlKind::kButton, "cmdB", -1, "&B", "", {0, 300, 900, 300}},
      ControlRow{ControlKind::kButton, "cmdC", -1, "&C", "", {0, 600, 900, 300}},
  };
  RecordingForm form(With(kControls), forms_);
  form.Show();
  user_.TypeText(form.Handle(), "b");
  EXPECT_EQ(form.Take(), Lines{"click txtA"});
  EXPECT_EQ(form.Find("txtA").Text(), "b");
  log_.IncludeReads(true);
  log_.Clear();
  form.Find("txtA").SetVisible(false);
  form.Find("cmdB").SetEnabled(false);
  EXPECT_EQ(Focus(form), "cmdC");
  EXPECT_EQ(
      log_.Calls(),
      (Lines{"UpdateControl(frmFirst, cmdB, kDefault)", "SetFocus(frmFirst, cmdB)",
             "UpdateControl(frmFirst, txtA, kVisible)", "UpdateControl(frmFirst, cmdB, kDefault)",
             "UpdateControl(frmFirst, cmdC, kDefault)", "SetFocus(frmFirst, cmdC)",
             "UpdateControl(frmFirst, cmdB, kEnabled)"}));
}

}  // namespace
}  // namespace korvale

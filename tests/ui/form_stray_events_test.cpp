#include "tests/ui/form_test.h"

namespace korvale {
namespace {

using FormStrayEventsTest = FormTest;

void TellAll(Form& form, int control) {
  form.OnClick(control);
  form.OnTextTyped(control, "typed");
  form.OnListPicked(control, 0);
  form.OnListDropDown(control);
  form.OnListClosedUp(control);
  form.OnKeyDown(control, 'A', kNoShift, false);
  form.OnKeyUp(control, 'A', kNoShift);
  form.OnCharacter(control, U'\u00E4', kNoShift);
  form.OnMouse(control, {});
  form.OnFocusMoved(control);
  form.OnTimer(control);
}

TEST_F(FormStrayEventsTest, NumbersOfNoControlAreIgnored) {
  form_.Show();
  form_.Take();
  const int focused = form_.FocusedControl();
  for (const int control : {-1, 19, 1000, 2147483647, -2147483647}) {
    EXPECT_NO_THROW(TellAll(form_, control)) << control;
  }
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(form_.FocusedControl(), focused);
}

TEST_F(FormStrayEventsTest, AnEntryThatTheListDoesNotHaveIsNotPicked) {
  form_.Show();
  Control& list = form_.Find("cboSize");
  list.AddItem("one");
  list.AddItem("two");
  list.SetListIndex(1);
  form_.Take();
  form_.OnListPicked(list.Id(), 2);
  form_.OnListPicked(list.Id(), 2147483647);
  EXPECT_EQ(list.ListIndex(), 1);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormStrayEventsTest, ATickOfWhatIsNoTimerClicksNothing) {
  form_.Show();
  form_.Take();
  form_.OnTimer(Id(form_, "cmdGo"));
  EXPECT_EQ(form_.Take(), Lines{});
}

}  // namespace
}  // namespace korvale

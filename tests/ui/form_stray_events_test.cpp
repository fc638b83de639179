#include <stdexcept>

#include "platform/win32_constants.h"
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
  form_.logsMouse = true;
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

TEST_F(FormStrayEventsTest, AnEntryOfAnotherProgramIsTakenOutOfTheList) {
  form_.Show();
  form_.Find("cboSize").AddItem("one");
  log_.IncludeReads(true);
  log_.Clear();
  form_.OnListPicked(Id(form_, "cboSize"), 1);
  EXPECT_EQ(log_.Calls(), Lines{"UpdateControl(frmContract, cboSize, kItems)"});
}

TEST_F(FormStrayEventsTest, TextThatIsThereAlreadyWasNotTyped) {
  form_.Show();
  form_.Find("txtName").SetText("name");
  form_.OnTextTyped(Id(form_, "txtName"), "name");
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormStrayEventsTest, BelowABoxItIsNotShownAgain) {
  form_.Show();
  form_.Find("txtName").SetText("name");
  log_.IncludeReads(true);
  host_.WhenMessageBox([&](const ShownMessage&) {
    log_.Clear();
    form_.OnTextTyped(Id(form_, "txtName"), "name");
    EXPECT_EQ(log_.CallsOf("UpdateControl"), Lines{}) << "which Windows would tell without end";
    return win32::kIdOk;
  });
  host_.MessageBoxW(form_.Handle(), "text", "title", win32::kMbOk);
}

TEST_F(FormStrayEventsTest, APressBesideTheControlsMeansNothing) {
  form_.Show();
  form_.logsMouse = true;
  form_.OnMouse(0, {MouseEvent::kDown, MouseButton::kLeft});
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormStrayEventsTest, ATickOfWhatIsNoTimerClicksNothing) {
  form_.Show();
  form_.Take();
  form_.OnTimer(Id(form_, "cmdGo"));
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormStrayEventsTest, AFormBelowABoxTakesNoInput) {
  form_.Show();
  form_.Find("cboSize").AddItem("one");
  form_.Find("txtName").SetText("name");
  form_.Take();
  bool asked = false;
  form_.onMouse = [&](const MouseInput&) { asked = true; };
  form_.onKeyUp = [&](int&, unsigned) { asked = true; };
  host_.WhenMessageBox([&](const ShownMessage&) {
    for (const Control& control : form_.Controls()) {
      const bool timer = control.State().kind == ControlKind::kTimer;
      if (!timer) TellAll(form_, control.Id());
      EXPECT_TRUE(form_.OnKeyDown(control.Id(), win32::kVkReturn, kNoShift, false));
      EXPECT_TRUE(form_.OnKeyUp(control.Id(), win32::kVkReturn, kNoShift));
      EXPECT_TRUE(form_.OnCharacter(control.Id(), U'x', kNoShift));
    }
    form_.OnMenuClicked(form_.Menu("mnuFileOpen"));
    form_.OnCloseRequested(CloseReason::kUser);
    return win32::kIdOk;
  });
  host_.MessageBoxW(form_.Handle(), "text", "title", win32::kMbOk);
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_FALSE(asked);
  EXPECT_EQ(form_.Find("txtName").Text(), "name");
  EXPECT_EQ(Look(form_, "txtName").text, "name");
  EXPECT_EQ(form_.Find("cboSize").ListIndex(), -1);
  EXPECT_EQ(form_.Find("chkDaily").Value(), 0);
  ASSERT_TRUE(form_.IsLoaded());
  Click(form_, "cmdStay");
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

/// The form's handlers fail at one kind of mouse event.
class FormWithFailingMouseTest : public FormTest {
 protected:
  FormWithFailingMouseTest() {
    form_.Show();
    form_.Take();
    forms_.SetUncaughtHandler([this] { ++errors_; });
  }

  void FailAt(MouseEvent event) {
    form_.onMouse = [event](const MouseInput& input) {
      if (input.event == event) throw std::runtime_error("mouse");
    };
  }
  void Tell(std::string_view name, MouseEvent event) {
    const int control = Id(form_, name);
    host_.Tell(form_.Handle(), [&](FormEvents& events) {
      events.OnMouse(control, {event, MouseButton::kLeft});
    });
  }

  int errors_ = 0;
};

TEST_F(FormWithFailingMouseTest, AnErrorWhileTheButtonGoesDownLeavesTheClick) {
  FailAt(MouseEvent::kDown);
  Click(form_, "lblClick");
  EXPECT_EQ(form_.Take(), Lines{"click lblClick"});
  EXPECT_EQ(errors_, 1);
}

TEST_F(FormWithFailingMouseTest, AnErrorWhileTheButtonGoesDownElsewhereLeavesNoFormerPress) {
  Tell("lblClick", MouseEvent::kDown);
  FailAt(MouseEvent::kDown);
  Tell("txtName", MouseEvent::kDown);
  Tell("lblClick", MouseEvent::kUp);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormWithFailingMouseTest, AnErrorWhileTheButtonComesUpEndsTheClick) {
  FailAt(MouseEvent::kUp);
  Click(form_, "lblClick");
  form_.onMouse = nullptr;
  Tell("lblClick", MouseEvent::kUp);
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(errors_, 1);
  Click(form_, "lblClick");
  EXPECT_EQ(form_.Take(), Lines{"click lblClick"});
}

TEST_F(FormStrayEventsTest, AnErrorAtTheReleaseOfAltLeavesNothingForItsNextRelease) {
  form_.Show();
  form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
  EXPECT_TRUE(form_.OnKeyDown(0, 'S', kAlt, false));
  form_.onKeyUp = [](int&, unsigned) { throw std::runtime_error("key"); };
  EXPECT_THROW(form_.OnKeyUp(0, win32::kVkMenu, kNoShift), std::runtime_error);
  form_.onKeyUp = nullptr;
  EXPECT_FALSE(form_.OnKeyUp(0, win32::kVkMenu, kNoShift));
}

TEST_F(FormStrayEventsTest, AltThatWasReleasedInAnotherWindowLeavesNothingForItsNextPress) {
  form_.Show();
  form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
  EXPECT_TRUE(form_.OnKeyDown(0, 'S', kAlt, false));
  form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
  EXPECT_FALSE(form_.OnKeyUp(0, win32::kVkMenu, kNoShift));
}

TEST_F(FormStrayEventsTest, AKeyThatDidNothingWithAltTakesNothingBack) {
  form_.Show();
  form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
  EXPECT_TRUE(form_.OnKeyDown(0, 'S', kAlt, false));
  EXPECT_FALSE(form_.OnKeyDown(0, 'Z', kAlt, false));
  EXPECT_TRUE(form_.OnKeyUp(0, win32::kVkMenu, kNoShift));
}

}  // namespace
}  // namespace korvale

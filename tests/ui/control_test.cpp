#include "ui/control.h"

#include "platform/run_time_error.h"
#include "tests/fakes/error_of.h"
#include "tests/ui/form_test.h"

namespace korvale {
namespace {

class ControlTest : public FormTest {
 protected:
  ControlTest() {
    log_.IncludeReads(true);
    log_.Clear();
  }

  Control& list_ = Loaded().Find("cboSize");

 private:
  Form& Loaded() {
    form_.Load();
    return form_;
  }
};

TEST_F(ControlTest, SettingWhatIsAlreadySetDoesNothing) {
  Control& check = form_.Find("chkDaily");
  check.SetText(check.Text());
  check.SetVisible(true);
  check.SetEnabled(true);
  check.SetValue(0);
  check.SetPlace(check.Place());
  check.SetBackColor(check.State().backColor);
  check.SetForeColor(check.State().foreColor);
  check.SetBorder(false);
  list_.SetListIndex(-1);
  list_.Clear();
  EXPECT_EQ(log_.Calls(), Lines{});
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ControlTest, EachChangeIsShown) {
  Control& label = form_.Find("lblName");
  label.SetBackColor(0x112233);
  label.SetForeColor(255);
  label.SetBorder(true);
  label.SetHeight(510);
  const ControlState& shown = Look(form_, "lblName");
  EXPECT_EQ(shown.backColor, 0x112233);
  EXPECT_EQ(shown.foreColor, 255);
  EXPECT_TRUE(shown.border);
  EXPECT_EQ(shown.place.height, 510);
  EXPECT_EQ(log_.Calls(), (Lines{"UpdateControl(frmContract, lblName, kColors)",
                                 "UpdateControl(frmContract, lblName, kColors)",
                                 "UpdateControl(frmContract, lblName, kBorder)",
                                 "UpdateControl(frmContract, lblName, kPlace)"}));
}

TEST_F(ControlTest, AnyValueButZeroIsChosen) {
  form_.Find("chkDaily").SetValue(-1);
  EXPECT_EQ(form_.Find("chkDaily").Value(), 1);
  form_.Take();
  form_.Find("chkDaily").SetValue(2);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ControlTest, AValueIsShownBeforeItsClickIsRaised) {
  Lines shown;
  form_.onClick = [&](const std::string&) { shown = log_.Calls(); };
  form_.Find("chkDaily").SetValue(1);
  EXPECT_EQ(shown, Lines{"UpdateControl(frmContract, chkDaily, kValue)"});
  list_.AddItem("one");
  log_.Clear();
  list_.SetListIndex(0);
  EXPECT_EQ(shown, Lines{"UpdateControl(frmContract, cboSize, kListIndex)"});
}

TEST_F(ControlTest, ValuesSetByCodeRaiseClick) {
  form_.Find("chkDaily").SetValue(1);
  form_.Find("optColor", 1).SetValue(1);
  form_.Find("optColor", 2).SetValue(1);
  EXPECT_EQ(form_.Take(), (Lines{"click chkDaily", "click optColor(1)", "click optColor(2)"}));
}

TEST_F(ControlTest, UnchoosingAnOptionByCodeRaisesNothing) {
  form_.Find("optColor", 1).SetValue(1);
  form_.Take();
  form_.Find("optColor", 1).SetValue(0);
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(Look(form_, "optColor", 1).value, 0);
}

TEST_F(ControlTest, NeighboursAreUnchosenBeforeTheClickIsRaised) {
  form_.Find("optColor", 0).SetValue(1);
  int chosen = -1;
  form_.onClick = [&](const std::string&) {
    chosen = form_.Find("optColor", 0).Value() * 10 + form_.Find("optColor", 2).Value();
  };
  form_.Find("optColor", 2).SetValue(1);
  EXPECT_EQ(chosen, 1);
}

TEST_F(ControlTest, AChosenEntryGivesItsTextAndData) {
  EXPECT_EQ(list_.SelectedItemData(), 0);
  EXPECT_EQ(list_.SelectedText(), "");
  list_.AddItem("one", 10);
  list_.AddItem("two", 20);
  list_.SetListIndex(1);
  EXPECT_EQ(list_.SelectedItemData(), 20);
  EXPECT_EQ(list_.SelectedText(), "two");
  list_.AddItem("three");
  EXPECT_EQ(list_.Items()[2].itemData, 0);
  EXPECT_EQ(form_.Take(), Lines{"click cboSize"});
}

TEST_F(ControlTest, AnEntryThatDoesNotExistCannotBeChosenOrChanged) {
  list_.AddItem("one");
  for (const int index : {1, -2}) {
    EXPECT_EQ(ErrorOf([&] { list_.SetListIndex(index); }), 380) << index;
  }
  EXPECT_THROW(list_.SetItemText(1, "x"), RunTimeError);
  EXPECT_THROW(list_.SetItemText(-1, "x"), RunTimeError);
}

TEST_F(ControlTest, ClearingAListUnselectsWithoutAClick) {
  list_.AddItem("one");
  list_.SetListIndex(0);
  form_.Take();
  list_.Clear();
  EXPECT_EQ(list_.ListIndex(), -1);
  EXPECT_TRUE(list_.Items().empty());
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ControlTest, ChangingAnEntryToItsOwnTextShowsNothing) {
  list_.AddItem("one");
  log_.Clear();
  list_.SetItemText(0, "one");
  EXPECT_EQ(log_.Calls(), Lines{});
  list_.SetItemText(0, "1");
  EXPECT_EQ(log_.Calls(), Lines{"UpdateControl(frmContract, cboSize, kItems)"});
}

TEST_F(ControlTest, TheFirstTabOfAStripIsChosen) {
  Control& tabs = form_.Find("tabPages");
  tabs.AddItem("One");
  tabs.AddItem("Two");
  EXPECT_EQ(tabs.ListIndex(), 0);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ControlTest, AComboBoxShowsItsChoiceAsText) {
  Control& combo = form_.Find("cboPlace");
  combo.AddItem("Here");
  combo.SetListIndex(0);
  EXPECT_EQ(combo.Text(), "Here");
  EXPECT_EQ(Look(form_, "cboPlace").text, "Here");
}

TEST_F(ControlTest, TypingIntoAComboBoxUnselectsItsEntry) {
  Control& combo = form_.Find("cboPlace");
  combo.AddItem("Here");
  combo.SetListIndex(0);
  form_.Show();
  combo.SetFocus();
  form_.onClick = [&](const std::string&) { EXPECT_EQ(combo.ListIndex(), -1); };
  user_.TypeText(form_.Handle(), "x");
  EXPECT_EQ(combo.ListIndex(), -1);
  EXPECT_EQ(combo.Text(), "xHere");
}

TEST_F(ControlTest, ATimerNeedsAnIntervalAndBeingEnabled) {
  Control& timer = form_.Find("tmrTick");
  const auto interval = [&] { return clock_.IntervalOf(form_.Handle(), timer.Id()); };
  timer.SetEnabled(true);
  EXPECT_EQ(interval(), std::nullopt);
  timer.SetInterval(100);
  EXPECT_EQ(interval(), 100U);
  timer.SetInterval(3);
  EXPECT_EQ(interval(), 10U);
  timer.SetInterval(0);
  EXPECT_EQ(interval(), std::nullopt);
  timer.SetInterval(200);
  timer.SetEnabled(false);
  EXPECT_EQ(interval(), std::nullopt);
}

TEST_F(ControlTest, SettingTheIntervalStartsARunningTimerAnew) {
  Control& timer = form_.Find("tmrTick");
  timer.SetInterval(100);
  timer.SetEnabled(true);
  clock_.Advance(90);
  timer.SetInterval(100);
  clock_.Advance(90);
  EXPECT_EQ(form_.Take(), Lines{});
  clock_.Advance(10);
  EXPECT_EQ(form_.Take(), Lines{"click tmrTick"});
}

TEST_F(ControlTest, ATickOfAnotherProgramDoesNotDelayTheNextOne) {
  Control& timer = form_.Find("tmrTick");
  timer.SetInterval(100);
  timer.SetEnabled(true);
  clock_.Advance(90);
  form_.OnTimer(timer.Id());
  form_.Take();
  clock_.Advance(10);
  EXPECT_EQ(form_.Take(), Lines{"click tmrTick"});
}

TEST_F(ControlTest, APausedTimerIsStoppedByTheTickThatIsDropped) {
  Control& timer = form_.Find("tmrTick");
  timer.SetInterval(100);
  timer.SetEnabled(true);
  timer.Pause();
  EXPECT_FALSE(timer.Enabled());
  EXPECT_TRUE(clock_.AnyTimerOf(form_.Handle()));
  clock_.Advance(100);
  EXPECT_FALSE(clock_.AnyTimerOf(form_.Handle()));
  clock_.Advance(1000);
  EXPECT_EQ(form_.Take(), Lines{});
  timer.SetEnabled(true);
  clock_.Advance(100);
  EXPECT_EQ(form_.Take(), Lines{"click tmrTick"});
}

TEST_F(ControlTest, ThatATimerIsPausedIsNotToldToWindows) {
  Control& timer = form_.Find("tmrTick");
  timer.SetInterval(100);
  timer.SetEnabled(true);
  timer.Pause();
  timer.SetInterval(200);
  EXPECT_EQ(clock_.IntervalOf(form_.Handle(), timer.Id()), 100U);
  timer.SetEnabled(true);
  EXPECT_EQ(clock_.IntervalOf(form_.Handle(), timer.Id()), 200U);
}

TEST_F(ControlTest, OnlyATimerCanPause) {
  Control& check = form_.Find("chkDaily");
  EXPECT_EQ(ErrorOf([&] { check.Pause(); }), 5);
  EXPECT_TRUE(check.Enabled());
}

TEST_F(ControlTest, ATickOnItsWayToADisabledTimerIsDropped) {
  form_.OnTimer(Id(form_, "tmrTick"));
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(ControlTest, SelectionsOfAFormThatIsNotLoadedAreEmpty) {
  form_.Unload();
  form_.Find("txtName").SetSelection({1, 2});
  EXPECT_EQ(form_.Find("txtName").Selection().length, 0);
}

TEST_F(ControlTest, ATagBelongsToTheProgram) {
  form_.Find("tmrTick").SetTag("ON");
  EXPECT_EQ(form_.Find("tmrTick").Tag(), "ON");
}

TEST_F(ControlTest, ALabelIsClickedWhenTheLeftButtonGoesDownAndComesUpOnIt) {
  const int label = Id(form_, "lblClick");
  const auto press = [&](MouseButton button, int down, int up) {
    form_.OnMouse(down, {MouseEvent::kDown, button});
    form_.OnMouse(up, {MouseEvent::kUp, button});
    return form_.Take();
  };
  EXPECT_EQ(press(MouseButton::kLeft, label, label), Lines{"click lblClick"});
  form_.OnMouse(Id(form_, "lblName"), {MouseEvent::kUp, MouseButton::kLeft});
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(press(MouseButton::kRight, label, label), Lines{});
  EXPECT_EQ(press(MouseButton::kLeft, label, 0), Lines{});
  EXPECT_EQ(press(MouseButton::kLeft, Id(form_, "lblName"), label), Lines{});
  const int box = Id(form_, "txtName");
  EXPECT_EQ(press(MouseButton::kLeft, box, box), Lines{});
}

}  // namespace
}  // namespace korvale

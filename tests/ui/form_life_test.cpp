#include <array>

#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/fakes/error_of.h"
#include "tests/ui/form_test.h"

namespace korvale {
namespace {

using FormLifeTest = FormTest;

TEST_F(FormLifeTest, LoadingMakesAHiddenWindowAndRunsTheLoadHandlerOnce) {
  int loads = 0;
  form_.onLoad = [&] { ++loads; };
  EXPECT_FALSE(form_.IsLoaded());
  form_.Load();
  form_.Load();
  EXPECT_EQ(loads, 1);
  EXPECT_TRUE(form_.IsLoaded());
  EXPECT_FALSE(form_.Visible());
  EXPECT_EQ(log_.Calls(), Lines{"CreateWindowExW(frmContract)"});
}

TEST_F(FormLifeTest, AnErrorInTheLoadHandlerUnloadsTheFormAndGoesOn) {
  form_.onLoad = [] { throw RunTimeError(RunTimeError::kInternalError); };
  EXPECT_THROW(form_.Show(), RunTimeError);
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_FALSE(IsFormLoaded(forms_, "frmContract"));
}

TEST_F(FormLifeTest, AFormThatUnloadsItselfWhileLoadingIsNotShown) {
  form_.onLoad = [&] { form_.Unload(); };
  form_.Show();
  EXPECT_FALSE(form_.IsLoaded());
  form_.ShowModal();
  EXPECT_EQ(form_.resizes, 0);
  EXPECT_EQ(log_.CallsOf("ShowWindow"), Lines{});
}

TEST_F(FormLifeTest, AFormThatUnloadsItselfInItsFirstResizeIsNotShown) {
  class Shy : public Form {
   public:
    using Form::Form;
    void Form_Resize() override { Unload(); }
  };
  Shy shy(Bare("frmShy"), forms_);
  shy.Show();
  EXPECT_EQ(log_.CallsOf("ShowWindow"), Lines{});
}

TEST_F(FormLifeTest, AFormIsLaidOutBeforeItIsSeen) {
  bool seen = true;
  form_.onResize = [&] { seen = form_.Visible(); };
  form_.Show();
  EXPECT_FALSE(seen);
}

TEST_F(FormLifeTest, LoadingAgainStartsFromTheDesign) {
  form_.Load();
  form_.SetCaption("other");
  form_.Find("txtName").SetText("typed");
  form_.Menu("mnuFileOpen").checked = true;
  form_.Unload();
  EXPECT_EQ(form_.Find("txtName").Text(), "typed");
  form_.Load();
  EXPECT_EQ(form_.Caption(), "Contract");
  EXPECT_EQ(form_.Find("txtName").Text(), "");
  EXPECT_FALSE(form_.Menu("mnuFileOpen").checked);
}

TEST_F(FormLifeTest, AFormThatIsOpenedAgainRemembersNothingOfTheUser) {
  form_.Show();
  form_.Find("cmdStay").SetFocus();
  form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
  EXPECT_TRUE(form_.OnKeyDown(0, 'S', kAlt, false));
  form_.OnMouse(Id(form_, "lblClick"), {MouseEvent::kDown, MouseButton::kLeft});
  form_.Unload();
  form_.Load();
  EXPECT_EQ(form_.FocusedControl(), 0);
  form_.Show();
  form_.Take();
  EXPECT_EQ(form_.resizes, 2) << "once for each opening";
  EXPECT_EQ(Focus(form_), "txtName");
  EXPECT_FALSE(form_.OnKeyUp(0, win32::kVkMenu, kNoShift));
  for (const char* const label : {"lblClick", "lblName"}) {
    form_.OnMouse(Id(form_, label), {MouseEvent::kUp, MouseButton::kLeft});
  }
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormLifeTest, UnloadingAsksThenRunsTheHandlerAndDestroysTheWindow) {
  form_.Show();
  form_.Take();
  EXPECT_TRUE(form_.Unload());
  EXPECT_EQ(form_.closeReasons, std::vector<CloseReason>{CloseReason::kCode});
  EXPECT_EQ(form_.Take(), Lines{"unload"});
  EXPECT_EQ(log_.Calls().back(), "DestroyWindow(frmContract)");
  EXPECT_FALSE(form_.Visible());
  EXPECT_TRUE(form_.Unload());
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormLifeTest, ARefusalKeepsTheForm) {
  form_.refusesToClose = true;
  form_.Show();
  EXPECT_FALSE(form_.Unload(CloseReason::kSession));
  EXPECT_EQ(form_.closeReasons, std::vector<CloseReason>{CloseReason::kSession});
  EXPECT_TRUE(form_.IsLoaded());
  EXPECT_EQ(form_.Take(), Lines{});
  form_.refusesToClose = false;
  EXPECT_TRUE(form_.Unload());
}

TEST_F(FormLifeTest, ACloseHandlerMayUnloadTheFormOnceMore) {
  class Closing : public Form {
   public:
    using Form::Form;
    int asked = 0;
    int unloaded = 0;
    void Form_QueryUnload(bool& /*cancel*/, CloseReason /*reason*/) override {
      ++asked;
      Unload();
    }
    void Form_Unload() override {
      ++unloaded;
      EXPECT_TRUE(IsLoaded());
      Unload();
    }
  };
  Closing form(Bare("frmClosing"), forms_);
  form.Show();
  form.Unload();
  EXPECT_EQ(form.asked, 1);
  EXPECT_EQ(form.unloaded, 1);
  EXPECT_EQ(log_.CallsOf("DestroyWindow").size(), 1U);
}

TEST_F(FormLifeTest, AnErrorInTheCloseHandlerLeavesAFormThatCanBeClosed) {
  class Failing : public Form {
   public:
    using Form::Form;
    bool fails = true;
    void Form_QueryUnload(bool& /*cancel*/, CloseReason /*reason*/) override {
      if (fails) throw RunTimeError(RunTimeError::kInternalError);
    }
  };
  Failing form(Bare("frmFailing"), forms_);
  form.Show();
  EXPECT_THROW(form.Unload(), RunTimeError);
  EXPECT_TRUE(form.IsLoaded());
  form.fails = false;
  EXPECT_TRUE(form.Unload());
}

TEST_F(FormLifeTest, TimersEndWithTheForm) {
  form_.Load();
  form_.Find("tmrTick").SetInterval(100);
  form_.Find("tmrTick").SetEnabled(true);
  const WindowHandle window = form_.Handle();
  EXPECT_TRUE(clock_.AnyTimerOf(window));
  form_.Unload();
  EXPECT_FALSE(clock_.AnyTimerOf(window));
}

TEST_F(FormLifeTest, AFormThatGoesOutOfScopeTakesItsWindowAlong) {
  {
    RecordingForm other(DialogDesign("frmOther"), forms_);
    other.Show();
  }
  EXPECT_EQ(log_.Calls().back(), "DestroyWindow(frmOther)");
  EXPECT_FALSE(IsFormLoaded(forms_, "frmOther"));
}

TEST_F(FormLifeTest, WhatTheDesignDoesNotHaveCannotBeFound) {
  const Form& form = form_;
  EXPECT_EQ(form.Find("optColor", 2).Index(), 2);
  EXPECT_EQ(ErrorOf([&] { form_.Find("optColor"); }), 340);
  EXPECT_EQ(ErrorOf([&] { form.Find("optColor", 3); }), 340);
  EXPECT_EQ(ErrorOf([&] { form_.Menu("mnuNone"); }), 340);
}

TEST_F(FormLifeTest, WhatIsSetBeforeLoadingDoesNotReachTheHost) {
  form_.SetCaption("early");
  form_.SetEnabled(false);
  form_.SetPlace({1, 2, 3, 4});
  form_.SetMenuShown(false);
  form_.Find("chkDaily").SetText("early");
  form_.Find("tmrTick").SetInterval(100);
  form_.Find("tmrTick").SetEnabled(true);
  EXPECT_EQ(log_.Calls(), Lines{});
  EXPECT_FALSE(clock_.AnyTimerOf(0));
}

TEST_F(FormLifeTest, TheCaptionThatItHasIsNotSetAgain) {
  form_.Show();
  form_.SetCaption("other");
  const std::size_t calls = log_.Calls().size();
  form_.SetCaption("other");
  EXPECT_EQ(log_.Calls().size(), calls);
}

TEST_F(FormLifeTest, WhatIsSetBeforeTheFirstLoadingHolds) {
  form_.SetCaption("early");
  form_.SetEnabled(false);
  form_.SetPlace({300, 450, 6090, 5500});
  form_.SetMenuShown(false);
  form_.Find("tmrTick").SetInterval(100);
  form_.Find("tmrTick").SetEnabled(true);
  form_.Load();
  EXPECT_EQ(user_.Title(form_.Handle()), "early");
  EXPECT_EQ(user_.Place(form_.Handle()).left, 300);
  EXPECT_FALSE(form_.State().ShowsMenuBar());
  EXPECT_FALSE(user_.IsEnabled(form_.Handle()));
  EXPECT_TRUE(clock_.AnyTimerOf(form_.Handle()));
}

TEST_F(FormLifeTest, WindowsStandInTheOrderThatTheDesignTells) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kTextBox, "txtLast", -1, "", "", {}, "", -1, kNoFlags, 0, 0, 2},
      ControlRow{ControlKind::kTextBox, "txtInside", -1, "", "", {}, "fra", -1, kNoFlags, 0, 0, 1},
      ControlRow{ControlKind::kFrame, "fra", -1, "", "", {}, "", -1, kNoFlags, 0, 0, 0},
  };
  FormDesign design = Bare("frmSorted");
  design.controls = kControls;
  RecordingForm sorted(design, forms_);
  EXPECT_EQ(Id(sorted, "fra"), 1);
  EXPECT_EQ(Id(sorted, "txtInside"), 2);
  EXPECT_EQ(Id(sorted, "txtLast"), 3);
  EXPECT_EQ(sorted.Find("txtInside").State().container, 1);
}

TEST_F(FormLifeTest, AWindowOfWhichTheDesignTellsNoPlaceStandsWhereItsRowDoes) {
  static constexpr std::array kControls = {
      MakeRow(ControlKind::kTextBox, "txtA", -1, "", "", {}),
      ControlRow{ControlKind::kTextBox, "txtB", -1, "", "", {}, "", -1, kNoFlags, 0, 0, 1},
      MakeRow(ControlKind::kTextBox, "txtC", -1, "", "", {}),
  };
  FormDesign design = Bare("frmMixed");
  design.controls = kControls;
  RecordingForm mixed(design, forms_);
  EXPECT_EQ(Id(mixed, "txtB"), 2);
  EXPECT_EQ(Id(mixed, "txtC"), 3);
}

TEST_F(FormLifeTest, EventsThatArriveAfterTheEndAreDropped) {
  const int button = Id(form_, "cmdGo");
  form_.OnClick(button);
  form_.OnTextTyped(Id(form_, "txtName"), "late");
  form_.OnListPicked(Id(form_, "cboSize"), 0);
  form_.OnListDropDown(Id(form_, "cboSize"));
  form_.OnTimer(Id(form_, "tmrTick"));
  form_.OnMouse(button, {});
  form_.OnFocusMoved(button);
  form_.OnMenuOpened(form_.Menu("mnuFile"));
  form_.OnMenuClicked(form_.Menu("mnuFileOpen"));
  form_.OnActivated();
  form_.OnPlaced(ShowState::kMinimized, {});
  EXPECT_FALSE(form_.OnKeyDown(button, 'A', kNoShift, false));
  EXPECT_FALSE(form_.OnKeyUp(button, 'A', kNoShift));
  EXPECT_FALSE(form_.OnCharacter(button, U'ж', kNoShift));
  EXPECT_EQ(form_.Take(), Lines{});
  EXPECT_EQ(form_.Find("txtName").Text(), "");
  EXPECT_EQ(form_.activations, 0);
  EXPECT_EQ(form_.WindowState(), ShowState::kNormal);
}

TEST_F(FormLifeTest, ADisabledMenuEntryAndADisabledButtonRaiseNothing) {
  form_.Show();
  form_.Menu("mnuFileOpen").enabled = false;
  form_.OnMenuClicked(form_.Menu("mnuFileOpen"));
  form_.Menu("mnuFileExit").visible = false;
  form_.OnMenuClicked(form_.Menu("mnuFileExit"));
  form_.Find("cmdStay").SetEnabled(false);
  form_.OnClick(Id(form_, "cmdStay"));
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormLifeTest, ATagBelongsToTheProgram) {
  form_.SetTag("GOTFOCUS");
  form_.Show();
  form_.Unload();
  EXPECT_EQ(form_.Tag(), "GOTFOCUS");
}

}  // namespace
}  // namespace korvale

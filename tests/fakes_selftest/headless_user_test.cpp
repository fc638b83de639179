#include "tests/fakes/headless_user.h"

#include <gtest/gtest-spi.h>

#include <array>

#include "platform/win32_constants.h"
#include "tests/contract/contract_form.h"
#include "tests/fakes/form_user.h"
#include "tests/fakes/keys.h"
#include "tests/fakes/plain_desktop.h"

namespace korvale {
namespace {

/// The action fails the running test with this message and goes no further.
#define EXPECT_TEST_FAILURE(action, message) \
  EXPECT_NONFATAL_FAILURE(EXPECT_THROW(action, HeadlessFailure), message)

constexpr std::array kPages = {
    ControlRow{ControlKind::kPage, "picAbove", -1, "", "", {0, 0, 2000, 2000}},
    ControlRow{ControlKind::kButton, "cmdAbove", -1, "A", "", {100, 100, 300, 300}, "picAbove"},
    ControlRow{ControlKind::kPage, "picBelow", -1, "", "", {0, 0, 2000, 2000}},
    ControlRow{ControlKind::kButton, "cmdBelow", -1, "B", "", {600, 100, 300, 300}, "picBelow"},
    ControlRow{ControlKind::kButton, "cmdCut", -1, "C", "", {1900, 100, 300, 300}, "picAbove"},
    ControlRow{ControlKind::kButton, "cmdOutside", -1, "O", "", {100, 3000, 300, 300}},
};

constexpr FormDesign kPagesDesign = {
    .name = "frmPages", .caption = "", .place = {0, 0, 3090, 3400}, .controls = kPages};

class HeadlessUserTest : public testing::Test {
 protected:
  HeadlessUserTest() {
    form_.Show();
    pages_.Show();
    form_.Show();
  }

  WindowHandle Window() const { return form_.Handle(); }
  int Id(std::string_view name) { return form_.Find(name).Id(); }

  CallLog log_;
  PlainDesktop desktop_;
  FakeClock clock_;
  HeadlessFormHost host_{desktop_, log_};
  HeadlessUser hands_{host_, clock_};
  FormCollection forms_{host_, host_, host_, clock_};
  RecordingForm form_{kContractDesign, forms_};
  RecordingForm pages_{kPagesDesign, forms_};
  FormUser user_{hands_, form_};
};

TEST_F(HeadlessUserTest, AHiddenControlCannotBeClicked) {
  form_.Find("cmdStay").SetVisible(false);
  EXPECT_TEST_FAILURE(user_.Click("cmdStay"), "cmdStay is hidden");
  EXPECT_TRUE(form_.Take().empty());
}

TEST_F(HeadlessUserTest, ADisabledControlCannotBeClickedOrPickedFrom) {
  form_.Find("cboSize").SetEnabled(false);
  EXPECT_TEST_FAILURE(user_.Click("cboSize"), "cboSize is disabled");
  EXPECT_TEST_FAILURE(user_.Pick("cboSize", 0), "cboSize is disabled");
}

TEST_F(HeadlessUserTest, WhatAnotherPageCoversCannotBeClicked) {
  FormUser pages(hands_, pages_);
  pages.Click("cmdAbove");
  EXPECT_TEST_FAILURE(pages.Click("cmdBelow"), "cmdBelow is covered");
  pages_.Find("picAbove").SetVisible(false);
  pages.Click("cmdBelow");
  EXPECT_EQ(pages_.Take(), (std::vector<std::string>{"click cmdAbove", "click cmdBelow"}));
}

TEST_F(HeadlessUserTest, WhatIsCutOffCannotBeClicked) {
  FormUser pages(hands_, pages_);
  EXPECT_TEST_FAILURE(pages.Click("cmdCut"), "cmdCut is cut off");
  EXPECT_TEST_FAILURE(pages.Click("cmdOutside"), "cmdOutside lies outside of its form");
}

TEST_F(HeadlessUserTest, APageOverATabStripLeavesItsTabsInReach) {
  form_.Find("tabPages").AddItem("One");
  form_.Find("tabPages").AddItem("Two");
  form_.Find("picPage", 0).SetPlace({105, 3500, 5400, 1150});
  user_.Pick("tabPages", 1);
  EXPECT_EQ(user_.ListIndex("tabPages"), 1);
  form_.Find("picPage", 0).SetPlace({105, 3100, 5400, 1150});
  EXPECT_TEST_FAILURE(user_.Pick("tabPages", 0), "tabPages is covered");
}

TEST_F(HeadlessUserTest, AFormThatIsHiddenMinimizedOrDisabledCannotBeUsed) {
  form_.SetEnabled(false);
  EXPECT_TEST_FAILURE(user_.Click("cmdGo"), "form frmContract is disabled");
  form_.SetEnabled(true);
  form_.SetWindowState(ShowState::kMinimized);
  EXPECT_TEST_FAILURE(user_.Close(), "form frmContract is minimized");
  host_.ShowWindow(Window(), win32::kSwHide);
  EXPECT_TEST_FAILURE(user_.Choose({"File", "Open"}), "form frmContract is hidden");
  form_.Unload();
  EXPECT_TEST_FAILURE(user_.Close(), "there is no window");
}

TEST_F(HeadlessUserTest, KeysGoToTheFormInFrontOnly) {
  pages_.Show();
  EXPECT_TEST_FAILURE(user_.Press('A'), "form frmContract is not in front");
}

TEST_F(HeadlessUserTest, ADeadLabelTakesNoClicks) {
  EXPECT_TEST_FAILURE(user_.Click("lblName"), "lblName takes no clicks");
}

TEST_F(HeadlessUserTest, AFixedFormCannotBeResized) {
  EXPECT_TEST_FAILURE(hands_.Drag(Window(), {0, 0, 9000, 9000}), "has a fixed size");
}

TEST_F(HeadlessUserTest, AnEntryOrControlThatIsNotThereCannotBePicked) {
  EXPECT_TEST_FAILURE(user_.Pick("cboSize", 0), "cboSize has no entry 0");
  EXPECT_TEST_FAILURE(hands_.OpenList(Window(), Id("cmdGo")), "cmdGo has no list");
  EXPECT_TEST_FAILURE(hands_.Click(Window(), 99), "has no control 99");
}

TEST_F(HeadlessUserTest, MenuEntriesThatAreNotShownCannotBeChosen) {
  EXPECT_TEST_FAILURE(user_.Choose({"Edit", "Copy"}), "shows no menu \"Edit\"");
  EXPECT_TEST_FAILURE(user_.Choose({"File", "Copy"}), "has no entry \"Copy\"");
  EXPECT_TEST_FAILURE(user_.Choose({"File", "More"}), "is a menu");
  form_.Menu("mnuFileOpen").enabled = false;
  EXPECT_TEST_FAILURE(user_.Choose({"File", "Open"}), "\"Open\" is disabled");
}

TEST_F(HeadlessUserTest, AMenuBarShowsChangesOnlyWhenItIsDrawnAgain) {
  form_.Menu("mnuFile").caption = "&Datei";
  EXPECT_EQ(hands_.MenuBarItems(Window()).front().caption, "File");
  host_.DrawMenuBar(Window());
  EXPECT_EQ(hands_.MenuBarItems(Window()).front().caption, "Datei");
}

TEST_F(HeadlessUserTest, AltAndALetterOpenAMenuAndLettersChoose) {
  user_.Press('F', kAlt);
  EXPECT_EQ(hands_.OpenMenuItems().size(), 4U);
  user_.Press('M');
  EXPECT_EQ(hands_.OpenMenuItems(), (std::vector<ShownMenuItem>{{"Deep", "D"}}));
  user_.Type("d");
  EXPECT_TRUE(hands_.OpenMenuItems().empty());
  EXPECT_EQ(form_.Take(), std::vector<std::string>{"menu mnuFileMoreDeep"});
}

TEST_F(HeadlessUserTest, EscClosesOneMenuAfterTheOther) {
  user_.Press('F', kAlt);
  user_.Press('M');
  user_.Press(win32::kVkEscape);
  EXPECT_EQ(hands_.OpenMenuItems().size(), 4U);
  user_.Press(win32::kVkEscape);
  EXPECT_TRUE(hands_.OpenMenuItems().empty());
  EXPECT_TRUE(form_.Take().empty());
}

TEST_F(HeadlessUserTest, ArrowsMoveInAMenuPastItsLinesAndEnterChooses) {
  user_.Press('F', kAlt);
  user_.Press(win32::kVkUp);
  user_.Press(win32::kVkReturn);
  user_.Press('F', kAlt);
  user_.Press(win32::kVkDown);
  user_.Press(win32::kVkDown);
  user_.Press(win32::kVkReturn);
  EXPECT_EQ(form_.Take(), (std::vector<std::string>{"menu mnuFileExit", "menu mnuFileExit"}));
}

TEST_F(HeadlessUserTest, ADisabledEntryDoesNotAnswerItsKey) {
  form_.Menu("mnuFileOpen").enabled = false;
  user_.Press('F', kAlt);
  user_.Press('O');
  EXPECT_EQ(hands_.OpenMenuItems().size(), 4U);
  EXPECT_TRUE(form_.Take().empty());
}

TEST_F(HeadlessUserTest, BackspaceAndDeleteRemoveWholeCharacters) {
  form_.Find("txtName").SetText("Ж\U0001F600日b");
  user_.Press(win32::kVkEnd);
  user_.Press(fakes::kVkBack);
  user_.Press(fakes::kVkBack);
  user_.Press(fakes::kVkBack);
  EXPECT_EQ(user_.Text("txtName"), "Ж");
  user_.Press(fakes::kVkDelete);
  EXPECT_EQ(user_.Text("txtName"), "Ж");
  user_.Press(win32::kVkLeft);
  user_.Press(fakes::kVkBack);
  user_.Press(fakes::kVkDelete);
  EXPECT_EQ(user_.Text("txtName"), "");
}

TEST_F(HeadlessUserTest, SelectedTextIsRemovedOrReplaced) {
  form_.Find("txtName").SetText("abcdef");
  for (int i = 0; i < 3; ++i) user_.Press(win32::kVkRight, kShift);
  user_.Press(fakes::kVkDelete);
  EXPECT_EQ(user_.Text("txtName"), "def");
  user_.Press(win32::kVkEnd, kShift);
  user_.Type("X");
  EXPECT_EQ(user_.Text("txtName"), "X");
  user_.Press(win32::kVkHome, kShift);
  user_.Press(win32::kVkRight);
  EXPECT_EQ(form_.Find("txtName").Selection().start, 1);
}

TEST_F(HeadlessUserTest, AListThatIsOpenClosesWhenTheUserClicksElsewhere) {
  int closed = 0;
  form_.Find("cboSize").AddItem("one");
  form_.WhenClosedUp("cboSize", [&](int) { ++closed; });
  user_.Click("cboSize");
  user_.Click("cmdStay");
  EXPECT_EQ(closed, 1);
  EXPECT_EQ(user_.ListIndex("cboSize"), -1);
}

TEST_F(HeadlessUserTest, OnlyWhatTheHostWasToldIsOnTheScreen) {
  const ControlState& shown = hands_.Look(Window(), Id("cmdGo"));
  const_cast<ControlState&>(form_.Find("cmdGo").State()).text = "never told";
  EXPECT_EQ(shown.text, "&Go");
}

TEST_F(HeadlessUserTest, TheMouseMayBePressedWithShiftAndAnyButton) {
  hands_.ClickAt(Window(), Id("lblClick"), 15, 30, kShift, MouseButton::kRight);
  EXPECT_EQ(form_.lastMouse.event, MouseEvent::kUp);
  EXPECT_EQ(form_.lastMouse.shift, kShift);
  EXPECT_EQ(form_.lastMouse.x, 15);
  EXPECT_TRUE(form_.Take().empty());
  hands_.ClickAt(Window(), Id("lblClick"), 15, 30);
  EXPECT_EQ(form_.Take(), std::vector<std::string>{"click lblClick"});
}

TEST(ShownCaptionTest, MarksAreNotDrawnAndDoubledAmpersandsOnce) {
  EXPECT_EQ(ShownCaption("&File"), "File");
  EXPECT_EQ(ShownCaption("&3  R&&D - 日本"), "3  R&D - 日本");
  EXPECT_EQ(ShownCaption("&&&&"), "&&");
  EXPECT_EQ(ShownCaption("end&"), "end");
  EXPECT_EQ(ShownCaption(""), "");
}

}  // namespace
}  // namespace korvale

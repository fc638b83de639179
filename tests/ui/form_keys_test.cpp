#include <array>

#include "platform/win32_constants.h"
#include "tests/ui/form_test.h"

namespace korvale {
namespace {

constexpr std::array kNotes = {
    ControlRow{
        ControlKind::kTextBox, "txtNotes", -1, "", "", {100, 100, 2000, 900}, "", -1, kWordWrap},
};

class FormKeysTest : public FormTest {
 protected:
  FormKeysTest() { form_.Show(); }

  bool IsDrawnAsDefault(std::string_view name) {
    return (Look(form_, name).flags & kDefaultButton) != 0;
  }
};

TEST_F(FormKeysTest, TheButtonWithTheFocusIsDrawnAsTheDefault) {
  EXPECT_TRUE(IsDrawnAsDefault("cmdGo"));
  form_.Find("cmdStay").SetFocus();
  EXPECT_FALSE(IsDrawnAsDefault("cmdGo"));
  EXPECT_TRUE(IsDrawnAsDefault("cmdStay"));
  form_.Find("txtName").SetFocus();
  EXPECT_TRUE(IsDrawnAsDefault("cmdGo"));
  EXPECT_FALSE(IsDrawnAsDefault("cmdStay"));
  form_.OnFocusMoved(Id(form_, "cmdStay"));
  EXPECT_TRUE(IsDrawnAsDefault("cmdStay"));
}

TEST_F(FormKeysTest, ADisabledDefaultButtonIsNotDrawnAsOne) {
  form_.Find("cmdGo").SetEnabled(false);
  EXPECT_FALSE(IsDrawnAsDefault("cmdGo"));
  form_.Find("cmdGo").SetEnabled(true);
  EXPECT_TRUE(IsDrawnAsDefault("cmdGo"));
}

TEST_F(FormKeysTest, TheFocusNeverGoesWhereTheUserCannot) {
  form_.Find("cmdStay").SetEnabled(false);
  form_.Find("cmdStay").SetFocus();
  form_.Find("lblName").SetFocus();
  form_.Find("picPage", 0).SetVisible(false);
  form_.Find("cmdInside").SetFocus();
  EXPECT_EQ(Focus(form_), "txtName");
  EXPECT_EQ(form_.FocusedControl(), Id(form_, "txtName"));
}

TEST_F(FormKeysTest, AFormWhoseLastStopGoesHasNoFocus) {
  RecordingForm dialog(DialogDesign("frmDialog"), forms_);
  dialog.Show();
  EXPECT_EQ(Focus(dialog), "cmdOK");
  dialog.Find("cmdOK").SetEnabled(false);
  EXPECT_EQ(Focus(dialog), "");
  EXPECT_EQ(dialog.FocusedControl(), 0);
  Press(dialog, win32::kVkTab);
  EXPECT_EQ(Focus(dialog), "");
  dialog.Find("cmdOK").SetEnabled(true);
  dialog.OnActivated();
  EXPECT_EQ(Focus(dialog), "cmdOK");
}

TEST_F(FormKeysTest, TheFocusComesBackToWhereItWas) {
  form_.Find("cmdStay").SetFocus();
  RecordingForm dialog(DialogDesign("frmDialog"), forms_);
  dialog.Show();
  form_.OnFocusMoved(0);
  dialog.Unload();
  EXPECT_EQ(Focus(form_), "cmdStay");
}

TEST_F(FormKeysTest, TabFromAnUnchosenOptionLeavesItsGroup) {
  form_.Find("optColor", 1).SetValue(1);
  form_.Find("optColor", 0).SetFocus();
  Press(form_, win32::kVkTab);
  EXPECT_EQ(Focus(form_), "cboSize");
  form_.Find("optColor", 2).SetFocus();
  Press(form_, win32::kVkTab, kShift);
  EXPECT_EQ(Focus(form_), "chkDaily");
}

TEST_F(FormKeysTest, AGroupWhoseChosenOptionIsHiddenStopsAtItsFirst) {
  form_.Find("optColor", 0).SetValue(1);
  form_.Find("optColor", 0).SetVisible(false);
  form_.Find("chkDaily").SetFocus();
  Press(form_, win32::kVkTab);
  EXPECT_EQ(user_.Focus(form_.Handle()), Id(form_, "optColor", 1));
}

TEST_F(FormKeysTest, ArrowsSkipHiddenOptionsAndLeaveOtherControlsAlone) {
  form_.Find("optColor", 1).SetEnabled(false);
  form_.Find("optColor", 0).SetFocus();
  Press(form_, win32::kVkRight);
  EXPECT_EQ(user_.Focus(form_.Handle()), Id(form_, "optColor", 2));
  form_.Find("cmdStay").SetFocus();
  Press(form_, win32::kVkDown);
  EXPECT_EQ(Focus(form_), "cmdStay");
}

TEST_F(FormKeysTest, AnArrowOnAnOptionThatCannotBeReachedDoesNothing) {
  form_.Find("fraColor").SetEnabled(false);
  EXPECT_FALSE(form_.OnKeyDown(Id(form_, "optColor", 0), win32::kVkDown, kNoShift, false));
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormKeysTest, KeysWithCtrlAreNoDialogKeys) {
  const int box = Id(form_, "txtName");
  EXPECT_FALSE(form_.OnKeyDown(box, win32::kVkReturn, kCtrl, false));
  EXPECT_FALSE(form_.OnKeyDown(box, win32::kVkTab, kCtrl, false));
  EXPECT_FALSE(form_.OnKeyDown(box, 'S', kCtrl | kAlt, false));
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormKeysTest, KeysWithTheWindowsKeyAreNoDialogKeys) {
  form_.Find("cmdStay").SetFocus();
  const int button = Id(form_, "cmdStay");
  EXPECT_FALSE(form_.OnKeyDown(button, 'S', kWindows, false));
  EXPECT_FALSE(form_.OnKeyDown(button, win32::kVkReturn, kWindows, false));
  EXPECT_FALSE(form_.OnKeyDown(button, win32::kVkDown, kWindows, false));
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormKeysTest, AltWithTabOrEnterIsLeftToWindows) {
  const int box = Id(form_, "txtName");
  EXPECT_FALSE(form_.OnKeyDown(box, win32::kVkTab, kAlt, false));
  EXPECT_FALSE(form_.OnKeyDown(box, win32::kVkReturn, kAlt, false));
}

TEST_F(FormKeysTest, AnUnknownAccessKeyIsLeftToTheControl) {
  EXPECT_FALSE(form_.OnKeyDown(Id(form_, "cmdStay"), 'Z', kNoShift, false));
  EXPECT_FALSE(form_.OnKeyDown(Id(form_, "txtName"), 'Z', kAlt, false));
  for (const char* const box : {"txtName", "cboSize", "cboPlace"}) {
    EXPECT_FALSE(form_.OnKeyDown(Id(form_, box), 'S', kNoShift, false)) << box;
  }
  EXPECT_FALSE(form_.OnCharacter(Id(form_, "txtName"), U's', kAlt));
}

TEST_F(FormKeysTest, DigitsAreAccessKeysToo) {
  form_.Find("cmdStay").SetText("&3 stay");
  Press(form_, '3', kAlt);
  EXPECT_EQ(form_.Take(), Lines{"click cmdStay"});
}

TEST_F(FormKeysTest, AccessKeysReachFromAToZAndFrom0To9) {
  for (const char key : {'A', 'Z', '0', '9'}) {
    form_.Find("cmdStay").SetText(std::string("&") + key);
    Press(form_, key, kAlt);
    EXPECT_EQ(form_.Take(), Lines{"click cmdStay"}) << key;
  }
  // The keys beside them have numbers of characters that they do not write.
  for (const char key : {'@', '[', '/', ':'}) {
    form_.Find("cmdStay").SetText(std::string("&") + key);
    EXPECT_FALSE(form_.OnKeyDown(Id(form_, "txtName"), key, kAlt, false)) << key;
    EXPECT_EQ(form_.Take(), Lines{}) << key;
  }
}

TEST_F(FormKeysTest, AnAccessKeyUsedTwiceGoesToTheNextControlThatHasIt) {
  form_.Find("cmdGo").SetText("&Stop");
  Press(form_, 'S', kAlt);
  Press(form_, 'S', kAlt);
  Press(form_, 'S', kAlt);
  EXPECT_EQ(form_.Take(), (Lines{"click cmdGo", "click cmdStay", "click cmdGo"}));
}

TEST_F(FormKeysTest, AnAccessKeyChoosesATab) {
  Control& tabs = form_.Find("tabPages");
  tabs.AddItem("&One");
  tabs.AddItem("T&wo");
  Press(form_, 'W', kAlt);
  EXPECT_EQ(tabs.ListIndex(), 1);
  EXPECT_EQ(Look(form_, "tabPages").listIndex, 1);
  EXPECT_EQ(Focus(form_), "tabPages");
  Press(form_, 'W', kAlt);
  EXPECT_EQ(form_.Take(), Lines{"click tabPages"});
}

TEST_F(FormKeysTest, ACaptionWithoutPrefixHasNoAccessKey) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kTextBox, "txt", -1, "", "", {0, 0, 300, 300}},
      ControlRow{ControlKind::kButton, "cmd", -1, "R&D", "", {0, 300, 300, 300}, "", -1, kNoPrefix},
  };
  RecordingForm other(
      {.name = "frmOther", .caption = "", .place = {0, 0, 3000, 3000}, .controls = kControls},
      forms_);
  other.Show();
  Press(other, 'D', kAlt);
  EXPECT_EQ(other.Take(), Lines{});
}

TEST_F(FormKeysTest, ALabelAtTheEndLeadsToTheFirstStop) {
  form_.Find("lblClick").SetText("clic&k");
  form_.Find("picPage", 0).SetVisible(false);
  form_.Find("tabPages").SetVisible(false);
  form_.Find("cmdStay").SetFocus();
  Press(form_, 'K', kAlt);
  EXPECT_EQ(Focus(form_), "txtName");
}

TEST_F(FormKeysTest, AControlThatIsNoTabStopIsSkipped) {
  static constexpr std::array kControls = {
      ControlRow{ControlKind::kTextBox, "txtA", -1, "", "", {0, 0, 300, 300}},
      ControlRow{ControlKind::kTextBox, "txtB", -1, "", "", {0, 300, 300, 300}, "", -1, kNoTabStop},
      ControlRow{ControlKind::kTextBox, "txtC", -1, "", "", {0, 600, 300, 300}},
  };
  RecordingForm other(
      {.name = "frmOther", .caption = "", .place = {0, 0, 3000, 3000}, .controls = kControls},
      forms_);
  other.Show();
  Press(other, win32::kVkTab);
  EXPECT_EQ(Focus(other), "txtC");
  other.Find("txtB").SetFocus();
  EXPECT_EQ(Focus(other), "txtB");
}

TEST_F(FormKeysTest, AKeyHandlerMayHandOnAnotherKey) {
  form_.onKeyDown = [](int& key, unsigned) {
    if (key == win32::kVkF1) key = win32::kVkEscape;
  };
  Press(form_, win32::kVkF1);
  EXPECT_EQ(form_.Take(), Lines{"click cmdClose"});
}

TEST_F(FormKeysTest, AKeyThatUnloadedTheFormHasBeenDealtWith) {
  form_.onKeyDown = [&](int&, unsigned) { form_.Unload(); };
  EXPECT_TRUE(form_.OnKeyDown(Id(form_, "txtName"), 'Z', kNoShift, false));
}

TEST_F(FormKeysTest, AReleasedKeyMayBeSwallowed) {
  form_.onKeyUp = [](int& key, unsigned) { key = 0; };
  EXPECT_TRUE(form_.OnKeyUp(Id(form_, "cmdStay"), win32::kVkSpace, kNoShift));
  form_.Find("cmdStay").SetFocus();
  Press(form_, win32::kVkSpace);
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(FormKeysTest, AltIsNoWayToTheMenuOnceAKeyWasTakenWithIt) {
  form_.onKeyDown = [](int& key, unsigned) {
    if (key == 'Z') key = 0;
  };
  const auto altAlone = [&](unsigned shift, int key) {
    form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
    form_.OnKeyDown(0, key, shift, false);
    return !form_.OnKeyUp(0, win32::kVkMenu, kNoShift);
  };
  EXPECT_FALSE(altAlone(kAlt, 'Z'));
  EXPECT_FALSE(form_.OnKeyUp(0, win32::kVkMenu, kNoShift));
  EXPECT_TRUE(altAlone(kAlt, 'X'));
  EXPECT_TRUE(altAlone(kAlt | kCtrl, 'Z'));
}

TEST_F(FormKeysTest, AltHeldOnBehindAMessageIsStillTheOneThatAKeyWasTakenWith) {
  form_.onKeyDown = [](int& key, unsigned) {
    if (key == 'Z') key = 0;
  };
  form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
  form_.OnKeyDown(0, 'Z', kAlt, false);
  form_.SetEnabled(false);
  EXPECT_TRUE(form_.OnKeyDown(0, win32::kVkMenu, kAlt, true));
  form_.SetEnabled(true);
  EXPECT_TRUE(form_.OnKeyUp(0, win32::kVkMenu, kNoShift)) << "the menu would open";
}

TEST_F(FormKeysTest, AltIsNoWayToTheMenuOnceACharacterWasTakenWithIt) {
  form_.Find("cmdStay").SetText("&Ж");
  const auto altAlone = [&](unsigned shift, char32_t character) {
    form_.OnKeyDown(0, win32::kVkMenu, kAlt, false);
    form_.OnCharacter(0, character, shift);
    return !form_.OnKeyUp(0, win32::kVkMenu, kNoShift);
  };
  EXPECT_FALSE(altAlone(kAlt, U'ж'));
  EXPECT_TRUE(altAlone(kAlt, U'я'));
  EXPECT_TRUE(altAlone(kAlt | kCtrl, U'ж'));
  EXPECT_FALSE(form_.OnCharacter(Id(form_, "txtName"), U'ж', kNoShift)) << "it is typed";
}

TEST_F(FormKeysTest, ATextOfOneLineSeesNoCharacterThatItsBoxWouldBeepAt) {
  FormDesign withNotes = Bare("frmNotes");
  withNotes.controls = kNotes;
  RecordingForm notes(withNotes, forms_);
  notes.Load();
  for (const char32_t character : {U'\r', U'\n', U'\t', U'\x1B'}) {
    EXPECT_TRUE(form_.OnCharacter(Id(form_, "txtName"), character, kNoShift));
    EXPECT_TRUE(form_.OnCharacter(Id(form_, "cboPlace"), character, kNoShift));
    EXPECT_FALSE(form_.OnCharacter(Id(form_, "cboSize"), character, kNoShift));
    EXPECT_FALSE(form_.OnCharacter(Id(form_, "cmdGo"), character, kNoShift));
    EXPECT_FALSE(form_.OnCharacter(0, character, kNoShift));
    EXPECT_FALSE(notes.OnCharacter(Id(notes, "txtNotes"), character, kNoShift));
  }
  EXPECT_FALSE(form_.OnCharacter(Id(form_, "txtName"), U'a', kNoShift));
}

}  // namespace
}  // namespace korvale

#include <string>
#include <tuple>
#include <vector>

#include "forms/get_window_design.h"
#include "platform/win32_constants.h"
#include "tests/forms/add_window_test.h"

namespace korvale {
namespace {

TEST_F(AddWindowTest, AltPTogglesTheSelectionOfTheTitle) {
  OpenDialogFor("Счёт 🧮");
  Press(dialog_, 'P', kAlt);
  EXPECT_EQ(Focus(dialog_), "txtWindow");
  EXPECT_EQ(TitleSelection().length, 6);
  Press(dialog_, 'P', kAlt);
  EXPECT_EQ(TitleSelection().start, 0);
  EXPECT_EQ(TitleSelection().length, 0);
  Press(dialog_, 'P', kAlt);
  EXPECT_EQ(TitleSelection().length, 6);
}

class AddNotesTest : public AddWindowTest {
 protected:
  AddNotesTest() { OpenDialogFor("Notes"); }
};

TEST_F(AddNotesTest, AltPSelectsTheWholeTitleWhenAPartIsSelected) {
  dialog_.Find("txtWindow").SetFocus();
  dialog_.Find("txtWindow").SetSelection({1, 2});
  Press(dialog_, 'P', kAlt);
  EXPECT_EQ(TitleSelection().start, 0);
  EXPECT_EQ(TitleSelection().length, 5);
}

TEST_F(AddNotesTest, LeavesOtherModifiersThanAltAlone) {
  Press(dialog_, 'P', kAlt | kCtrl);
  EXPECT_EQ(Focus(dialog_), "cboWindow");
}

TEST_F(AddWindowTest, TypesAPlainPIntoTheTitle) {
  OpenDialogFor("");
  dialog_.Find("txtWindow").SetFocus();
  user_.TypeText(dialog_.Handle(), "p");
  EXPECT_EQ(Text(dialog_, "txtWindow"), "p");
}

TEST_F(AddWindowTest, WidensTheListOfTagsWhileItIsOpen) {
  Assign(1, "Mail");
  OpenDialogFor("Notes");
  PickTag(1);
  const Twips width = TagWidth();
  EXPECT_EQ(width, 900);
  user_.OpenList(dialog_.Handle(), Id(dialog_, "cboWindow"));
  EXPECT_EQ(TagWidth(), 4785);
  EXPECT_FALSE(RemoveEnabled());
  PickTag(1);
  EXPECT_EQ(TagWidth(), width);
  EXPECT_TRUE(RemoveEnabled());
}

TEST_F(AddWindowTest, NarrowsTheListOfTagsThatIsClosedWithoutAChoice) {
  Assign(1, "Mail");
  OpenDialogFor("Notes");
  PickTag(1);
  const Twips width = TagWidth();
  user_.OpenAndCloseList(dialog_.Handle(), Id(dialog_, "cboWindow"));
  EXPECT_EQ(TagWidth(), width);
  EXPECT_TRUE(RemoveEnabled());
}

TEST_F(AddWindowTest, IsADialogToScreenReaders) {
  EXPECT_EQ(dialog_.State().role, FormRole::kDialog);
}

TEST_F(AddWindowTest, NarrowsTheListOfTagsThatClosesBecauseTheTextChanges) {
  Assign(1, "Mail");
  OpenDialogFor("Notes");
  PickTag(1);
  const Twips width = TagWidth();
  user_.OpenList(dialog_.Handle(), Id(dialog_, "cboWindow"));
  host_.ChangeTextSize(150);
  EXPECT_EQ(TagWidth(), width);
  EXPECT_TRUE(RemoveEnabled());
}

TEST_F(AddWindowTest, TheOpenListStaysWideWhileTheArrowsGoThroughIt) {
  Assign(2, "Mail");
  OpenDialogFor("Notes");
  const int list = Id(dialog_, "cboWindow");
  const Twips width = TagWidth();
  Press(dialog_, win32::kVkF4);
  Press(dialog_, win32::kVkDown);
  EXPECT_TRUE(user_.IsListOpen(dialog_.Handle(), list));
  EXPECT_EQ(TagWidth(), 4785);
  EXPECT_FALSE(RemoveEnabled());
  ExpectState("Mail", kRed);
  Press(dialog_, win32::kVkReturn);
  EXPECT_FALSE(user_.IsListOpen(dialog_.Handle(), list));
  EXPECT_EQ(TagWidth(), width);
  EXPECT_TRUE(RemoveEnabled());
  ExpectState("Mail", kRed);
  Press(dialog_, win32::kVkReturn);
  EXPECT_EQ(Entry(2).caption, "&2  Notes");
}

TEST_F(AddWindowTest, TabInTheOpenListGoesOn) {
  Assign(2, "Mail");
  OpenDialogFor("Notes");
  const Twips width = TagWidth();
  Press(dialog_, win32::kVkF4);
  Press(dialog_, win32::kVkDown);
  Press(dialog_, win32::kVkTab);
  EXPECT_EQ(TagWidth(), width);
  EXPECT_TRUE(RemoveEnabled());
  ExpectState("Mail", kRed);
  EXPECT_NE(Focus(dialog_), "cboWindow");
  Press(dialog_, win32::kVkEscape);
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(AddWindowTest, EscInTheOpenListBringsTheFormerTagBack) {
  Assign(2, "Mail");
  OpenDialogFor("Notes");
  Press(dialog_, win32::kVkF4);
  Press(dialog_, win32::kVkDown);
  Press(dialog_, win32::kVkEscape);
  ASSERT_TRUE(dialog_.IsLoaded());
  ExpectState("Available", kBlue);
  EXPECT_FALSE(RemoveEnabled());
  Press(dialog_, win32::kVkEscape);
  EXPECT_FALSE(dialog_.IsLoaded());
}

TEST_F(AddNotesTest, FindsRoomForTheWidenedList) {
  const TwipsRect list = user_.Place(dialog_.Handle(), Id(dialog_, "cboWindow"));
  EXPECT_LT(list.left + 4785, user_.Place(dialog_.Handle(), Id(dialog_, "cmdRemove")).left);
}

TEST_F(AddNotesTest, LooksAsTheWindowMenuOpensIt) {
  EXPECT_EQ(user_.Title(dialog_.Handle()), "Korvale - Add Window");
  EXPECT_EQ(dialog_.Place().height, 3465);
  EXPECT_EQ(user_.Place(dialog_.Handle(), Id(dialog_, "cmdOK")).top, 2700);
  EXPECT_EQ(user_.Place(dialog_.Handle(), Id(dialog_, "cmdClose")).top, 2700);
  // Of the height, 400 twips are the frame.
  for (const char* const button : {"cmdOK", "cmdClose"}) {
    const TwipsRect place = user_.Place(dialog_.Handle(), Id(dialog_, button));
    EXPECT_GE(3465 - 400 - (place.top + place.height), 75) << button;
  }
  EXPECT_EQ(Text(dialog_, "lblIdentifyWindow"), "Identify &Window");
  for (const char* const name : {"lblChildWindow", "Line3", "chkChildWindow", "cboChildWindow"}) {
    EXPECT_FALSE(Shown(dialog_, name)) << name;
  }
}

/// A control's kind, name, index in an array and caption.
using DesignedControl = std::tuple<ControlKind, std::string, int, std::string>;

TEST(AddWindowDesign, HasItsControlsInTheirOrderWithTheirKindsAndCaptions) {
  using enum ControlKind;
  std::vector<DesignedControl> designed;
  for (const ControlRow& row : GetWindowDesign().controls) {
    designed.emplace_back(row.kind, row.name, row.index, row.caption);
  }
  EXPECT_EQ(
      designed,
      (std::vector<DesignedControl>{
          {kTextBox, "txtWindowClass", -1, ""},
          {kTextBox, "txtWindow", -1, ""},
          {kComboBox, "cboChildWindow", -1, ""},
          {kCheckBox, "chkChildWindow", -1, "assign this Hot Key to a Child window of the Parent"},
          {kDropDownList, "cboWindow", -1, ""},
          {kOptionButton, "optWindow", 0, ""},
          {kOptionButton, "optWindow", 1, "*Left*"},
          {kOptionButton, "optWindow", 2, "*Right*"},
          {kButton, "cmdOK", -1, "OK"},
          {kButton, "cmdClose", -1, "Close"},
          {kButton, "cmdRemove", -1, "&Remove"},
          {kLabel, "lblChildWindow", -1, "&Child Window"},
          {kLine, "Line3", -1, ""},
          {kLabel, "lblWindow", -1, "*window caption here*"},
          {kLine, "Line2", -1, ""},
          {kLine, "Line1", -1, ""},
          {kLabel, "lblIdentifyWindow", -1, "Identify &Window  (Parent)"},
          {kLabel, "lblAssignHotKey", -1, "Assign a &Tag"},
          {kLabel, "lblWindowClass", -1, "Class of Window"},
      }));
}

TEST_F(AddNotesTest, HasTheCaptionsOfItsButtonsAndLabels) {
  EXPECT_EQ(Text(dialog_, "cmdClose"), "Close");
  EXPECT_EQ(Text(dialog_, "cmdRemove"), "&Remove");
  EXPECT_EQ(Text(dialog_, "lblAssignHotKey"), "Assign a &Tag");
  EXPECT_EQ(Text(dialog_, "lblChildWindow"), "&Child Window");
  EXPECT_EQ(Text(dialog_, "chkChildWindow"), "assign this Hot Key to a Child window of the Parent");
}

TEST_F(AddNotesTest, StartsInTheListOfTagsAndKeepsTheUsersPlaceLater) {
  EXPECT_EQ(Focus(dialog_), "cboWindow");
  dialog_.Find("txtWindow").SetFocus();
  desktop_.UserActivates(main_.handle);
  desktop_.UserActivates(dialog_.Handle());
  EXPECT_EQ(Focus(dialog_), "txtWindow");
}

TEST_F(AddWindowTest, TheTabKeyGoesFromTopToBottom) {
  Assign(1, "Mail");
  OpenDialogFor("Notes");
  PickTag(1);
  std::vector<std::string> visited;
  for (int i = 0; i < 7; ++i) {
    visited.push_back(Focus(dialog_));
    Press(dialog_, win32::kVkTab);
  }
  EXPECT_EQ(visited,
            (std::vector<std::string>{"cboWindow", "cmdRemove", "txtWindow", "txtWindowClass",
                                      "optWindow", "cmdOK", "cmdClose"}));
  EXPECT_EQ(Focus(dialog_), "cboWindow");
}

TEST_F(AddNotesTest, EachLabelStandsBeforeItsControl) {
  EXPECT_EQ(Id(dialog_, "lblAssignHotKey") + 1, Id(dialog_, "cboWindow"));
  EXPECT_EQ(Id(dialog_, "lblIdentifyWindow") + 1, Id(dialog_, "txtWindow"));
  EXPECT_EQ(Id(dialog_, "lblWindowClass") + 1, Id(dialog_, "txtWindowClass"));
  EXPECT_FALSE(Shown(dialog_, "lblWindowClass"));
  // Alt+W is the access key of the box before this one, not its own.
  EXPECT_EQ(Id(dialog_, "Line2") + 1, Id(dialog_, "lblWindowClass"));
  EXPECT_EQ(Id(dialog_, "lblChildWindow") + 1, Id(dialog_, "cboChildWindow"));
}

TEST_F(AddNotesTest, TheAccessKeysOfTheLabelsLeadToTheirControls) {
  user_.TypeText(dialog_.Handle(), "w", true);
  EXPECT_EQ(Focus(dialog_), "txtWindow");
  user_.TypeText(dialog_.Handle(), "t", true);
  EXPECT_EQ(Focus(dialog_), "cboWindow");
}

TEST_F(AddWindowTest, TakesNoAmpersandOfATitleForAnAccessKey) {
  Assign(1, "Q&A");
  OpenDialogFor("R&D - Q&A");
  for (int i = 0; i < 3; ++i) EXPECT_NE(Look(dialog_, "optWindow", i).flags & kNoPrefix, 0U);
  EXPECT_NE(Look(dialog_, "lblWindow").flags & kNoPrefix, 0U);
  Click(dialog_, "optWindow", 1);
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(2).caption, "&2  R&D - ***");
}

TEST_F(AddWindowTest, ShortensALongTitleOnlyOnTheScreen) {
  const std::string left(100, 'l');
  const std::string right(100, 'r');
  OpenDialogFor(left + " - " + right);
  EXPECT_EQ(Choice(1), std::string(63, 'l') + "... - ***");
  EXPECT_EQ(Choice(2), "*** - " + std::string(63, 'r') + "...");
  EXPECT_EQ(Choice(0), std::string(69, 'l') + "...");
  Click(dialog_, "optWindow", 1);
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  " + left + " - ***");
  OpenDialog();
  PickTag(1);
  ExpectState(std::string(47, 'l') + "...", kRed);
}

TEST_F(AddNotesTest, EveryChoiceSaysInItsToolTipWhatItDoes) {
  EXPECT_EQ(Look(dialog_, "txtWindow").toolTip,
            " edit to Identify Window by partial Title  (Alt+P/Alt+P) ");
  EXPECT_EQ(Look(dialog_, "cboWindow").toolTip, " Tag number ");
  EXPECT_EQ(Look(dialog_, "cmdOK").toolTip, " Add window to the Window menu  (Enter) ");
  EXPECT_EQ(Look(dialog_, "cmdClose").toolTip, " Close  (Esc) ");
  EXPECT_EQ(Look(dialog_, "cmdRemove").toolTip,
            " clears the specified Tag/window from the Window menu ");
  EXPECT_EQ(Look(dialog_, "optWindow", 0).toolTip, " Identify Window by full or partial Title ");
  EXPECT_EQ(Look(dialog_, "optWindow", 1).toolTip,
            " Identify Window by the left portion of the Title ");
  EXPECT_EQ(Look(dialog_, "optWindow", 2).toolTip,
            " Identify Window by the right portion of the Title ");
  EXPECT_EQ(Look(dialog_, "txtWindowClass").toolTip,
            " Class of window:  the window will be matched based on Title and Class - if a "
            "Title/Class match is not found, then the match is made by Title alone ");
  EXPECT_EQ(Look(dialog_, "cboChildWindow").toolTip,
            " edit to identify Child Window by partial title ");
  EXPECT_EQ(Look(dialog_, "chkChildWindow").toolTip,
            " TIP:  first identify the Parent Window by application name ");
  EXPECT_EQ(Look(dialog_, "lblWindow").toolTip,
            " Red text: means a window is already associated with this Tag     Blue text: means "
            "this Tag is available ");
  for (const char* const silent :
       {"lblAssignHotKey", "lblIdentifyWindow", "lblChildWindow", "Line1", "Line2", "Line3"}) {
    EXPECT_EQ(Look(dialog_, silent).toolTip, "") << silent;
  }
}

}  // namespace
}  // namespace korvale

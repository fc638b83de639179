#include <functional>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/forms/add_window_test.h"

namespace korvale {
namespace {

TEST_F(AddWindowTest, OffersTheLowestFreeTag) {
  Assign(1, "Mail");
  Assign(2, "Editor");
  Assign(4, "Shell");
  OpenDialogFor("Notes");
  EXPECT_EQ(Text(dialog_, "cboWindow"), "3");
  ExpectState("Available", kBlue);
  EXPECT_FALSE(RemoveEnabled());
}

TEST_F(AddWindowTest, OffersTheFirstTagWhenAllAreAssignedAndReplacesIt) {
  for (int tag = 1; tag <= 9; ++tag) Assign(tag, "Window " + std::to_string(tag));
  OpenDialogFor("Notes");
  EXPECT_EQ(Text(dialog_, "cboWindow"), "1  Window 1");
  ExpectState("Window 1", kRed);
  EXPECT_TRUE(RemoveEnabled());
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  Notes");
  EXPECT_EQ(tags_.mnuWindowParentList.Indexes().size(), 10U);
}

TEST_F(AddWindowTest, ListsEveryTagWithWhatItStandsFor) {
  Assign(2, "*** - Editor");
  Assign(5, "");
  OpenDialogFor("Notes");
  EXPECT_EQ(TagItems(),
            (std::vector<std::string>{"1", "2  *** - Editor", "3", "4",
                                      "5  (window without a title)", "6", "7", "8", "9"}));
}

TEST_F(AddWindowTest, TakesAnUntitledEntryAsAssigned) {
  Assign(1, "");
  OpenDialogFor("Notes");
  PickTag(1);
  ExpectState("(window without a title)", kRed);
}

TEST_F(AddWindowTest, ShowsTitleAndClassOfThePreviousWindow) {
  OpenDialogFor("Счёт & 会計 🧮");
  EXPECT_EQ(Text(dialog_, "txtWindow"), "Счёт & 会計 🧮");
  EXPECT_EQ(Text(dialog_, "txtWindowClass"), "Editor");
  EXPECT_EQ(Choice(0), "Счёт & 会計 🧮");
  EXPECT_EQ(Look(dialog_, "optWindow", 0).value, 1);
  EXPECT_EQ(dialog_.Tag(), "PREVIOUS_WINDOW");
  EXPECT_EQ(mode_, AddWindowMode::kNone);
}

TEST_F(AddWindowTest, OffersThePartsAroundTheOnlySeparator) {
  OpenDialogFor("one - two");
  EXPECT_EQ(Choice(1), "one - ***");
  EXPECT_EQ(Choice(2), "*** - two");
}

TEST_F(AddWindowTest, OffersThePartBeforeTheFirstAndAfterTheLastOfTwoSeparators) {
  OpenDialogFor("one - two - three");
  EXPECT_EQ(Choice(1), "one - ***");
  EXPECT_EQ(Choice(2), "*** - three");
}

TEST_F(AddWindowTest, OffersTheWholeTitleAsPartsWithoutASeparator) {
  OpenDialogFor("Notes-2");
  EXPECT_EQ(Choice(1), "Notes-2 - ***");
  EXPECT_EQ(Choice(2), "*** - Notes-2");
}

TEST_F(AddWindowTest, OffersOnlyTheTitleOfAnUntitledWindow) {
  OpenDialogFor("");
  EXPECT_TRUE(Shown(dialog_, "optWindow", 0));
  EXPECT_FALSE(Shown(dialog_, "optWindow", 1));
  EXPECT_FALSE(Shown(dialog_, "optWindow", 2));
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  ");
}

TEST_F(AddWindowTest, OffersOnlyTheTitleOfTheMainWindow) {
  OpenDialog(AddWindowMode::kThisWindow);
  EXPECT_EQ(dialog_.Tag(), "THIS_WINDOW");
  EXPECT_EQ(Text(dialog_, "txtWindow"), "Korvale - Work");
  EXPECT_EQ(Text(dialog_, "txtWindowClass"), "Korvale.frmMain");
  EXPECT_FALSE(Shown(dialog_, "optWindow", 1));
  EXPECT_FALSE(Shown(dialog_, "optWindow", 2));
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  Korvale - Work");
  EXPECT_EQ(TagHandle(Entry(1)), main_.handle);
  EXPECT_EQ(ClassOf(1), "Korvale.frmMain");
}

TEST_F(AddWindowTest, StoresTheWindowUnderTheChosenTag) {
  const WindowHandle notes = OpenPrevious("Notes");
  OpenDialog();
  PickTag(3);
  Click(dialog_, "cmdOK");
  EXPECT_FALSE(dialog_.IsLoaded());
  EXPECT_EQ(Entry(3).caption, "&3  Notes");
  EXPECT_EQ(TagHandle(Entry(3)), notes);
  EXPECT_TRUE(Entry(3).visible);
  EXPECT_EQ(ClassOf(3), "Editor");
}

TEST_F(AddWindowTest, StoresTheChosenPart) {
  OpenDialogFor("Report & more - draft - Editor");
  Click(dialog_, "optWindow", 1);
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  Report & more - ***");
  OpenDialog();
  Click(dialog_, "optWindow", 2);
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(2).caption, "&2  *** - Editor");
}

TEST_F(AddWindowTest, StoresTheTitleThatTheUserEdited) {
  OpenDialogFor("Report of Monday");
  Press(dialog_, 'P', kAlt);
  user_.TypeText(dialog_.Handle(), "Report");
  EXPECT_EQ(Choice(0), "Report");
  Press(dialog_, win32::kVkReturn);
  EXPECT_EQ(Entry(1).caption, "&1  Report");
}

TEST_F(AddWindowTest, StoresTheTitleThatStandsInTheBoxHoweverItCameThere) {
  OpenDialogFor("Report of Monday");
  dialog_.Find("txtWindow").SetText("Report of");
  EXPECT_EQ(Choice(0), "Report of Monday") << "nothing was typed";
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  Report of");
}

TEST_F(AddWindowTest, StoresTheWindowForWhichItWasOpened) {
  const WindowHandle notes = OpenPrevious("Notes");
  OpenDialog();
  OpenPrevious("Mail");
  Click(dialog_, "cmdOK");
  EXPECT_EQ(TagHandle(Entry(1)), notes);
}

TEST_F(AddWindowTest, StoresNeitherHandleNorClassOfAWindowWithoutChildWindows) {
  tags_.ParentWindowClass[0] = "Old";
  OpenPrevious("Bare", 0);
  OpenDialog();
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  Bare");
  EXPECT_EQ(Entry(1).tag, "0");
  EXPECT_EQ(ClassOf(1), "");
}

TEST_F(AddWindowTest, StoresNeitherHandleNorClassOfAnotherWindowThatGotTheHandle) {
  const WindowHandle previous = OpenPrevious("one - Editor");
  OpenDialog();
  desktop_.Close(previous);
  desktop_.Open("Newcomer", {.className = "Another", .activate = false, .reuseHandle = previous});
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "&1  one - Editor");
  EXPECT_EQ(Entry(1).tag, "0");
  EXPECT_EQ(ClassOf(1), "");
}

TEST_F(AddWindowTest, LeavesOutTheAccessKeyForAChildWindow) {
  OpenPrevious("Notes");
  mode_ = AddWindowMode::kPreviousWindow;
  dialog_.Show();
  Click(dialog_, "chkChildWindow");
  Click(dialog_, "cmdOK");
  EXPECT_EQ(Entry(1).caption, "1  Notes");
}

TEST_F(AddWindowTest, RemovesATagAndStaysOpenWithTheTagSelected) {
  Assign(2, "Mail");
  tags_.ParentWindowClass[1] = "Mail.Class";
  OpenDialogFor("Notes");
  PickTag(2);
  ExpectState("Mail", kRed);
  Click(dialog_, "cmdRemove");
  EXPECT_EQ(tags_.mnuWindowParentList.Find(2), nullptr);
  EXPECT_EQ(ClassOf(2), "Mail.Class");
  EXPECT_TRUE(dialog_.IsLoaded());
  EXPECT_EQ(Text(dialog_, "cboWindow"), "2");
  EXPECT_EQ(TagItems().size(), 9U);
  ExpectState("Available", kBlue);
  EXPECT_FALSE(RemoveEnabled());
}

TEST_F(AddWindowTest, StartsInTheListOfTagsEachTimeWhateverHadTheFocusBefore) {
  OpenPrevious("Notes");
  for (int opening = 1; opening <= 2; ++opening) {
    dialog_.Load();
    dialog_.Find("txtWindow").SetFocus();
    dialog_.Show();
    EXPECT_EQ(Focus(dialog_), "cboWindow") << opening;
    dialog_.Unload();
  }
}

TEST_F(AddWindowTest, ChangesNothingWhenItIsClosed) {
  for (const auto& close : std::vector<std::function<void()>>{
           [&] { Click(dialog_, "cmdClose"); },
           [&] { Press(dialog_, win32::kVkEscape); },
           [&] { Press(dialog_, win32::kVkF4, kAlt); },
           [&] { user_.PressCloseBox(dialog_.Handle()); },
       }) {
    OpenDialogFor("Notes");
    close();
    EXPECT_FALSE(dialog_.IsLoaded());
    EXPECT_EQ(tags_.mnuWindowParentList.Indexes(), std::vector<int>{0});
  }
}

}  // namespace
}  // namespace korvale

#include <string>

#include "platform/win32_constants.h"
#include "tests/fakes/keys.h"
#include "tests/forms/options_test.h"

namespace korvale {
namespace {

/// Keys in a key list of the dialog: the one of Minimize, which shows "DownArrow" at first.
class KeyListTest : public OptionsTest {
 protected:
  KeyListTest() {
    OpenDialog(2);
    FocusOn("cboHotKeyAction", 0);
  }
  void FocusOn(const char* list, int index) { dialog_.Find(list, index).SetFocus(); }
  void Hold(int key, int repeats = 0) { user_.HoldKey(dialog_.Handle(), key, repeats); }
  void Release(int key) { user_.ReleaseKey(dialog_.Handle(), key); }
  bool IsOpen() { return user_.IsListOpen(dialog_.Handle(), Id(dialog_, "cboHotKeyAction", 0)); }
  bool HasBorder() { return Border("lblAction", 0); }
  std::string Chosen(const char* list = "cboHotKeyAction", int index = 0) {
    return Text(dialog_, list, index);
  }
};

TEST_F(KeyListTest, AReleaseWithoutItsPressChoosesNothing) {
  Release('O');
  EXPECT_EQ(Chosen(), "DownArrow");
}

TEST_F(KeyListTest, AKeyThatIsHeldWhileTheDialogComesForwardChoosesNothing) {
  Hold('M');
  dialog_.OnActivated();
  Hold('M', 0);
  Release('M');
  EXPECT_EQ(Chosen(), "M") << "pressed anew";
  Hold('N');
  dialog_.OnActivated();
  // The key goes on repeating.
  const int list = Id(dialog_, "cboHotKeyAction", 0);
  EXPECT_TRUE(dialog_.OnKeyDown(list, 'N', kNoShift, true));
  Release('N');
  EXPECT_EQ(Chosen(), "M");
}

TEST_F(KeyListTest, AKeyThatWasPressedElsewhereChoosesNothing) {
  Hold('O');
  FocusOn("cboHotKeyGeneral", 1);
  Release('O');
  EXPECT_EQ(Chosen(), "DownArrow");
  EXPECT_EQ(Chosen("cboHotKeyGeneral", 1), "W");
  FocusOn("cboHotKeyModAction", 0);
  Hold(0x76);
  FocusOn("cboHotKeyAction", 0);
  Release(0x76);
  EXPECT_EQ(Chosen(), "DownArrow");
}

TEST_F(KeyListTest, AHeldKeyIsOnePress) {
  Hold('Q', 5);
  EXPECT_EQ(Chosen(), "DownArrow") << "it counts when it is released";
  Release('Q');
  EXPECT_EQ(Chosen(), "Q");
  Release('Q');
  EXPECT_EQ(Chosen(), "Q");
}

TEST_F(KeyListTest, AKeyThatIsReleasedTogetherWithShiftCtrlOrAltChoosesNothing) {
  const int list = Id(dialog_, "cboHotKeyAction", 0);
  for (const unsigned shift : {kShift, kCtrl, kAlt}) {
    Hold('K');
    EXPECT_FALSE(dialog_.OnKeyUp(list, 'K', shift));
    EXPECT_EQ(Chosen(), "DownArrow");
  }
}

TEST_F(KeyListTest, OfTwoKeysTheLaterCounts) {
  Hold('A');
  Hold('B');
  Release('A');
  EXPECT_EQ(Chosen(), "DownArrow");
  Release('B');
  EXPECT_EQ(Chosen(), "B");
}

TEST_F(KeyListTest, F4IsChosenAndLeavesTheListClosed) {
  Press(dialog_, win32::kVkF4);
  EXPECT_EQ(Chosen(), "F4");
  EXPECT_FALSE(IsOpen());
  user_.OpenList(dialog_.Handle(), Id(dialog_, "cboHotKeyAction", 0));
  Press(dialog_, win32::kVkUp);
  Press(dialog_, win32::kVkF4);
  EXPECT_EQ(Chosen(), "F4");
  EXPECT_FALSE(IsOpen());
}

TEST_F(KeyListTest, F4OpensAModifierList) {
  FocusOn("cboHotKeyModAction", 0);
  Press(dialog_, win32::kVkF4);
  EXPECT_TRUE(user_.IsListOpen(dialog_.Handle(), Id(dialog_, "cboHotKeyModAction", 0)));
}

TEST_F(KeyListTest, APictureOfTheScreenChoosesNothing) {
  for (const unsigned shift : {kNoShift, kAlt}) {
    Press(dialog_, fakes::kVkSnapshot, shift);
    EXPECT_EQ(Chosen(), "DownArrow");
  }
}

TEST_F(KeyListTest, PrintScrnIsChosenFromTheList) {
  user_.Pick(dialog_.Handle(), Id(dialog_, "cboHotKeyAction", 0), 13);
  EXPECT_EQ(Chosen(), "PrintScrn");
}

TEST_F(KeyListTest, AKeyWithTheWindowsKeyIsForWindows) {
  Press(dialog_, 'K', kWindows);
  Press(dialog_, fakes::kVkSnapshot, kWindows);
  EXPECT_EQ(Chosen(), "DownArrow");
  // Also when it was pressed alone before and came up elsewhere.
  Hold('K');
  EXPECT_TRUE(dialog_.OnKeyDown(Id(dialog_, "cboHotKeyAction", 0), 'K', kWindows, false));
  Release('K');
  EXPECT_EQ(Chosen(), "DownArrow");
}

TEST_F(KeyListTest, ArrowsAreEntriesOfAClosedListAndMoveInAnOpenOne) {
  Press(dialog_, win32::kVkUp);
  EXPECT_EQ(Chosen(), "UpArrow");
  Press(dialog_, win32::kVkDown);
  EXPECT_EQ(Chosen(), "DownArrow");
  Press(dialog_, 'X');
  Press(dialog_, win32::kVkDown, kAlt);
  ASSERT_TRUE(IsOpen());
  EXPECT_EQ(Chosen(), "X");
  Press(dialog_, win32::kVkDown);
  EXPECT_EQ(Chosen(), "Y");
  EXPECT_TRUE(IsOpen());
  Press(dialog_, win32::kVkReturn);
  EXPECT_EQ(Chosen(), "Y");
  EXPECT_FALSE(IsOpen());
  EXPECT_TRUE(dialog_.IsLoaded());
}

TEST_F(KeyListTest, KeysThatStandForNoEntryMoveInTheClosedListAsInAnyOther) {
  Press(dialog_, win32::kVkHome);
  EXPECT_EQ(Chosen(), " ");
  EXPECT_FALSE(HasBorder()) << "the label follows";
  Press(dialog_, win32::kVkRight);
  EXPECT_EQ(Chosen(), "F1");
  EXPECT_TRUE(HasBorder());
  Press(dialog_, win32::kVkEnd);
  EXPECT_EQ(Chosen(), "UpArrow");
  Press(dialog_, win32::kVkLeft);
  EXPECT_EQ(Chosen(), "DownArrow");
  Press(dialog_, fakes::kVkPageUp);
  EXPECT_EQ(Chosen(), "Numpad 9") << "twenty-nine entries further up";
  Press(dialog_, fakes::kVkPageDown);
  EXPECT_EQ(Chosen(), "DownArrow");
  EXPECT_FALSE(IsOpen());
}

TEST_F(KeyListTest, AltAndDownOpensItWhicheverIsReleasedFirst) {
  Press(dialog_, 'X');
  Press(dialog_, win32::kVkDown, kAlt);
  Release(win32::kVkDown);
  EXPECT_EQ(Chosen(), "X");
}

}  // namespace
}  // namespace korvale

#include "forms/hot_key_lists.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

constexpr ControlRow kControls[] = {
    {ControlKind::kDropDownList, "cboHotKeyAction", 0, "", "", {}},
    {ControlKind::kDropDownList, "cboHotKeyModAction", 0, "", "", {}},
    {ControlKind::kDropDownList, "cboHotKe", -1, "", "", {}},
};
constexpr FormDesign kDesign = {
    .name = "frmLists", .caption = "Lists", .place = {0, 0, 3000, 2000}, .controls = kControls};

/// What the user reads, and the number behind it.
using Entry = std::pair<std::string, int>;

class HotKeyListsTest : public DialogTest {
 protected:
  HotKeyListsTest() {
    form_.Load();
    FillHotKeyLists(form_);
  }

  /// Presses and releases a key in the key list; true when the release was swallowed.
  bool Release(int key, unsigned shift = kNoShift) {
    int pressed = key;
    keys_.Down(Keys(), pressed, shift, false);
    keys_.Up(Keys(), key, shift);
    return key == 0;
  }
  Control& Keys() { return form_.Find("cboHotKeyAction", 0); }
  static std::vector<Entry> Entries(const Control& list) {
    std::vector<Entry> entries;
    for (const ListItem& item : list.Items()) entries.emplace_back(item.text, item.itemData);
    return entries;
  }

  Form form_{kDesign, forms_};
  KeyListKeys keys_;
};

TEST_F(HotKeyListsTest, OffersFiveModifiersOneAtATime) {
  EXPECT_EQ(Entries(form_.Find("cboHotKeyModAction", 0)),
            (std::vector<Entry>{{" ", 0}, {"Alt", 1}, {"Ctrl", 2}, {"Shift", 4}, {"Windows®", 8}}));
}

TEST_F(HotKeyListsTest, OffersSixtyKeysInTheirOrder) {
  std::vector<Entry> expected = {{" ", 0}};
  for (int n = 1; n <= 12; ++n) expected.emplace_back("F" + std::to_string(n), 0x6F + n);
  expected.insert(expected.end(), {{"PrintScrn", 0x2C},
                                   {"Pause", 0x13},
                                   {"Numpad /", 0x6F},
                                   {"Numpad *", 0x6A},
                                   {"Numpad -", 0x6D},
                                   {"Numpad +", 0x6B},
                                   {"Numpad .", 0x6E}});
  for (int n = 0; n <= 9; ++n) expected.emplace_back("Numpad " + std::to_string(n), 0x60 + n);
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    expected.emplace_back(std::string(1, letter), letter);
  }
  expected.insert(expected.end(),
                  {{"Insert", 0x2D}, {"Delete", 0x2E}, {"DownArrow", 0x28}, {"UpArrow", 0x26}});
  EXPECT_EQ(expected.size(), 60U);
  EXPECT_EQ(Entries(Keys()), expected);
}

TEST_F(HotKeyListsTest, LeavesOtherListsEmpty) {
  EXPECT_TRUE(form_.Find("cboHotKe").Items().empty());
}

TEST_F(HotKeyListsTest, SelectsTheReleasedKeyAndSwallowsIt) {
  EXPECT_TRUE(Release(0x76));
  EXPECT_EQ(Keys().SelectedText(), "F7");
  EXPECT_TRUE(Release('Q'));
  EXPECT_EQ(Keys().SelectedText(), "Q");
}

TEST_F(HotKeyListsTest, TheSpaceBarSelectsTheBlankEntry) {
  Release('Q');
  EXPECT_TRUE(Release(32));
  EXPECT_EQ(Keys().ListIndex(), 0);
}

TEST_F(HotKeyListsTest, ShiftCtrlAndAltChangeNothing) {
  Release('Q');
  for (const unsigned shift : {1U, 2U, 4U, 7U}) {
    EXPECT_FALSE(Release(0x74, shift));
    EXPECT_EQ(Keys().SelectedText(), "Q");
  }
}

TEST_F(HotKeyListsTest, AKeyThatIsNotOfferedChangesNothing) {
  Release('Q');
  EXPECT_FALSE(Release('5'));
  EXPECT_FALSE(Release(0x0D));
  EXPECT_EQ(Keys().SelectedText(), "Q");
}

std::string Refused(std::int16_t modifiers, std::int16_t key) {
  return NotAvailableText(std::vector<RegisteredHotKey>{{"", modifiers, key, false, false}});
}

TEST(HotKeyTexts, NameACombinationAsTheUserReadsIt) {
  EXPECT_EQ(Refused(1, '3'), "Alt+3");
  EXPECT_EQ(Refused(8, 'W'), "Windows®+W");
  EXPECT_EQ(Refused(2, 0x26), "Ctrl+UpArrow");
  EXPECT_EQ(Refused(4, '0'), "Shift+0");
  EXPECT_EQ(Refused(4, '9'), "Shift+9");
  EXPECT_EQ(Refused(0, 0x13), "Pause");
  EXPECT_EQ(Refused(3, 'A'), "Alt+Ctrl+A");
}

TEST(HotKeyTexts, NameAKeyThatIsNotOfferedByItsNumber) {
  EXPECT_EQ(Refused(1, 0x0D), "Alt+Key 13");
}

TEST(HotKeyTexts, NameWhatIsNotAvailableAndWhatWasChosenTwiceOnceEach) {
  const std::vector<RegisteredHotKey> registered = {
      {"a", 1, '3', false, false}, {"b", 1, '4', true, false},  {"c", 8, 'W', false, false},
      {"d", 8, 'W', false, true},  {"e", 0, 0x13, true, false}, {"f", 0, 0x13, false, true},
      {"g", 0, 0x13, false, true},
  };
  EXPECT_EQ(NotAvailableText(registered), "Alt+3, Windows®+W");
  EXPECT_EQ(ChosenTwiceText(registered), "Windows®+W, Pause");
  EXPECT_EQ(NotAvailableText({}), "");
  EXPECT_EQ(ChosenTwiceText({}), "");
}

}  // namespace
}  // namespace korvale

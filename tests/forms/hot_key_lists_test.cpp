#include "forms/hot_key_lists.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

std::vector<std::pair<std::string, int>> Pairs(std::span<const HotKeyChoice> choices) {
  std::vector<std::pair<std::string, int>> pairs;
  for (const HotKeyChoice& choice : choices) pairs.emplace_back(choice.text, choice.value);
  return pairs;
}

TEST(HotKeyChoicesTest, OffersFiveModifiersOneAtATime) {
  EXPECT_EQ(Pairs(ModifierChoices()),
            (std::vector<std::pair<std::string, int>>{
                {" ", 0}, {"Alt", 1}, {"Ctrl", 2}, {"Shift", 4}, {"Windows®", 8}}));
}

TEST(HotKeyChoicesTest, OffersSixtyKeysInTheirOrder) {
  std::vector<std::pair<std::string, int>> expected = {{" ", 0}};
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
  EXPECT_EQ(Pairs(KeyChoices()), expected);
  EXPECT_EQ(KeyChoices().size(), 60U);
}

TEST(HotKeyTextTest, JoinsModifierAndKey) {
  EXPECT_EQ(HotKeyText(1, '3'), "Alt+3");
  EXPECT_EQ(HotKeyText(8, 'W'), "Windows®+W");
  EXPECT_EQ(HotKeyText(2, 0x26), "Ctrl+UpArrow");
  EXPECT_EQ(HotKeyText(4, '0'), "Shift+0");
  EXPECT_EQ(HotKeyText(4, '9'), "Shift+9");
}

TEST(HotKeyTextTest, NamesAKeyAlone) { EXPECT_EQ(HotKeyText(0, 0x13), "Pause"); }

TEST(HotKeyTextTest, NamesSeveralModifiers) { EXPECT_EQ(HotKeyText(3, 'A'), "Alt+Ctrl+A"); }

TEST(HotKeyTextTest, NamesAKeyThatIsNotOfferedByItsNumber) {
  EXPECT_EQ(HotKeyText(1, 0x0D), "Alt+Key 13");
}

constexpr ControlRow kControls[] = {
    {ControlKind::kDropDownList, "cboHotKeyAction", 0, "", "", {}},
    {ControlKind::kDropDownList, "cboHotKeyModAction", 0, "", "", {}},
    {ControlKind::kDropDownList, "cboHotKe", -1, "", "", {}},
};
constexpr FormDesign kDesign = {
    .name = "frmLists", .caption = "Lists", .place = {0, 0, 3000, 2000}, .controls = kControls};

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

  Form form_{kDesign, forms_};
  KeyListKeys keys_;
};

TEST_F(HotKeyListsTest, FillsEachListByItsName) {
  EXPECT_EQ(Keys().Items().size(), 60U);
  EXPECT_EQ(form_.Find("cboHotKeyModAction", 0).Items().size(), 5U);
  EXPECT_TRUE(form_.Find("cboHotKe").Items().empty());
}

TEST_F(HotKeyListsTest, StoresTheValueWithEachEntry) {
  for (std::size_t i = 0; i < KeyChoices().size(); ++i) {
    EXPECT_EQ(Keys().Items()[i].itemData, KeyChoices()[i].value);
  }
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

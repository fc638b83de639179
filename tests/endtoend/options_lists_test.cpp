#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

using Entries = OptionsDialog::Entries;
using enum OptionsDialog::List;

constexpr OptionsDialog::List kModifierLists[] = {kTagModifier,      kMinimizeModifier,
                                                  kMaximizeModifier, kOptionsModifier,
                                                  kMenuModifier,     kToggleModifier};
constexpr OptionsDialog::List kKeyLists[] = {kMinimizeKey, kMaximizeKey, kOptionsKey, kMenuKey,
                                             kToggleKey};

const Entries kModifiers = {{" ", 0}, {"Alt", 1}, {"Ctrl", 2}, {"Shift", 4}, {"Windows®", 8}};

Entries Keys() {
  Entries keys = {{" ", 0}};
  for (int number = 1; number <= 12; ++number) {
    keys.emplace_back("F" + std::to_string(number), VK_F1 + number - 1);
  }
  keys.insert(keys.end(), {{"PrintScrn", VK_SNAPSHOT},
                           {"Pause", VK_PAUSE},
                           {"Numpad /", VK_DIVIDE},
                           {"Numpad *", VK_MULTIPLY},
                           {"Numpad -", VK_SUBTRACT},
                           {"Numpad +", VK_ADD},
                           {"Numpad .", VK_DECIMAL}});
  for (int digit = 0; digit <= 9; ++digit) {
    keys.emplace_back("Numpad " + std::to_string(digit), VK_NUMPAD0 + digit);
  }
  for (char letter = 'A'; letter <= 'Z'; ++letter)
    keys.emplace_back(std::string(1, letter), letter);
  keys.insert(
      keys.end(),
      {{"Insert", VK_INSERT}, {"Delete", VK_DELETE}, {"DownArrow", VK_DOWN}, {"UpArrow", VK_UP}});
  return keys;
}

class OptionsLists : public OptionsTest {};

TEST_F(OptionsLists, HoldTheirEntriesInOrderWithTheValuesThatAreStored) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_EQ(Keys().size(), 60U);
  for (const auto list : kModifierLists) EXPECT_EQ(dialog.EntriesOf(list), kModifiers);
  for (const auto list : kKeyLists) EXPECT_EQ(dialog.EntriesOf(list), Keys());
}

TEST_F(OptionsLists, ShowTheStoredHotKeys) {
  installation_.SetOption("HotKeyModParent", "4");
  installation_.SetOption("HotKeyAction1", "0");
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  EXPECT_EQ(dialog.Chosen(kTagModifier), "Shift");
  EXPECT_EQ(dialog.Chosen(kMinimizeModifier), "Alt");
  EXPECT_EQ(dialog.Chosen(kMinimizeKey), "DownArrow");
  EXPECT_EQ(dialog.Chosen(kMaximizeKey), " ");
  EXPECT_EQ(dialog.Chosen(kOptionsModifier), "Windows®");
  EXPECT_EQ(dialog.Chosen(kMenuKey), "W");
  EXPECT_EQ(dialog.Chosen(kToggleModifier), " ");
  EXPECT_EQ(dialog.Chosen(kToggleKey), "Pause");
}

TEST_F(OptionsLists, TakeTheKeyThatIsPressedInThem) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kMinimizeKey));
  Press({0, VK_F7});
  EXPECT_TRUE(Shows(dialog, kMinimizeKey, "F7"));
  Press({0, 'N'});
  EXPECT_TRUE(Shows(dialog, kMinimizeKey, "N"));
  Press({0, VK_INSERT});
  EXPECT_TRUE(Shows(dialog, kMinimizeKey, "Insert"));
  Press({0, VK_SPACE});
  EXPECT_TRUE(Shows(dialog, kMinimizeKey, " "));
  ASSERT_TRUE(dialog.Focus(kMenuKey));
  Press({0, VK_F2});
  EXPECT_TRUE(Shows(dialog, kMenuKey, "F2"));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(settings().Get("Options", "HotKeyAction0"), "0");
  EXPECT_EQ(settings().Get("Options", "HotKeyGeneral1"), std::to_string(VK_F2));
}

TEST_F(OptionsLists, TakeNoKeyThatWasPressedBeforeTheDialogCameForward) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kMinimizeKey));
  ASSERT_TRUE(BringToFront(Open("Alpha")));
  Press({MOD_WIN, 'O'});
  ASSERT_TRUE(InFront(dialog.form()));
  EXPECT_TRUE(HoldsFor([&] { return dialog.Chosen(kMinimizeKey) == "DownArrow"; }));
  Press({0, 'K'});
  EXPECT_TRUE(Shows(dialog, kMinimizeKey, "K"));
}

TEST_F(OptionsLists, TakeF4AndArrowsAndStayClosed) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kMaximizeKey));
  const auto open = [&] { return dialog.ListBox(kMaximizeKey).Send(CB_GETDROPPEDSTATE) != 0; };
  Press({0, VK_F4});
  EXPECT_TRUE(Shows(dialog, kMaximizeKey, "F4"));
  EXPECT_TRUE(HoldsFor([&] { return !open(); }));
  Press({0, VK_DOWN});
  EXPECT_TRUE(Shows(dialog, kMaximizeKey, "DownArrow"));
  Press({0, 'X'});
  EXPECT_TRUE(Shows(dialog, kMaximizeKey, "X"));
  Click(dialog.ListBox(kMaximizeKey));
  ASSERT_TRUE(WaitFor(open));
  Press({0, VK_DOWN});
  EXPECT_TRUE(Shows(dialog, kMaximizeKey, "Y"));
  EXPECT_TRUE(HoldsFor([&] { return open() && dialog.Chosen(kMaximizeKey) == "Y"; }));
  Press({0, VK_TAB});
  EXPECT_TRUE(WaitFor([&] { return !open(); }));
  EXPECT_EQ(dialog.Chosen(kMaximizeKey), "Y");
  EXPECT_TRUE(dialog.Cancel());
}

TEST_F(OptionsLists, IgnoreAKeyPressedTogetherWithAnother) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kToggleKey));
  Press({MOD_SHIFT, VK_F5});
  EXPECT_TRUE(HoldsFor([&] { return dialog.Chosen(kToggleKey) == "Pause"; }));
  Press({MOD_WIN, 'K'});
  Press({MOD_WIN, VK_SNAPSHOT});
  EXPECT_TRUE(HoldsFor([&] { return dialog.Chosen(kToggleKey) == "Pause"; }));
  Press({0, VK_F5});
  EXPECT_TRUE(Shows(dialog, kToggleKey, "F5"));
}

TEST_F(OptionsLists, OfModifiersTakeNoKeyThatIsPressedInThem) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kTagModifier));
  // The number of the Backspace key is that of the Windows modifier.
  Press({0, VK_BACK});
  Press({0, VK_F7});
  EXPECT_TRUE(HoldsFor([&] { return dialog.Chosen(kTagModifier) == "Alt"; }));
}

TEST_F(OptionsLists, WithoutTheStoredValueShowNothingAndLeaveItAsItIs) {
  installation_.SetOption("HotKeyModParent", "6");
  installation_.SetOption("HotKeyAction0", "55");
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  EXPECT_TRUE(dialog.HasNoChoice(kTagModifier));
  EXPECT_TRUE(dialog.HasNoChoice(kMinimizeKey));
  EXPECT_FALSE(dialog.HasNoChoice(kMaximizeKey));
  ASSERT_TRUE(dialog.Confirm());
  EXPECT_TRUE(HoldsOption("HotKeyGeneral2", "19"));
  EXPECT_EQ(settings().Get("Options", "HotKeyModParent"), "6");
  EXPECT_EQ(settings().Get("Options", "HotKeyAction0"), "55");
}

}  // namespace
}  // namespace korvale::endtoend

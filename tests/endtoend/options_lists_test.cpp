#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

using enum OptionsDialog::List;

class OptionsLists : public OptionsTest {};

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
  Press(endtoend::kOptionsKey);
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

TEST_F(OptionsLists, GoUpAndDownByAPageAndStayClosed) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kMinimizeKey));
  const Window list = dialog.ListBox(kMinimizeKey);
  const auto place = [&] { return list.Send(CB_GETCURSEL); };
  const LRESULT down_arrow = place();
  ASSERT_EQ(dialog.Chosen(kMinimizeKey), "DownArrow");
  Press({0, VK_PRIOR});
  // More than a line; how many, the system decides.
  EXPECT_TRUE(WaitFor([&] { return place() < down_arrow - 1; })) << dialog.Chosen(kMinimizeKey);
  EXPECT_TRUE(HasBorder(dialog.Label(" Minimize Window")));
  Press({0, VK_NEXT});
  EXPECT_TRUE(Shows(dialog, kMinimizeKey, "DownArrow"));
  EXPECT_TRUE(HoldsFor([&] { return list.Send(CB_GETDROPPEDSTATE) == 0; }));
  // The first entry is no key.
  for (int page = 0; page < 20 && place() != 0; ++page) {
    const LRESULT before = place();
    Press({0, VK_PRIOR});
    ASSERT_TRUE(WaitFor([&] { return place() < before; }));
  }
  EXPECT_EQ(dialog.Chosen(kMinimizeKey), " ");
  EXPECT_TRUE(WaitFor([&] { return !HasBorder(dialog.Label(" Minimize Window")); }));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(settings().Get("Options", "HotKeyAction0"), "0");
}

TEST_F(OptionsLists, IgnoreAKeyPressedTogetherWithAnother) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(dialog.Focus(kToggleKey));
  Press({MOD_SHIFT, VK_F5});
  EXPECT_TRUE(HoldsFor([&] { return dialog.Chosen(kToggleKey) == "Pause"; }));
  // Most keys that are pressed with the Windows key never reach a program; this one does.
  Press({MOD_WIN, VK_F8});
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

}  // namespace
}  // namespace korvale::endtoend

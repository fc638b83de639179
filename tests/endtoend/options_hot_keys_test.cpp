#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";
constexpr char kResetQuestion[] = "Reset all Options to default ?";
constexpr char kResetNote[] =
    "Note:  This operation will not effect any of the Settings changed from the View menu.";
constexpr Chord kCtrl1{MOD_CONTROL, '1'};

class OptionsHotKeys : public OptionsTest {
 protected:
  static bool BecomesFree(Chord chord) {
    return WaitFor([&] { return HotKeyIsFree(chord); });
  }

  /// Presses Reset, and agrees.
  ::testing::AssertionResult Reset(const OptionsDialog& dialog) {
    Click(dialog.Button("Reset All Options to Default"));
    const Window box = korvale_->MessageBox();
    if (!box) return ::testing::AssertionFailure() << "no question";
    EXPECT_EQ(box.Title(), "Korvale - Options");
    const std::string text = LabelText(box);
    EXPECT_TRUE(text.starts_with(kResetQuestion)) << text;
    EXPECT_NE(text.find("The default options will be Applied automatically."), std::string::npos);
    EXPECT_TRUE(text.ends_with(kResetNote)) << text;
    if (!AnswerBox(box, IDOK)) return ::testing::AssertionFailure() << "the question stays";
    return TakesKeys(dialog);
  }
};

TEST_F(OptionsHotKeys, SelectWithAnotherModifierAsSoonAsItIsApplied) {
  installation_.StoreTag(1, "Alpha", kClass);
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  const Window alpha = Open("Alpha");
  const Window beta = Open("Beta");
  ASSERT_TRUE(Pick(dialog, List::kTagModifier, 'C', "Ctrl"));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(settings().Get("Options", "HotKeyModParent"), "2");
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(1));
  EXPECT_TRUE(StaysInFront(beta));
  Press(kCtrl1);
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(OptionsHotKeys, AreRegisteredAsTheDialogSaysWhenItIsApplied) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  Click(dialog.TagBox(5));
  ASSERT_TRUE(WaitFor([&] { return !IsChecked(dialog.TagBox(5)); }));
  ASSERT_TRUE(Pick(dialog, List::kMinimizeModifier, 'S', "Shift"));
  ASSERT_TRUE(Pick(dialog, List::kMinimizeKey, VK_F8, "F8"));
  ASSERT_TRUE(Pick(dialog, List::kMenuKey, VK_SPACE, " "));
  EXPECT_FALSE(HotKeyIsFree(TagKey(5)));
  EXPECT_TRUE(HotKeyIsFree({MOD_SHIFT, VK_F8}));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_TRUE(HotKeyIsFree(TagKey(5)));
  EXPECT_TRUE(HotKeyIsFree(kMinimizeKey));
  EXPECT_TRUE(HotKeyIsFree(kMenuKey));
  EXPECT_FALSE(HotKeyIsFree({MOD_SHIFT, VK_F8}));
  EXPECT_FALSE(HotKeyIsFree(TagKey(4)));
  EXPECT_FALSE(HotKeyIsFree(kMaximizeKey));
  EXPECT_EQ(settings().Get("Options", "HotKeyParent5"), "False");
}

TEST_F(OptionsHotKeys, AreTheDefaultsAfterReset) {
  installation_.SetOption("HotKeyModParent", "2");
  installation_.SetOption("HotKeyGeneral2", "0");
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(HotKeyIsFree(TagKey(1)));
  ASSERT_TRUE(Reset(dialog));
  EXPECT_TRUE(HotKeyIsFree(kCtrl1));
  for (const Chord key : DefaultHotKeys()) EXPECT_FALSE(HotKeyIsFree(key)) << key.key;
  EXPECT_EQ(dialog.Chosen(List::kTagModifier), "Alt");
  EXPECT_EQ(dialog.Chosen(List::kToggleKey), "Pause");
  EXPECT_EQ(StoredOptions(), Pairs());
}

TEST_F(OptionsHotKeys, WorkOutOfTheBoxUnlessWindowsKeepsThemWhichTheDialogTells) {
  const bool kept = !HotKeyIsFree(kDefaultOptionsKey) && !HotKeyIsFree(kDefaultMenuKey);
  ASSERT_TRUE(StartFirstTime());
  if (kept) {
    const OptionsDialog dialog = OpenOptionsByMenu();
    ASSERT_TRUE(dialog.GoTo(Page::kHotKeys));
    EXPECT_EQ(dialog.ConflictLine(),
              "Not available, in use by Windows or another program:  Windows®+O, Windows®+W");
    return;
  }
  Press(kDefaultOptionsKey);
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  ASSERT_TRUE(InFront(dialog.form()));
  ASSERT_TRUE(dialog.GoTo(Page::kHotKeys));
  EXPECT_EQ(dialog.ConflictLine(), "");
  ASSERT_TRUE(dialog.Cancel());
  Press(kDefaultMenuKey);
  EXPECT_TRUE(korvale_->OpenMenu());
}

TEST_F(OptionsHotKeys, ThatAnotherProgramHasAreNamedUntilItGivesThemBack) {
  installation_.StoreTag(5, "Alpha", kClass);
  const Window alpha = Open("Alpha");
  std::optional<TestProgram> holder(std::in_place);
  ASSERT_TRUE(holder->TakeHotKey(TagKey(5)));
  ASSERT_TRUE(holder->TakeHotKey(kMenuKey));
  installation_.settings().Set("Startup", "DisplayTips", "False");
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  EXPECT_EQ(dialog.ConflictLine(),
            "Not available, in use by Windows or another program:  Alt+5, Ctrl+F12");
  holder.reset();
  ASSERT_TRUE(BecomesFree(TagKey(5)));
  ASSERT_TRUE(BecomesFree(kMenuKey));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(dialog.ConflictLine(), "");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(5));
  EXPECT_TRUE(InFront(alpha));
}

}  // namespace
}  // namespace korvale::endtoend

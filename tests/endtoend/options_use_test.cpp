#include <algorithm>
#include <functional>

#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kSplash[] = "&Display splash screen on startup";
constexpr char kSelectPrevious[] = "Select the Previous &Window on startup";
constexpr char kToolbars[] = "Recognize &Toolbar style windows";
constexpr char kUntitled[] = "&Recognize windows that have no Title";

constexpr POINT kInLegend{20, 5};

class Options : public OptionsTest {
 protected:
  static bool IsOnlyOne(Window form) {
    return std::ranges::count_if(TopLevelWindows(), [&](Window window) {
             return window.ProcessId() == form.ProcessId() &&
                    window.ClassName() == form.ClassName();
           }) == 1;
  }

  /// Clicks the legend while Shift is held down; true when that opens no palette.
  bool ShiftClickLegend(const OptionsDialog& dialog) {
    const Window focus = FocusOf(dialog.form());
    const HeldKeys shift({0, VK_SHIFT});
    ClickAt(dialog.EnabledLegend(), kInLegend);
    // The dialog takes its input in order: once a key has had its effect, so has the click.
    Press({0, VK_TAB});
    return WaitFor([&] { return FocusOf(dialog.form()) != focus; }) && !korvale_->HasMessageBox();
  }

  /// Presses the access key and waits until the box has changed.
  ::testing::AssertionResult Toggles(const OptionsDialog& dialog, UINT key, const char* caption) {
    const Window box = dialog.Button(caption);
    if (!box) return ::testing::AssertionFailure() << "no box " << caption;
    const bool before = IsChecked(box);
    Press({MOD_ALT, key});
    if (WaitFor([&] { return IsChecked(box) != before; })) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << caption << " does not change";
  }
};

TEST_F(Options, OpenOnTheHotKeysForAUserWhoReviewsThem) {
  korvale_.emplace(installation_);
  ASSERT_TRUE(AnswerBox(ReviewQuestion(), IDYES));
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  ASSERT_TRUE(InFront(dialog.form()));
  EXPECT_EQ(dialog.CurrentPage(), Page::kHotKeys);
  ASSERT_TRUE(dialog.Cancel());
  EXPECT_EQ(OpenOptionsByMenu().CurrentPage(), Page::kHotKeys);
}

TEST_F(Options, ExplainAPlainLabelUnderTheMouse) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  EXPECT_TRUE(korvale_->ShowsToolTip(dialog.TagLabel(0), " selects the Previous Window "));
}

TEST_F(Options, ComeToTheFrontWhenTheyAreOpenAlready) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(WorkIn(Open("Alpha")));
  Press(kOptionsKey);
  EXPECT_TRUE(InFront(dialog.form()));
  ASSERT_TRUE(WorkIn(Open("Beta")));
  EXPECT_EQ(OpenOptionsByMenu().form(), dialog.form());
  EXPECT_TRUE(IsOnlyOne(dialog.form()));
}

TEST_F(Options, ObeyTheAccessKeysOfTheirCaptions) {
  const OptionsDialog dialog = StartWithOptions(Page::kGeneral);
  EXPECT_TRUE(Toggles(dialog, 'D', kSplash));
  EXPECT_TRUE(Toggles(dialog, 'W', kSelectPrevious));
  ASSERT_TRUE(dialog.GoTo(Page::kWindowIdentification));
  EXPECT_TRUE(Toggles(dialog, 'T', kToolbars));
  EXPECT_TRUE(Toggles(dialog, 'R', kUntitled));
  ASSERT_TRUE(dialog.GoTo(Page::kHotKeys));
  EXPECT_TRUE(dialog.Focus(List::kTagModifier));
  EXPECT_TRUE(dialog.Focus(List::kMinimizeModifier));
  EXPECT_TRUE(dialog.Focus(List::kOptionsModifier));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_TRUE(dialog.form().Exists());
  EXPECT_EQ(settings().Get("Options", "SplashScreen"), "True");
  EXPECT_EQ(settings().Get("Options", "SelectPrevWinOnStart"), "True");
  EXPECT_EQ(settings().Get("Options", "AllowToolbarWindow"), "True");
  EXPECT_EQ(settings().Get("Options", "AllowNoTextWindow"), "True");
}

TEST_F(Options, AreLeftUnchangedByEscCancelAndTheCloseBox) {
  Start();
  const Pairs before = StoredOptions();
  const std::function<bool(const OptionsDialog&)> ways[] = {
      [](const OptionsDialog& dialog) { return dialog.Cancel(); },
      [](const OptionsDialog& dialog) {
        Click(dialog.Button("Cancel"));
        return dialog.IsGone();
      },
      [](const OptionsDialog& dialog) {
        PostMessageW(dialog.form().handle(), WM_SYSCOMMAND, SC_CLOSE, 0);
        return dialog.IsGone();
      },
      [](const OptionsDialog& dialog) {
        Press({MOD_ALT, VK_F4});
        return dialog.IsGone();
      }};
  for (const auto& leave : ways) {
    const OptionsDialog dialog = OpenOptions();
    EXPECT_FALSE(IsChecked(dialog.Button(kSelectPrevious)));
    EXPECT_TRUE(Toggles(dialog, 'W', kSelectPrevious));
    EXPECT_TRUE(leave(dialog));
  }
  EXPECT_EQ(StoredOptions(), before);
}

TEST_F(Options, TakeTheDefaultColourAgainByAShiftClickOnTheLegend) {
  installation_.SetOption("HotKeyEnabled", "255");
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  ASSERT_TRUE(ShiftClickLegend(dialog));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(settings().Get("Options", "HotKeyEnabled"), Defaults("Options")["HotKeyEnabled"]);
  EXPECT_FALSE(korvale_->HasMessageBox());
}

TEST_F(Options, ChooseTheColourByAltCAndTakeTheDefaultAgainByShiftAltC) {
  constexpr Rgb kDefault{255, 255, 128};
  constexpr Rgb kChosen{10, 255, 159};
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  Press({MOD_ALT, 'C'});
  const ColorDialog colors(*korvale_);
  ASSERT_TRUE(InFront(colors.window()));
  EXPECT_EQ(colors.Shown(), kDefault);
  ASSERT_TRUE(colors.Choose(kChosen));
  ASSERT_TRUE(InFront(dialog.form()));
  EXPECT_TRUE(WaitFor([&] { return ColorOnScreen(dialog.EnabledLegend()) == kChosen; }));
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(settings().Get("Options", "HotKeyEnabled"), StoredColor(kChosen));
  Press({MOD_SHIFT | MOD_ALT, 'C'});
  EXPECT_TRUE(WaitFor([&] { return ColorOnScreen(dialog.EnabledLegend()) == kDefault; }));
  EXPECT_FALSE(korvale_->HasMessageBox());
  ASSERT_TRUE(Apply(dialog));
  EXPECT_EQ(settings().Get("Options", "HotKeyEnabled"), Defaults("Options")["HotKeyEnabled"]);
}

TEST_F(Options, ShowByABorderWhichHotKeysAreEnabled) {
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  const Window tag = dialog.TagLabel(5);
  const Window minimize = dialog.Label(" Minimize Window");
  ASSERT_TRUE(HasBorder(tag));
  ASSERT_TRUE(HasBorder(minimize));
  Click(dialog.TagBox(5));
  EXPECT_TRUE(WaitFor([&] { return !HasBorder(tag); }));
  EXPECT_TRUE(HasBorder(dialog.TagLabel(4)));
  ASSERT_TRUE(Pick(dialog, List::kMinimizeKey, VK_SPACE, " "));
  EXPECT_TRUE(WaitFor([&] { return !HasBorder(minimize); }));
  ASSERT_TRUE(Pick(dialog, List::kMinimizeKey, VK_F9, "F9"));
  EXPECT_TRUE(WaitFor([&] { return HasBorder(minimize); }));
}

}  // namespace
}  // namespace korvale::endtoend

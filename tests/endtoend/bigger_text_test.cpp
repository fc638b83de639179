#include <string>

#include "tests/endtoend/harness/layout.h"
#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/text_size.h"
#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {
namespace {

/// The text of a user who has made it bigger, 9 points to begin with. script/test lets this run on
/// screens of more dots per inch too.
class BiggerText : public OptionsTest {
 protected:
  /// The pixels of a length of 96 dots per inch.
  static int Pixels(int length) {
    return MulDiv(length, static_cast<int>(GetDpiForSystem()), USER_DEFAULT_SCREEN_DPI);
  }
  static int Height(int percent) { return MulDiv(Pixels(12), percent, 100); }

  static ::testing::AssertionResult LooksWell(Window form, int textHeight) {
    std::string flaw;
    if (WaitFor([&] { return (flaw = FlawOf(form, textHeight)).empty(); })) {
      return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << form.ClassName() << ": " << flaw;
  }

  /// The text that goes with the size that a dialog has got.
  static int TextIn(const OptionsDialog& dialog) {
    return Height(100) * static_cast<int>(SizeOf(dialog.Button("OK")).cy) / Pixels(23);
  }
};

TEST_F(BiggerText, CutsNothingInAnyWindow) {
  for (const int percent : {100, 150, 225}) {
    SCOPED_TRACE(percent);
    const TextSize size(percent);
    Start();
    const int height = Height(percent);
    EXPECT_TRUE(LooksWell(main(), height));
    EXPECT_TRUE(MainWindow(main()).ShowsMenusWhole());
    ASSERT_TRUE(Choose('H', {'A'}));
    const Window about = korvale_->Form("frmMsgBox2");
    EXPECT_TRUE(LooksWell(about, height));
    ASSERT_TRUE(about.Close());
    ASSERT_TRUE(Choose('V', {'C'}));
    const Window tip = korvale_->Form("frmMsgTip");
    EXPECT_TRUE(LooksWell(tip, height));
    ASSERT_TRUE(tip.Close());
    WorkInNew("Alpha");
    const AddWindowDialog add = OpenAddWindow();
    EXPECT_TRUE(LooksWell(add.form(), height));
    ASSERT_TRUE(add.Cancel());
    ASSERT_TRUE(Choose('T', {'H'}));
    ASSERT_TRUE(InFront(korvale_->Form("frmMsgTip")));
    Press({0, VK_RETURN});
    EXPECT_TRUE(LooksWell(korvale_->Form("frmWaitWindow"), height));
    ASSERT_TRUE(Exit());
  }
}

TEST_F(BiggerText, EnlargesTheOptionsAsFarAsTheScreenHasRoom) {
  for (const int percent : {100, 150, 225}) {
    SCOPED_TRACE(percent);
    const TextSize size(percent);
    const OptionsDialog dialog = StartWithOptions(Page::kGeneral);
    for (const Page page : {Page::kGeneral, Page::kHotKeys, Page::kWindowIdentification}) {
      ASSERT_TRUE(dialog.GoTo(page));
      EXPECT_TRUE(LooksWell(dialog.form(), TextIn(dialog)));
    }
    EXPECT_GE(TextIn(dialog), Height(100) * (percent > 100 ? 125 : 100) / 100);
    ASSERT_TRUE(dialog.Cancel());
    ASSERT_TRUE(Exit());
  }
}

TEST_F(BiggerText, LeavesTheStoredWidthAsItIs) {
  installation_.settings().Set("Startup", "Width", "6000");
  for (const int percent : {150, 225, 100}) {
    const TextSize size(percent);
    Start();
    // As much wider as the text is higher, which has whole pixels.
    EXPECT_NEAR(SizeOf(main()).cx, Pixels(400) * Height(percent) / Height(100), 1);
    ASSERT_TRUE(Exit());
    EXPECT_TRUE(Stored("Width", "6000"));
  }
}

TEST_F(BiggerText, IsNotBelievedInWhenNothingHasChanged) {
  const TextSize size(100);
  const OptionsDialog dialog = StartWithOptions(Page::kHotKeys);
  const SIZE before = SizeOf(dialog.form());
  for (int times = 0; times < 500; ++times) {
    for (const UINT message :
         {WM_SETTINGCHANGE, WM_THEMECHANGED, WM_SYSCOLORCHANGE, WM_DISPLAYCHANGE, WM_FONTCHANGE}) {
      for (const WPARAM what : {WPARAM{SPI_SETNONCLIENTMETRICS}, WPARAM{SPI_SETHIGHCONTRAST}}) {
        PostMessageW(dialog.form().handle(), message, what, times % 2 == 0 ? -1 : 64);
        PostMessageW(main().handle(), message, what, times);
      }
    }
  }
  EXPECT_TRUE(WaitFor([&] { return dialog.form().Responds() && main().Responds(); }));
  EXPECT_EQ(SizeOf(dialog.form()).cx, before.cx);
  EXPECT_TRUE(LooksWell(dialog.form(), Height(100)));
  EXPECT_TRUE(TakesKeys(dialog));
}

}  // namespace
}  // namespace korvale::endtoend

#include "platform/win32_constants.h"
#include "tests/program/customize_colors_test.h"

namespace korvale {
namespace {

/// Customize Colors without a mouse.
class CustomizeColorsKeysTest : public CustomizeColorsTest {
 protected:
  void Press(int key, unsigned shift = kNoShift) {
    korvale.user.PressKey(korvale.Handle(), key, shift);
  }

  KorvaleCopy& korvale = Customizing();
};

TEST_F(CustomizeColorsKeysTest, EnterChoosesTheColorOfTheFieldThatHasTheFocus) {
  korvale.host.WhenColorDialog([](Color initial) {
    EXPECT_EQ(initial, 0x9FFFFF);
    return std::optional<Color>(kRed);
  });
  Press(win32::kVkReturn);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed);
  EXPECT_EQ(ColorOf(korvale, "txtWindowClass"), 0xAEFFAE);
  Press(win32::kVkTab);
  ChooseNext(korvale, 0x112233);
  Press(win32::kVkReturn);
  EXPECT_EQ(ColorOf(korvale, "txtWindowClass"), 0x112233);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), kRed);
  EXPECT_TRUE(IsOn(korvale));
}

TEST_F(CustomizeColorsKeysTest, AltEnterTakesTheLastColorWithoutAQuestion) {
  ChooseNext(korvale, kRed);
  Press(win32::kVkReturn);
  Press(win32::kVkTab);
  Press(win32::kVkReturn, kAlt);
  EXPECT_EQ(ColorOf(korvale, "txtWindowClass"), kRed);
}

TEST_F(CustomizeColorsKeysTest, CancelAfterEnterKeepsTheColor) {
  ChooseNext(korvale, std::nullopt);
  Press(win32::kVkReturn);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
}

TEST_F(CustomizeColorsKeysTest, EnterThatIsHeldAsksOnce) {
  int asked = 0;
  korvale.host.WhenColorDialog([&](Color) {
    ++asked;
    return std::optional<Color>(kRed);
  });
  korvale.user.HoldKey(korvale.Handle(), win32::kVkReturn, 5);
  korvale.user.ReleaseKey(korvale.Handle(), win32::kVkReturn);
  EXPECT_EQ(asked, 1);
}

TEST_F(CustomizeColorsKeysTest, EnterDoesNothingWhileTheModeIsOff) {
  Toggle(korvale);
  Press(win32::kVkReturn);
  Press(win32::kVkReturn, kAlt);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
}

TEST_F(CustomizeColorsKeysTest, EnterDoesNothingWhileTheFieldsAreHidden) {
  Choose(korvale, {"View", "Target Window"});
  Toggle(korvale);
  Press(win32::kVkReturn);
  EXPECT_TRUE(IsOn(korvale));
}

}  // namespace
}  // namespace korvale

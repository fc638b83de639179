#include "tests/program/main_window_test.h"

namespace korvale {
namespace {

constexpr Color kBlack = 0x000000;
constexpr Color kWhite = 0xFFFFFF;
constexpr Color kBlue = 0xC00000;

class ReadableColorsTest : public MainWindowTest {
 protected:
  static Color TextColorOf(KorvaleCopy& copy, class Form& form, const char* name, int index = -1) {
    return copy.user.Look(form.Handle(), copy.Id(form, name, index)).foreColor;
  }
  static Color BackColorOf(KorvaleCopy& copy, class Form& form, const char* name, int index = -1) {
    return copy.user.Look(form.Handle(), copy.Id(form, name, index)).backColor;
  }
};

TEST_F(ReadableColorsTest, WhiteSystemTextIsNotShownOnThePaleFields) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.ChangeSysColor(kWindowTextColor, kWhite);
  EXPECT_EQ(TextColorOf(korvale, korvale.Form(), "txtWindow"), kBlack);
  EXPECT_EQ(TextColorOf(korvale, korvale.Form(), "txtWindowClass"), kBlack);
}

TEST_F(ReadableColorsTest, OnADarkFieldTheTextIsWhite) {
  Store("WI2BackColor", "8388608");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(ColorOf(korvale, "txtWindowClass"), 0x800000);
  EXPECT_EQ(TextColorOf(korvale, korvale.Form(), "txtWindow"), kBlack);
  EXPECT_EQ(TextColorOf(korvale, korvale.Form(), "txtWindowClass"), kWhite);
  Choose(korvale, {"View", "Default Settings", "Target Window/Class Colors"});
  EXPECT_EQ(TextColorOf(korvale, korvale.Form(), "txtWindowClass"), kBlack);
}

TEST_F(ReadableColorsTest, HighContrastShowsTheSystemsColorsAndKeepsTheStoredOnes) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.ChangeHighContrast(true);
  for (const char* const field : {"txtWindow", "txtWindowClass"}) {
    EXPECT_EQ(ColorOf(korvale, field), kWindowColor);
    EXPECT_EQ(TextColorOf(korvale, korvale.Form(), field), kWindowTextColor);
  }
  Choose(korvale, {"View", "Target Window"});
  EXPECT_EQ(Stored("WI1BackColor"), "10485759");
  korvale.host.ChangeHighContrast(false);
  EXPECT_EQ(ColorOf(korvale, "txtWindow"), 0x9FFFFF);
  EXPECT_EQ(TextColorOf(korvale, korvale.Form(), "txtWindow"), kBlack);
}

TEST_F(ReadableColorsTest, LabelsOfHotKeysCanBeReadOnEveryLegendColor) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.Parts().options.Get().colHotKeyEnabled = 0x400000;
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  class Form& options = korvale.Loaded("frmOptions");
  for (const char* const label : {"lblTagParent", "lblLegend"}) {
    EXPECT_EQ(BackColorOf(korvale, options, label, 1), 0x400000) << label;
    EXPECT_EQ(TextColorOf(korvale, options, label, 1), kWhite) << label;
  }
  EXPECT_EQ(TextColorOf(korvale, options, "lblLegend", 0), kButtonTextColor);
  korvale.host.ChangeHighContrast(true);
  EXPECT_EQ(BackColorOf(korvale, options, "lblTagParent", 1), kHighlightColor);
  EXPECT_EQ(TextColorOf(korvale, options, "lblTagParent", 1), kHighlightTextColor);
  korvale.Form().udmOptions("UPDATE_OPTIONS");
  EXPECT_EQ(korvale.Parts().options.Get().colHotKeyEnabled, 0x400000);
}

TEST_F(ReadableColorsTest, TheBlueOfAFreeTagGivesWayOnADarkDialog) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    EXPECT_EQ(TextColorOf(korvale, dialog, "lblWindow"), kBlue);
    korvale.host.ChangeSysColor(kButtonFaceColor, 0x202020);
    EXPECT_EQ(TextColorOf(korvale, dialog, "lblWindow"), kButtonTextColor);
    korvale.host.ChangeSysColor(kButtonFaceColor, 0xC8D0D4);
    EXPECT_EQ(TextColorOf(korvale, dialog, "lblWindow"), kBlue);
    korvale.host.ChangeHighContrast(true);
    EXPECT_EQ(TextColorOf(korvale, dialog, "lblWindow"), kButtonTextColor);
    dialog.Unload();
  });
  Choose(korvale, {"Window", "Add  Korvale  to Window menu..."});
}

}  // namespace
}  // namespace korvale

#include "tests/program/main_window_test.h"
#include "util/contrast.h"

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

  struct Scheme {
    Color window;
    Color windowText;
    Color face;
    Color faceText;
  };

  /// Documents and dialogs of a scheme need not look alike.
  static void ExpectReadableInEveryScheme(KorvaleCopy& copy, class Form& form) {
    for (const Scheme& scheme :
         {Scheme{kWhite, kBlack, 0xF0F0F0, kBlack}, Scheme{0x202020, kWhite, 0xF0F0F0, kBlack},
          Scheme{kWhite, kBlack, 0x202020, kWhite}, Scheme{kBlack, kWhite, kBlack, kWhite}}) {
      copy.host.ChangeSysColor(kWindowColor, scheme.window);
      copy.host.ChangeSysColor(kWindowTextColor, scheme.windowText);
      copy.host.ChangeSysColor(kButtonFaceColor, scheme.face);
      copy.host.ChangeSysColor(kButtonTextColor, scheme.faceText);
      ASSERT_FALSE(form.Controls().empty());
      for (const Control& control : form.Controls()) {
        const ControlState look = copy.user.Look(form.Handle(), control.Id());
        const double contrast = ContrastRatio(copy.host.GetSysColor(look.foreColor),
                                              copy.host.GetSysColor(look.backColor));
        EXPECT_GE(contrast, 4.5) << look.name << " on " << scheme.window << " and " << scheme.face;
      }
    }
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
  korvale.Options().colHotKeyEnabled = 0x400000;
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  class Form& options = korvale.Loaded("frmOptions");
  for (const char* const label : {"lblTagParent", "lblLegend"}) {
    EXPECT_EQ(BackColorOf(korvale, options, label, 1), 0x400000) << label;
    EXPECT_EQ(TextColorOf(korvale, options, label, 1), kWhite) << label;
  }
  for (const Color color : {0x000000, 0xFFFFFF, 0x808080, 0x0000FF, 0x00FF00, 0xFF0000, 0x80FFFF}) {
    korvale.Options().colHotKeyEnabled = color;
    korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
    for (const char* const label : {"lblTagParent", "lblAction", "lblGeneral", "lblLegend"}) {
      EXPECT_EQ(BackColorOf(korvale, options, label, 1), color) << label;
      EXPECT_GE(ContrastRatio(TextColorOf(korvale, options, label, 1), color), 4.5) << label;
    }
  }
  korvale.Options().colHotKeyEnabled = 0x400000;
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  EXPECT_EQ(TextColorOf(korvale, options, "lblLegend", 0), kButtonTextColor);
  korvale.host.ChangeHighContrast(true);
  EXPECT_EQ(BackColorOf(korvale, options, "lblTagParent", 1), kHighlightColor);
  EXPECT_EQ(TextColorOf(korvale, options, "lblTagParent", 1), kHighlightTextColor);
  korvale.Form().udmOptions("UPDATE_OPTIONS");
  EXPECT_EQ(korvale.Options().colHotKeyEnabled, 0x400000);
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

TEST_F(ReadableColorsTest, EveryTextCanBeReadWhenTheSchemeChangesBelowOpenWindows) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    ExpectReadableInEveryScheme(korvale, dialog);
    dialog.Unload();
  });
  Choose(korvale, {"Window", "Add  Korvale  to Window menu..."});
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  ExpectReadableInEveryScheme(korvale, korvale.Loaded("frmOptions"));
  korvale.Loaded("frmOptions").Unload();
  Choose(korvale, {"Help", "About Korvale"});
  ExpectReadableInEveryScheme(korvale, korvale.Loaded("frmMsgBox2"));
  ExpectReadableInEveryScheme(korvale, korvale.Form());
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    ExpectReadableInEveryScheme(korvale, tip);
    tip.Unload();
  });
  Choose(korvale, {"View", "Customize Colors - C"});
}

}  // namespace
}  // namespace korvale

#include "forms/tips.h"

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/forms/dialog_test.h"

namespace korvale {
namespace {

class TipsTest : public DialogTest {
 protected:
  void ShowTip(TipNumber number, const std::string& title = "TIP", std::int16_t height = 3000) {
    tips_.ShowTip(number, "Press & hold.", title, height, {}, nullptr);
  }
  /// The user reads the next tip and leaves it with a key.
  void LeaveNextWith(int key, unsigned shift, bool silence) {
    host_.WhenModal("frmMsgTip", [=, this](Form& form) {
      if (silence) Click(form, "chkStopMsg");
      Press(form, key, shift);
    });
  }
  void ReadNext() { LeaveNextWith(win32::kVkReturn, kNoShift, false); }
  void SilenceNext() { LeaveNextWith(win32::kVkReturn, kNoShift, true); }
  std::string CaptionOf(const std::string& title) {
    std::string caption;
    host_.WhenModal("frmMsgTip", [&](Form& form) {
      caption = user_.Title(form.Handle());
      Click(form, "cmdOK");
    });
    ShowTip(TipNumber::kCustomizeColors, title);
    return caption;
  }

  frmMsgTip form_{forms_};
  bool displayTips_ = true;
  std::string hidden_;
  Tips tips_{form_, display_, displayTips_, hidden_};
};

std::vector<std::string> NamesOf(const auto& controls) {
  std::vector<std::string> names;
  for (const auto& control : controls) names.emplace_back(control.name);
  return names;
}

TEST_F(TipsTest, ShowsTip14WithoutHiddenTipsAndRemembersItSilenced) {
  SilenceNext();
  ShowTip(TipNumber::kHotKeysDeactivated);
  EXPECT_EQ(hidden_, "11111111111110");
}

TEST_F(TipsTest, SilencingTip1InAnEmptyStringGivesZero) {
  SilenceNext();
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "0");
  EXPECT_EQ(form_.Tag(), "NO_SHOW");
}

TEST_F(TipsTest, ShowsNoSilencedTip) {
  hidden_ = "0";
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_EQ(hidden_, "0");
}

TEST_F(TipsTest, ShowsATipAgainThatWasOnlyRead) {
  ReadNext();
  ShowTip(TipNumber::kCustomizeColors);
  ReadNext();
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "1");
  EXPECT_EQ(form_.Tag(), "");
}

TEST_F(TipsTest, KeepsTheFlagsOfOtherTips) {
  hidden_ = "0010";
  SilenceNext();
  ShowTip(TipNumber::kOtherInstance);
  EXPECT_EQ(hidden_, "0010111110");
}

TEST_F(TipsTest, ShowsNothingAndChangesNothingWithTipsOff) {
  displayTips_ = false;
  ShowTip(TipNumber::kHotKeysDeactivated);
  EXPECT_FALSE(form_.IsLoaded());
  EXPECT_EQ(hidden_, "");
}

TEST_F(TipsTest, PutsTheTitleBeforeTheApplicationTitle) {
  EXPECT_EQ(CaptionOf("TIP"), "TIP - Korvale");
}

TEST_F(TipsTest, HasTheApplicationTitleWithoutATitle) { EXPECT_EQ(CaptionOf(""), "Korvale"); }

TEST_F(TipsTest, HasNoCaptionForNoTitle) { EXPECT_EQ(CaptionOf("NO_TITLE"), ""); }

TEST_F(TipsTest, LaysOutForTheHeight) {
  struct Layout {
    std::int16_t height;
    Twips textHeight;
    Twips checkTop;
    Twips buttonTop;
  };
  for (const Layout& each : {Layout{3400, 1600, 2125, 2605}, Layout{2600, 800, 1325, 1805}}) {
    host_.WhenModal("frmMsgTip", [&](Form& form) {
      EXPECT_EQ(user_.Place(form.Handle()).height, each.height);
      EXPECT_EQ(user_.Place(form.Handle(), Id(form, "lblTip")).height, each.textHeight);
      EXPECT_EQ(user_.Place(form.Handle(), Id(form, "chkStopMsg")).top, each.checkTop);
      EXPECT_EQ(user_.Place(form.Handle(), Id(form, "cmdOK")).top, each.buttonTop);
      form.Unload();
    });
    ShowTip(TipNumber::kCustomizeColors, "TIP", each.height);
  }
}

TEST_F(TipsTest, StandsWhereTheHintsSay) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    EXPECT_EQ(user_.Place(form.Handle()), (TwipsRect{120, 240, 8400, 3000}));
    form.Unload();
  });
  tips_.ShowTip(TipNumber::kCustomizeColors, "Text", "TIP", 3000, {.left = 120, .top = 240},
                nullptr);
}

TEST_F(TipsTest, ShowsTheTextAsItIs) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    EXPECT_EQ(Text(form, "lblTip"), "Press & hold.");
    EXPECT_NE(Look(form, "lblTip").flags & kNoPrefix, 0U);
    EXPECT_NE(Look(form, "lblTip").flags & kWordWrap, 0U);
    form.Unload();
  });
  ShowTip(TipNumber::kCustomizeColors);
}

TEST(MsgTipDesign, HasItsControlsInTheirOrder) {
  EXPECT_EQ(NamesOf(MsgTipDesign().controls),
            (std::vector<std::string>{"chkStopMsg", "cmdOK", "lblTip"}));
}

TEST_F(TipsTest, AScreenReaderMeetsTheTextFirst) {
  form_.Load();
  EXPECT_EQ(NamesOf(form_.State().controls),
            (std::vector<std::string>{"lblTip", "chkStopMsg", "cmdOK"}));
}

TEST_F(TipsTest, NamesItsControls) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    EXPECT_EQ(Text(form, "chkStopMsg"), "&In the future, do not show this message");
    EXPECT_EQ(Text(form, "cmdOK"), "OK");
    form.Unload();
  });
  ShowTip(TipNumber::kCustomizeColors);
}

TEST_F(TipsTest, TheToolTipsNameTheKeysOfCheckBoxAndButton) {
  form_.Load();
  EXPECT_EQ(Look(form_, "chkStopMsg").toolTip, " Do not show this message again  (Alt+I) ");
  EXPECT_EQ(Look(form_, "cmdOK").toolTip, " Close  (Enter) ");
  EXPECT_EQ(Look(form_, "lblTip").toolTip, "");
}

TEST_F(TipsTest, HasAPlaceholderUntilItIsGivenItsText) {
  form_.Load();
  EXPECT_EQ(Text(form_, "lblTip"), "*get what*");
}

TEST_F(TipsTest, EscDoesWhatTheButtonDoes) {
  LeaveNextWith(win32::kVkEscape, kNoShift, true);
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "0");
}

TEST_F(TipsTest, AltF4DoesWhatTheButtonDoes) {
  LeaveNextWith(win32::kVkF4, kAlt, true);
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "0");
}

TEST_F(TipsTest, StaysForOtherKeys) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    Press(form, win32::kVkEscape, kShift);
    Press(form, win32::kVkF4);
    Press(form, 'X');
    EXPECT_TRUE(form.IsLoaded());
    form.Unload();
  });
  ShowTip(TipNumber::kCustomizeColors);
}

TEST_F(TipsTest, SilencesByTheAccessKey) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    user_.TypeText(form.Handle(), "i", true);
    Press(form, win32::kVkReturn);
  });
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "0");
}

TEST_F(TipsTest, TheCloseBoxDoesWhatTheButtonDoes) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    Click(form, "chkStopMsg");
    user_.PressCloseBox(form.Handle());
  });
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "0");
}

TEST_F(TipsTest, SilencesNothingWhenTheSessionEnds) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    Click(form, "chkStopMsg");
    form.Unload(CloseReason::kSession);
  });
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_EQ(hidden_, "1");
}

TEST_F(TipsTest, ForgetsTheAnswerOfTheTipBefore) {
  SilenceNext();
  ShowTip(TipNumber::kCustomizeColors);
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    EXPECT_EQ(Look(form, "chkStopMsg").value, 0);
    form.Unload(CloseReason::kSession);
  });
  ShowTip(TipNumber::kHotKeysDeactivated);
  EXPECT_EQ(hidden_, "01111111111111");
}

TEST_F(TipsTest, SuspendsTheHotKeys) {
  host_.WhenModal("frmMsgTip", [&](Form& form) {
    EXPECT_TRUE(suspension_.Active());
    form.Unload();
  });
  ShowTip(TipNumber::kCustomizeColors);
  EXPECT_FALSE(suspension_.Active());
}

}  // namespace
}  // namespace korvale

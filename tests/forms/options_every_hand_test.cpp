#include <string>
#include <vector>

#include "tests/forms/options_test.h"

namespace korvale {
namespace {

constexpr Color kDefault = 0x0080FFFF;
constexpr Color kChosen = 0x112233;

/// What the colours say, for those who do not see them; and the colours for those who use no mouse.
class OptionsEveryHandTest : public OptionsTest {
 protected:
  OptionsEveryHandTest() { OpenDialog(); }

  /// What a screen reader calls the list in which the key of this hot key is chosen.
  std::string NameOfKeyList(const char* list, int index) {
    return dialog_.ById(Id(dialog_, list, index) - 1).Text();
  }
};

TEST_F(OptionsEveryHandTest, TheNameOfAKeyListSaysThatItsHotKeyIsDisabled) {
  EXPECT_EQ(NameOfKeyList("cboHotKeyAction", 0), " minimizes individual desktop windows ");
  PickEntry("cboHotKeyAction", 0, 0);
  EXPECT_EQ(NameOfKeyList("cboHotKeyAction", 0),
            " minimizes individual desktop windows -- Hot Key is Disabled ");
  EXPECT_EQ(NameOfKeyList("cboHotKeyGeneral", 0),
            " displays the Options dialog box (this dialog box) ");
  PickEntry("cboHotKeyGeneral", 0, 0);
  EXPECT_EQ(NameOfKeyList("cboHotKeyGeneral", 0),
            " displays the Options dialog box (this dialog box) -- Hot Key is Disabled ");
  PickEntry("cboHotKeyGeneral", 0, 3);
  EXPECT_EQ(NameOfKeyList("cboHotKeyGeneral", 0),
            " displays the Options dialog box (this dialog box) ");
}

TEST_F(OptionsEveryHandTest, TheNameOfAKeyListSaysSoFromTheStart) {
  Record().intHotKeyGeneral[2] = 0;
  OpenDialog();
  EXPECT_EQ(NameOfKeyList("cboHotKeyGeneral", 2),
            " toggles all system-wide Hot Keys ON/OFF (except this one) -- Hot Key is Disabled ");
  EXPECT_FALSE(Shown(dialog_, "lblKeyGeneral", 2));
}

TEST_F(OptionsEveryHandTest, AltCChoosesTheColourOfTheLegendAndWithShiftItIsTheDefaultAgain) {
  owner_.chosenColor = kChosen;
  Press(dialog_, 'C', kAlt);
  EXPECT_EQ(owner_.palettes, std::vector<Color>{kDefault});
  EXPECT_EQ(Back("lblLegend", 1), kChosen);
  Press(dialog_, 'C', kAlt | kShift);
  EXPECT_EQ(Back("lblLegend", 1), kDefault);
  EXPECT_EQ(owner_.palettes.size(), 1U);
}

TEST_F(OptionsEveryHandTest, AltGrAndCWriteACharacter) {
  Press(dialog_, 'C', kCtrl | kAlt);
  EXPECT_TRUE(owner_.palettes.empty());
}

TEST_F(OptionsEveryHandTest, AltCIsForThePageThatShowsTheLegend) {
  for (const int tab : {1, 3}) {
    PickTab(tab);
    Press(dialog_, 'C', kAlt);
  }
  EXPECT_TRUE(owner_.palettes.empty());
}

TEST_F(OptionsEveryHandTest, AClickOnTheTextBesideATagSetsItsCheckBox) {
  Click(dialog_, "lblTagParent", 4);
  EXPECT_EQ(Look(dialog_, "chkHotKeyParent", 4).value, 0);
  EXPECT_FALSE(Border("lblTagParent", 4));
  EXPECT_EQ(user_.Focus(dialog_.Handle()), Id(dialog_, "chkHotKeyParent", 4));
  Click(dialog_, "lblTagParent", 4);
  EXPECT_EQ(Look(dialog_, "chkHotKeyParent", 4).value, 1);
  EXPECT_TRUE(owner_.palettes.empty());
}

}  // namespace
}  // namespace korvale

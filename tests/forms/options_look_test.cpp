#include <string>
#include <utility>
#include <vector>

#include "tests/forms/options_test.h"

namespace korvale {
namespace {

using OptionsLookTest = OptionsTest;

constexpr Color kDefault = 0x0080FFFF;

TEST_F(OptionsLookTest, PaintsEachTagByItsCheckBoxWhateverTheModifier) {
  Record().intHotKeyModParent = 0;
  OpenDialog();
  for (int tag = 0; tag < 10; ++tag) {
    EXPECT_EQ(Back("lblTagParent", tag), kDefault) << tag;
    EXPECT_TRUE(Border("lblTagParent", tag)) << tag;
  }
  for (int tag = 0; tag < 10; ++tag) {
    Click(dialog_, "chkHotKeyParent", tag);
    EXPECT_EQ(Back("lblTagParent", tag), kButtonFaceColor) << tag;
    EXPECT_FALSE(Border("lblTagParent", tag)) << tag;
    EXPECT_EQ(Back("lblTagParent", 9), tag == 9 ? kButtonFaceColor : kDefault) << tag;
  }
}

TEST_F(OptionsLookTest, AStoredKeyThatIsNotInTheListIsPaintedAsEnabled) {
  Record().intHotKeyAction[0] = '5';
  Record().intHotKeyGeneral[2] = 0x0D;
  OpenDialog();
  for (const auto& [label, index] : {std::pair("lblAction", 0), std::pair("lblGeneral", 2)}) {
    EXPECT_EQ(Back(label, index), kDefault) << label;
    EXPECT_TRUE(Border(label, index)) << label;
  }
  Click(dialog_, "chkHotKeyParent", 4);
  EXPECT_EQ(Back("lblAction", 0), kDefault) << "painted anew";
  PickEntry("cboHotKeyAction", 0, 0);
  EXPECT_EQ(Back("lblAction", 0), kButtonFaceColor);
  EXPECT_FALSE(Border("lblAction", 0));
}

class OpenOptionsLookTest : public OptionsTest {
 protected:
  OpenOptionsLookTest() { OpenDialog(); }
};

TEST_F(OpenOptionsLookTest, PaintsEachOperationByItsKey) {
  struct Operation {
    const char* label;
    const char* modifiers;
    const char* keys;
    int index;
  };
  for (const Operation& each :
       {Operation{"lblAction", "cboHotKeyModAction", "cboHotKeyAction", 0},
        Operation{"lblAction", "cboHotKeyModAction", "cboHotKeyAction", 1},
        Operation{"lblGeneral", "cboHotKeyModGeneral", "cboHotKeyGeneral", 0},
        Operation{"lblGeneral", "cboHotKeyModGeneral", "cboHotKeyGeneral", 1},
        Operation{"lblGeneral", "cboHotKeyModGeneral", "cboHotKeyGeneral", 2}}) {
    PickEntry(each.modifiers, each.index, 0);
    EXPECT_EQ(Back(each.label, each.index), kDefault) << each.label << each.index;
    EXPECT_TRUE(Border(each.label, each.index)) << each.label << each.index;
    PickEntry(each.keys, each.index, 0);
    EXPECT_EQ(Back(each.label, each.index), kButtonFaceColor) << each.label << each.index;
    EXPECT_FALSE(Border(each.label, each.index)) << each.label << each.index;
  }
}

TEST_F(OpenOptionsLookTest, PaintsTheLegend) {
  EXPECT_EQ(Back("lblLegend", 1), kDefault);
  EXPECT_EQ(Back("lblLegend", 0), kButtonFaceColor);
}

TEST_F(OpenOptionsLookTest, AClickOnTheLegendChoosesTheColour) {
  owner_.chosenColor = 0x112233;
  ClickLegend();
  EXPECT_EQ(owner_.palettes, std::vector<Color>{kDefault});
  EXPECT_EQ(Back("lblLegend", 1), 0x112233);
  EXPECT_EQ(Back("lblTagParent", 0), 0x112233);
  Click(dialog_, "cmdApply");
  EXPECT_EQ(Record().colHotKeyEnabled, 0x112233);
}

TEST_F(OptionsLookTest, ThePaletteOpensWithTheColourOfTheLegend) {
  Record().colHotKeyEnabled = 0x112233;
  OpenDialog();
  owner_.chosenColor = 0x445566;
  ClickLegend();
  EXPECT_EQ(owner_.palettes, std::vector<Color>{0x112233});
  ClickLegend();
  EXPECT_EQ(owner_.palettes, (std::vector<Color>{0x112233, 0x445566}));
}

TEST_F(OpenOptionsLookTest, ThePaletteOpensWhenTheButtonComesUpAndNotBefore) {
  const int legend = Id(dialog_, "lblLegend", 1);
  const auto palettesAfter = [&](MouseEvent event, MouseButton button) {
    dialog_.OnMouse(legend, {event, button, kNoShift, 100, 100});
    return owner_.palettes.size();
  };
  EXPECT_EQ(palettesAfter(MouseEvent::kMove, MouseButton::kNone), 0U);
  EXPECT_EQ(palettesAfter(MouseEvent::kDown, MouseButton::kLeft), 0U);
  EXPECT_EQ(palettesAfter(MouseEvent::kMove, MouseButton::kLeft), 0U);
  EXPECT_EQ(palettesAfter(MouseEvent::kUp, MouseButton::kLeft), 1U);
}

TEST_F(OpenOptionsLookTest, KeepsTheColourWhenThePaletteIsCancelled) {
  ClickLegend();
  EXPECT_EQ(owner_.palettes.size(), 1U);
  EXPECT_EQ(Back("lblLegend", 1), kDefault);
}

TEST_F(OptionsLookTest, ShiftClickOnTheLegendRestoresTheDefaultColour) {
  Record().colHotKeyEnabled = 0x112233;
  OpenDialog();
  ClickLegend(kShift);
  EXPECT_TRUE(owner_.palettes.empty());
  EXPECT_EQ(Back("lblLegend", 1), kDefault);
  EXPECT_EQ(Back("lblGeneral", 0), kDefault);
}

TEST_F(OptionsLookTest, OtherClicksOnTheLegendDoNothing) {
  Record().colHotKeyEnabled = 0x112233;
  OpenDialog();
  ClickLegend(kCtrl);
  ClickLegend(kShift | kAlt);
  ClickLegend(kNoShift, MouseButton::kRight);
  ClickLegend(kShift, MouseButton::kRight);
  EXPECT_TRUE(owner_.palettes.empty());
  EXPECT_EQ(Back("lblLegend", 1), 0x112233);
}

TEST_F(OpenOptionsLookTest, ForgetsTheColourOnCancel) {
  owner_.chosenColor = 0x112233;
  ClickLegend();
  Click(dialog_, "cmdCancel");
  EXPECT_EQ(Record().colHotKeyEnabled, kDefault);
}

struct Caption {
  const char* name;
  int index;
  const char* text;
};

constexpr Caption kCaptions[] = {
    {"tabOptions", -1, "Pages"},
    {"picOptions", 1, "General"},
    {"picOptions", 2, "Hot Keys"},
    {"picOptions", 3, "Window Identification"},
    {"chkSplashScreen", -1, "&Display splash screen on startup"},
    {"chkSelectPrevWinOnStart", -1, "Select the Previous &Window on startup"},
    {"fraWindowSelection", -1, "&Window Selection"},
    {"lblModParent", -1, "Key to hold down with the number of a Tag"},
    {"lblTagParent", 0, " selects the Previous Window "},
    {"lblHotKeyTip", -1, "Tip: Alt+Tab and Alt+F4 are provided by the Windows® operating system."},
    {"fraWindowActions", -1, "Window Action&s"},
    {"lblAction", 0, " Minimize Window"},
    {"lblAction", 1, " Maximize/Restore Window"},
    {"lblActionNote", 0, " minimizes individual desktop windows "},
    {"lblActionNote", 1, " alternately maximizes/restores individual desktop windows "},
    {"fraGeneral", -1, "&General"},
    {"lblGeneral", 0, " Display Options"},
    {"lblGeneral", 1, " Display Window Menu"},
    {"lblGeneral", 2, " Activate/Deactivate Hot Keys"},
    {"lblGeneralNote", 0, " displays the Options dialog box (this dialog box) "},
    {"lblGeneralNote", 1,
     " displays the pop-up version of the Window menu anywhere on the desktop "},
    {"lblGeneralNote", 2, " toggles all system-wide Hot Keys ON/OFF (except this one) "},
    {"lblLegendTitle", -1, "Legend:"},
    {"lblLegend", 1,
     " indicates Hot Key is Enabled -- Click to change this color -- use Shift+Click to reset to "
     "default "},
    {"lblLegend", 0, " indicates Hot Key is Disabled "},
    {"fraWindowIdentification", -1, "Window Identification  (Parent)"},
    {"chkAllowToolbarWindow", -1, "Recognize &Toolbar style windows"},
    {"chkAllowNoTextWindow", -1, "&Recognize windows that have no Title"},
    {"cmdOK", -1, "OK"},
    {"cmdCancel", -1, "Cancel"},
    {"cmdApply", -1, "&Apply"},
    {"cmdReset", -1, "Reset All Options to Default"},
};

TEST_F(OpenOptionsLookTest, HasTheCaptionsOfItsControls) {
  for (const auto& [name, index, text] : kCaptions) {
    EXPECT_EQ(Text(dialog_, name, index), text) << name << " " << index;
  }
  for (int tag = 1; tag < 10; ++tag) {
    EXPECT_EQ(Text(dialog_, "lblTagParent", tag),
              " selects the window that has been assigned Tag number " + std::to_string(tag) + " ");
  }
  for (int tag = 0; tag < 10; ++tag) {
    EXPECT_EQ(Text(dialog_, "chkHotKeyParent", tag), std::to_string(tag));
  }
}

/// Windows paints the body of a tab strip so.
TEST_F(OpenOptionsLookTest, PagesHaveTheColorsOfADocument) {
  EXPECT_EQ(Look(dialog_, "picOptions", 1).backColor, kWindowColor);
  EXPECT_EQ(Look(dialog_, "chkSplashScreen").backColor, kWindowColor);
  EXPECT_NE(Look(dialog_, "cmdOK").backColor, kWindowColor);
}

TEST_F(OpenOptionsLookTest, EachHotKeyIsNamedRightBeforeItsLists) {
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Id(dialog_, "lblAction", i) + 1, Id(dialog_, "cboHotKeyModAction", i));
    EXPECT_EQ(Id(dialog_, "lblKeyAction", i) + 1, Id(dialog_, "cboHotKeyAction", i));
  }
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Id(dialog_, "lblGeneral", i) + 1, Id(dialog_, "cboHotKeyModGeneral", i));
    EXPECT_EQ(Id(dialog_, "lblKeyGeneral", i) + 1, Id(dialog_, "cboHotKeyGeneral", i));
  }
  for (int tag = 0; tag < 10; ++tag) {
    EXPECT_EQ(Id(dialog_, "lblTagParent", tag) + 1, Id(dialog_, "chkHotKeyParent", tag));
  }
  EXPECT_EQ(Id(dialog_, "lblModParent") + 1, Id(dialog_, "cboHotKeyModParent"));
  // "Alt", "+", and the Tags.
  EXPECT_EQ(Id(dialog_, "cboHotKeyModParent") + 1, Id(dialog_, "lblPlusParent"));
  EXPECT_EQ(Id(dialog_, "lblPlusParent") + 1, Id(dialog_, "lblTagParent", 0));
}

TEST_F(OpenOptionsLookTest, TheAccessKeysOfTheFramesLeadToTheirFirstLists) {
  user_.TypeText(dialog_.Handle(), "g", true);
  EXPECT_EQ(user_.Focus(dialog_.Handle()), Id(dialog_, "cboHotKeyModGeneral", 0));
  user_.TypeText(dialog_.Handle(), "s", true);
  EXPECT_EQ(user_.Focus(dialog_.Handle()), Id(dialog_, "cboHotKeyModAction", 0));
  user_.TypeText(dialog_.Handle(), "w", true);
  EXPECT_EQ(user_.Focus(dialog_.Handle()), Id(dialog_, "cboHotKeyModParent"));
}

TEST_F(OptionsLookTest, TheAccessKeysOfTheCheckBoxesSetThem) {
  OpenDialog(1);
  user_.TypeText(dialog_.Handle(), "d", true);
  EXPECT_EQ(Look(dialog_, "chkSplashScreen").value, 0);
  user_.TypeText(dialog_.Handle(), "w", true);
  EXPECT_EQ(Look(dialog_, "chkSelectPrevWinOnStart").value, 1);
  PickTab(3);
  user_.TypeText(dialog_.Handle(), "t", true);
  user_.TypeText(dialog_.Handle(), "r", true);
  EXPECT_EQ(Look(dialog_, "chkAllowToolbarWindow").value, 1);
  EXPECT_EQ(Look(dialog_, "chkAllowNoTextWindow").value, 1);
  user_.TypeText(dialog_.Handle(), "a", true);
  EXPECT_TRUE(Record().booAllowToolbarWindow);
}

TEST_F(OpenOptionsLookTest, EveryControlStandsInsideWhatHoldsIt) {
  // 30 that take input, 37 labels, 4 frames and 3 pages.
  ASSERT_EQ(dialog_.Controls().size(), 74U);
  for (const Control& control : dialog_.Controls()) {
    const ControlState& state = control.State();
    const TwipsRect room = state.container == 0 ? TwipsRect{0, 0, 14100 - 90, 7335 - 400}
                                                : dialog_.ById(state.container).Place();
    EXPECT_GE(state.place.left, 0) << state.name << state.index;
    EXPECT_GE(state.place.top, 0) << state.name << state.index;
    EXPECT_LE(state.place.left + state.place.width, room.width) << state.name << state.index;
    EXPECT_LE(state.place.top + state.place.height, room.height) << state.name << state.index;
  }
}

TEST_F(OpenOptionsLookTest, NoTwoControlsCoverEachOther) {
  const auto cover = [](const TwipsRect& one, const TwipsRect& other) {
    return one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
  };
  // The pages lie on the tabs, one at a time.
  const auto on_top = [](const ControlState& control) {
    return control.kind != ControlKind::kPage && control.kind != ControlKind::kTabStrip;
  };
  int neighbours = 0;
  for (const ControlState& one : dialog_.State().controls) {
    for (const ControlState& other : dialog_.State().controls) {
      if (one.id >= other.id || one.container != other.container) continue;
      if (!on_top(one) || !on_top(other)) continue;
      ++neighbours;
      EXPECT_FALSE(cover(one.place, other.place))
          << one.name << one.index << " and " << other.name << other.index;
    }
  }
  EXPECT_GT(neighbours, 300);
}

TEST_F(OptionsLookTest, WithTheBiggestTextItStaysOnASmallScreen) {
  // 1366 by 728 pixels.
  const TwipsRect screen{0, 0, 20490, 10920};
  host_.SetWorkArea(screen);
  host_.ChangeTextSize(225);
  OpenDialog();
  const TwipsRect place = host_.GetWindowRect(dialog_.Handle());
  EXPECT_LE(place.width, screen.width);
  EXPECT_LE(place.height, screen.height);
  EXPECT_GT(place.width, dialog_.Place().width * 4 / 3);
  EXPECT_EQ(host_.Window(dialog_.Handle()).WhyOutOfReach(Id(dialog_, "cmdOK")), "");
}

}  // namespace
}  // namespace korvale

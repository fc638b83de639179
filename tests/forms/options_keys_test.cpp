#include <cctype>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/keys.h"
#include "tests/forms/options_test.h"
#include "ui/access_key.h"

namespace korvale {
namespace {

/// The keyboard in the Options dialog, and what the tool tips say of it.
class OptionsKeysTest : public OptionsTest {
 protected:
  static bool TakesInput(const Control& control) {
    const ControlKind kind = control.State().kind;
    return kind == ControlKind::kButton || kind == ControlKind::kCheckBox ||
           kind == ControlKind::kDropDownList || kind == ControlKind::kTabStrip;
  }
  /// The access keys that the user sees, in capitals, once for each control that has one.
  std::vector<std::string> AccessKeysShown() {
    std::vector<std::string> keys;
    for (const Control& control : dialog_.Controls()) {
      const bool shown = user_.IsShown(dialog_.Handle(), control.Id());
      if (!shown || (control.State().flags & kNoPrefix) != 0) continue;
      Collect(control.Text(), keys);
      if (control.State().kind != ControlKind::kTabStrip) continue;
      for (const ListItem& tab : control.Items()) Collect(tab.text, keys);
    }
    return keys;
  }
  /// "cmdOK" or "chkHotKeyParent 3".
  std::string FocusedControl() {
    const Control& control = dialog_.ById(user_.Focus(dialog_.Handle()));
    const std::string index = control.Index() < 0 ? "" : " " + std::to_string(control.Index());
    return control.Name() + index;
  }
  std::string FocusedTip() {
    return user_.Look(dialog_.Handle(), user_.Focus(dialog_.Handle())).toolTip;
  }
  /// The controls through which the Tab key goes until it is back at the first.
  std::vector<std::string> TabOrder() {
    std::vector<std::string> visited;
    const std::string first = FocusedControl();
    do {
      visited.push_back(FocusedControl());
      Press(dialog_, win32::kVkTab);
    } while (FocusedControl() != first && visited.size() < 100);
    return visited;
  }
  std::string Tip(std::string_view name, int index = -1) {
    return Look(dialog_, name, index).toolTip;
  }

 private:
  static void Collect(const std::string& caption, std::vector<std::string>& keys) {
    const std::string key = AccessKey(caption);
    if (!key.empty()) keys.emplace_back(1, static_cast<char>(std::toupper(key.front())));
  }
};

TEST_F(OptionsKeysTest, NoTwoControlsOfAPageShareAnAccessKey) {
  OpenDialog(1);
  EXPECT_EQ(AccessKeysShown(), (std::vector<std::string>{"D", "W", "A"}));
  OpenDialog(2);
  EXPECT_EQ(AccessKeysShown(), (std::vector<std::string>{"W", "S", "G", "A"}));
  OpenDialog(3);
  EXPECT_EQ(AccessKeysShown(), (std::vector<std::string>{"T", "R", "A"}));
}

TEST_F(OptionsKeysTest, EveryAccessKeyLeadsToAControlWhoseTipNamesIt) {
  for (std::int16_t tab = 1; tab <= 3; ++tab) {
    OpenDialog(tab);
    const std::vector<std::string> keys = AccessKeysShown();
    EXPECT_EQ(keys.size(), tab == 2 ? 4U : 3U);
    for (const std::string& key : keys) {
      Press(dialog_, key.front(), kAlt);
      EXPECT_TRUE(FocusedTip().ends_with("  (Alt+" + key + ") ")) << FocusedControl();
    }
  }
}

TEST_F(OptionsKeysTest, NoTipNamesAnAccessKeyThatLeadsElsewhere) {
  for (std::int16_t tab = 1; tab <= 3; ++tab) {
    OpenDialog(tab);
    int pressed = 0;
    for (const Control& control : dialog_.Controls()) {
      const std::string& tip = control.State().toolTip;
      const std::size_t named = tip.find("(Alt+");
      if (named == std::string::npos || !user_.IsShown(dialog_.Handle(), control.Id())) continue;
      // The key of the legend, which takes no focus, opens the palette.
      if (!TakesInput(control)) continue;
      Press(dialog_, tip.at(named + 5), kAlt);
      EXPECT_EQ(user_.Focus(dialog_.Handle()), control.Id()) << control.Name();
      ++pressed;
    }
    EXPECT_EQ(pressed, tab == 2 ? 4 : 3);
  }
}

TEST_F(OptionsKeysTest, EveryControlWithSomethingToExplainHasAToolTipBetweenBlanks) {
  OpenDialog();
  int takingInput = 0;
  std::set<std::string> without;
  for (const Control& control : dialog_.Controls()) {
    if (TakesInput(control)) ++takingInput;
    const std::string& tip = control.State().toolTip;
    if (tip.empty()) {
      without.insert(control.Name());
    } else {
      EXPECT_TRUE(tip.size() > 2 && tip.starts_with(' ') && tip.ends_with(' ')) << control.Name();
    }
  }
  // Fourteen check boxes, eleven lists, four buttons and the tabs.
  EXPECT_EQ(takingInput, 30);
  // Pages, frames, signs between two lists, labels that nobody sees, and notes that say it all.
  EXPECT_EQ(without, (std::set<std::string>{"picOptions", "fraWindowSelection", "fraWindowActions",
                                            "fraGeneral", "fraWindowIdentification", "lblModParent",
                                            "lblPlusParent", "lblPlusAction", "lblPlusGeneral",
                                            "lblKeyAction", "lblKeyGeneral", "lblHotKeyTip",
                                            "lblLegendTitle", "lblConflicts"}));
}

TEST_F(OptionsKeysTest, TheTipsOfChecksAndListsSayWhatTheyAreFor) {
  OpenDialog();
  EXPECT_EQ(Tip("chkSplashScreen"),
            " shows the About box for a moment when the program starts  (Alt+D) ");
  EXPECT_EQ(Tip("chkSelectPrevWinOnStart"),
            " goes back to the window in which you worked before the start  (Alt+W) ");
  EXPECT_EQ(Tip("chkAllowToolbarWindow"),
            " lets small tool windows be the Previous Window and be tagged  (Alt+T) ");
  EXPECT_EQ(Tip("chkAllowNoTextWindow"),
            " lets untitled windows be the Previous Window and be tagged  (Alt+R) ");
  EXPECT_EQ(Tip("cboHotKeyModParent"),
            " key to hold down while pressing the number of a Tag  (Alt+W) ");
  EXPECT_EQ(Tip("cboHotKeyModAction", 0), " key to hold down  (Alt+S) ");
  EXPECT_EQ(Tip("cboHotKeyModAction", 1), " key to hold down ");
  EXPECT_EQ(Tip("cboHotKeyModGeneral", 0), " key to hold down  (Alt+G) ");
  EXPECT_EQ(Tip("cboHotKeyModGeneral", 1), " key to hold down ");
  EXPECT_EQ(Tip("cboHotKeyModGeneral", 2), " key to hold down ");
  for (const auto& [list, index] :
       {std::pair("cboHotKeyAction", 0), std::pair("cboHotKeyAction", 1),
        std::pair("cboHotKeyGeneral", 0), std::pair("cboHotKeyGeneral", 1),
        std::pair("cboHotKeyGeneral", 2)}) {
    EXPECT_EQ(
        Tip(list, index),
        " key to press:  choose it from the list or press it here  (the Space bar clears it) ")
        << list << index;
  }
}

TEST_F(OptionsKeysTest, TheTipsNameTheKeysOfButtonsAndTabs) {
  OpenDialog();
  EXPECT_EQ(Tip("cmdOK"), " Save and close  (Enter) ");
  EXPECT_EQ(Tip("cmdCancel"), " Close without saving  (Esc) ");
  EXPECT_EQ(Tip("cmdApply"), " Save  (Alt+A) ");
  EXPECT_EQ(Tip("cmdReset"), " deletes the saved options and applies the default of every option ");
  EXPECT_EQ(Tip("tabOptions"), " page of the options  (Ctrl+Tab) ");
}

TEST_F(OptionsKeysTest, TheTipsOfLabelsAreTheirExplanations) {
  OpenDialog();
  EXPECT_EQ(Tip("lblTagParent", 0), " selects the Previous Window ");
  EXPECT_EQ(Tip("chkHotKeyParent", 0), " selects the Previous Window ");
  for (int tag = 1; tag < 10; ++tag) {
    const std::string text =
        " selects the window that has been assigned Tag number " + std::to_string(tag) + " ";
    EXPECT_EQ(Tip("lblTagParent", tag), text);
    EXPECT_EQ(Tip("chkHotKeyParent", tag), text);
  }
  const std::vector<std::string> actions = {
      " minimizes individual desktop windows ",
      " alternately maximizes/restores individual desktop windows "};
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(Tip("lblAction", i), actions.at(static_cast<std::size_t>(i)));
    EXPECT_EQ(Tip("lblActionNote", i), actions.at(static_cast<std::size_t>(i)));
  }
  const std::vector<std::string> general = {
      " displays the Options dialog box (this dialog box) ",
      " displays the pop-up version of the Window menu anywhere on the desktop ",
      " toggles all system-wide Hot Keys ON/OFF (except this one) "};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(Tip("lblGeneral", i), general.at(static_cast<std::size_t>(i)));
    EXPECT_EQ(Tip("lblGeneralNote", i), general.at(static_cast<std::size_t>(i)));
  }
  EXPECT_EQ(Tip("lblLegend", 0), " indicates Hot Key is Disabled ");
  EXPECT_EQ(Tip("lblLegend", 1),
            " changes the color of enabled Hot Keys, with Shift back to the default  "
            "(Alt+C/Shift+Alt+C) ");
}

TEST_F(OptionsKeysTest, TheTabKeyGoesThroughTheGeneralPage) {
  OpenDialog(1);
  EXPECT_EQ(TabOrder(),
            (std::vector<std::string>{"chkSplashScreen", "chkSelectPrevWinOnStart", "cmdOK",
                                      "cmdCancel", "cmdApply", "cmdReset", "tabOptions"}));
}

TEST_F(OptionsKeysTest, TheTabKeyGoesThroughTheHotKeysPage) {
  OpenDialog(2);
  EXPECT_EQ(TabOrder(), (std::vector<std::string>{"cboHotKeyModParent", "chkHotKeyParent 0",
                                                  "chkHotKeyParent 1",  "chkHotKeyParent 2",
                                                  "chkHotKeyParent 3",  "chkHotKeyParent 4",
                                                  "chkHotKeyParent 5",  "chkHotKeyParent 6",
                                                  "chkHotKeyParent 7",  "chkHotKeyParent 8",
                                                  "chkHotKeyParent 9",  "cboHotKeyModAction 0",
                                                  "cboHotKeyAction 0",  "cboHotKeyModAction 1",
                                                  "cboHotKeyAction 1",  "cboHotKeyModGeneral 0",
                                                  "cboHotKeyGeneral 0", "cboHotKeyModGeneral 1",
                                                  "cboHotKeyGeneral 1", "cboHotKeyModGeneral 2",
                                                  "cboHotKeyGeneral 2", "cmdOK",
                                                  "cmdCancel",          "cmdApply",
                                                  "cmdReset",           "tabOptions"}));
}

TEST_F(OptionsKeysTest, TheTabKeyGoesThroughTheWindowIdentificationPage) {
  OpenDialog(3);
  EXPECT_EQ(TabOrder(),
            (std::vector<std::string>{"chkAllowToolbarWindow", "chkAllowNoTextWindow", "cmdOK",
                                      "cmdCancel", "cmdApply", "cmdReset", "tabOptions"}));
}

TEST_F(OptionsKeysTest, ShiftTabGoesBack) {
  OpenDialog(2);
  std::vector<std::string> visited;
  for (int i = 0; i < 6; ++i) {
    Press(dialog_, win32::kVkTab, kShift);
    visited.push_back(FocusedControl());
  }
  EXPECT_EQ(visited, (std::vector<std::string>{"tabOptions", "cmdReset", "cmdApply", "cmdCancel",
                                               "cmdOK", "cboHotKeyGeneral 2"}));
}

TEST_F(OptionsKeysTest, CtrlTabIsRememberedLikeAClickOnTheTab) {
  OpenDialog(1);
  Press(dialog_, win32::kVkTab, kCtrl);
  EXPECT_EQ(owner_.tab, 2);
  Press(dialog_, win32::kVkTab, kCtrl);
  EXPECT_EQ(owner_.tab, 3);
  Press(dialog_, win32::kVkTab, kCtrl);
  EXPECT_EQ(owner_.tab, 1);
  Press(dialog_, win32::kVkTab, kCtrl | kShift);
  EXPECT_EQ(owner_.tab, 3);
}

}  // namespace
}  // namespace korvale

#include "forms/options_form.h"

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/forms/options_test.h"

namespace korvale {
namespace {

constexpr const char* kReactivation =
    "The hot keys are currently deactivated.  They will now be re-activated, for any changes (if "
    "any) made to the hot keys on the Hot Keys tab of the Options dialog box can take effect.";

TEST_F(OptionsTest, HasThreeTabsAndOpensOnTheRememberedOne) {
  OpenDialog(3);
  EXPECT_EQ(user_.ListEntries(dialog_.Handle(), Id(dialog_, "tabOptions")),
            (std::vector<std::string>{"General", "Hot Keys", "Window Identification"}));
  EXPECT_EQ(user_.ListIndex(dialog_.Handle(), Id(dialog_, "tabOptions")), 2);
  EXPECT_EQ(PagesShown(), std::vector<int>{3});
}

TEST_F(OptionsTest, OpensOnTheFirstTabForANumberWithoutTab) {
  OpenDialog(0);
  EXPECT_EQ(PagesShown(), std::vector<int>{1});
  OpenDialog(4);
  EXPECT_EQ(PagesShown(), std::vector<int>{1});
}

TEST_F(OptionsTest, ATabShowsItsPageAndIsRemembered) {
  OpenDialog(2);
  PickTab(1);
  EXPECT_EQ(PagesShown(), std::vector<int>{1});
  EXPECT_EQ(owner_.tab, 1);
  Click(dialog_, "cmdCancel");
  EXPECT_EQ(owner_.tab, 1);
}

TEST_F(OptionsTest, CtrlTabGoesThroughTheTabs) {
  OpenDialog(2);
  Press(dialog_, win32::kVkTab, kCtrl);
  EXPECT_EQ(PagesShown(), std::vector<int>{3});
  Press(dialog_, win32::kVkTab, kCtrl);
  EXPECT_EQ(PagesShown(), std::vector<int>{1});
  EXPECT_EQ(Focus(dialog_), "chkSplashScreen");
  EXPECT_TRUE(dialog_.OnKeyDown(dialog_.FocusedControl(), win32::kVkTab, kCtrl | kShift, false));
  EXPECT_EQ(PagesShown(), std::vector<int>{3});
  EXPECT_EQ(Focus(dialog_), "chkAllowToolbarWindow");
}

TEST_F(OptionsTest, ApplySavesRegistersAnewAndStaysOpen) {
  OpenDialog();
  PickEntry("cboHotKeyModParent", -1, 2);
  Click(dialog_, "cmdApply");
  EXPECT_EQ(owner_.log, (std::vector<std::string>{"hourglass", "udmOptions UPDATE_OPTIONS",
                                                  "SaveOrTell", "default pointer"}));
  EXPECT_EQ(Record().intHotKeyModParent, 2);
  EXPECT_TRUE(dialog_.IsLoaded());
  ASSERT_EQ(keys_.Registered().size(), kAllHotKeys);
  EXPECT_EQ(keys_.Registered()[1].modifiers, 2U);
  EXPECT_TRUE(owner_.messages.shown.empty());
}

TEST_F(OptionsTest, ApplyRegistersNothingTwice) {
  table_.SetHotKeys("SET");
  OpenDialog();
  Click(dialog_, "cmdApply");
  EXPECT_EQ(keys_.Registered().size(), kAllHotKeys);
}

TEST_F(OptionsTest, ShowsTheHourglassUntilTheHotKeysAreRegistered) {
  table_.SetHotKeys("SET");
  OpenDialog();
  EXPECT_EQ(StepsOf("cmdApply"),
            (std::vector<std::string>{"hourglass", "udmOptions UPDATE_OPTIONS", "SaveOrTell",
                                      "UnregisterHotKey", "RegisterHotKey", "default pointer"}));
}

TEST_F(OptionsTest, ResetRegistersOnceTheDefaultsAreShown) {
  table_.SetHotKeys("SET");
  OpenDialog();
  EXPECT_EQ(StepsOf("cmdReset"),
            (std::vector<std::string>{"hourglass", "udmDeleteOptions", "udmLoadOptions",
                                      "udmOptions LOAD_AND_OR_REFRESH", "UnregisterHotKey",
                                      "RegisterHotKey", "default pointer"}));
}

TEST_F(OptionsTest, OkSavesAndCloses) {
  OpenDialog();
  Click(dialog_, "cmdOK");
  EXPECT_FALSE(dialog_.IsLoaded());
  EXPECT_EQ(owner_.log.at(1), "udmOptions UPDATE_OPTIONS");
  EXPECT_EQ(owner_.log.back(), "OptionsDialogClosed");
  EXPECT_EQ(keys_.Registered().size(), kAllHotKeys);
}

TEST_F(OptionsTest, EnterSavesAndCloses) {
  OpenDialog();
  Press(dialog_, win32::kVkReturn);
  EXPECT_FALSE(dialog_.IsLoaded());
  EXPECT_EQ(owner_.log.at(2), "SaveOrTell");
}

TEST_F(OptionsTest, ApplyWhileToggledOffSaysSoOnceAndSwitchesOn) {
  table_.SetHotKeysActive(false);
  OpenDialog();
  Click(dialog_, "cmdApply");
  Click(dialog_, "cmdApply");
  ASSERT_EQ(owner_.messages.shown.size(), 1U);
  EXPECT_EQ(owner_.messages.shown[0],
            (ShownMessageBox{kReactivation, 0, "Korvale - Options (Save)"}));
  EXPECT_TRUE(table_.HotKeysActive());
  EXPECT_EQ(keys_.Registered().size(), kAllHotKeys);
}

TEST_F(OptionsTest, SaysThatItSwitchesOnBetweenSavingAndRegistering) {
  table_.SetHotKeys("SET");
  table_.SetHotKeysActive(false);
  const auto before = keys_.Registered();
  ASSERT_EQ(before.size(), kAllHotKeys);
  OpenDialog();
  Click(dialog_, "chkHotKeyParent", 3);
  std::vector<std::string> logThen;
  owner_.messages.whileShown = [&](const ShownMessageBox& /*box*/) {
    logThen = owner_.log;
    EXPECT_EQ(keys_.Registered(), before);
    EXPECT_TRUE(table_.HotKeysActive());
    EXPECT_FALSE(Record().booHotKeyParent[3]);
  };
  Click(dialog_, "cmdApply");
  EXPECT_EQ(logThen,
            (std::vector<std::string>{"hourglass", "udmOptions UPDATE_OPTIONS", "SaveOrTell"}));
  EXPECT_EQ(owner_.log.back(), "default pointer");
  EXPECT_EQ(keys_.Registered().size(), kAllHotKeys - 1);
}

TEST_F(OptionsTest, CancelEscAndTheCloseBoxSaveNothing) {
  for (const auto& close : std::vector<std::function<void()>>{
           [&] { Click(dialog_, "cmdCancel"); },
           [&] { Press(dialog_, win32::kVkEscape); },
           [&] { user_.PressCloseBox(dialog_.Handle()); },
       }) {
    OpenDialog();
    Click(dialog_, "chkHotKeyParent", 3);
    close();
    EXPECT_FALSE(dialog_.IsLoaded());
    EXPECT_EQ(owner_.log, std::vector<std::string>{"OptionsDialogClosed"});
    EXPECT_EQ(Record(), clsOptions());
    EXPECT_TRUE(keys_.Registered().empty());
  }
}

TEST_F(OptionsTest, ResetAnsweredWithCancelChangesNothing) {
  Record().intHotKeyModParent = 4;
  OpenDialog();
  owner_.messages.answers = {win32::kIdCancel};
  Click(dialog_, "cmdReset");
  ASSERT_EQ(owner_.messages.shown.size(), 1U);
  EXPECT_EQ(owner_.messages.shown[0],
            (ShownMessageBox{"Reset all Options to default ?\r\rThe default options will be "
                             "Applied automatically.\r\rNote:  This operation will not effect any "
                             "of the Settings changed from the View menu.",
                             1, "Korvale - Options"}));
  EXPECT_TRUE(owner_.log.empty());
  EXPECT_EQ(Record().intHotKeyModParent, 4);
  EXPECT_TRUE(keys_.Registered().empty());
}

TEST_F(OptionsTest, ResetShowsTheDefaultsAndRegistersThem) {
  Record().intHotKeyModParent = 4;
  OpenDialog();
  owner_.messages.answers = {win32::kIdOk};
  Click(dialog_, "cmdReset");
  EXPECT_EQ(owner_.log,
            (std::vector<std::string>{"hourglass", "udmDeleteOptions", "udmLoadOptions",
                                      "udmOptions LOAD_AND_OR_REFRESH", "default pointer"}));
  EXPECT_EQ(Text(dialog_, "cboHotKeyModParent"), "Alt");
  ASSERT_EQ(keys_.Registered().size(), kAllHotKeys);
  EXPECT_EQ(keys_.Registered()[0].modifiers, 1U);
}

TEST_F(OptionsTest, ResetWhileToggledOffSwitchesOn) {
  table_.SetHotKeysActive(false);
  OpenDialog();
  Click(dialog_, "cmdReset");
  EXPECT_TRUE(table_.HotKeysActive());
}

TEST_F(OptionsTest, NamesTheHotKeysThatWereRefused) {
  keys_.RegisterForeign(win32::kModWin, 'W');
  keys_.RegisterForeign(win32::kModAlt, '3');
  table_.SetHotKeys("SET");
  OpenDialog();
  EXPECT_TRUE(Shown(dialog_, "lblConflicts"));
  EXPECT_EQ(Text(dialog_, "lblConflicts"),
            "Not available, in use by Windows or another program:  Alt+3, Windows®+W");
}

TEST_F(OptionsTest, NamesTheHotKeysThatTheUserChoseTwice) {
  Record().intHotKeyModGeneral = {0, 0, 0};
  Record().intHotKeyGeneral = {0x75, 0x75, 0x13};
  table_.SetHotKeys("SET");
  OpenDialog();
  EXPECT_EQ(Text(dialog_, "lblConflicts"), "Chosen twice:  F6");
}

TEST_F(OptionsTest, NamesRefusedAndDoubleHotKeysOnLinesOfTheirOwn) {
  keys_.StartShell();
  Record().intHotKeyModAction = {0, 0};
  Record().intHotKeyAction = {0x75, 0x75};
  table_.SetHotKeys("SET");
  OpenDialog();
  EXPECT_EQ(Text(dialog_, "lblConflicts"),
            "Not available, in use by Windows or another program:  Windows®+O, Windows®+W\r"
            "Chosen twice:  F6");
}

TEST_F(OptionsTest, ShowsNoConflictLineWithoutAConflict) {
  table_.SetHotKeys("SET");
  OpenDialog();
  EXPECT_FALSE(Shown(dialog_, "lblConflicts"));
}

TEST_F(OptionsTest, BringsTheConflictLineUpToDateAfterApply) {
  keys_.RegisterForeign(win32::kModWin, 'W');
  table_.SetHotKeys("SET");
  OpenDialog();
  keys_.ReleaseForeign(win32::kModWin, 'W');
  Click(dialog_, "cmdApply");
  EXPECT_FALSE(Shown(dialog_, "lblConflicts"));
}

TEST_F(OptionsTest, BringsTheConflictLineUpToDateAfterReset) {
  OpenDialog();
  keys_.RegisterForeign(0, win32::kVkPause);
  Click(dialog_, "cmdReset");
  EXPECT_EQ(Text(dialog_, "lblConflicts"),
            "Not available, in use by Windows or another program:  Pause");
}

TEST_F(OptionsTest, IsNoWindowThatTheFilterTakesForOrdinary) {
  OpenDialog();
  EXPECT_TRUE(dialog_.State().modalFrame);
  EXPECT_FALSE(suspension_.Active());
}

TEST_F(OptionsTest, PressingAKeyInAKeyListChoosesIt) {
  OpenDialog();
  dialog_.Find("cboHotKeyAction", 0).SetFocus();
  Press(dialog_, 0x76);
  EXPECT_EQ(Text(dialog_, "cboHotKeyAction", 0), "F7");
  Press(dialog_, 0x74, kShift);
  EXPECT_EQ(Text(dialog_, "cboHotKeyAction", 0), "F7");
  Press(dialog_, win32::kVkSpace);
  EXPECT_EQ(Text(dialog_, "cboHotKeyAction", 0), " ");
  dialog_.Find("cboHotKeyGeneral", 2).SetFocus();
  Press(dialog_, 'K');
  EXPECT_EQ(Text(dialog_, "cboHotKeyGeneral", 2), "K");
}

TEST_F(OptionsTest, AModifierListHasNoSuchShortcut) {
  OpenDialog();
  dialog_.Find("cboHotKeyModAction", 0).SetFocus();
  Press(dialog_, 0x76);
  EXPECT_EQ(Text(dialog_, "cboHotKeyModAction", 0), "Alt");
}

}  // namespace
}  // namespace korvale

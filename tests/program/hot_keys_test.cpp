#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

/// Expects to be told for 0.8 seconds that the hot keys are on or off.
void ExpectWaitWindow(KorvaleCopy& korvale, const std::string& caption, const std::string& text) {
  korvale.host.WhenWaiting([&korvale, caption, text] {
    class Form& form = korvale.Loaded("frmWaitWindow");
    EXPECT_EQ(korvale.user.Title(form.Handle()), caption);
    EXPECT_EQ(form.Find("lblMessage").Text(), text);
    EXPECT_EQ(form.Find("tmrWait").Interval(), 800U);
  });
}

class HotKeysTest : public KorvaleWorld {
 protected:
  static constexpr std::uint32_t kPause = win32::kVkPause;
  static constexpr const char* kStore = "Korvale - Work";

  void SwitchOff(KorvaleCopy& korvale) {
    ExpectWaitWindow(korvale, "Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated");
    PressHotKey(0, kPause);
  }
  void SwitchOn(KorvaleCopy& korvale) {
    ExpectWaitWindow(korvale, "Korvale - Hot Keys (ON)", "Hot Keys are now Activated");
    PressHotKey(0, kPause);
  }
  /// A started copy with `window` as Tag 1; the user works in Beta.
  KorvaleCopy& StartedWithTag(WindowHandle window) {
    KorvaleCopy& korvale = StartedCopy();
    WorkIn(window);
    WorkIn(korvale.Handle());
    korvale.TagPrevious();
    beta_ = Open("Beta");
    return korvale;
  }
  std::string ToggleCaption(KorvaleCopy& korvale) {
    return korvale.user.MenuItems(korvale.Handle(), {"Tools"}).front().caption;
  }

  WindowHandle beta_ = 0;
};

TEST_F(HotKeysTest, FifteenAreRegisteredForTheMainWindow) {
  const WindowHandle main = StartedCopy().Handle();
  std::vector<FakeHotKeys::Registration> expected;
  for (int tag = 0; tag <= 9; ++tag) {
    expected.push_back({main, tag + 1, win32::kModAlt, static_cast<std::uint32_t>('0' + tag)});
  }
  expected.push_back({main, 11, win32::kModAlt, win32::kVkDown});
  expected.push_back({main, 12, win32::kModAlt, win32::kVkUp});
  expected.push_back({main, 13, win32::kModWin, 'O'});
  expected.push_back({main, 14, win32::kModWin, 'W'});
  expected.push_back({main, 15, 0, kPause});
  EXPECT_EQ(hotKeys.Registered(), expected);
}

TEST_F(HotKeysTest, IdentifiersCloseUpWhenTagsAreDisabled) {
  store.SaveSetting(kStore, "Options", "HotKeyParent1", "False");
  store.SaveSetting(kStore, "Options", "HotKeyParent3", "False");
  store.SaveSetting(kStore, "ParentWindowList", "2", "&2  Alpha");
  Open("Alpha");
  StartedCopy();
  WorkIn(Open("Beta"));

  EXPECT_EQ(hotKeys.Registered()[1].id, 2);
  EXPECT_EQ(hotKeys.Registered()[1].key, '2');
  EXPECT_EQ(hotKeys.Registered()[2].key, '4');
  EXPECT_FALSE(hotKeys.Press(win32::kModAlt, '1'));
  ExpectTagLeadsTo(2, "Alpha");
}

TEST_F(HotKeysTest, ATagWithoutAWindowDoesNothing) {
  StartedCopy();
  WorkIn(Open("Beta"));
  ExpectTagLeadsTo(7, "Beta");
}

TEST_F(HotKeysTest, PauseSwitchesTheOthersOffAndOnAgain) {
  KorvaleCopy& korvale = StartedWithTag(Open("Alpha"));

  SwitchOff(korvale);
  EXPECT_EQ(hotKeys.Registered(),
            (std::vector<FakeHotKeys::Registration>{{korvale.Handle(), 1, 0, kPause}}));
  EXPECT_EQ(Front(), "Beta");
  EXPECT_FALSE(hotKeys.Press(win32::kModAlt, '1'));

  SwitchOn(korvale);
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(HotKeysTest, TheMenuExplainsWhatItSwitchesOffUntilTheTipIsSilenced) {
  KorvaleCopy& korvale = StartedCopy();
  const std::string off = "Deactivate Hot Keys";
  const std::string on = "Activate Hot Keys";
  EXPECT_EQ(ToggleCaption(korvale), off);
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    EXPECT_EQ(tip.Caption(), "TIP - Korvale");
    EXPECT_EQ(tip.Place().height, 3000);
    EXPECT_TRUE(tip.Find("lblTip").Text().starts_with("This deactivates all hot keys except"));
    EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
    korvale.user.Click(tip.Handle(), tip.Find("chkStopMsg").Id());
    korvale.user.Click(tip.Handle(), tip.Find("cmdOK").Id());
  });
  ExpectWaitWindow(korvale, "Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated");
  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", off});
  EXPECT_EQ(ToggleCaption(korvale), on);
  EXPECT_EQ(store.GetSetting(kStore, "Startup", "Tips"), "11111111111110");

  ExpectWaitWindow(korvale, "Korvale - Hot Keys (ON)", "Hot Keys are now Activated");
  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", on});
  ExpectWaitWindow(korvale, "Korvale - Hot Keys (OFF)", "Hot Keys are now Deactivated");
  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", off});
  EXPECT_EQ(hotKeys.Registered().size(), 1U);
}

TEST_F(HotKeysTest, WithoutAToggleKeyTheMenuIsTheWayBack) {
  store.SaveSetting(kStore, "Options", "HotKeyGeneral2", "0");
  store.SaveSetting(kStore, "Startup", "DisplayTips", "False");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys - 1);

  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", "Deactivate Hot Keys"});
  EXPECT_TRUE(hotKeys.Registered().empty());
  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", "Activate Hot Keys"});
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys - 1);
}

TEST_F(HotKeysTest, SavingTheOptionsSwitchesThemOnAgain) {
  KorvaleCopy& korvale = StartedCopy();
  SwitchOff(korvale);
  korvale.user.ChooseMenu(korvale.Handle(), {"Tools", "Options..."});
  class Form& options = korvale.Loaded("frmOptions");
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.title, "Korvale - Options (Save)");
    EXPECT_EQ(box.text,
              "The hot keys are currently deactivated.  They will now be re-activated, for any "
              "changes (if any) made to the hot keys on the Hot Keys tab of the Options dialog box "
              "can take effect.");
    return win32::kIdOk;
  });
  korvale.user.Click(options.Handle(), options.Find("cmdOK").Id());
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
  EXPECT_EQ(ToggleCaption(korvale), "Deactivate Hot Keys");
}

TEST_F(HotKeysTest, AKeyOfAnotherProgramIsLeftToItAndTakenOnceItIsGivenBack) {
  hotKeys.RegisterForeign(win32::kModAlt, '1');
  store.SaveSetting("Korvale - Work", "Startup", "DisplayTips", "False");
  KorvaleCopy& korvale = StartedWithTag(Open("Alpha"));
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys - 1);
  EXPECT_FALSE(korvale.HotKeys().Registered()[1].accepted);
  EXPECT_FALSE(hotKeys.Press(win32::kModAlt, '1'));
  EXPECT_TRUE(korvale.host.Messages().empty());

  hotKeys.ReleaseForeign(win32::kModAlt, '1');
  SwitchOff(korvale);
  SwitchOn(korvale);

  EXPECT_TRUE(korvale.HotKeys().Registered()[1].accepted);
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(HotKeysTest, TheKeysOfACopyThatEndsAreTakenOverByTheOtherOnesToggle) {
  KorvaleCopy& work = StartedCopy("Work");
  store.SaveSetting("Korvale - Home", "Startup", "DisplayTips", "False");
  KorvaleCopy& home = StartedCopy("Home");
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
  work.Exit();
  EXPECT_TRUE(hotKeys.Registered().empty());

  for (int i = 0; i < 2; ++i) home.Form().mnuToolsToggleHotKeys_Click();

  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
  EXPECT_EQ(hotKeys.Registered().front().hwnd, home.Handle());
}

TEST_F(HotKeysTest, WindowsOOpensTheOptionsAndThenBringsThemForward) {
  KorvaleCopy& korvale = StartedCopy();
  const WindowHandle alpha = Open("Alpha");
  PressHotKey(win32::kModWin, 'O');
  const WindowHandle options = korvale.Loaded("frmOptions").Handle();
  EXPECT_EQ(Front(), "Korvale - Options");

  WorkIn(alpha);
  PressHotKey(win32::kModWin, 'O');
  EXPECT_EQ(desktop.GetForegroundWindow(), options);
  EXPECT_EQ(korvale.Loaded("frmOptions").Handle(), options);
}

TEST_F(HotKeysTest, WorkWhileTheOptionsAreOpen) {
  KorvaleCopy& korvale = StartedWithTag(Open("Alpha"));
  PressHotKey(win32::kModWin, 'O');
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_TRUE(korvale.host.Messages().empty());
  EXPECT_TRUE(korvale.user.IsShown(korvale.Loaded("frmOptions").Handle()));
}

TEST_F(HotKeysTest, ThePopUpWithoutAChoiceLeavesTheMenuAsTheBarShowsIt) {
  KorvaleCopy& korvale = StartedWithTag(Open("Alpha"));
  korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>&) {
    EXPECT_EQ(korvale.Form().Menu("mnuWindow").tag, "HOTKEY_WINDOW_MENU_POPUP");
    EXPECT_FALSE(korvale.Form().tmrWindow().Enabled());
    return std::string();
  });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale.Form().Menu("mnuWindow").tag, "");
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
}

TEST_F(HotKeysTest, ThePopUpOfAMinimizedMainWindowAddsWindowsInFrontOfIt) {
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(korvale.Handle());
  desktop.UserMinimizes(korvale.Handle());
  WorkIn(Open("Alpha"));
  korvale.host.WhenPopupMenu(
      [](const std::vector<ShownMenuItem>&) { return "Add  [Alpha]  to Window menu..."; });
  korvale.host.WhenModal("frmGetWindow", [&](class Form& dialog) {
    EXPECT_FALSE(desktop.IsIconic(korvale.Handle()));
    korvale.user.PressKey(dialog.Handle(), win32::kVkReturn);
  });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(store.GetSetting(kStore, "ParentWindowList", "1"), "&1  Alpha");
}

TEST_F(HotKeysTest, AltDownAndAltUpActOnTheWindowInFront) {
  const WindowHandle alpha = Open("Alpha");
  StartedCopy();
  WorkIn(alpha);
  const WindowHandle beta = Open("Beta");
  PressHotKey(win32::kModAlt, win32::kVkUp);
  EXPECT_TRUE(desktop.IsZoomed(beta));
  PressHotKey(win32::kModAlt, win32::kVkUp);
  EXPECT_FALSE(desktop.IsZoomed(beta));
  PressHotKey(win32::kModAlt, win32::kVkDown);
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(HotKeysTest, AnErrorInAHotKeyIsReportedAndTheNextOneWorks) {
  KorvaleCopy& korvale = StartedWithTag(Open("Alpha"));
  log.WhenCalled("SetForegroundWindow", [] { throw RunTimeError(RunTimeError::kOverflow); });
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.text, "VB ERROR 6 - Overflow\r\rKorvale Error #4");
    EXPECT_EQ(box.title, "Korvale - ERROR");
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
  ExpectTagLeadsTo(1, "Alpha");
}

}  // namespace
}  // namespace korvale

#include <functional>
#include <string>
#include <vector>

#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// The Options dialog of a running copy, as its user uses it.
class OptionsUseTest : public StartTest {
 protected:
  /// Opens the dialog with its hot key.
  class Form& Open(KorvaleCopy& copy) {
    PressHotKey(win32::kModWin, 'O');
    return copy.Loaded("frmOptions");
  }
  static void Click(KorvaleCopy& copy, const char* button) {
    class Form& dialog = copy.Loaded("frmOptions");
    copy.user.Click(dialog.Handle(), copy.Id(dialog, button));
  }
  /// The three ways to close the dialog.
  std::vector<std::function<void(KorvaleCopy&)>> WaysToClose() {
    return {[](KorvaleCopy& copy) { Click(copy, "cmdOK"); },
            [](KorvaleCopy& copy) { Click(copy, "cmdCancel"); },
            [](KorvaleCopy& copy) { copy.user.PressCloseBox(copy.Loaded("frmOptions").Handle()); }};
  }
  /// A copy whose Tags are selected with Ctrl, and whose window is 6000 twips wide.
  KorvaleCopy& CopyWithCtrl() {
    KorvaleCopy& copy = UsedCopy();
    StoreOption("HotKeyModParent", "2");
    store.SaveSetting("Korvale - Work", "Startup", "Width", "6000");
    store.SaveSetting("Korvale - Work", "Startup", "Tips", "01");
    EXPECT_TRUE(copy.Start());
    LetTick();
    return copy;
  }
  SettingsStore::Pairs Pairs(const std::string& section) {
    return store.GetAllSettings("Korvale - Work", section);
  }
};

TEST_F(OptionsUseTest, ResetEmptiesTheStoredOptionsAndNothingElse) {
  KorvaleCopy& korvale = CopyWithCtrl();
  EXPECT_EQ(hotKeys.Registered().at(3).modifiers, win32::kModControl);
  class Form& dialog = Open(korvale);
  const SettingsStore::Pairs startup = Pairs("Startup");
  ASSERT_FALSE(Pairs("Options").empty());
  ASSERT_FALSE(startup.empty());
  korvale.host.AnswerNext(win32::kIdOk);

  Click(korvale, "cmdReset");

  EXPECT_TRUE(Pairs("Options").empty());
  EXPECT_EQ(Pairs("Startup"), startup);
  ASSERT_EQ(hotKeys.Registered().size(), kAllHotKeys);
  EXPECT_EQ(hotKeys.Registered().at(3).modifiers, win32::kModAlt);
  EXPECT_EQ(hotKeys.Registered().at(3).key, static_cast<std::uint32_t>('3'));
  EXPECT_EQ(korvale.Options(), clsOptions());
  EXPECT_EQ(korvale.user.Text(dialog.Handle(), korvale.Id(dialog, "cboHotKeyModParent")), "Alt");
  EXPECT_EQ(korvale.host.Pointer(), MousePointer::kDefault);
}

TEST_F(OptionsUseTest, ResetAnsweredWithCancelLeavesStoreHotKeysAndDialogAlone) {
  KorvaleCopy& korvale = CopyWithCtrl();
  class Form& dialog = Open(korvale);
  const SettingsStore::Pairs options = Pairs("Options");
  const SettingsStore::Pairs startup = Pairs("Startup");
  log.Clear();
  korvale.host.AnswerNext(win32::kIdCancel);

  Click(korvale, "cmdReset");

  EXPECT_EQ(Pairs("Options"), options);
  EXPECT_EQ(Pairs("Startup"), startup);
  EXPECT_TRUE(log.CallsOf("RegisterHotKey").empty());
  EXPECT_TRUE(log.CallsOf("UnregisterHotKey").empty());
  EXPECT_EQ(korvale.Options().intHotKeyModParent, 2);
  EXPECT_EQ(korvale.user.Text(dialog.Handle(), korvale.Id(dialog, "cboHotKeyModParent")), "Ctrl");
}

TEST_F(OptionsUseTest, TheTabIsRememberedOverCancelAndRestart) {
  KorvaleCopy& first = StartedCopy();
  class Form& dialog = Open(first);
  first.user.Pick(dialog.Handle(), first.Id(dialog, "tabOptions"), 2);
  Click(first, "cmdCancel");
  first.Exit();
  EXPECT_EQ(Stored("Startup", "OptionsTab"), "3");
  EndCopy(first);

  KorvaleCopy& second = StartedCopy();
  class Form& reopened = Open(second);
  EXPECT_EQ(second.user.ListIndex(reopened.Handle(), second.Id(reopened, "tabOptions")), 2);
  EXPECT_TRUE(second.user.IsShown(reopened.Handle(), second.Id(reopened, "picOptions", 3)));
}

TEST_F(OptionsUseTest, AfterEachWayToCloseItTheHotKeyOpensItAnew) {
  KorvaleCopy& korvale = StartedCopy();
  for (const auto& close : WaysToClose()) {
    Open(korvale);
    close(korvale);
    EXPECT_EQ(korvale.FindForm("frmOptions"), nullptr);
    WorkIn(korvale.Handle());
    log.Clear();
    class Form& anew = Open(korvale);
    EXPECT_EQ(log.CallsOf("CreateWindowExW(frmOptions)").size(), 1U);
    EXPECT_EQ(desktop.GetForegroundWindow(), anew.Handle());
    Click(korvale, "cmdCancel");
  }
}

TEST_F(OptionsUseTest, TheColorDialogIsItsOwnUntilItIsClosed) {
  KorvaleCopy& korvale = StartedCopy();
  const auto cancelColors = [&] {
    log.Clear();
    korvale.host.WhenColorDialog([](Color) { return std::nullopt; });
    korvale.Form().udmShowColorPalette(kRed);
    return log.CallsOf("ChooseColorW");
  };
  for (const auto& close : WaysToClose()) {
    Open(korvale);
    EXPECT_EQ(cancelColors(), std::vector<std::string>{"ChooseColorW(frmOptions, 255)"});
    close(korvale);
    EXPECT_EQ(cancelColors(), std::vector<std::string>{"ChooseColorW(frmMain, 255)"});
  }
}

TEST_F(OptionsUseTest, TheViewMenuOpensIt) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.user.ChooseMenu(korvale.Handle(), {"View", "Options..."});
  class Form& dialog = korvale.Loaded("frmOptions");
  EXPECT_EQ(korvale.user.Title(dialog.Handle()), "Korvale - Options");
  EXPECT_EQ(desktop.GetForegroundWindow(), dialog.Handle());
}

TEST_F(OptionsUseTest, ChosenFromAMenuWhileItIsOpenItComesForwardAsItIs) {
  KorvaleCopy& korvale = StartedCopy();
  class Form& dialog = Open(korvale);
  const WindowHandle window = dialog.Handle();
  const int box = korvale.Id(dialog, "chkHotKeyParent", 3);
  korvale.user.Pick(window, korvale.Id(dialog, "tabOptions"), 1);
  korvale.user.Click(window, box);
  for (const char* const menu : {"Tools", "View"}) {
    WorkIn(StartTest::Open("Alpha"));
    log.Clear();
    korvale.user.ChooseMenu(korvale.Handle(), {menu, "Options..."});
    EXPECT_EQ(korvale.Loaded("frmOptions").Handle(), window) << menu;
    EXPECT_EQ(desktop.GetForegroundWindow(), window) << menu;
    EXPECT_EQ(korvale.user.Value(window, box), 0) << menu;
    EXPECT_TRUE(log.CallsOf("CreateWindowExW").empty()) << menu;
  }
  EXPECT_TRUE(korvale.Options().booHotKeyParent[3]);
}

}  // namespace
}  // namespace korvale

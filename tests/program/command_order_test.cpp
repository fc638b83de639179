#include <string>
#include <vector>

#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kSave = "SaveSetting(Korvale - Work, Startup";
constexpr const char* kCloseAbout = "DestroyWindow(frmMsgBox2)";

/// In which order the commands of the main window do what they do.
class CommandOrderTest : public StartTest {
 protected:
  using Calls = std::vector<std::string>;

  void Store(const std::string& key, const std::string& value) {
    store.SaveSetting("Korvale - Work", "Startup", key, value);
  }
  /// A started copy with a width that has not been stored, so that a refreshed menu stores it.
  KorvaleCopy& Unsaved() {
    KorvaleCopy& copy = StartedCopy();
    TwipsRect place = copy.user.Place(copy.Handle());
    place.width = 6000;
    copy.user.Drag(copy.Handle(), place);
    log.IncludeReads(true);
    log.Clear();
    return copy;
  }
  /// The user is in the main window while About is open.
  KorvaleCopy& BehindAbout() {
    KorvaleCopy& copy = StartedCopy();
    copy.Form().mnuHelpAbout_Click();
    EXPECT_NE(copy.FindForm("frmMsgBox2"), nullptr);
    desktop.UserActivates(copy.Handle());
    log.IncludeReads(true);
    log.Clear();
    return copy;
  }
  static void Choose(KorvaleCopy& copy, const Calls& path) {
    copy.user.ChooseMenu(copy.Handle(), path);
  }
};

TEST_F(CommandOrderTest, AboutOpensAfterTheMenusAreRefreshed) {
  Choose(Unsaved(), {"Help", "About Korvale"});
  const Calls order = {kSave, "CreateWindowExW(frmMsgBox2)"};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, AboutClosesBeforeF1OpensTheHelpMenu) {
  KorvaleCopy& korvale = BehindAbout();
  korvale.user.PressKey(korvale.Handle(), win32::kVkF1);
  const Calls order = {kCloseAbout, "SendInput(frmMain, 72, 4)"};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, AboutClosesBeforeAltF4EndsTheProgram) {
  KorvaleCopy& korvale = BehindAbout();
  korvale.user.PressKey(korvale.Handle(), win32::kVkF4, kAlt);
  const Calls order = {kCloseAbout, "UnregisterHotKey"};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, AboutClosesBeforeTheHiddenMenusComeBack) {
  Store("Menu", "False");
  KorvaleCopy& korvale = BehindAbout();
  korvale.user.PressKey(korvale.Handle(), 'V', kAlt);
  const Calls order = {kCloseAbout, "DrawMenuBar(frmMain)"};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, TheOptionsOpenBeforeTheMenusAreRefreshed) {
  Choose(Unsaved(), {"Tools", "Options..."});
  const Calls order = {"ShowWindow(frmOptions", kSave};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, TheOptionsHoldTheRecordBeforeTheyAreShown) {
  StoreOption("HotKeyModParent", "2");
  StoreOption("HotKeyParent3", "False");
  KorvaleCopy& korvale = Unsaved();
  std::string modifier;
  std::string caption;
  bool enabled = true;
  log.WhenCalled("ShowWindow(frmOptions", [&] {
    class Form& dialog = korvale.Loaded("frmOptions");
    modifier = korvale.user.Text(dialog.Handle(), korvale.Id(dialog, "cboHotKeyModParent"));
    caption = dialog.Caption();
    enabled = dialog.Find("chkHotKeyParent", 3).Value() != 0;
  });
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  EXPECT_EQ(modifier, "Ctrl");
  EXPECT_EQ(caption, "Korvale - Options");
  EXPECT_FALSE(enabled);
}

TEST_F(CommandOrderTest, AWebPageOpensBeforeTheMenusAreRefreshed) {
  for (const char* const page : {"web:  Help", "web:  Korvale Home Page", "web:  Readme"}) {
    KorvaleCopy& korvale = Unsaved();
    Choose(korvale, {"Help", page});
    const Calls order = {"ShellExecuteA", kSave};
    EXPECT_EQ(Order(order), order) << page;
    korvale.Exit();
    EndCopy(korvale);
    store.DeleteSection("Korvale - Work", "Startup");
  }
}

TEST_F(CommandOrderTest, TheHotKeysAreToggledBeforeTheMenusAreRefreshed) {
  Store("DisplayTips", "False");
  Choose(Unsaved(), {"Tools", "Deactivate Hot Keys"});
  const Calls order = {"UnregisterHotKey", "RegisterHotKey", "CreateWindowExW(frmWaitWindow)",
                       kSave};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, TheMenusSayHowItIsBeforeItIsStored) {
  KorvaleCopy& korvale = Unsaved();
  bool checked = true;
  log.WhenCalled(kSave, [&] { checked = korvale.Form().Menu("mnuViewWindowInfo").checked; });
  Choose(korvale, {"View", "Target Window"});
  EXPECT_FALSE(checked);
}

TEST_F(CommandOrderTest, TipsAreOnWhileTheUserIsAskedAndStoredAfterwards) {
  Store("DisplayTips", "False");
  KorvaleCopy& korvale = Unsaved();
  bool on = false;
  korvale.host.WhenMessageBox([&](const ShownMessage& /*box*/) {
    on = korvale.Startup().DisplayTips;
    return win32::kIdNo;
  });
  Choose(korvale, {"Help", "Display Tip Messages"});
  EXPECT_TRUE(on);
  const Calls order = {"MessageBoxW", kSave};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, TheWindowIsPutOnTopBeforeItIsSized) {
  Store("AlwaysOnTop", "True");
  KorvaleCopy& korvale = Unsaved();
  korvale.Startup().WindowInfo = false;
  korvale.Form().Form_Resize();
  // Sizing it is a resize once more.
  const char* const onTop = "SetWindowPos(frmMain, HWND_TOPMOST";
  const Calls order = {onTop, "MoveWindow(frmMain)", onTop};
  EXPECT_EQ(Order(order), order);
}

TEST_F(CommandOrderTest, TheDefaultColorsAreShownBeforeTheyAreStored) {
  Store("WI1BackColor", "255");
  Store("WI2BackColor", "65280");
  Choose(Unsaved(), {"View", "Default Settings", "Target Window/Class Colors"});
  const Calls order = {"UpdateControl(frmMain, txtWindow, kColors)",
                       "UpdateControl(frmMain, txtWindowClass, kColors)", kSave};
  EXPECT_EQ(Order(order), order);
}

}  // namespace
}  // namespace korvale

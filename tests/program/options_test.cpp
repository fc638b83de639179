#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// Every option that the dialog shows, none at its default.
clsOptions EverythingChanged() {
  clsOptions options;
  options.booSplashScreen = false;
  options.booSelectPrevWinOnStart = true;
  options.booAllowNoTextWindow = true;
  options.booAllowToolbarWindow = true;
  options.colHotKeyEnabled = 0x123456;
  options.intHotKeyModParent = 2;
  options.booHotKeyParent.fill(false);
  options.intHotKeyModAction = {4, 8};
  options.intHotKeyAction = {0x70, 0x2E};
  options.intHotKeyModGeneral = {0, 1, 2};
  options.intHotKeyGeneral = {65, 90, 0x6E};
  return options;
}

using OptionsExchangeInProgram = StartTest;

class StartedOptionsExchange : public StartTest {
 protected:
  KorvaleCopy& korvale = StartedCopy();
};

class OpenOptionsInProgram : public StartedOptionsExchange {
 protected:
  OpenOptionsInProgram() { PressHotKey(win32::kModWin, 'O'); }

  class Form& Dialog() {
    return korvale.Loaded("frmOptions");
  }
  void Click(const char* button) {
    korvale.user.Click(Dialog().Handle(), korvale.Id(Dialog(), button));
  }
};

TEST_F(StartedOptionsExchange, TheDialogShowsTheRecordOnTheRememberedTab) {
  korvale.Options() = EverythingChanged();
  korvale.Startup().OptionsTab = 3;

  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");

  class Form& dialog = korvale.Loaded("frmOptions");
  EXPECT_EQ(dialog.Caption(), "Korvale - Options");
  EXPECT_TRUE(korvale.user.IsShown(dialog.Handle()));
  EXPECT_EQ(korvale.user.ListIndex(dialog.Handle(), korvale.Id(dialog, "tabOptions")), 2);
  EXPECT_EQ(korvale.user.Value(dialog.Handle(), korvale.Id(dialog, "chkHotKeyParent", 0)), 0);
}

TEST_F(StartedOptionsExchange, TheRecordTakesEveryFieldOfTheDialog) {
  clsOptions& record = korvale.Options();
  record = EverythingChanged();
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  record = clsOptions();

  korvale.Form().udmOptions("UPDATE_OPTIONS");

  EXPECT_EQ(record, EverythingChanged());
}

TEST_F(StartedOptionsExchange, AnOpenDialogIsFilledAnew) {
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  const WindowHandle before = korvale.Loaded("frmOptions").Handle();
  korvale.Options() = EverythingChanged();

  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  korvale.Options() = clsOptions();
  korvale.Form().udmOptions("UPDATE_OPTIONS");

  EXPECT_EQ(korvale.Loaded("frmOptions").Handle(), before);
  EXPECT_EQ(korvale.Options(), EverythingChanged());
}

TEST_F(StartedOptionsExchange, AnyOtherModeDoesNothing) {
  korvale.Form().udmOptions("load_and_or_refresh");
  EXPECT_EQ(korvale.FindForm("frmOptions"), nullptr);
}

TEST_F(OptionsExchangeInProgram, AKeyOfZeroLeavesEachOperationWithoutAHotKey) {
  KorvaleCopy& korvale = UsedCopy();
  for (const char* const key :
       {"HotKeyAction0", "HotKeyAction1", "HotKeyGeneral0", "HotKeyGeneral1", "HotKeyGeneral2"}) {
    StoreOption(key, "0");
  }
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(hotKeys.Registered().size(), 10U);
}

TEST_F(OptionsExchangeInProgram, PauseTogglesWithoutAModifier) {
  StartedCopy();
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(hotKeys.Registered().size(), 1U);
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
}

TEST_F(StartedOptionsExchange, TheToggleTellsAnewWhichHotKeysAreNotAvailable) {
  const auto open = [&] { korvale.Form().udmOptions("LOAD_AND_OR_REFRESH"); };
  const auto line = [&]() -> std::string {
    const Control& conflicts = korvale.Loaded("frmOptions").Find("lblConflicts");
    return conflicts.Visible() ? conflicts.Text() : "(none)";
  };
  const std::string refused = "Not available, in use by Windows or another program:  Alt+3";
  open();
  EXPECT_EQ(line(), "(none)");

  PressHotKey(0, win32::kVkPause);
  hotKeys.RegisterForeign(win32::kModAlt, '3');
  EXPECT_EQ(line(), "(none)");
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(line(), refused);

  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(line(), refused) << "switched off it is no more available than before";
  korvale.Loaded("frmOptions").Unload();
  open();
  EXPECT_EQ(line(), refused);

  hotKeys.ReleaseForeign(win32::kModAlt, '3');
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(line(), "(none)");
}

TEST_F(StartedOptionsExchange, TheHotKeyBringsTheDialogBackThatWentWithTheMinimizedStrip) {
  PressHotKey(win32::kModWin, 'O');
  const WindowHandle dialog = korvale.Loaded("frmOptions").Handle();
  WorkIn(Open("Alpha"));
  desktop.UserMinimizes(korvale.Handle());
  ASSERT_FALSE(desktop.IsWindowVisible(dialog));

  PressHotKey(win32::kModWin, 'O');

  EXPECT_TRUE(desktop.IsWindowVisible(dialog));
  EXPECT_EQ(desktop.GetForegroundWindow(), dialog);
}

TEST_F(OpenOptionsInProgram, ItsQuestionsAreItsOwn) {
  WindowHandle owner = 0;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    owner = box.owner;
    return win32::kIdCancel;
  });
  Click("cmdReset");
  EXPECT_EQ(owner, Dialog().Handle());
}

TEST_F(StartedOptionsExchange, TheSessionCanEndWhileItAsks) {
  StoreOption("HotKeyModParent", "2");
  PressHotKey(win32::kModWin, 'O');
  class Form& dialog = korvale.Loaded("frmOptions");
  korvale.EndSessionAtBox(win32::kIdOk);
  korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "cmdReset"));
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_EQ(Stored("Options", "HotKeyModParent"), "2");
  EXPECT_TRUE(hotKeys.Registered().empty());
}

TEST_F(StartedOptionsExchange, TheSessionCanEndWhileItTellsThatTheHotKeysAreOnAgain) {
  PressHotKey(0, win32::kVkPause);
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  class Form& dialog = korvale.Loaded("frmOptions");
  int boxes = 0;
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    ++boxes;
    korvale.Form().OnCloseRequested(CloseReason::kSession);
    return win32::kIdOk;
  });
  korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "cmdApply"));
  EXPECT_EQ(boxes, 1);
  ExpectEnded(korvale);
}

TEST_F(OpenOptionsInProgram, TheSessionCanEndWhileItTellsOfARefusedSave) {
  store.RefuseWrites(true);
  std::vector<std::string> told;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    told.push_back(box.text);
    korvale.Form().OnCloseRequested(CloseReason::kSession);
    return win32::kIdOk;
  });
  Click("cmdApply");
  EXPECT_EQ(told, std::vector<std::string>{"VB ERROR 70 - Permission denied\r\rKorvale Error #5"});
  ExpectEnded(korvale);
}

TEST_F(OpenOptionsInProgram, ApplySavesTheOptionsAndThenTheStateAsOne) {
  store.SaveSetting("Korvale - Work", "Startup", "Menu", "True");
  log.Clear();
  Click("cmdApply");
  const std::vector<std::string> steps = {"SaveSetting(Korvale - Work, Options",
                                          "DeleteSection(Korvale - Work, Startup",
                                          "SaveSetting(Korvale - Work, Startup"};
  EXPECT_EQ(Order(steps), steps);
  EXPECT_EQ(log.CallsOf("SaveSetting(Korvale - Work, Saving, Complete").size(), 1U);
}

TEST_F(StartedOptionsExchange, AResetThatTheStoreRefusesIsTold) {
  StoreOption("HotKeyModParent", "2");
  PressHotKey(win32::kModWin, 'O');
  class Form& dialog = korvale.Loaded("frmOptions");
  store.RefuseWrites(true);
  std::string told;
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    korvale.host.WhenMessageBox([&](const ShownMessage& box) {
      told = box.text;
      return win32::kIdOk;
    });
    return win32::kIdOk;
  });
  korvale.user.Click(dialog.Handle(), korvale.Id(dialog, "cmdReset"));
  EXPECT_EQ(told, "VB ERROR 70 - Permission denied\r\rKorvale Error #5");
}

TEST_F(StartedOptionsExchange, AMessageBelongsToTheStripWhileTheDialogIsHiddenWithIt) {
  PressHotKey(win32::kModWin, 'O');
  desktop.UserMinimizes(korvale.Handle());
  WindowHandle owner = 0;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    owner = box.owner;
    return win32::kIdOk;
  });
  korvale.Form().udmNonFatalError(ErrorPlace::kEventHandler, 5);
  EXPECT_EQ(owner, korvale.Handle());
}

TEST_F(StartedOptionsExchange, TheProgramDoesNotEndUnderTheColorDialog) {
  korvale.host.WhenColorDialog([&](Color) -> std::optional<Color> {
    korvale.Form().OnCloseRequested(CloseReason::kUser);
    EXPECT_TRUE(korvale.Form().IsLoaded());
    return std::nullopt;
  });
  korvale.Form().udmShowColorPalette(0);
}

TEST_F(OpenOptionsInProgram, NothingOfOursTakesInputBesideTheColorDialog) {
  bool mainEnabled = true;
  bool mainEnabledAfterNotice = true;
  std::string notice;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    notice = box.text;
    return win32::kIdOk;
  });
  korvale.host.WhenColorDialog([&](Color) -> std::optional<Color> {
    mainEnabled = desktop.IsWindowEnabled(korvale.Handle());
    PressTag(1);
    mainEnabledAfterNotice = desktop.IsWindowEnabled(korvale.Handle());
    return std::nullopt;
  });
  korvale.Form().udmShowColorPalette(0);
  EXPECT_FALSE(mainEnabled);
  EXPECT_FALSE(mainEnabledAfterNotice);
  EXPECT_TRUE(notice.starts_with("Hot Keys are temporarily suspended")) << notice;
  EXPECT_TRUE(desktop.IsWindowEnabled(korvale.Handle()));
  EXPECT_TRUE(desktop.IsWindowEnabled(Dialog().Handle()));
}

}  // namespace
}  // namespace korvale

#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

constexpr const char* kReviewQuestion =
    "Korvale is installed with Hot Keys active.  It is recommended that you review the Hot Keys "
    "before getting started.\r\rDo you want to review the Hot Keys now ?";

class StartUpTest : public KorvaleWorld {
 protected:
  std::string Stored(const std::string& section, const std::string& key) {
    return store.GetSetting("Korvale - Work", section, key).value_or("(missing)");
  }

  /// The position of the first call that begins with `prefix`; fails the test when there is none.
  std::size_t At(const std::string& prefix) {
    for (std::size_t i = 0; i < log.Calls().size(); ++i) {
      if (log.Calls()[i].starts_with(prefix)) return i;
    }
    ADD_FAILURE() << "no call " << prefix;
    return 0;
  }
};

TEST_F(StartUpTest, TheCaptionIsProductAndInstallationFolder) {
  KorvaleCopy& korvale = StartedCopy("Büro 日本");
  EXPECT_EQ(korvale.user.Title(korvale.Handle()), "Korvale - Büro 日本");
}

TEST_F(StartUpTest, TheFirstRunStoresAllDefaultsBeforeItAsks) {
  KorvaleCopy& korvale = NewCopy();
  std::string splashAtQuestion;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, kReviewQuestion);
    EXPECT_EQ(box.title, "Korvale - CAUTION");
    EXPECT_EQ(box.style, win32::kMbYesNo);
    splashAtQuestion = Stored("Options", "SplashScreen") + Stored("Startup", "Width");
    return win32::kIdNo;
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(splashAtQuestion, "True4500");
  EXPECT_EQ(Stored("Options", "HotKeyGeneral2"), "19");
  EXPECT_EQ(korvale.program.Forms().Find("frmOptions"), nullptr);
  EXPECT_EQ(korvale.Parts().state.lastAnswer, win32::kIdNo);
}

TEST_F(StartUpTest, YesToTheFirstQuestionOpensTheOptionsOnTheHotKeysTab) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdYes);

  EXPECT_TRUE(korvale.Start());

  class Form& options = korvale.Loaded("frmOptions");
  EXPECT_EQ(options.Caption(), "Korvale - Options");
  EXPECT_EQ(korvale.user.ListIndex(options.Handle(), korvale.Id(options, "tabOptions")), 1);
}

TEST_F(StartUpTest, TheSecondRunAsksNothingAndShowsTheSplash) {
  KorvaleCopy& first = NewCopy();
  first.host.AnswerNext(win32::kIdNo);
  first.Start();
  first.Exit();
  EndCopy(first);

  KorvaleCopy& second = NewCopy();
  EXPECT_TRUE(second.Start());

  EXPECT_TRUE(second.user.IsShown(second.Loaded("frmMsgBox2").Handle()));
  clock.Advance(10000);
  EXPECT_EQ(second.program.Forms().Find("frmMsgBox2"), nullptr);
}

TEST_F(StartUpTest, NoSplashWhenTheOptionIsOff) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.program.Forms().Find("frmMsgBox2"), nullptr);
}

TEST_F(StartUpTest, ASecondCopyOfTheSameInstallationBringsTheFirstForwardAndEnds) {
  KorvaleCopy& first = StartedCopy();
  WorkIn(Open("Alpha"));
  const auto sections = store.Sections("Korvale - Work");
  log.Clear();
  KorvaleCopy& second = NewCopy();
  second.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, "'Korvale - Work' is already open.");
    EXPECT_EQ(box.title, "Korvale");
    EXPECT_EQ(Front(), "Korvale");
    return win32::kIdOk;
  });

  EXPECT_FALSE(second.Start());

  EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle());
  EXPECT_FALSE(second.Form().IsLoaded());
  EXPECT_EQ(store.Sections("Korvale - Work"), sections);
  EXPECT_TRUE(log.CallsOf("RegisterHotKey").empty());
  EXPECT_TRUE(log.CallsOf("DeleteSection(Korvale - Work").empty());
  EXPECT_TRUE(log.CallsOf("SaveSetting(Korvale - Work").empty());
}

TEST_F(StartUpTest, ACopyThatStartsInTheSameInstantWaitsForTheFirstOnesWindow) {
  KorvaleCopy& first = NewCopy();
  KorvaleCopy& second = NewCopy();
  store.SaveSetting("Korvale - Work", "Options", "SplashScreen", "False");
  bool secondStarted = true;
  // The first one has found nobody and is about to show itself: now the second one starts.
  log.WhenCalled("RegisterHotKey", [&] {
    second.host.AnswerNext(win32::kIdOk);
    secondStarted = second.Start();
  });

  EXPECT_TRUE(first.Start());

  EXPECT_FALSE(secondStarted);
  EXPECT_EQ(hotKeys.Registered().size(), 15U);
}

TEST_F(StartUpTest, ACopyInAnotherFolderExplainsAndRunsWithItsOwnSettings) {
  KorvaleCopy& work = StartedCopy("Work");
  KorvaleCopy& home = NewCopy("Home");
  store.SaveSetting("Korvale - Home", "Options", "SplashScreen", "False");
  store.SaveSetting("Korvale - Home", "Options", "HotKeyModParent", "2");
  std::string tip;
  home.host.WhenModal("frmMsgTip", [&](class Form& form) {
    tip = form.Find("lblTip").Text();
    EXPECT_EQ(form.Caption(), "TIP - Korvale");
    home.user.Click(form.Handle(), form.Find("cmdOK").Id());
  });

  EXPECT_TRUE(home.Start());

  EXPECT_TRUE(tip.starts_with("Another instance of Korvale is currently running.  More than"));
  EXPECT_TRUE(tip.ends_with(
      "This can be done by using Korvale' Activate/Deactivate Hot Keys feature, or simply by "
      "restarting Korvale."));
  EXPECT_EQ(home.Parts().hotKeys.Registered().front().modifiers, 2);
  EXPECT_TRUE(home.Parts().hotKeys.Registered().front().accepted);
  EXPECT_TRUE(work.Form().IsLoaded());
}

TEST_F(StartUpTest, ASilencedTipIsNotShownAgain) {
  StartedCopy("Work");
  KorvaleCopy& home = NewCopy("Home");
  store.SaveSetting("Korvale - Home", "Startup", "Tips", "1111111110");
  store.SaveSetting("Korvale - Home", "Options", "SplashScreen", "False");
  EXPECT_TRUE(home.Start());
}

TEST_F(StartUpTest, AnArgumentOnTheCommandLineGetsATip) {
  KorvaleCopy& korvale = NewCopy();
  store.SaveSetting("Korvale - Work", "Options", "SplashScreen", "False");
  korvale.system.commandLine = " /x ";
  std::string tip;
  korvale.host.WhenModal("frmMsgTip", [&](class Form& form) {
    tip = form.Find("lblTip").Text();
    korvale.user.Click(form.Handle(), form.Find("cmdOK").Id());
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(tip, "Korvale does not accept command line arguments.");
}

TEST_F(StartUpTest, BlanksOnTheCommandLineAreNoArgument) {
  KorvaleCopy& korvale = NewCopy();
  store.SaveSetting("Korvale - Work", "Options", "SplashScreen", "False");
  korvale.system.commandLine = "   ";
  EXPECT_TRUE(korvale.Start());
}

TEST_F(StartUpTest, AnotherFolderOfTheSameNameKeepsTheSecondFromRunning) {
  KorvaleCopy& first = StartedCopy();
  KorvaleCopy& second = NewCopy();
  second.system.executablePath = "D:\\Tools\\work\\Korvale.exe";
  second.system.files.insert(first.system.executablePath);
  second.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text,
              "An installation in a folder named 'work' already exists.  Korvale does not support "
              "two installations with the same folder name.  Please rename the folder then re-run "
              "Korvale.");
    return win32::kIdOk;
  });

  EXPECT_FALSE(second.Start());
  EXPECT_TRUE(first.Form().IsLoaded());
}

TEST_F(StartUpTest, StartUpKeepsItsOrder) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  log.IncludeReads(true);

  EXPECT_TRUE(korvale.Start());

  const std::size_t registered = At("SaveSetting(Korvale Installations");
  const std::size_t options = At("GetSetting(Korvale - Work, Options, SplashScreen");
  const std::size_t startup = At("GetSetting(Korvale - Work, Startup, WindowState");
  const std::size_t search = At("EnumWindows");
  const std::size_t hook = At("SetWindowLongPtrA");
  const std::size_t hotKey = At("RegisterHotKey");
  const std::size_t saved = At("SaveSetting(Korvale - Work, Startup, WindowState");
  const std::size_t question = At("MessageBoxW");
  EXPECT_LT(registered, startup);
  EXPECT_LT(startup, options);
  EXPECT_LT(options, search);
  EXPECT_LT(search, hook);
  EXPECT_LT(hook, hotKey);
  EXPECT_LT(hotKey, saved);
  EXPECT_LT(saved, question);
}

TEST_F(StartUpTest, TheMainWindowIsInvisibleUntilItIsReady) {
  KorvaleCopy& korvale = NewCopy();
  store.SaveSetting("Korvale - Work", "Options", "SplashScreen", "False");
  bool visible = true;
  log.WhenCalled("RegisterHotKey", [&] { visible = desktop.IsWindowVisible(korvale.Handle()); });

  EXPECT_TRUE(korvale.Start());

  EXPECT_FALSE(visible);
  EXPECT_TRUE(desktop.IsWindowVisible(korvale.Handle()));
}

TEST_F(StartUpTest, AlwaysOnTopIsAppliedAtTheFirstActivation) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  KorvaleCopy& korvale = StartedCopy();
  const std::int32_t style = desktop.GetWindowLongA(korvale.Handle(), win32::kGwlExStyle);
  EXPECT_NE(style & win32::kWsExTopmost, 0);
  EXPECT_TRUE(korvale.WindowMenuItems().front().checked);
}

TEST_F(StartUpTest, TheWindowInFrontBeforeTheStartIsThePreviousWindow) {
  Open("Below");
  Open("Alpha", {.className = "AlphaClass"});
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  EXPECT_EQ(korvale.TargetClass(), "AlphaClass");
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(StartUpTest, AnUntitledWindowInFrontIsPassedOverAtTheStart) {
  Open("Below");
  Open("");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.TargetWindow(), "Below");
}

TEST_F(StartUpTest, ThePreviousWindowIsSelectedWhenTheOptionSaysSo) {
  Open("Alpha");
  store.SaveSetting("Korvale - Work", "Options", "SelectPrevWinOnStart", "True");
  StartedCopy();
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(StartUpTest, ShutdownKeepsItsOrder) {
  KorvaleCopy& korvale = StartedCopy();

  korvale.Exit();

  const std::size_t saved = At("SaveSetting(Korvale - Work, Startup, WindowState");
  const std::size_t unregistered = At("UnregisterHotKey");
  const std::size_t unhooked = At("SetWindowLongPtrA");
  EXPECT_LT(saved, unregistered);
  EXPECT_LT(unregistered, unhooked);
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_EQ(log.CallsOf("UnregisterHotKey").size(), 15U);
  EXPECT_TRUE(log.CallsOf("SaveSetting(Korvale - Work, Options").empty());
  EXPECT_TRUE(korvale.host.QuitPosted());
}

TEST_F(StartUpTest, ARefusedSaveIsToldAndTheHotKeysAreGivenBackAllTheSame) {
  KorvaleCopy& korvale = StartedCopy();
  store.RefuseWrites(true);
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.text, "VB ERROR 70 - Permission denied\r\rKorvale Error #5");
    return win32::kIdOk;
  });
  korvale.Exit();
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_FALSE(korvale.Form().IsLoaded());
}

TEST_F(StartUpTest, AFirstRunWithoutAWritableStoreRunsAllTheSame) {
  KorvaleCopy& korvale = NewCopy();
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(hotKeys.Registered().size(), 15U);
}

TEST_F(StartUpTest, ASaveThatWasInterruptedIsFinishedByTheNextStart) {
  store.SaveSetting("Korvale - Work", "Saving", "1\\S\\Korvale - Work\\ParentWindowList\\1",
                    "&1  Mail");
  store.SaveSetting("Korvale - Work", "Saving", "Complete", "1");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "1  Mail");
}

TEST_F(StartUpTest, TheSessionCanEndWhileAMessageBoxIsShown) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    korvale.Form().OnCloseRequested(CloseReason::kSession);
    return win32::kIdOk;
  });
  korvale.Form().TheWindowMenu().mnuWindowAddToList_Click(2);
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_FALSE(clock.AdvanceToNextTick());
}

TEST_F(StartUpTest, TagsOfClosedWindowsStayStoredButLeaveTheMenuAtShutdown) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(alpha);
  WorkIn(korvale.Handle());
  korvale.TagPrevious();
  desktop.Close(alpha);
  LetTick();

  korvale.Form().udmUnload(true);

  EXPECT_EQ(Stored("ParentWindowList", "1"), "&1  Alpha");
  EXPECT_EQ(korvale.Parts().tags.mnuWindowParentList.Find(1), nullptr);
}

TEST_F(StartUpTest, TheEndOfTheSessionUnloadsNormally) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.Form().OnCloseRequested(CloseReason::kSession);
  EXPECT_FALSE(log.CallsOf("SaveSetting(Korvale - Work, Startup").empty());
  EXPECT_TRUE(hotKeys.Registered().empty());
}

TEST_F(StartUpTest, AnErrorInATimerIsReportedAndTheProgramGoesOn) {
  KorvaleCopy& korvale = StartedCopy();
  log.WhenCalled("GetForegroundWindow", [] { throw RunTimeError(RunTimeError::kOverflow); });
  korvale.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.text, "VB ERROR 6 - Overflow\r\rKorvale Error #2");
    EXPECT_EQ(box.title, "Korvale - ERROR");
    return win32::kIdOk;
  });

  LetTick();

  WorkIn(Open("Alpha"));
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
}

}  // namespace
}  // namespace korvale

#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

using StartUpTest = StartTest;

TEST_F(StartUpTest, TheCaptionIsProductAndInstallationFolder) {
  KorvaleCopy& korvale = StartedCopy("Büro 日本");
  EXPECT_EQ(korvale.user.Title(korvale.Handle()), "Korvale - Büro 日本");
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
  EXPECT_EQ(second.FindForm("frmMsgBox2"), nullptr);
}

TEST_F(StartUpTest, TheProgramRunsUntilItIsToldToQuitAndEndsWithZero) {
  KorvaleCopy& korvale = UsedCopy();
  std::string front;
  korvale.host.WhenWaiting([&] {
    front = Front();
    EXPECT_TRUE(korvale.system.crashFilter);
    korvale.user.QuitThread();
  });

  EXPECT_EQ(RunProgram(korvale.platform), 0);

  EXPECT_EQ(front, "Korvale - Work");
  EXPECT_FALSE(korvale.system.crashFilter);
}

TEST_F(StartUpTest, NoSplashWhenTheOptionIsOff) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.FindForm("frmMsgBox2"), nullptr);
}

TEST_F(StartUpTest, AnArgumentOnTheCommandLineGetsATip) {
  KorvaleCopy& korvale = UsedCopy();
  korvale.system.commandLine = " ~ ";
  std::string tip;
  Twips height = 0;
  ReadTip(korvale, tip, &height);

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(tip, "Korvale does not accept command line arguments.");
  EXPECT_EQ(height, 2700);
  EXPECT_TRUE(korvale.user.IsShown(korvale.Handle()));
}

TEST_F(StartUpTest, AfterATipTheMainWindowIsInFrontAndTheWindowBeforeIsThePreviousOne) {
  WorkIn(Open("Alpha"));
  KorvaleCopy& korvale = UsedCopy();
  korvale.system.commandLine = "/x";
  std::string tip;
  ReadTip(korvale, tip);

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
}

TEST_F(StartUpTest, TheTipAboutArgumentsIsNumber17) {
  KorvaleCopy& korvale = UsedCopy();
  store.SaveSetting("Korvale - Work", "Startup", "Tips", "11111111111111110");
  korvale.system.commandLine = "/x";
  EXPECT_TRUE(korvale.Start());
}

TEST_F(StartUpTest, WhitespaceOnTheCommandLineIsNoArgument) {
  for (const char* const blanks : {"   ", "\t", " \t \r\n ", "\v\f"}) {
    KorvaleCopy& korvale = UsedCopy();
    korvale.system.commandLine = blanks;
    EXPECT_TRUE(korvale.Start());
    korvale.Exit();
    EndCopy(korvale);
  }
}

std::vector<std::string> StartUpOrder() {
  return {
      "SetWindowTextW(frmMain, \"Korvale - Work\")",
      "CreateMutexA",
      "GetAllSettings(Korvale Installations",
      "SaveSetting(Korvale Installations",
      "GetSetting(Korvale - Work, Startup",
      "GetSetting(Korvale - Work, Options",
      "EnumWindows",
      "CreateWindowExW(frmMsgTip)",
      "DestroyWindow(frmMsgTip)",
      "CreateWindowExW(frmMsgTip)",
      "DestroyWindow(frmMsgTip)",
      "CreateWindowExW(frmMsgBox2)",
      "MoveWindow(frmMain)",
      "SetWindowPos(frmMain, HWND_TOPMOST, 0, 0, 0, 0, 19)",
      "UpdateControl(frmMain, txtWindow, kColors)",
      "SetTimer(frmMain, ",
      "SetWindowLongPtrA(frmMain, procedure)",
      "RegisterHotKey",
      "DrawMenuBar(frmMain)",
      "SetWindowPos(frmMain, HWND_TOPMOST, 0, 0, 0, 0, 19)",
      "CreateWindowExW(frmMsgTip)",
      "DestroyWindow(frmMsgTip)",
      "SetWindowPos(frmMain, HWND_TOPMOST, 0, 0, 0, 0, 19)",
      "ShowWindow(frmMain, SW_SHOW)",
      "SetWindowPos(frmMain, HWND_TOPMOST, 0, 0, 0, 0, 3)",
      "EnumWindows",
      "SetTimer(frmMain, ",
      "SetForegroundWindow(Alpha)",
  };
}

TEST_F(StartUpTest, StartUpKeepsItsOrder) {
  StartedCopy("Home");
  WorkIn(Open("Alpha"));
  KorvaleCopy& korvale = NewCopy();
  for (const auto& [key, value] :
       {std::pair("Menu", "False"), std::pair("WI1BackColor", "255"),
        std::pair("AlwaysOnTop", "True"), std::pair("Left", "600"), std::pair("Height", "800")}) {
    store.SaveSetting("Korvale - Work", "Startup", key, value);
  }
  StoreOption("SelectPrevWinOnStart", "True");
  korvale.system.commandLine = "/x";
  std::string tips[3];
  for (std::string& tip : tips) ReadTip(korvale, tip);
  log.IncludeReads(true);
  log.Clear();

  EXPECT_TRUE(korvale.Start());

  const std::vector<std::string> order = StartUpOrder();
  EXPECT_EQ(Order(order), order);
  EXPECT_TRUE(tips[0].starts_with("Another instance of Korvale is currently running.")) << tips[0];
  EXPECT_EQ(tips[1], "Korvale does not accept command line arguments.");
  EXPECT_TRUE(tips[2].starts_with("These hot keys are not available, ")) << tips[2];
}

TEST_F(StartUpTest, TheTimerRunsBeforeTheHotKeysDo) {
  KorvaleCopy& korvale = UsedCopy();
  std::string seen;
  log.WhenCalled("SetWindowLongPtrA", [&] {
    Control& timer = korvale.Form().Find("tmrWindow");
    seen = timer.Tag() + (timer.Enabled() ? " enabled" : "");
    EXPECT_EQ(clock.IntervalOf(korvale.Handle(), timer.Id()), 100U);
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(seen, "ON enabled");
}

TEST_F(StartUpTest, TheHelpMenuNamesTheProduct) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.Form().Menu("mnuHelpAbout").caption, "&About Korvale");
  EXPECT_EQ(korvale.Form().Menu("mnuHelpHomePage").caption, "web:  Korvale Home &Page");
}

TEST_F(StartUpTest, TheMainWindowIsInvisibleUntilItIsReady) {
  KorvaleCopy& korvale = UsedCopy();
  bool visible = true;
  log.WhenCalled("RegisterHotKey(frmMain, 15",
                 [&] { visible = desktop.IsWindowVisible(korvale.Handle()); });

  EXPECT_TRUE(korvale.Start());

  EXPECT_FALSE(visible);
  EXPECT_TRUE(desktop.IsWindowVisible(korvale.Handle()));
}

TEST_F(StartUpTest, TheStoredPlaceAndColoursAreApplied) {
  KorvaleCopy& korvale = UsedCopy();
  for (const auto& [key, value] :
       {std::pair("Left", "600"), std::pair("Top", "900"), std::pair("Width", "6000"),
        std::pair("WI1BackColor", "255"), std::pair("WI2BackColor", "65280")}) {
    store.SaveSetting("Korvale - Work", "Startup", key, value);
  }

  EXPECT_TRUE(korvale.Start());

  const TwipsRect place = korvale.user.Place(korvale.Handle());
  EXPECT_EQ(place.left, 600);
  EXPECT_EQ(place.top, 900);
  EXPECT_EQ(place.width, 6000);
  const auto color = [&](const char* field) {
    return korvale.user.Look(korvale.Handle(), korvale.Id(korvale.Form(), field)).backColor;
  };
  EXPECT_EQ(color("txtWindow"), 255);
  EXPECT_EQ(color("txtWindowClass"), 65280);
}

TEST_F(StartUpTest, AStoredPlaceOnNoMonitorIsBroughtBackOntoOne) {
  KorvaleCopy& korvale = UsedCopy();
  store.SaveSetting("Korvale - Work", "Startup", "Left", "32000");
  store.SaveSetting("Korvale - Work", "Startup", "Top", "-9000");
  korvale.host.SetWorkArea({0, 0, 15360, 11100});

  EXPECT_TRUE(korvale.Start());

  const TwipsRect place = korvale.user.Place(korvale.Handle());
  EXPECT_EQ(place.left + place.width, 15360);
  EXPECT_EQ(place.top, 0);
}

TEST_F(StartUpTest, TheModalFrameOptionIsOffAfterEveryStart) {
  KorvaleCopy& first = StartedCopy();
  first.Options().booAllowModalFrameWindow = true;
  first.Form().udmSaveOptions();
  first.Exit();
  EndCopy(first);

  KorvaleCopy& second = NewCopy();
  EXPECT_TRUE(second.Start());

  EXPECT_FALSE(second.Options().booAllowModalFrameWindow);
}

TEST_F(StartUpTest, AnEmptyStoreGivesTheDefaultOptions) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.Options(), clsOptions());
}

TEST_F(StartUpTest, ASaveThatWasInterruptedIsFinishedByTheNextStart) {
  store.SaveSetting("Korvale - Work", "Saving", "1\\S\\Korvale - Work\\ParentWindowList\\1",
                    "&1  Mail");
  store.SaveSetting("Korvale - Work", "Saving", "Complete", "1");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.WindowMenuItems()[7].caption, "1  Mail");
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

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kOtherInstanceTip =
    "Another instance of Korvale is currently running.  More than one instance of Korvale can be "
    "run to select different sets of windows.  For example, you can use Alt+0-9 to select one set "
    "of windows, and Ctrl+0-9 for another."
    "\r\r"
    "When assigning hot keys to the various operations listed on the Hot Keys tab of the Options "
    "dialog box, be careful to avoid/fix any conflicts with hot keys from another instance of "
    "Korvale (or other programs).  After changing hot keys, they have to be registered properly "
    "with the operating system.  This is done automatically when you save changes from the Options "
    "dialog box (by pressing OK or Apply).  If you fix hot key conflicts by making changes in "
    "another instance of Korvale (or another program) you may have to deactivate, then re-activate "
    "the hot keys in this instance of Korvale to get the once conflicting hot keys registered "
    "properly with the operating system.  This can be done by using Korvale' Activate/Deactivate "
    "Hot Keys feature, or simply by restarting Korvale.";

using InstancesTest = StartTest;

TEST_F(InstancesTest, ASecondCopyOfTheSameInstallationBringsTheFirstForwardAndEnds) {
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
  EXPECT_FALSE(second.HasOptions());
  EXPECT_EQ(store.Sections("Korvale - Work"), sections);
  EXPECT_TRUE(log.CallsOf("RegisterHotKey").empty());
  EXPECT_TRUE(log.CallsOf("DeleteSection(Korvale - Work").empty());
  EXPECT_TRUE(log.CallsOf("SaveSetting(Korvale - Work").empty());
}

TEST_F(InstancesTest, ACopyThatStartsInTheSameInstantWaitsForTheFirstOnesWindow) {
  KorvaleCopy& first = NewCopy();
  KorvaleCopy& second = NewCopy();
  StoreOption("SplashScreen", "False");
  bool secondStarted = true;
  // The first one has found no other and is about to show itself: now the second one starts.
  log.WhenCalled("RegisterHotKey", [&] {
    second.host.AnswerNext(win32::kIdOk);
    secondStarted = second.Start();
  });

  EXPECT_TRUE(first.Start());

  EXPECT_FALSE(secondStarted);
  EXPECT_EQ(hotKeys.Registered().size(), kAllHotKeys);
}

TEST_F(InstancesTest, TheRefusedCopyTouchesNothingElse) {
  StartedCopy();
  WorkIn(Open("Alpha"));
  KorvaleCopy& second = NewCopy();
  second.host.Post([&] { log.Add("a message that waited"); });
  second.host.AnswerNext(win32::kIdOk);
  log.Clear();

  EXPECT_FALSE(second.Start());

  EXPECT_EQ(log.Calls(), (std::vector<std::string>{
                             "CreateWindowExW(frmMain)",
                             "SetWindowTextW(frmMain, \"Korvale - Work\")",
                             "a message that waited",
                             "EnableWindow(frmMain, false)",
                             "MessageBoxW(0, \"'Korvale - Work' is already open.\", "
                             "\"Korvale\", 0)",
                             "EnableWindow(frmMain, true)",
                             "SetForegroundWindow(frmMain)",
                             "DestroyWindow(frmMain)",
                         }));
}

TEST_F(InstancesTest, AMinimizedFirstCopyIsRestored) {
  KorvaleCopy& first = StartedCopy();
  desktop.ShowWindow(first.Handle(), win32::kSwMinimize);
  KorvaleCopy& second = NewCopy();
  second.host.AnswerNext(win32::kIdOk);

  EXPECT_FALSE(second.Start());

  EXPECT_FALSE(desktop.IsIconic(first.Handle()));
  EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle());
}

TEST_F(InstancesTest, OfSeveralCopiesTheLastOneFoundComesForward) {
  const std::string className = "Korvale.frmMain";
  const WindowHandle lower = Open("Korvale - Work", {.className = className});
  Open("Korvale - Work", {.className = className});
  Open("Korvale - Work", {.className = "Other"});
  Open("Korvale - Work", {.className = className, .visible = false});
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdOk);

  EXPECT_FALSE(korvale.Start());

  EXPECT_EQ(desktop.GetForegroundWindow(), lower);
}

TEST_F(InstancesTest, OnlyAWindowOfTheSameClassAndCaptionIsACopy) {
  Open("Korvale - Work", {.className = "Other"});
  Open("Korvale - Work", {.className = "Korvale.frmMain", .visible = false});
  EXPECT_TRUE(UsedCopy().Start());
}

TEST_F(InstancesTest, ASecondCopyAsksNothingWhileTheFirstAsksAboutImporting) {
  store.SaveSetting("Korvale Installations", "0", "Korvale - Old", "C:\\Gone\\Old");
  store.SaveSetting("Korvale - Old", "Options", "HotKeyModParent", "2");
  KorvaleCopy& first = NewCopy();
  KorvaleCopy& second = NewCopy();
  bool secondStarted = true;
  first.host.WhenMessageBox([&](const ShownMessage&) {
    second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
    secondStarted = second.Start();
    return win32::kIdYes;
  });
  first.host.AnswerNext(win32::kIdNo);
  std::int16_t answerAfterImport = 0;
  log.WhenCalled("RegisterHotKey", [&] { answerAfterImport = first.State().lastAnswer; });

  EXPECT_TRUE(first.Start());

  EXPECT_FALSE(secondStarted);
  EXPECT_EQ(second.host.Messages().size(), 1U);
  EXPECT_EQ(answerAfterImport, win32::kIdYes);
  EXPECT_EQ(Stored("Options", "HotKeyModParent"), "2");
}

TEST_F(InstancesTest, ACopyInAnotherFolderExplainsAndRunsWithItsOwnSettings) {
  KorvaleCopy& work = StartedCopy("Work");
  KorvaleCopy& home = UsedCopy("Home");
  store.SaveSetting("Korvale - Home", "Options", "HotKeyModParent", "2");
  std::string tip;
  Twips height = 0;
  ReadTip(home, tip, &height);
  std::string refused;
  ReadTip(home, refused);

  EXPECT_TRUE(home.Start());

  EXPECT_EQ(tip, kOtherInstanceTip);
  EXPECT_EQ(height, 5400);
  EXPECT_TRUE(refused.starts_with(
      "These hot keys are not available, because Windows or another program has them:  "
      "Alt+DownArrow, Alt+UpArrow, Windows®+O, Windows®+W, Pause."))
      << refused;
  EXPECT_EQ(home.HotKeys().Registered().front().modifiers, 2);
  EXPECT_TRUE(home.HotKeys().Registered().front().accepted);
  EXPECT_TRUE(work.Form().IsLoaded());
}

TEST_F(InstancesTest, AMinimizedCopyInAnotherFolderIsMentionedToo) {
  KorvaleCopy& work = StartedCopy("Work");
  desktop.ShowWindow(work.Handle(), win32::kSwMinimize);
  KorvaleCopy& home = UsedCopy("Home");
  std::string tip;
  ReadTip(home, tip);
  std::string refused;
  ReadTip(home, refused);
  EXPECT_TRUE(home.Start());
  EXPECT_EQ(tip, kOtherInstanceTip);
}

TEST_F(InstancesTest, WindowsThatOnlyLookLikeACopyGetNoTip) {
  Open("Korvale - Home", {.className = "Other"});
  Open("Korvale - Home", {.className = "Korvale.frmMain", .visible = false});
  Open("Another title", {.className = "Korvale.frmMain"});
  EXPECT_TRUE(UsedCopy().Start());
}

TEST_F(InstancesTest, ASilencedTipIsNotShownAgain) {
  StartedCopy("Work");
  KorvaleCopy& home = UsedCopy("Home");
  store.SaveSetting("Korvale - Home", "Startup", "Tips", "111111111011111110");
  EXPECT_TRUE(home.Start());
}

TEST_F(InstancesTest, AnotherFolderOfTheSameNameKeepsTheSecondFromRunning) {
  KorvaleCopy& first = StartedCopy();
  KorvaleCopy& second = NewCopy();
  second.system.executablePath = "D:\\Tools\\work\\Korvale.exe";
  second.system.files.insert(first.system.executablePath);
  second.ExpectBox(
      "An installation in a folder named 'work' already exists.  Korvale does not support "
      "two installations with the same folder name.  Please rename the folder then re-run "
      "Korvale.",
      win32::kIdOk);

  log.Clear();

  EXPECT_FALSE(second.Start());

  EXPECT_TRUE(first.Form().IsLoaded());
  EXPECT_FALSE(second.Form().IsLoaded());
  EXPECT_FALSE(second.HasOptions());
  EXPECT_TRUE(log.CallsOf("SaveSetting").empty());
  EXPECT_TRUE(log.CallsOf("DeleteSe").empty());
  EXPECT_TRUE(log.CallsOf("RegisterHotKey").empty());
  EXPECT_TRUE(log.CallsOf("SetWindowLongPtrA").empty());
}

}  // namespace
}  // namespace korvale

#include "tests/program/crash_test.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace korvale {
namespace {

TEST_F(CrashTest, AnAccessViolationIsToldAndRecorded) {
  KorvaleCopy& korvale = Running();

  korvale.system.crashFilter(kAccessViolation);

  ASSERT_EQ(messages_.size(), 1U);
  EXPECT_EQ(messages_[0].text,
            "VB ERROR 51 - Internal error\r\rKorvale Error #6\r"
            "Korvale cannot go on and will be closed.");
  EXPECT_EQ(messages_[0].title, "Korvale - ERROR");
  EXPECT_EQ(Log(),
            "\r\n"
            "-- Sat 11/21/2026 09:05:07 --\r\n"
            "Error Code:  6\r\n"
            "Problem:  VB ERROR 51 - Internal error -- exception 0xC0000005\r\n"
            "Locals:  address = 0x7FF612AB\r\n"
            "0000001 = True\r\n"
            "0000002 = C:\\Programs\\Work\\\r\n"
            "0000003 = 1.02.0003\r\n"
            "0000004 = True\r\n"
            "0000005 = 0\r\n");
}

TEST_F(CrashTest, AnUncaughtExceptionIsRecordedWithItsText) {
  KorvaleCopy& korvale = Running();

  try {
    throw std::runtime_error("nobody expected this");
  } catch (...) {
    korvale.system.crashFilter({});
  }

  EXPECT_NE(Log().find("-- uncaught exception: nobody expected this\r\n"), std::string::npos)
      << Log();
}

TEST_F(CrashTest, AnUncaughtExceptionWithoutATextIsRecordedWithout) {
  KorvaleCopy& korvale = Running();
  try {
    throw 5;
  } catch (...) {
    korvale.system.crashFilter({});
  }
  EXPECT_NE(Log().find("-- uncaught exception: \r\n"), std::string::npos) << Log();
}

TEST_F(CrashTest, AnEndOfTheProgramThatNothingCaughtIsRecordedAsSuch) {
  KorvaleCopy& korvale = Running();
  try {
    throw ProgramEnded{};
  } catch (...) {
    korvale.system.crashFilter({});
  }
  EXPECT_NE(Log().find("-- uncaught exception: the end of the program was not caught\r\n"),
            std::string::npos)
      << Log();
}

TEST_F(CrashTest, ATerminationWithoutAnExceptionIsRecordedToo) {
  Running().system.crashFilter({});
  EXPECT_NE(Log().find("-- uncaught exception: terminated\r\n"), std::string::npos) << Log();
}

TEST_F(CrashTest, AnErrorAtTheStartIsToldAndRecordedAndEndsTheProgram) {
  KorvaleCopy& korvale = FailingAtStart();

  EXPECT_FALSE(korvale.Start());

  ASSERT_EQ(messages_.size(), 1U);
  EXPECT_EQ(messages_[0].text, "VB ERROR 6 - Overflow\r\rKorvale Error #1\r");
  EXPECT_EQ(messages_[0].title, "Korvale - ERROR");
  EXPECT_EQ(messages_[0].style, win32::kMbSetForeground);
  EXPECT_EQ(Log(), RecordOfFailedStart());
  EXPECT_FALSE(korvale.Form().IsLoaded());
}

TEST_F(CrashTest, AnErrorAtTheStartSavesNothingAndLeavesNoHotKey) {
  KorvaleCopy& korvale = FailingAtStart();

  korvale.Start();

  EXPECT_TRUE(log.CallsOf("SaveSetting(Korvale - Work").empty());
  EXPECT_TRUE(log.CallsOf("DeleteSection").empty());
  EXPECT_TRUE(hotKeys.Registered().empty());
}

TEST_F(CrashTest, AnErrorAtTheStartGivesHotKeysAndHookBackBeforeTheWindowGoes) {
  KorvaleCopy& korvale = FailingAtStart();

  korvale.Start();

  EXPECT_EQ(
      Order({"MessageBoxW(", "UnregisterHotKey(frmMain", "SetWindowLongPtrA(frmMain, previous)",
             "DestroyWindow(frmMain)"}),
      (std::vector<std::string>{"MessageBoxW(", "UnregisterHotKey(frmMain",
                                "SetWindowLongPtrA(frmMain, previous)", "DestroyWindow(frmMain)"}));
  EXPECT_TRUE(hotKeys.Registered().empty());
}

TEST_F(CrashTest, AnErrorAtTheStartUnloadsTheSplashAndReleasesTheOptions) {
  KorvaleCopy& korvale = FailingAtStart();
  StoreOption("SplashScreen", "True");

  EXPECT_FALSE(korvale.Start());

  EXPECT_EQ(Order({"CreateWindowExW(frmMsgBox2)", "MessageBoxW(", "DestroyWindow(frmMsgBox2)",
                   "DestroyWindow(frmMain)"}),
            (std::vector<std::string>{"CreateWindowExW(frmMsgBox2)", "MessageBoxW(",
                                      "DestroyWindow(frmMsgBox2)", "DestroyWindow(frmMain)"}));
  EXPECT_FALSE(korvale.HasOptions());
}

TEST_F(CrashTest, AMainWindowThatCannotBeMadeIsToldAndRecorded) {
  KorvaleCopy& korvale = Prepared();
  RecordNextMessage(korvale);
  korvale.host.RefuseNextWindow("frmMain");

  EXPECT_FALSE(korvale.Start());

  ASSERT_EQ(messages_.size(), 1U);
  EXPECT_EQ(messages_[0].text, "VB ERROR 7 - Out of memory\r\rKorvale Error #1\r");
  EXPECT_NE(Log().find("Problem:  VB ERROR 7 - Out of memory"), std::string::npos) << Log();
  EXPECT_TRUE(log.CallsOf("SaveSetting(Korvale - Work").empty());
}

TEST_F(CrashTest, AnAddWindowDialogThatCannotBeMadeIsToldAndBlocksNothing) {
  KorvaleCopy& korvale = Running();
  korvale.host.RefuseNextWindow("frmGetWindow");
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Add  Korvale  to Window menu..."});
  ExpectToldAndUsable(korvale, "frmGetWindow");
}

TEST_F(CrashTest, AnOptionsDialogThatCannotBeMadeIsToldAndBlocksNothing) {
  KorvaleCopy& korvale = Running();
  korvale.host.RefuseNextWindow("frmOptions");
  hotKeys.Press(win32::kModWin, 'O');
  ExpectToldAndUsable(korvale, "frmOptions");
}

TEST_F(CrashTest, AWaitWindowThatCannotBeMadeIsToldAndBlocksNothing) {
  KorvaleCopy& korvale = Running();
  korvale.host.RefuseNextWindow("frmWaitWindow");
  hotKeys.Press(0, win32::kVkPause);
  ExpectToldAndUsable(korvale, "frmWaitWindow");
}

TEST_F(CrashTest, AnErrorOfTheMessageLoopEndsTheProgramWithoutSaving) {
  KorvaleCopy& korvale = Running();
  const WindowHandle window = korvale.Handle();
  korvale.host.WhenWaiting([] { throw RunTimeError(RunTimeError::kOverflow); });

  korvale.program.Run();

  ASSERT_EQ(messages_.size(), 1U);
  EXPECT_EQ(messages_[0].text, "VB ERROR 6 - Overflow\r\rKorvale Error #1\r");
  EXPECT_NE(Log().find("Problem:  VB ERROR 6 - Overflow -- Overflow\r\n"), std::string::npos);
  EXPECT_NE(Log().find("0000001 = True\r\n"), std::string::npos);
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_FALSE(hotKeys.IsHooked(window));
  EXPECT_TRUE(log.CallsOf("SaveSetting").empty());
}

TEST_F(CrashTest, EachStartThatFailsAddsItsRecord) {
  for (int i = 0; i < 2; ++i) {
    KorvaleCopy& korvale = FailingAtStart();
    EXPECT_FALSE(korvale.Start());
    EndCopy(korvale);
  }
  EXPECT_EQ(Log(), RecordOfFailedStart() + RecordOfFailedStart());
}

TEST_F(CrashTest, TheRecordNamesTheLastAnswer) {
  for (const std::int16_t answer : {win32::kIdNo, win32::kIdYes}) {
    KorvaleCopy& korvale = Prepared();
    store.SaveSetting("Korvale - Work", "Startup", "DisplayTips", "False");
    korvale.Start();
    korvale.host.AnswerNext(answer);
    korvale.user.ChooseMenu(korvale.Handle(), {"Help", "Display Tip Messages"});
    RecordNextMessage(korvale);
    korvale.system.crashFilter(kAccessViolation);
    EXPECT_TRUE(Log().ends_with("\r\n0000005 = " + std::to_string(answer) + "\r\n")) << Log();
    EndCopy(korvale);
  }
}

}  // namespace
}  // namespace korvale

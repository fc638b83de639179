#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include "tests/program/crash_test.h"

namespace korvale {
namespace {

using CrashReport = CrashTest;

TEST_F(CrashReport, TheReportAsksNothingOfTheWindowsWhoseThreadStandsStill) {
  KorvaleCopy& korvale = Running();
  WorkIn(Open("Alpha"));
  log.Clear();
  log.IncludeReads(true);

  korvale.system.crashFilter(kAccessViolation);

  EXPECT_EQ(log.Calls(),
            (std::vector<std::string>{
                "TerminateProcessAfter(60000)", "CanAppendToFile(C:\\Programs\\Work\\Error.log)",
                "TerminateProcessAfter()",
                "MessageBoxW(0, \"VB ERROR 51 - Internal error\r\rKorvale Error #6\rKorvale "
                "cannot go on and will be closed.\", \"Korvale - ERROR\", 327680)",
                "TerminateProcessAfter(60000)", "AppendToFile(C:\\Programs\\Work\\Error.log)",
                "FindFirstFileW(C:\\Programs\\Work\\Korvale \?\?\?\?-\?\?-\?\? "
                "\?\?.\?\?.\?\?.dmp)",
                "MiniDumpWriteDump(C:\\Programs\\Work\\Korvale 2026-11-21 09.05.07.dmp)"}));
}

TEST_F(CrashReport, TheRecordSaysThatTheMenuIsShownWhileTheTargetWindowIsNot) {
  KorvaleCopy& korvale = Running();
  korvale.Startup().WindowInfo = false;
  korvale.system.crashFilter(kAccessViolation);
  EXPECT_NE(Log().find("\r\n0000004 = True\r\n"), std::string::npos) << Log();
}

TEST_F(CrashReport, TheRecordSaysThatTheMenuIsHiddenWhileTheTargetWindowIsNot) {
  KorvaleCopy& korvale = Running();
  korvale.Startup().Menu = false;
  korvale.system.crashFilter(kAccessViolation);
  EXPECT_NE(Log().find("\r\n0000004 = False\r\n"), std::string::npos) << Log();
}

TEST_F(CrashReport, TheLatestDumpsAreKeptBesideTheLog) {
  KorvaleCopy& korvale = Running();
  const std::string folder = "C:\\Programs\\Work\\";
  for (const char* const name :
       {"Korvale 2026-10-01 23.00.00.dmp", "Korvale 2026-09-30 01.00.00.dmp",
        "Korvale 2025-12-31 02.00.00.dmp", "Korvale 2026-11-01 02.00.00.dmp", "Korvale.dmp",
        "Korvale of the user.dmp", "Korvale 2025-Ab-cd ef.gh.ij.dmp"}) {
    korvale.system.files.insert(folder + name);
  }

  korvale.system.crashFilter(kAccessViolation);

  std::set<std::string> dumps = korvale.system.files;
  std::erase_if(dumps, [](const std::string& file) { return !file.ends_with(".dmp"); });
  EXPECT_EQ(
      dumps,
      (std::set<std::string>{
          folder + "Korvale 2025-Ab-cd ef.gh.ij.dmp", folder + "Korvale 2026-10-01 23.00.00.dmp",
          folder + "Korvale 2026-11-01 02.00.00.dmp", folder + "Korvale 2026-11-21 09.05.07.dmp",
          folder + "Korvale.dmp", folder + "Korvale of the user.dmp"}));
}

TEST_F(CrashReport, FormerDumpsStayWhenTheNewOneCannotBeWritten) {
  KorvaleCopy& korvale = Running();
  std::set<std::string>& files = korvale.system.files;
  for (const char* const day : {"01", "02", "03", "04"}) {
    files.insert(std::string("C:\\Programs\\Work\\Korvale 2026-10-") + day + " 00.00.00.dmp");
  }
  files.insert("C:\\Programs\\Work\\Korvale 2026-11-21 09.05.07.dmp\\Folder in its place");
  std::set<std::string> expected = files;
  expected.insert(kCrashLog);
  expected.insert("C:\\Users\\Ann\\AppData\\Local\\Korvale\\Korvale 2026-11-21 09.05.07.dmp");
  korvale.system.crashFilter(kAccessViolation);
  EXPECT_EQ(files, expected);
}

TEST_F(CrashReport, LogAndDumpGoToTheUsersFolderWhenTheProgramsCannotBeWritten) {
  KorvaleCopy& korvale = Running();
  korvale.system.readOnly = {"C:\\Programs\\Work"};

  korvale.system.crashFilter(kAccessViolation);

  ASSERT_EQ(messages_.size(), 1U);
  EXPECT_EQ(messages_[0].text,
            "VB ERROR 51 - Internal error\r\rKorvale Error #6\rKorvale cannot go on and will be "
            "closed.  The error is recorded in the folder C:\\Users\\Ann\\AppData\\Local\\Korvale, "
            "because the folder of Korvale cannot be written.");
  const std::string folder = "C:\\Users\\Ann\\AppData\\Local\\Korvale\\";
  EXPECT_NE(session->contents[folder + "Error.log"].find("exception 0xC0000005"),
            std::string::npos);
  EXPECT_EQ(session->contents[folder + "Korvale 2026-11-21 09.05.07.dmp"], "dump");
  EXPECT_EQ(Log(), "");
}

TEST_F(CrashReport, ADumpThatTheProgramsFolderRefusesGoesToTheUsers) {
  KorvaleCopy& korvale = Running();
  korvale.system.files.insert(kCrashLog);
  korvale.system.noNewFiles = {"C:\\Programs\\Work"};
  korvale.system.crashFilter(kAccessViolation);
  EXPECT_NE(Log().find("exception 0xC0000005"), std::string::npos);
  EXPECT_TRUE(korvale.system.files.contains(
      "C:\\Users\\Ann\\AppData\\Local\\Korvale\\Korvale 2026-11-21 09.05.07.dmp"));
}

TEST_F(CrashReport, TheDumpLiesBesideTheRecordThatHadToGoElsewhere) {
  KorvaleCopy& korvale = Running();
  korvale.system.guarded = {"C:\\Programs\\Work"};
  korvale.system.crashFilter(kAccessViolation);
  const std::string folder = "C:\\Users\\Ann\\AppData\\Local\\Korvale\\";
  EXPECT_TRUE(korvale.system.files.contains(folder + "Error.log"));
  EXPECT_TRUE(korvale.system.files.contains(folder + "Korvale 2026-11-21 09.05.07.dmp"));
  EXPECT_EQ(log.CallsOf("MiniDumpWriteDump").size(), 1U);
}

TEST_F(CrashReport, AFailureToTellStillRecordsTheCrash) {
  KorvaleCopy& korvale = Prepared();
  korvale.Start();
  korvale.host.WhenMessageBox(
      [](const ShownMessage&) -> std::int16_t { throw RunTimeError(RunTimeError::kOutOfMemory); });
  korvale.system.crashFilter(kAccessViolation);
  EXPECT_NE(Log().find("exception 0xC0000005"), std::string::npos);
  EXPECT_FALSE(log.CallsOf("MiniDumpWriteDump").empty());
}

TEST_F(CrashReport, AFatalErrorThatIsNoCrashWritesNoDump) {
  KorvaleCopy& korvale = FailingAtStart();
  EXPECT_FALSE(korvale.Start());
  EXPECT_TRUE(log.CallsOf("MiniDumpWriteDump").empty());
}

}  // namespace
}  // namespace korvale

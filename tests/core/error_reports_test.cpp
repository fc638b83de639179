#include "app/core/error_reports.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_message_boxes.h"
#include "tests/fakes/fake_system.h"

namespace korvale {
namespace {

class ErrorReportsTest : public testing::Test {
 protected:
  ErrorReportsTest() {
    identity_.programFolder = "D:\\Work\\";
    system_.files = {"D:\\Work\\Korvale.exe"};
    messages_.whileShown = [this](const ShownMessageBox& /*box*/) {
      EXPECT_EQ(Content(), "") << "logged before the user was told";
      EXPECT_EQ(shutDowns_, 0) << "shut down before the user was told";
    };
  }

  std::string Content() { return system_.Session().contents["D:\\Work\\Error.log"]; }
  void Fatal(std::int16_t number) {
    reports_.udmFatalError(ErrorPlace::kProgramEntry, number,
                           {"description", "a = 1", "Please start Korvale again."});
  }

  CallLog calls_;
  FakeSystem system_{calls_};
  ProgramIdentity identity_;
  FakeMessageBoxes messages_;
  FakeClock clock_;
  int shutDowns_ = 0;
  bool shutDownFails_ = false;
  ErrorLog log_{identity_, system_, clock_, [] { return ErrorLogState(); }};
  ErrorReports reports_{messages_, log_, [this] {
                          EXPECT_TRUE(Content().ends_with("\r\n")) << "shut down before logging";
                          ++shutDowns_;
                          if (shutDownFails_) throw std::runtime_error("broken");
                        }};
};

TEST_F(ErrorReportsTest, NonFatalErrorIsShownAndTheProgramGoesOn) {
  ErrorReporters& reporters = reports_;
  reporters.udmNonFatalError(ErrorPlace::kEventHandler, 9);
  EXPECT_EQ(
      messages_.shown,
      (std::vector<ShownMessageBox>{{"VB ERROR 9 - Subscript out of range\r\rKorvale Error #2",
                                     0x10000, "Korvale - ERROR"}}));
  EXPECT_EQ(Content(), "");
  EXPECT_EQ(shutDowns_, 0);
}

TEST_F(ErrorReportsTest, FatalErrorIsShownLoggedAndEndsTheProgram) {
  EXPECT_THROW(Fatal(91), ProgramEnded);
  EXPECT_EQ(messages_.shown,
            (std::vector<ShownMessageBox>{
                {"VB ERROR 91 - Object variable or With block variable not set\r\rKorvale Error "
                 "#1\rPlease start Korvale again.",
                 0x10000, "Korvale - ERROR"}}));
  const std::string content = Content();
  EXPECT_NE(content.find("\r\nError Code:  1\r\n"
                         "Problem:  VB ERROR 91 - Object variable or With block variable not set "
                         "-- description\r\n"
                         "Locals:  a = 1\r\n"),
            std::string::npos)
      << content;
  EXPECT_EQ(shutDowns_, 1);
}

TEST_F(ErrorReportsTest, FatalErrorOfTheProgramsOwnHasNoRunTimeErrorText) {
  EXPECT_THROW(Fatal(0), ProgramEnded);
  ASSERT_EQ(messages_.shown.size(), 1U);
  EXPECT_EQ(messages_.shown[0].prompt, "\r\rKorvale Error #1\rPlease start Korvale again.");
  EXPECT_NE(Content().find("\r\nProblem:   -- description\r\n"), std::string::npos) << Content();
}

TEST_F(ErrorReportsTest, TheMessageTellsWhereElseTheErrorIsRecorded) {
  const std::string where =
      "The error is recorded in the folder C:\\Users\\Ann\\AppData\\Local\\Korvale, because the "
      "folder of Korvale cannot be written.";
  system_.readOnly = {"D:\\Work"};
  messages_.whileShown = {};
  ErrorReports reports(messages_, log_, [this] { ++shutDowns_; });
  EXPECT_THROW(reports.udmFatalError(ErrorPlace::kProgramEntry, 0, {"", "", "Start again."}),
               ProgramEnded);
  EXPECT_THROW(reports.udmFatalError(ErrorPlace::kProgramEntry, 0, {}), ProgramEnded);
  ASSERT_EQ(messages_.shown.size(), 2U);
  EXPECT_EQ(messages_.shown[0].prompt, "\r\rKorvale Error #1\rStart again.  " + where);
  EXPECT_EQ(messages_.shown[1].prompt, "\r\rKorvale Error #1\r" + where);
  EXPECT_TRUE(system_.files.contains("C:\\Users\\Ann\\AppData\\Local\\Korvale\\Error.log"));
}

TEST_F(ErrorReportsTest, ProgramEndsEvenWhenTheLogCannotBeWritten) {
  identity_.programFolder = "D:\\None\\";
  ErrorReports reports(messages_, log_, [this] { ++shutDowns_; });
  EXPECT_THROW(reports.udmFatalError(ErrorPlace::kEventHandler, 5, {}), ProgramEnded);
  EXPECT_EQ(messages_.shown.size(), 1U);
  EXPECT_EQ(shutDowns_, 1);
}

TEST_F(ErrorReportsTest, ProgramEndsEvenWhenTheShutdownFails) {
  shutDownFails_ = true;
  EXPECT_THROW(Fatal(5), ProgramEnded);
  EXPECT_EQ(shutDowns_, 1);
}

TEST_F(ErrorReportsTest, AMessageThatCannotBeShownStopsNeitherRecordNorShutDown) {
  messages_.whileShown = [](const ShownMessageBox& /*box*/) {
    throw RunTimeError(RunTimeError::kOverflow);
  };
  EXPECT_THROW(Fatal(5), ProgramEnded);
  EXPECT_NE(Content().find("Error Code:  1"), std::string::npos);
  EXPECT_EQ(shutDowns_, 1);
}

TEST_F(ErrorReportsTest, TheMessageIsShownEvenWhenTheFolderCannotBeChosen) {
  calls_.WhenCalled("CanAppendToFile", [] { throw RunTimeError(RunTimeError::kOutOfMemory); });
  EXPECT_THROW(Fatal(0), ProgramEnded);
  ASSERT_EQ(messages_.shown.size(), 1U);
  EXPECT_EQ(messages_.shown[0].prompt, "\r\rKorvale Error #1\rPlease start Korvale again.");
  EXPECT_NE(Content().find("Error Code:  1"), std::string::npos);
}

TEST_F(ErrorReportsTest, TheFolderOfTheRecordIsChosenOnce) {
  system_.readOnly = {"D:\\Work"};
  messages_.whileShown = [this](const ShownMessageBox& /*box*/) { system_.readOnly.clear(); };
  ErrorReports reports(messages_, log_, [this] { ++shutDowns_; });
  EXPECT_THROW(reports.udmFatalError(ErrorPlace::kProgramEntry, 0, {}), ProgramEnded);
  EXPECT_EQ(Content(), "");
  EXPECT_TRUE(system_.files.contains("C:\\Users\\Ann\\AppData\\Local\\Korvale\\Error.log"));
}

}  // namespace
}  // namespace korvale

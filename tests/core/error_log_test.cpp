#include "app/core/error_log.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

#include "tests/fakes/call_log.h"
#include "tests/fakes/error_of.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_system.h"

namespace korvale {
namespace {

constexpr const char* kPath = "D:\\Work\\Error.log";

class ErrorLogTest : public testing::Test {
 protected:
  ErrorLogTest() {
    StartFrom("D:\\Work\\");
    identity_.versionText = "1.10.0695";
    clock_.SetLocalTime({2001, 12, 15, 14, 3, 27, 6});
  }

  void StartFrom(const std::string& folder) {
    identity_.programFolder = folder;
    system_.files = {folder + "Korvale.exe"};
  }
  std::string Content() { return system_.Session().contents[kPath]; }
  std::int16_t AppendError() {
    return ErrorOf([this] { where_ = log_.Append(log_.Folder(), "1", "problem", "locals"); });
  }

  const std::string users_ = "C:\\Users\\Ann\\AppData\\Local\\Korvale\\";
  std::string where_;
  CallLog calls_;
  FakeSystem system_{calls_};
  ProgramIdentity identity_;
  FakeClock clock_;
  ErrorLogState state_;
  ErrorLog log_{identity_, system_, clock_, [this] { return state_; }};
};

TEST_F(ErrorLogTest, WritesEveryLineOfARecord) {
  state_ = {true, false, 6};
  log_.Append(log_.Folder(), "2", "VB ERROR 6 - Overflow -- counting", "i = 7");
  EXPECT_EQ(Content(),
            "\r\n"
            "-- Sat 12/15/2001 14:03:27 --\r\n"
            "Error Code:  2\r\n"
            "Problem:  VB ERROR 6 - Overflow -- counting\r\n"
            "Locals:  i = 7\r\n"
            "0000001 = True\r\n"
            "0000002 = D:\\Work\\\r\n"
            "0000003 = 1.10.0695\r\n"
            "0000004 = False\r\n"
            "0000005 = 6\r\n");
}

TEST_F(ErrorLogTest, PadsDateAndTimeWithZeroes) {
  clock_.SetLocalTime({2026, 1, 4, 0, 5, 9, 0});
  log_.Append(log_.Folder(), "1", "", "");
  EXPECT_TRUE(Content().starts_with("\r\n-- Sun 01/04/2026 00:05:09 --\r\n")) << Content();
  clock_.SetLocalTime({987, 1, 4, 0, 5, 9, 0});
  log_.Append(log_.Folder(), "1", "", "");
  EXPECT_NE(Content().find("-- Sun 01/04/0987 00:05:09 --\r\n"), std::string::npos) << Content();
}

TEST_F(ErrorLogTest, NamesEveryDayOfTheWeek) {
  std::string names;
  for (int day = 0; day < 7; ++day) {
    system_.Session().contents.clear();
    clock_.SetLocalTime({2026, 3, 1 + day, 12, 0, 0, day});
    log_.Append(log_.Folder(), "1", "", "");
    names += Content().substr(5, 4);
  }
  EXPECT_EQ(names, "Sun Mon Tue Wed Thu Fri Sat ");
}

TEST_F(ErrorLogTest, RecordsAccumulate) {
  log_.Append(log_.Folder(), "1", "first", "");
  const std::string first = Content();
  state_.menuShown = false;
  log_.Append(log_.Folder(), "2", "second", "");
  EXPECT_TRUE(Content().starts_with(first + "\r\n-- ")) << Content();
  EXPECT_NE(Content().find("Problem:  second\r\n"), std::string::npos);
}

TEST_F(ErrorLogTest, StandsInTheFolderOfTheProgram) {
  const std::string folder = "D:\\\xd0\xa0\xd0\xb0\xd0\xb1\xd0\xbe\xd1\x82\xd0\xb0\\";
  StartFrom(folder);
  EXPECT_EQ(AppendError(), 0);
  EXPECT_NE(system_.Session().contents[folder + "Error.log"].find("0000002 = " + folder),
            std::string::npos);
}

TEST_F(ErrorLogTest, ThatCannotBeOpenedIsAPathFileAccessError) {
  system_.localAppData = "C:\\None";
  identity_.programFolder = "D:\\None\\";
  EXPECT_EQ(AppendError(), 75);
  system_.localAppData = "";
  StartFrom("D:\\Work\\");
  system_.files.insert(std::string(kPath) + "\\Folder in its place");
  EXPECT_EQ(AppendError(), 75);
  EXPECT_EQ(Content(), "");
}

TEST_F(ErrorLogTest, StandsInTheUsersFolderWhenTheProgramsCannotBeWritten) {
  EXPECT_EQ(log_.Folder(), "D:\\Work\\");
  EXPECT_EQ(log_.OtherFolderText("D:\\Work\\"), "");
  system_.readOnly = {"D:\\Work"};
  EXPECT_EQ(log_.Folder(), users_);
  EXPECT_EQ(log_.OtherFolderText(users_),
            "The error is recorded in the folder C:\\Users\\Ann\\AppData\\Local\\Korvale, "
            "because the folder of Korvale cannot be written.");
  EXPECT_TRUE(calls_.Calls().empty());
  EXPECT_EQ(AppendError(), 0);
  EXPECT_EQ(AppendError(), 0);
  EXPECT_EQ(where_, users_);
  const std::string content = system_.Session().contents[users_ + "Error.log"];
  EXPECT_NE(content.find("0000002 = D:\\Work\\\r\n"), std::string::npos) << content;
  EXPECT_EQ(Content(), "");
}

TEST_F(ErrorLogTest, StaysInTheProgramsFolderWhenTheUserHasNone) {
  system_.readOnly = {"D:\\Work"};
  system_.localAppData = "";
  EXPECT_EQ(log_.Folder(), "D:\\Work\\");
  EXPECT_EQ(AppendError(), 75);
}

TEST_F(ErrorLogTest, GoesToTheOtherFolderWhenItsOwnRefusesAtLast) {
  system_.guarded = {"D:\\Work"};
  EXPECT_EQ(log_.Folder(), "D:\\Work\\");
  EXPECT_EQ(AppendError(), 0);
  EXPECT_EQ(where_, users_);
  EXPECT_TRUE(system_.files.contains(users_ + "Error.log"));
  EXPECT_EQ(log_.Append(users_, "2", "", ""), users_);
  system_.guarded = {"C:\\Users\\Ann\\AppData\\Local\\Korvale"};
  EXPECT_EQ(log_.Append(users_, "3", "", ""), "D:\\Work\\");
  EXPECT_NE(Content().find("Error Code:  3"), std::string::npos);
}

TEST_F(ErrorLogTest, ALineThatCannotBeWrittenTakesNoOtherWithIt) {
  system_.Session().refusedPiece = 4;
  EXPECT_EQ(AppendError(), 0);
  EXPECT_EQ(Content(),
            "\r\n"
            "-- Sat 12/15/2001 14:03:27 --\r\n"
            "Error Code:  1\r\n"
            "Problem:  problem\r\n"
            "0000001 = False\r\n"
            "0000002 = D:\\Work\\\r\n"
            "0000003 = 1.10.0695\r\n"
            "0000004 = True\r\n"
            "0000005 = 0\r\n");
  EXPECT_EQ(where_, users_) << "where all of it is";
}

TEST_F(ErrorLogTest, ErrorsWhileWritingAreIgnored) {
  system_.Session().diskFull = true;
  EXPECT_EQ(AppendError(), 0);
  EXPECT_EQ(where_, "D:\\Work\\");
  EXPECT_TRUE(system_.files.contains(kPath));
  EXPECT_TRUE(system_.files.contains(users_ + "Error.log"));
}

}  // namespace
}  // namespace korvale

#include "app/core/error_log.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "platform/run_time_error.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/temporary_folder.h"

namespace korvale {
namespace {

namespace fs = std::filesystem;

/// A folder of its own, gone after the test.
class ErrorLogTest : public testing::Test {
 protected:
  ErrorLogTest() {
    identity_.programFolder = folder_.Path() + "/";
    identity_.versionText = "1.10.0695";
    clock_.SetLocalTime({2001, 12, 15, 14, 3, 27, 6});
  }

  std::string LogPath() const { return identity_.programFolder + "Error.log"; }
  std::string Content() const { return FileContent(LogPath()); }
  std::int16_t AppendError() {
    try {
      log_.Append("1", "problem", "locals");
    } catch (const RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }

  TemporaryFolder folder_{"log"};
  ProgramIdentity identity_;
  FakeClock clock_;
  ErrorLogState state_;
  ErrorLog log_{identity_, clock_, [this] { return state_; }};
};

TEST_F(ErrorLogTest, WritesEveryLineOfARecord) {
  state_ = {true, false, 6};
  log_.Append("2", "VB ERROR 6 - Overflow -- counting", "i = 7");
  EXPECT_EQ(Content(),
            "\r\n"
            "-- Sat 12/15/2001 14:03:27 --\r\n"
            "Error Code:  2\r\n"
            "Problem:  VB ERROR 6 - Overflow -- counting\r\n"
            "Locals:  i = 7\r\n"
            "0000001 = True\r\n"
            "0000002 = " +
                identity_.programFolder +
                "\r\n"
                "0000003 = 1.10.0695\r\n"
                "0000004 = False\r\n"
                "0000005 = 6\r\n");
}

TEST_F(ErrorLogTest, PadsDateAndTimeWithZeroes) {
  clock_.SetLocalTime({2026, 1, 4, 0, 5, 9, 0});
  log_.Append("1", "", "");
  EXPECT_TRUE(Content().starts_with("\r\n-- Sun 01/04/2026 00:05:09 --\r\n")) << Content();
}

TEST_F(ErrorLogTest, NamesEveryDayOfTheWeek) {
  std::string names;
  for (int day = 0; day < 7; ++day) {
    fs::remove(LogPath());
    clock_.SetLocalTime({2026, 3, 1 + day, 12, 0, 0, day});
    log_.Append("1", "", "");
    names += Content().substr(5, 4);
  }
  EXPECT_EQ(names, "Sun Mon Tue Wed Thu Fri Sat ");
}

TEST_F(ErrorLogTest, RecordsAccumulate) {
  log_.Append("1", "first", "");
  const std::string first = Content();
  state_.menuShown = false;
  log_.Append("2", "second", "");
  EXPECT_TRUE(Content().starts_with(first + "\r\n-- ")) << Content();
  EXPECT_NE(Content().find("Problem:  second\r\n"), std::string::npos);
}

TEST_F(ErrorLogTest, FolderWithLettersOfAnyLanguageIsFine) {
  identity_.programFolder = folder_.Path() + "/\xd0\xa0\xd0\xb0\xd0\xb1\xd0\xbe\xd1\x82\xd0\xb0/";
  fs::create_directories(identity_.programFolder);
  EXPECT_EQ(AppendError(), 0);
  EXPECT_NE(Content().find("0000002 = " + identity_.programFolder), std::string::npos);
}

TEST_F(ErrorLogTest, MissingFolderIsPathNotFound) {
  identity_.programFolder = folder_.Path() + "/none/";
  EXPECT_EQ(AppendError(), 76);
}

TEST_F(ErrorLogTest, FolderInPlaceOfTheFileIsAPathFileAccessError) {
  fs::create_directory(LogPath());
  EXPECT_EQ(AppendError(), 75);
}

TEST_F(ErrorLogTest, FolderThatTakesNoFilesIsPermissionDenied) {
  identity_.programFolder = "/proc/";
  EXPECT_EQ(AppendError(), 70);
}

TEST_F(ErrorLogTest, ErrorsWhileWritingAreIgnored) {
  fs::create_symlink("/dev/full", LogPath());
  EXPECT_EQ(AppendError(), 0);
}

}  // namespace
}  // namespace korvale

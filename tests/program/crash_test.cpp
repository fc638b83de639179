#include <stdexcept>

#include "tests/fakes/temporary_folder.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr Crash kAccessViolation{0xC0000005, 0x7FF612AB};

/// A running copy of Korvale in a folder of this machine, where its Error.log is written.
class CrashTest : public StartTest {
 protected:
  KorvaleCopy& Running() {
    KorvaleCopy& korvale = UsedCopy();
    korvale.system.executablePath = program_folder_ + "Korvale.exe";
    korvale.Start();
    clock.Advance(20'000);
    korvale.host.WhenMessageBox([this](const ShownMessage& box) {
      messages_.push_back(box);
      return win32::kIdOk;
    });
    clock.SetLocalTime({2026, 11, 21, 9, 5, 7, 6});
    log.Clear();
    return korvale;
  }

  std::string Log() const { return FileContent(program_folder_ + "Error.log"); }

  TemporaryFolder folder_{"crash"};
  std::string program_folder_ = folder_.Path() + "/C:\\Work\\";
  std::vector<ShownMessage> messages_;
};

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
            "0000002 = " +
                program_folder_ +
                "\r\n"
                "0000003 = 1.02.0003\r\n"
                "0000004 = True\r\n"
                "0000005 = 0\r\n");
}

TEST_F(CrashTest, TheHotKeysAreGivenBackAndNothingIsSaved) {
  KorvaleCopy& korvale = Running();

  korvale.system.crashFilter(kAccessViolation);

  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_TRUE(log.CallsOf("SaveSetting").empty());
  EXPECT_FALSE(hotKeys.IsHooked(korvale.Handle()));
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

TEST_F(CrashTest, ATerminationWithoutAnExceptionIsRecordedToo) {
  Running().system.crashFilter({});
  EXPECT_NE(Log().find("-- uncaught exception: terminated\r\n"), std::string::npos) << Log();
}

}  // namespace
}  // namespace korvale

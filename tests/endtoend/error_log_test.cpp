#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/endtoend/harness/crash.h"
#include "tests/endtoend/harness/refusing_store.h"
#include "tests/endtoend/harness/text.h"
#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

namespace fs = std::filesystem;

constexpr char kMessage[] =
    "VB ERROR 51 - Internal error\r\rKorvale Error #6\rKorvale cannot go on and will be closed.";

constexpr char kNotSaved[] = "VB ERROR 70 - Permission denied\r\rKorvale Error #";

constexpr DWORD kAccessViolation = 0xC0000005;

/// The date line of a record written at that time.
std::string DateLine(const SYSTEMTIME& time) {
  constexpr const char* kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
  char line[64];
  std::snprintf(line, sizeof(line), "-- %s %02d/%02d/%04d %02d:%02d:%02d --",
                kDays[time.wDayOfWeek], time.wMonth, time.wDay, time.wYear, time.wHour,
                time.wMinute, time.wSecond);
  return line;
}

SYSTEMTIME Now() {
  SYSTEMTIME time{};
  GetLocalTime(&time);
  return time;
}

constexpr ULONGLONG kTicksPerSecond = 10'000'000;

/// The seconds of that time.
ULONGLONG Second(const SYSTEMTIME& time) {
  FILETIME ticks{};
  SystemTimeToFileTime(&time, &ticks);
  return ULARGE_INTEGER{{ticks.dwLowDateTime, ticks.dwHighDateTime}}.QuadPart / kTicksPerSecond;
}

SYSTEMTIME TimeOf(ULONGLONG second) {
  ULARGE_INTEGER ticks{};
  ticks.QuadPart = second * kTicksPerSecond;
  const FILETIME moment{ticks.LowPart, ticks.HighPart};
  SYSTEMTIME time{};
  FileTimeToSystemTime(&moment, &time);
  return time;
}

class ErrorLog : public KorvaleTest {
 protected:
  fs::path File() const { return fs::path(Wide(installation_.folder() + "Error.log")); }

  std::string Written() const {
    std::ifstream file(File(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// The record of a crash at that time and place; nothing had been asked before.
  std::string Record(const SYSTEMTIME& time, const std::string& address) const {
    return "\r\n" + DateLine(time) +
           "\r\nError Code:  6"
           "\r\nProblem:  VB ERROR 51 - Internal error -- exception 0xC0000005"
           "\r\nLocals:  address = " +
           address +
           "\r\n0000001 = True"
           "\r\n0000002 = " +
           installation_.folder() +
           "\r\n0000003 = 1.00.0000"
           "\r\n0000004 = True"
           "\r\n0000005 = 0\r\n";
  }

  /// Starts the program, crashes it, and confirms the message of the crash.
  ::testing::AssertionResult StartAndCrash() {
    Start();
    if (!Crash(main())) return ::testing::AssertionFailure() << "it does not crash";
    const Window box = korvale_->MessageBox();
    EXPECT_EQ(box.Title(), "Korvale - ERROR");
    EXPECT_EQ(LabelText(box), kMessage);
    if (!AnswerBox(box, IDOK)) return ::testing::AssertionFailure() << "the message does not go";
    if (korvale_->process().WaitForExit() == kAccessViolation) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "the program does not end as a crash does";
  }

  /// The text is one record with a time from `since` until now.
  ::testing::AssertionResult IsRecord(const std::string& text, const SYSTEMTIME& since) {
    const size_t address = text.find("0x", text.find("Locals:"));
    const size_t digits = text.find_first_not_of("0123456789ABCDEF", address + 2);
    for (ULONGLONG second = Second(since); second <= Second(Now()); ++second) {
      if (text == Record(TimeOf(second), text.substr(address, digits - address))) {
        return ::testing::AssertionSuccess();
      }
    }
    return ::testing::AssertionFailure() << text;
  }
};

TEST_F(ErrorLog, GetsARecordOfEachCrash) {
  SYSTEMTIME before = Now();
  ASSERT_TRUE(StartAndCrash());
  const std::string first = Written();
  EXPECT_TRUE(IsRecord(first, before));
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  before = Now();
  ASSERT_TRUE(StartAndCrash());
  const std::string both = Written();
  ASSERT_TRUE(both.starts_with(first));
  EXPECT_TRUE(IsRecord(both.substr(first.size()), before));
}

TEST_F(ErrorLog, ThatCannotBeWrittenStillLetsTheProgramTellAndEnd) {
  fs::create_directory(File());
  EXPECT_TRUE(StartAndCrash());
  EXPECT_TRUE(fs::is_empty(File()));
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
}

TEST_F(ErrorLog, ThatAnotherProgramHoldsStaysAsItIs) {
  std::ofstream(File(), std::ios::binary) << "kept";
  {
    const Handle held(
        CreateFileW(File().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(StartAndCrash());
  }
  EXPECT_EQ(Written(), "kept");
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
}

TEST_F(ErrorLog, IsWrittenAfterTheMessageAndNothingElseIsStored) {
  installation_.StoreTag(2, "Gone", "Test.Window");
  Start();
  installation_.settings().DeleteValue("ParentWindowList", "2");
  ASSERT_TRUE(Crash(main()));
  const Window box = korvale_->MessageBox();
  ASSERT_TRUE(box);
  EXPECT_FALSE(fs::exists(File()));
  EXPECT_TRUE(AnswerBox(box, IDOK));
  EXPECT_EQ(korvale_->process().WaitForExit(), kAccessViolation);
  EXPECT_TRUE(fs::exists(File()));
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "2"), std::nullopt);
}

TEST_F(ErrorLog, GetsNothingOfAnErrorThatTheProgramSurvives) {
  MakeStoreRefuse(installation_.name());
  installation_.settings().Set("Startup", "Width", "6000");
  Start();
  ASSERT_TRUE(Choose('V', {'T'}));
  const Window box = korvale_->MessageBox();
  EXPECT_EQ(box.Title(), "Korvale - ERROR");
  EXPECT_TRUE(LabelText(box).starts_with(kNotSaved)) << LabelText(box);
  ASSERT_TRUE(AnswerBox(box, IDOK));
  EXPECT_TRUE(InFront(main()));
  EXPECT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(Choose('F', {'X'}));
  EXPECT_EQ(korvale_->process().WaitForExit(), 0U);
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  EXPECT_TRUE(Stored("Width", "6000"));
  EXPECT_FALSE(fs::exists(File()));
}

}  // namespace
}  // namespace korvale::endtoend

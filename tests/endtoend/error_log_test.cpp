#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

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

/// Wine takes long for a dump.
constexpr std::chrono::seconds kUntilDumped(60);

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

  fs::path Folder() const { return File().parent_path(); }
  static std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::string Written() const { return Content(File()); }
  static fs::path OtherFolder() { return fs::path(_wgetenv(L"LOCALAPPDATA")) / "Korvale"; }
  static std::string MessageOfOtherFolder() {
    return std::string(kMessage) + "  The error is recorded in the folder " +
           OtherFolder().string() + ", because the folder of Korvale cannot be written.";
  }
  /// In the order of their names.
  static std::vector<fs::path> Dumps(const fs::path& folder) {
    std::vector<fs::path> dumps;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
      if (entry.path().extension() == ".dmp") dumps.push_back(entry.path());
    }
    std::ranges::sort(dumps);
    return dumps;
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
  ::testing::AssertionResult StartAndCrash(const std::string& message = kMessage) {
    Start();
    if (!Crash(main())) return ::testing::AssertionFailure() << "it does not crash";
    return EndsWithMessage(message);
  }

  ::testing::AssertionResult EndsWithMessage(const std::string& message = kMessage) {
    Window box;
    const bool shown = WaitFor([&] {
      const std::vector<Window> boxes = korvale_->MessageBoxes("Korvale - ERROR");
      if (!boxes.empty()) box = boxes.front();
      return !boxes.empty();
    });
    if (!shown) return ::testing::AssertionFailure() << "no message";
    EXPECT_EQ(LabelText(box), message);
    if (!AnswerBox(box, IDOK)) return ::testing::AssertionFailure() << "the message does not go";
    if (korvale_->process().WaitForExit(kUntilDumped) == kAccessViolation) {
      return ::testing::AssertionSuccess();
    }
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

TEST_F(ErrorLog, ThatCannotBeWrittenIsInTheUsersFolderAndTheMessageSaysSo) {
  fs::create_directory(File());
  EXPECT_TRUE(StartAndCrash(MessageOfOtherFolder()));
  EXPECT_TRUE(fs::is_empty(File()));
  EXPECT_NE(Content(OtherFolder() / "Error.log").find(installation_.folder()), std::string::npos);
  EXPECT_EQ(Dumps(OtherFolder()).size(), 1U);
  EXPECT_TRUE(Dumps(Folder()).empty());
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  fs::remove_all(OtherFolder());
}

TEST_F(ErrorLog, ThatAnotherProgramHoldsStaysAsItIs) {
  std::ofstream(File(), std::ios::binary) << "kept";
  {
    const Handle held(
        CreateFileW(File().c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr));
    EXPECT_TRUE(StartAndCrash(MessageOfOtherFolder()));
  }
  EXPECT_EQ(Written(), "kept");
  EXPECT_TRUE(HotKeyIsFree(TagKey(1)));
  fs::remove_all(OtherFolder());
}

TEST_F(ErrorLog, HasADumpOfTheCrashBesideItAndFewOfFormerOnes) {
  for (const char* const year : {"2001", "2002", "2003", "2004"}) {
    std::ofstream(Folder() / ("Korvale " + std::string(year) + "-01-02 03.04.05.dmp")) << "old";
  }
  std::ofstream(Folder() / "Korvale of the user.dmp") << "mine";
  ASSERT_TRUE(StartAndCrash());
  const std::vector<fs::path> dumps = Dumps(Folder());
  ASSERT_EQ(dumps.size(), 4U);
  EXPECT_EQ(dumps[0].filename(), "Korvale 2003-01-02 03.04.05.dmp");
  EXPECT_EQ(dumps[1].filename(), "Korvale 2004-01-02 03.04.05.dmp");
  EXPECT_TRUE(Content(dumps[2]).starts_with("MDMP"));
  EXPECT_EQ(dumps[3].filename(), "Korvale of the user.dmp");
}

TEST_F(ErrorLog, GetsTheCrashOfASecondThread) {
  Start();
  ASSERT_TRUE(CrashInSecondThread(main()));
  EXPECT_TRUE(EndsWithMessage());
  EXPECT_NE(Written().find("exception 0xC0000005"), std::string::npos);
}

TEST_F(ErrorLog, GetsACrashInTheWindowProcedureWhileAMessageIsShown) {
  installation_.StoreTag(1, "Nowhere", "Test.Window");
  Start();
  Press(TagKey(1));
  ASSERT_TRUE(korvale_->MessageBox());
  ASSERT_TRUE(CrashInWindowProcedure(main()));
  EXPECT_TRUE(EndsWithMessage());
  EXPECT_NE(Written().find("exception 0xC0000005"), std::string::npos);
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
  EXPECT_EQ(korvale_->process().WaitForExit(kUntilDumped), kAccessViolation);
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

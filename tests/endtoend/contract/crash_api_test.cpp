#include <gtest/gtest.h>
#include <windows.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "platform/windows/handles.h"
#include "tests/endtoend/harness/installed.h"

namespace korvale {
namespace {

using endtoend::RunsUnderWine;
namespace fs = std::filesystem;

class WindowsCrashApiTest : public testing::Test {
 protected:
  WindowsCrashApiTest() {
    fs::remove(Report());
    fs::remove(Dump());
  }
  ~WindowsCrashApiTest() override {
    fs::remove(Report());
    fs::remove(Dump());
  }

  static fs::path Folder() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
  }
  static fs::path Report() { return Folder() / "crash_report.txt"; }
  static fs::path Dump() { return Folder() / "crash_report.txt.dmp"; }
  static std::string Content(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// Runs the program that crashes in this way, and the filter in that one; what it ended with.
  static std::optional<DWORD> Run(const std::string& crash, const std::string& inFilter = "-") {
    std::string command = "\"" + (Folder() / "crashing_program.exe").string() + "\" \"" + crash +
                          "\" \"" + Report().string() + "\" \"" + inFilter + "\"";
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                       &startup, &process) == FALSE) {
      return std::nullopt;
    }
    const UniqueKernelHandle handle(process.hProcess);
    CloseHandle(process.hThread);
    // Wine takes long for a dump.
    constexpr DWORD kPatience = 60'000;
    if (WaitForSingleObject(handle.Get(), kPatience) != WAIT_OBJECT_0) {
      TerminateProcess(handle.Get(), 0);
      return std::nullopt;
    }
    DWORD code = 0;
    GetExitCodeProcess(handle.Get(), &code);
    return code;
  }
};

TEST_F(WindowsCrashApiTest, ReportsAnExceptionFromAnotherThreadAndEndsAsItDoes) {
  EXPECT_EQ(Run("access"), 0xC0000005);
  EXPECT_EQ(Content(Report()), "C0000005 \n");
}

TEST_F(WindowsCrashApiTest, ReportsAStackThatRanOut) {
  EXPECT_EQ(Run("used up stack"), 0xC00000FD);
  EXPECT_EQ(Content(Report()), "C00000FD \n");
  // Wine 8 cannot tell a program that its stack has run out.
  if (RunsUnderWine()) return;
  fs::remove(Report());
  EXPECT_EQ(Run("overflow"), 0xC00000FD);
  EXPECT_EQ(Content(Report()), "C00000FD \n");
}

TEST_F(WindowsCrashApiTest, ReportsTheCrashOfASecondThread) {
  EXPECT_EQ(Run("thread"), 0xC0000005);
  EXPECT_EQ(Content(Report()), "C0000005 \n");
}

TEST_F(WindowsCrashApiTest, ReportsAnUncaughtExceptionWithItsText) {
  EXPECT_EQ(Run("exception"), static_cast<DWORD>(EXIT_FAILURE));
  EXPECT_EQ(Content(Report()), "00000000 nobody expected this\n");
}

TEST_F(WindowsCrashApiTest, ReportsAnUncaughtExceptionOfASecondThreadWithItsText) {
  EXPECT_EQ(Run("exception of a thread"), static_cast<DWORD>(EXIT_FAILURE));
  EXPECT_EQ(Content(Report()), "00000000 nobody expected this\n");
}

TEST_F(WindowsCrashApiTest, FinishesItsReportWhenTheProgramEndsMeanwhile) {
  EXPECT_EQ(Run("thread while the program ends", "dump"), 0xC0000005);
  EXPECT_EQ(Content(Report()), "C0000005 \ndumped\n");
}

TEST_F(WindowsCrashApiTest, EndsAReportThatHangsButNotWhileTheUserReads) {
  EXPECT_EQ(Run("access", "hang"), 0xC0000005);
  EXPECT_EQ(Content(Report()), "C0000005 \nnot ended\n");
}

TEST_F(WindowsCrashApiTest, ReportsWhatTheRuntimeLibraryGivesUpOn) {
  for (const char* const crash : {"terminate", "abort"}) {
    EXPECT_EQ(Run(crash), static_cast<DWORD>(EXIT_FAILURE)) << crash;
    EXPECT_EQ(Content(Report()), "00000000 \n") << crash;
    fs::remove(Report());
  }
}

TEST_F(WindowsCrashApiTest, ReportsACallOfAFunctionThatIsNotThere) {
  EXPECT_NE(Run("pure call"), 7U);
  // MinGW leaves the address of such a function empty, others call a handler.
  const std::string report = Content(Report());
  EXPECT_TRUE(report == "C0000005 \n" || report == "00000000 \n") << report;
}

TEST_F(WindowsCrashApiTest, EndsAtOnceWhenTheReportCrashesToo) {
  for (const char* const again : {"access", "used up stack", "terminate", "throw"}) {
    EXPECT_NE(Run("access", again), std::nullopt) << again;
    EXPECT_EQ(Content(Report()), "C0000005 \n") << again;
    fs::remove(Report());
  }
}

TEST_F(WindowsCrashApiTest, FinishesItsReportWhenAnotherThreadCrashesMeanwhile) {
  EXPECT_EQ(Run("access", "wait"), 0xC0000005);
  EXPECT_EQ(Content(Report()), "C0000005 \nwaited\n");
}

TEST_F(WindowsCrashApiTest, WritesADump) {
  for (const char* const crash : {"access", "used up stack", "terminate"}) {
    EXPECT_NE(Run(crash, "dump"), std::nullopt) << crash;
    EXPECT_TRUE(Content(Report()).ends_with("\ndumped\n")) << crash << Content(Report());
    EXPECT_TRUE(Content(Dump()).starts_with("MDMP")) << crash;
    EXPECT_GT(fs::file_size(Dump()), 1000U);
    fs::remove(Report());
    fs::remove(Dump());
  }
}

// The box and the log must be possible while no library can be loaded.
TEST_F(WindowsCrashApiTest, ReportsACrashWhileTheLoaderOfLibrariesStandsStill) {
  EXPECT_EQ(Run("loader", "log"), 0xC0000005);
  EXPECT_EQ(Content(Report()), "C0000005 \nlogged\n");
}

TEST_F(WindowsCrashApiTest, ReportsNothingWhenTheProgramEnds) {
  EXPECT_EQ(Run("none"), 7U);
  EXPECT_EQ(Run("taken back"), 7U);
  EXPECT_FALSE(fs::exists(Report()));
}

}  // namespace
}  // namespace korvale

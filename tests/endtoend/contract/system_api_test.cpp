#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which they need.
#include <objbase.h>
#include <shlobj.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

#include "platform/windows/text.h"
#include "platform/windows/windows_clock.h"
#include "platform/windows/windows_system_api.h"
#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/harness/window.h"

namespace korvale {
namespace {

TEST(WindowsSystemApi, ReadsTheVersionResourceOfTheRunningProgram) {
  const VersionInfo info = WindowsSystemApi().GetFileVersionInfoA();
  EXPECT_EQ(info.major, 2);
  EXPECT_EQ(info.minor, 3);
  EXPECT_EQ(info.revision, 4);
  EXPECT_EQ(info.legalCopyright, "A notice");
  EXPECT_EQ(info.fileDescription, "Contract tests");
}

TEST(WindowsSystemApi, KnowsTheRunningProgram) {
  const std::string path = WindowsSystemApi().GetModuleFileNameA();
  EXPECT_TRUE(path.ends_with("\\contract_tests.exe")) << path;
  EXPECT_TRUE(WindowsSystemApi().FileExists(path));
}

TEST(WindowsSystemApi, TakesNoFolderForAFile) {
  WindowsSystemApi system;
  const std::string path = system.GetModuleFileNameA();
  EXPECT_FALSE(system.FileExists(path.substr(0, path.rfind('\\'))));
  EXPECT_FALSE(system.FileExists(path + ".none"));
  EXPECT_FALSE(system.FileExists(""));
}

TEST(WindowsSystemApi, AppendsToAFile) {
  WindowsSystemApi system;
  const std::string program = system.GetModuleFileNameA();
  const std::string path = program + ".Журнал";
  const std::vector<std::string> pieces = {"a", "", "\r\n"};
  EXPECT_TRUE(system.AppendToFile(path, pieces));
  EXPECT_TRUE(system.AppendToFile(path, pieces));
  const std::filesystem::path file(std::u8string(path.begin(), path.end()));
  EXPECT_EQ(std::filesystem::file_size(file), 6U);
  EXPECT_TRUE(std::filesystem::remove(file));
  EXPECT_FALSE(system.AppendToFile(program.substr(0, program.rfind('\\')), pieces));
  EXPECT_FALSE(system.AppendToFile(program + ".none\\Error.log", pieces));
}

TEST(WindowsSystemApi, APieceThatCannotBeWrittenStopsNoOtherAndTheFileIsClosed) {
  WindowsSystemApi system;
  const std::string path = system.GetModuleFileNameA() + ".pieces";
  std::vector<std::string> pieces = {"a\r\n", std::string(1 << 20, 'b'), "c\r\n"};
  // Windows cannot read what it is to write.
  DWORD allowed = 0;
  ASSERT_NE(VirtualProtect(pieces[1].data(), pieces[1].size(), PAGE_NOACCESS, &allowed), 0);
  const bool complete = system.AppendToFile(path, pieces);
  VirtualProtect(pieces[1].data(), pieces[1].size(), allowed, &allowed);
  EXPECT_FALSE(complete);
  EXPECT_EQ(std::filesystem::file_size(path), 6U);
  const HANDLE alone = CreateFileA(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  EXPECT_NE(alone, INVALID_HANDLE_VALUE) << "another has it open";
  CloseHandle(alone);
}

TEST(WindowsSystemApi, TellsWhatCouldBeAppendedToAndLeavesItAlone) {
  WindowsSystemApi system;
  const std::string program = system.GetModuleFileNameA();
  const std::string folder = program.substr(0, program.rfind('\\'));
  EXPECT_TRUE(system.CanAppendToFile(folder + "\\none.log"));
  EXPECT_FALSE(system.FileExists(folder + "\\none.log"));
  EXPECT_FALSE(system.CanAppendToFile(folder));
  EXPECT_FALSE(system.CanAppendToFile(folder + "\\none\\Error.log"));
  const HANDLE held = CreateFileA((folder + "\\held.log").c_str(), GENERIC_WRITE, 0, nullptr,
                                  CREATE_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  EXPECT_FALSE(system.CanAppendToFile(folder + "\\held.log"));
  CloseHandle(held);
}

TEST(WindowsSystemApi, MakesFoldersAndFindsAndDeletesFiles) {
  WindowsSystemApi system;
  const std::string program = system.GetModuleFileNameA();
  const std::string folder = program + ".Папка";
  EXPECT_TRUE(system.CreateDirectoryW(folder));
  EXPECT_TRUE(system.CreateDirectoryW(folder));
  EXPECT_FALSE(system.CreateDirectoryW(program));
  EXPECT_FALSE(system.CreateDirectoryW(folder + "\\none\\none"));
  EXPECT_TRUE(system.CreateDirectoryW(folder + "\\a3.dmp"));
  for (const char* const name : {"\\a1.dmp", "\\a2.dmp", "\\b1.dmp"}) {
    EXPECT_TRUE(system.AppendToFile(folder + name, {}));
  }
  EXPECT_EQ(system.FindFirstFileW(folder + "\\a?.dmp"),
            (std::vector<std::string>{"a1.dmp", "a2.dmp"}));
  EXPECT_TRUE(system.FindFirstFileW(folder + "\\c?.dmp").empty());
  EXPECT_TRUE(system.DeleteFileW(folder + "\\a1.dmp"));
  EXPECT_FALSE(system.DeleteFileW(folder + "\\a1.dmp"));
  std::filesystem::remove_all(std::u8string(folder.begin(), folder.end()));
}

TEST(WindowsSystemApi, KnowsTheUsersFolderForData) {
  const std::string folder = WindowsSystemApi().GetEnvironmentVariableW("LOCALAPPDATA");
  wchar_t* known = nullptr;
  ASSERT_EQ(SHGetKnownFolderPath(FOLDERID_LocalAppData, 0, nullptr, &known), S_OK);
  EXPECT_EQ(folder, ToUtf8(known));
  CoTaskMemFree(known);
  EXPECT_TRUE(WindowsSystemApi().CanAppendToFile(folder + "\\none.log"));
}

TEST(WindowsSystemApi, ReadsVariablesOfAnyLength) {
  WindowsSystemApi system;
  for (const int length : {1, 259, 260, 261, 5000}) {
    const std::string text(static_cast<std::size_t>(length - 1), 'x');
    SetEnvironmentVariableW(L"Korvale Ж", ToUtf16(text + "ж").c_str());
    EXPECT_EQ(system.GetEnvironmentVariableW("Korvale Ж"), text + "ж");
  }
  SetEnvironmentVariableW(L"Korvale Ж", L"");
  EXPECT_EQ(system.GetEnvironmentVariableW("Korvale Ж"), "");
  SetEnvironmentVariableW(L"Korvale Ж", nullptr);
  EXPECT_EQ(system.GetEnvironmentVariableW("Korvale Ж"), "");
}

TEST(WindowsSystemApi, ADocumentThatCannotBeOpenedIsNoErrorAndOpensNothing) {
  WindowsSystemApi system;
  const std::string program = system.GetModuleFileNameA();
  const std::vector<endtoend::Window> before = endtoend::TopLevelWindows();
  for (const std::string& document :
       {program + ".none", program + ".none\\web\\help.html", std::string("no-such-scheme:page")}) {
    EXPECT_NO_THROW(system.ShellExecuteA(0, "Open", document, SW_SHOWNORMAL)) << document;
  }
  EXPECT_TRUE(endtoend::HoldsFor(
      [&] {
        const std::vector<endtoend::Window> now = endtoend::TopLevelWindows();
        return std::ranges::all_of(now, [&](endtoend::Window window) {
          return !window.Visible() || std::ranges::find(before, window) != before.end();
        });
      },
      std::chrono::seconds(1)));
}

TEST(WindowsSystemApi, KnowsAFolderByEveryPath) {
  WindowsSystemApi system;
  const std::string path = system.GetModuleFileNameA();
  const std::string folder = path.substr(0, path.rfind('\\'));
  const FolderInfo info = system.GetFinalPathNameByHandleW(folder);
  EXPECT_EQ(info.error, 0U);
  EXPECT_TRUE(info.finalPath.starts_with("\\\\?\\")) << info.finalPath;
  EXPECT_NE(info.fileId, "");
  EXPECT_EQ(system.GetFinalPathNameByHandleW(info.finalPath).fileId, info.fileId);
}

TEST(WindowsSystemApi, TellsWhyAFolderCannotBeOpened) {
  WindowsSystemApi system;
  const std::string path = system.GetModuleFileNameA();
  const FolderInfo none = system.GetFinalPathNameByHandleW(path + ".none");
  EXPECT_EQ(none.error, static_cast<std::uint32_t>(ERROR_FILE_NOT_FOUND));
  EXPECT_FALSE(none.isLink);
  EXPECT_NE(system.GetFinalPathNameByHandleW("Q:\\").error, 0U);
  EXPECT_NE(system.GetFinalPathNameByHandleW("").error, 0U);
}

TEST(WindowsSystemApi, TellsTheFamilyOfTheSystem) {
  constexpr std::uint32_t kStructureSize = 148;
  EXPECT_EQ(WindowsSystemApi().GetVersionExA(kStructureSize).platformId, 2U);
  EXPECT_GE(WindowsSystemApi().GetVersionExA(kStructureSize).majorVersion, 6U);
  EXPECT_EQ(WindowsSystemApi().GetVersionExA(7).platformId, 0U);
  EXPECT_EQ(WindowsSystemApi().GetVersionExA(100000).platformId, 0U);
}

TEST(WindowsSystemApi, GivesTheWindowsFolderWhenItFits) {
  WindowsSystemApi system;
  const std::string folder = system.GetWindowsDirectoryA(260);
  EXPECT_FALSE(folder.empty());
  EXPECT_NE(folder.back(), '\\');
  EXPECT_EQ(system.GetWindowsDirectoryA(static_cast<std::uint32_t>(folder.size()) + 1), folder);
  EXPECT_EQ(system.GetWindowsDirectoryA(static_cast<std::uint32_t>(folder.size())), "");
}

TEST(WindowsSystemApi, LetsOneHolderHaveAMutex) {
  WindowsSystemApi system;
  auto first = system.CreateMutexA("Korvale contract Ж");
  ASSERT_TRUE(first->WaitForSingleObject(0));
  EXPECT_TRUE(first->WaitForSingleObject(0));
  bool taken = true;
  const auto try_other = [&] {
    taken = system.CreateMutexA("Korvale contract Ж")->WaitForSingleObject(0);
  };
  std::thread(try_other).join();
  EXPECT_FALSE(taken);
  first.reset();
  std::thread(try_other).join();
  EXPECT_TRUE(taken);
}

TEST(WindowsSystemApi, OpensAMutexThatIsThere) {
  WindowsSystemApi system;
  EXPECT_EQ(system.OpenMutexA("Korvale contract Щ"), nullptr);
  const auto first = system.CreateMutexA("Korvale contract Щ");
  ASSERT_TRUE(first->WaitForSingleObject(0));
  bool taken = true;
  std::thread([&] {
    taken = system.OpenMutexA("Korvale contract Щ")->WaitForSingleObject(0);
  }).join();
  EXPECT_FALSE(taken);
}

TEST(WindowsSystemApi, TakesAMutexWhoseHolderDied) {
  const HANDLE left = CreateMutexW(nullptr, FALSE, L"Korvale contract dead");
  std::thread([left] { WaitForSingleObject(left, 0); }).join();
  EXPECT_TRUE(WindowsSystemApi().CreateMutexA("Korvale contract dead")->WaitForSingleObject(0));
  CloseHandle(left);
}

TEST(WindowsClock, TellsTheTimeOfTheSystem) {
  SYSTEMTIME now{};
  GetLocalTime(&now);
  const LocalTime time = WindowsClock().GetLocalTime();
  EXPECT_EQ(time.year, now.wYear);
  EXPECT_EQ(time.month, now.wMonth);
  EXPECT_LT(time.dayOfWeek, 7);
  EXPECT_GE(WindowsClock().GetTickCount64() + 1000, GetTickCount64());
}

class WindowsTimersTest : public testing::Test {
 protected:
  ~WindowsTimersTest() override { DestroyWindow(hwnd_); }
  WindowHandle Window() const { return HandleToLong(hwnd_); }
  /// The ids of the ticks that are waiting.
  std::vector<WPARAM> Ticks() const {
    std::vector<WPARAM> ids;
    MSG message;
    while (PeekMessageW(&message, hwnd_, WM_TIMER, WM_TIMER, PM_REMOVE) != FALSE) {
      ids.push_back(message.wParam);
    }
    return ids;
  }

  HWND hwnd_ =
      CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  WindowsTimers timers_;
};

TEST_F(WindowsTimersTest, AStoppedTimerTakesItsWaitingTicksWithIt) {
  constexpr std::uint32_t kNever = 1000000;
  timers_.SetTimer(Window(), 1, kNever);
  timers_.SetTimer(Window(), 2, kNever);
  PostMessageW(hwnd_, WM_TIMER, 1, 0);
  PostMessageW(hwnd_, WM_TIMER, 2, 0);
  timers_.KillTimer(Window(), 1);
  EXPECT_EQ(Ticks(), std::vector<WPARAM>{2});
}

TEST_F(WindowsTimersTest, StoppingATimerLosesNoOrderToQuit) {
  timers_.SetTimer(Window(), 1, 1000000);
  PostQuitMessage(5);
  timers_.KillTimer(Window(), 1);
  MSG message{};
  while (message.message != WM_QUIT && PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
  }
  EXPECT_EQ(message.message, static_cast<UINT>(WM_QUIT));
  EXPECT_EQ(message.wParam, 5U);
}

}  // namespace
}  // namespace korvale

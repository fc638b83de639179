#include "tests/fakes/fake_system.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "tests/fakes/call_log.h"

namespace korvale {
namespace {

class FakeSystemTest : public testing::Test {
 protected:
  CallLog log_;
  std::shared_ptr<FakeSession> session_ = std::make_shared<FakeSession>();
  FakeSystem system_{log_, session_};
};

TEST_F(FakeSystemTest, FillsVersionStructuresOfAKnownSizeOnly) {
  EXPECT_EQ(system_.GetVersionExA(148).majorVersion, 10U);
  EXPECT_EQ(system_.GetVersionExA(156).platformId, 2U);
  EXPECT_EQ(system_.GetVersionExA(147).platformId, 0U);
}

TEST_F(FakeSystemTest, NeedsABufferForTheWindowsFolderAndItsEnd) {
  EXPECT_EQ(system_.GetWindowsDirectoryA(11), "C:\\Windows");
  EXPECT_EQ(system_.GetWindowsDirectoryA(10), "");
}

TEST_F(FakeSystemTest, FindsFilesIgnoringCase) {
  system_.files = {"C:\\Programs\\Readme.htm"};

  EXPECT_TRUE(system_.FileExists("c:\\programs\\README.HTM"));
  EXPECT_FALSE(system_.FileExists("C:\\Programs"));
}

TEST_F(FakeSystemTest, AppendsToFilesOfFoldersThatAreThere) {
  system_.files = {"C:\\Programs\\Readme.htm"};
  const std::vector<std::string> pieces = {"a", "b"};

  EXPECT_TRUE(system_.AppendToFile("C:\\Programs\\Log", pieces));
  EXPECT_TRUE(FakeSystem(log_, session_).AppendToFile("C:\\Log", pieces));
  EXPECT_TRUE(system_.AppendToFile("C:\\Log", pieces));
  EXPECT_FALSE(system_.AppendToFile("C:\\None\\Log", pieces));
  EXPECT_FALSE(system_.AppendToFile("C:\\Programs", pieces));
  EXPECT_FALSE(system_.AppendToFile("E:\\Log", pieces));
  EXPECT_TRUE(system_.FileExists("C:\\Programs\\Log"));
  EXPECT_EQ(session_->contents,
            (std::map<std::string, std::string>{{"C:\\Log", "abab"}, {"C:\\Programs\\Log", "ab"}}));
}

TEST_F(FakeSystemTest, KnowsWhatCouldBeAppendedToAndChangesNothing) {
  system_.files = {"C:\\Programs\\Readme.htm"};
  EXPECT_TRUE(system_.CanAppendToFile("C:\\Programs\\Readme.htm"));
  EXPECT_TRUE(system_.CanAppendToFile("C:\\Programs\\Log"));
  EXPECT_FALSE(system_.CanAppendToFile("C:\\Programs"));
  EXPECT_FALSE(system_.CanAppendToFile("C:\\None\\Log"));
  EXPECT_FALSE(system_.CanAppendToFile("E:\\Log"));
  EXPECT_EQ(system_.files.size(), 1U);
  EXPECT_TRUE(session_->contents.empty());
}

TEST_F(FakeSystemTest, ChangesNothingInAReadOnlyFolder) {
  system_.files = {"C:\\Programs\\Log"};
  system_.readOnly = {"C:\\Programs"};
  EXPECT_FALSE(system_.CanAppendToFile("C:\\Programs\\Log"));
  EXPECT_FALSE(system_.AppendToFile("C:\\Programs\\Log", std::vector<std::string>{"a"}));
  EXPECT_FALSE(system_.CreateDirectoryW("C:\\Programs\\Folder"));
  EXPECT_FALSE(system_.MiniDumpWriteDump("C:\\Programs\\Dump"));
  EXPECT_FALSE(system_.DeleteFileW("C:\\Programs\\Log"));
  EXPECT_EQ(system_.files.size(), 1U);
}

TEST_F(FakeSystemTest, WritesOnlyTheFilesThatAreThereWhereNoneCanBeCreated) {
  system_.files = {"C:\\Programs\\Log"};
  system_.noNewFiles = {"C:\\Programs"};
  EXPECT_TRUE(system_.CanAppendToFile("C:\\Programs\\Log"));
  EXPECT_TRUE(system_.AppendToFile("C:\\Programs\\Log", std::vector<std::string>{"a"}));
  EXPECT_FALSE(system_.CanAppendToFile("C:\\Programs\\Other"));
  EXPECT_FALSE(system_.AppendToFile("C:\\Programs\\Other", std::vector<std::string>{"a"}));
  EXPECT_FALSE(system_.MiniDumpWriteDump("C:\\Programs\\Dump"));
}

TEST_F(FakeSystemTest, RefusesAtLastWhatLooksPossibleInAGuardedFolder) {
  system_.files = {"C:\\Programs\\Log"};
  system_.guarded = {"C:\\Programs"};
  EXPECT_FALSE(system_.CanAppendToFile("C:\\Programs\\Log"));
  EXPECT_TRUE(system_.CanAppendToFile("C:\\Programs\\Other"));
  EXPECT_FALSE(system_.AppendToFile("C:\\Programs\\Other", std::vector<std::string>{"a"}));
  EXPECT_FALSE(system_.MiniDumpWriteDump("C:\\Programs\\Dump"));
}

TEST_F(FakeSystemTest, LeavesNoDumpOnAFullDisk) {
  system_.files = {"C:\\Programs\\Log"};
  session_->diskFull = true;
  EXPECT_FALSE(system_.MiniDumpWriteDump("C:\\Programs\\Dump"));
  EXPECT_EQ(system_.files, std::set<std::string>{"C:\\Programs\\Log"});
}

TEST_F(FakeSystemTest, MakesFoldersInFoldersThatAreThere) {
  EXPECT_TRUE(
      system_.CreateDirectoryW(system_.GetEnvironmentVariableW("LOCALAPPDATA") + "\\Korvale"));
  EXPECT_TRUE(
      system_.CreateDirectoryW(system_.GetEnvironmentVariableW("LOCALAPPDATA") + "\\Korvale"));
  EXPECT_TRUE(system_.CanAppendToFile(system_.localAppData + "\\Korvale\\Log"));
  EXPECT_FALSE(system_.CreateDirectoryW("C:\\None\\Korvale"));
}

TEST_F(FakeSystemTest, FindsAndDeletesFiles) {
  system_.files = {"C:\\Programs\\a1.dmp", "C:\\Programs\\a2.dmp", "C:\\Programs\\b1.dmp",
                   "C:\\Other\\a1.dmp"};
  EXPECT_EQ(system_.FindFirstFileW("C:\\Programs\\a?.dmp"),
            (std::vector<std::string>{"a2.dmp", "a1.dmp"}));
  EXPECT_TRUE(system_.DeleteFileW("C:\\Programs\\a1.dmp"));
  EXPECT_FALSE(system_.DeleteFileW("C:\\Programs\\a1.dmp"));
  EXPECT_EQ(system_.FindFirstFileW("C:\\Programs\\a?.dmp"), std::vector<std::string>{"a2.dmp"});
}

TEST_F(FakeSystemTest, WritesADumpInPlaceOfAFormerOne) {
  system_.files = {"C:\\Programs\\Readme.htm"};
  EXPECT_TRUE(system_.MiniDumpWriteDump("C:\\Programs\\Dump"));
  EXPECT_TRUE(system_.MiniDumpWriteDump("C:\\Programs\\Dump"));
  EXPECT_EQ(session_->contents["C:\\Programs\\Dump"], "dump");
  EXPECT_TRUE(system_.FileExists("C:\\Programs\\Dump"));
}

TEST_F(FakeSystemTest, LogsWhatItOpens) {
  system_.ShellExecuteA(0x10, "Open", "readme.htm", 1);

  EXPECT_EQ(log_.Calls(), std::vector<std::string>{
                              "ShellExecuteA(0x10, \"Open\", \"readme.htm\", SW_SHOWNORMAL)"});
}

TEST_F(FakeSystemTest, OneProgramHoldsAMutexAtATime) {
  FakeSystem other(log_, session_);
  std::unique_ptr<SystemMutex> mine = system_.CreateMutexA("Korvale");
  const std::unique_ptr<SystemMutex> theirs = other.CreateMutexA("Korvale");

  EXPECT_TRUE(mine->WaitForSingleObject(0));
  EXPECT_FALSE(theirs->WaitForSingleObject(0));
  EXPECT_FALSE(theirs->WaitForSingleObject(1000));
  EXPECT_TRUE(other.CreateMutexA("Another")->WaitForSingleObject(0));

  mine.reset();
  EXPECT_FALSE(session_->IsHeld("Korvale"));
  EXPECT_TRUE(theirs->WaitForSingleObject(0));
}

TEST_F(FakeSystemTest, AProgramHoldsItsMutexUntilEachWaitIsUndone) {
  FakeSystem other(log_, session_);
  std::unique_ptr<SystemMutex> first = system_.CreateMutexA("Korvale");
  const std::unique_ptr<SystemMutex> second = system_.CreateMutexA("Korvale");
  EXPECT_TRUE(first->WaitForSingleObject(0));
  EXPECT_TRUE(second->WaitForSingleObject(0));

  first.reset();

  EXPECT_FALSE(other.CreateMutexA("Korvale")->WaitForSingleObject(0));
}

TEST_F(FakeSystemTest, AMutexThatWasNotHeldLetsNothingGo) {
  FakeSystem other(log_, session_);
  const std::unique_ptr<SystemMutex> mine = system_.CreateMutexA("Korvale");
  mine->WaitForSingleObject(0);

  other.CreateMutexA("Korvale")->WaitForSingleObject(0);

  EXPECT_TRUE(session_->IsHeld("Korvale"));
}

TEST_F(FakeSystemTest, TheHolderCanActWhileAnotherProgramWaits) {
  FakeSystem other(log_, session_);
  std::unique_ptr<SystemMutex> mine = system_.CreateMutexA("Korvale");
  mine->WaitForSingleObject(0);
  session_->WhenWaiting([&] { mine.reset(); });
  const std::unique_ptr<SystemMutex> theirs = other.CreateMutexA("Korvale");

  EXPECT_FALSE(theirs->WaitForSingleObject(0));
  EXPECT_TRUE(theirs->WaitForSingleObject(1000));
}

TEST_F(FakeSystemTest, ADeadHolderHasLetGo) {
  std::optional<FakeSystem> other(std::in_place, log_, session_);
  const std::unique_ptr<SystemMutex> theirs = other->CreateMutexA("Korvale");
  theirs->WaitForSingleObject(0);
  const std::unique_ptr<SystemMutex> mine = system_.CreateMutexA("Korvale");
  EXPECT_FALSE(mine->WaitForSingleObject(0));

  other.reset();

  EXPECT_TRUE(mine->WaitForSingleObject(0));
}

TEST_F(FakeSystemTest, MutexesCanBeRefused) {
  system_.refuseMutexes = true;

  EXPECT_EQ(system_.CreateMutexA("Korvale"), nullptr);
  EXPECT_EQ(system_.OpenMutexA("Korvale"), nullptr);
}

TEST_F(FakeSystemTest, TheMutexOfAnElevatedProgramIsOnlyWaitedFor) {
  FakeSystem admin(log_, session_);
  admin.elevated = true;
  EXPECT_EQ(system_.OpenMutexA("Korvale"), nullptr);
  const std::unique_ptr<SystemMutex> theirs = admin.CreateMutexA("Korvale");
  theirs->WaitForSingleObject(0);

  EXPECT_EQ(system_.CreateMutexA("Korvale"), nullptr);
  const std::unique_ptr<SystemMutex> mine = system_.OpenMutexA("Korvale");
  ASSERT_NE(mine, nullptr);
  EXPECT_FALSE(mine->WaitForSingleObject(0));

  admin.Die();

  EXPECT_TRUE(mine->WaitForSingleObject(0));
}

}  // namespace
}  // namespace korvale

#include "app/core/folder_identity.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/fakes/fake_system.h"

namespace korvale {
namespace {

/// A disk with D:\Tools\Work, which is also reached in other ways.
class FolderIdentityTest : public testing::Test {
 protected:
  FolderIdentityTest() {
    system_.files = {"D:\\Tools\\Work\\Korvale.exe", "D:\\Tools\\Home\\Korvale.exe"};
    system_.links = {{"W:", "D:\\Tools\\Work"}, {"C:\\Junction", "D:\\Tools"}};
    system_.shares = {{"\\\\server\\tools", "D:\\Tools"}};
  }
  FolderIdentity Read(const std::string& folder) { return ReadFolderIdentity(system_, folder); }

  CallLog log_;
  FakeSystem system_{log_};
};

TEST_F(FolderIdentityTest, IsTheSameInEverySpelling) {
  const FolderIdentity work = Read("D:\\Tools\\Work");
  for (const char* spelling :
       {"d:\\TOOLS\\work", "D:\\Tools\\Work\\\\", "W:", "W:\\", "C:\\Junction\\Work",
        "\\\\?\\D:\\Tools\\Work", "\\\\server\\tools\\Work", "\\\\?\\UNC\\server\\tools\\Work"}) {
    EXPECT_TRUE(Read(spelling).IsSameAs(work)) << spelling;
  }
  EXPECT_EQ(Read("\\\\?\\UNC\\server\\tools\\Work").path, "\\\\server\\tools\\Work");
}

TEST_F(FolderIdentityTest, DiffersBetweenFolders) {
  const FolderIdentity work = Read("D:\\Tools\\Work");
  for (const char* other : {"D:\\Tools\\Home", "C:\\Junction\\Home", "C:\\Tools\\Work", "D:", ""}) {
    EXPECT_FALSE(Read(other).IsSameAs(work)) << other;
  }
}

TEST_F(FolderIdentityTest, OfAFolderThatCannotBeReachedIsItsPath) {
  system_.unreachable = {{"\\\\server", 53}};
  EXPECT_TRUE(Read("\\\\server\\tools\\Work\\").IsSameAs(Read("\\\\SERVER\\tools\\work")));
  EXPECT_EQ(Read("\\\\server\\tools\\Work\\").fileId, "");
}

TEST_F(FolderIdentityTest, GarbageIsAFolderOfItsOwn) {
  for (const char* garbage :
       {"", "\\", "\\\\", "\\\\?", "\\\\?\\", "\\\\?\\D", "\\\\?\\UNC\\", ":"}) {
    EXPECT_FALSE(Read(garbage).IsSameAs(Read("D:\\Tools\\Work"))) << garbage;
    EXPECT_EQ(LookForFolder(system_, garbage), FolderPresence::kAway) << garbage;
  }
}

TEST_F(FolderIdentityTest, FolderIsThereOrGone) {
  EXPECT_EQ(LookForFolder(system_, "D:\\Tools\\Work\\"), FolderPresence::kThere);
  EXPECT_EQ(LookForFolder(system_, "D:"), FolderPresence::kThere);
  EXPECT_EQ(LookForFolder(system_, "D:\\Tools\\Old"), FolderPresence::kGone);
  EXPECT_EQ(LookForFolder(system_, "D:\\Gone\\Older\\Old"), FolderPresence::kGone);
  EXPECT_EQ(LookForFolder(system_, "\\\\server\\tools\\Old"), FolderPresence::kGone);
}

TEST_F(FolderIdentityTest, FolderIsAwayWithItsDriveOrComputer) {
  constexpr std::uint32_t kNotReady = 21;
  constexpr std::uint32_t kBadNetPath = 53;
  system_.unreachable = {{"E:", kNotReady}, {"\\\\other", kBadNetPath}};
  for (const char* folder :
       {"E:\\Old", "E:", "Q:\\Tools\\Old", "Q:", "\\\\other\\share\\Old", "\\\\nobody\\share"}) {
    EXPECT_EQ(LookForFolder(system_, folder), FolderPresence::kAway) << folder;
  }
}

TEST_F(FolderIdentityTest, FolderOfAShareIsLookedForNoFurtherUpThanTheShare) {
  log_.IncludeReads(true);
  EXPECT_EQ(LookForFolder(system_, "\\\\nobody\\share\\Old"), FolderPresence::kAway);
  EXPECT_EQ(log_.Calls(),
            (std::vector<std::string>{"GetFinalPathNameByHandleW(\\\\nobody\\share\\Old)",
                                      "GetFinalPathNameByHandleW(\\\\nobody\\share)"}));
}

TEST_F(FolderIdentityTest, DriveIsAskedForWithItsBackslashAndAFolderWithout) {
  log_.IncludeReads(true);
  LookForFolder(system_, "Q:\\b:");
  EXPECT_EQ(log_.Calls(), (std::vector<std::string>{"GetFinalPathNameByHandleW(Q:\\b:)",
                                                    "GetFinalPathNameByHandleW(Q:\\)"}));
}

TEST_F(FolderIdentityTest, FolderBehindALinkIsAwayWithWhatTheLinkLeadsTo) {
  system_.links["C:\\Stick"] = "U:";
  EXPECT_EQ(LookForFolder(system_, "C:\\Stick\\Old"), FolderPresence::kAway);
  system_.drives.insert("U:");
  EXPECT_EQ(LookForFolder(system_, "C:\\Stick\\Old"), FolderPresence::kGone);
}

}  // namespace
}  // namespace korvale

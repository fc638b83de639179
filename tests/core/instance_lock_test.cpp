#include "app/core/instance_lock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/fake_system.h"

namespace korvale {
namespace {

using Names = std::vector<std::string>;

TEST(InstanceLockNamesTest, AreTheSameInAnyCase) {
  const Names names = InstanceLockNames({"D:\\Tools\\W\xc3\xb6rk", ""});
  EXPECT_EQ(names.size(), 1U);
  EXPECT_EQ(InstanceLockNames({"d:\\TOOLS\\w\xc3\x96RK", ""}), names);
}

TEST(InstanceLockNamesTest, DifferBetweenFolders) {
  EXPECT_NE(InstanceLockNames({"D:\\Tools\\Work", ""}), InstanceLockNames({"D:\\Tools\\Home", ""}));
  EXPECT_NE(InstanceLockNames({"C:\\Work", ""}), InstanceLockNames({"D:\\Work", ""}));
}

TEST(InstanceLockNamesTest, HaveOneInCommonForTheSameFolderUnderAnotherPath) {
  const Names names = InstanceLockNames({"D:\\Work", "1:2"});
  const Names others = InstanceLockNames({"\\\\server\\data\\Work", "1:2"});
  ASSERT_EQ(names.size(), 2U);
  ASSERT_EQ(others.size(), 2U);
  EXPECT_NE(others[0], names[0]);
  EXPECT_EQ(others[1], names[1]);
}

TEST(InstanceLockNamesTest, BelongToTheSessionAndHoldNoPath) {
  const std::string prefix = "Local\\Korvale.";
  for (const std::string& name : InstanceLockNames({"D:\\Tools\\Work", "1:2"})) {
    ASSERT_TRUE(name.starts_with(prefix)) << name;
    EXPECT_EQ(name.find_first_not_of("0123456789abcdef", prefix.size()), std::string::npos) << name;
    EXPECT_EQ(name.size(), prefix.size() + 16);
  }
}

TEST(InstanceLockNamesTest, StayTheSameFromVersionToVersion) {
  const Names names = InstanceLockNames({"c:\\Work", "foobar"});
  EXPECT_EQ(names, (Names{"Local\\Korvale.5b0f8047feab9f19", "Local\\Korvale.85944171f73967e8"}));
  EXPECT_EQ(InstanceLockNames({"k:\\k", ""}), Names{"Local\\Korvale.0982b9dfb2cc4afd"});
}

/// Copies of the program in one session.
class InstanceLockTest : public testing::Test {
 protected:
  CallLog log_;
  std::shared_ptr<FakeSession> session_ = std::make_shared<FakeSession>();
  FakeSystem firstSystem_{log_, session_};
  FakeSystem secondSystem_{log_, session_};
};

TEST_F(InstanceLockTest, OneCopyAtATimeHoldsIt) {
  std::optional<InstanceLock> first(std::in_place, firstSystem_, FolderIdentity{"D:\\Work", ""});
  InstanceLock second(secondSystem_, FolderIdentity{"D:\\WORK", ""});
  EXPECT_TRUE(first->TryHold(0));
  EXPECT_TRUE(first->TryHold(0));
  EXPECT_FALSE(second.TryHold(500));
  first.reset();
  EXPECT_TRUE(second.TryHold(0));
}

TEST_F(InstanceLockTest, IsHeldOnceTheOtherCopyLetsGoDuringTheWait) {
  std::optional<InstanceLock> first(std::in_place, firstSystem_, FolderIdentity{"D:\\Work", ""});
  InstanceLock second(secondSystem_, FolderIdentity{"D:\\Work", ""});
  ASSERT_TRUE(first->TryHold(0));
  session_->WhenWaiting([&] { first.reset(); });
  EXPECT_TRUE(second.TryHold(500));
}

TEST_F(InstanceLockTest, OneCopyAtATimeHoldsItUnderAnotherPathToTheFolder) {
  std::optional<InstanceLock> first(std::in_place, firstSystem_, FolderIdentity{"D:\\Work", "1:2"});
  InstanceLock second(secondSystem_, FolderIdentity{"\\\\server\\data\\Work", "1:2"});
  EXPECT_TRUE(first->TryHold(0));
  EXPECT_FALSE(second.TryHold(0));
  first.reset();
  EXPECT_TRUE(second.TryHold(0));
}

TEST_F(InstanceLockTest, OtherInstallationsDoNotMatter) {
  InstanceLock work(firstSystem_, FolderIdentity{"D:\\Work", ""});
  InstanceLock home(secondSystem_, FolderIdentity{"D:\\Home", ""});
  EXPECT_TRUE(work.TryHold(0));
  EXPECT_TRUE(home.TryHold(0));
}

/// Counts how often its mutexes are waited for, always with success.
class CountingSystem : public FakeSystem {
 public:
  using FakeSystem::FakeSystem;
  std::unique_ptr<SystemMutex> CreateMutexA(const std::string& /*name*/) override {
    struct CountingMutex : SystemMutex {
      explicit CountingMutex(int& counter) : waits(counter) {}
      bool WaitForSingleObject(std::uint32_t /*milliseconds*/) override { return ++waits > 0; }
      int& waits;
    };
    return std::make_unique<CountingMutex>(waits);
  }

  int waits = 0;
};

TEST_F(InstanceLockTest, IsNotTakenTwice) {
  CountingSystem system(log_);
  InstanceLock lock(system, FolderIdentity{"D:\\Work", ""});
  EXPECT_TRUE(lock.TryHold(0));
  EXPECT_TRUE(lock.TryHold(0));
  EXPECT_EQ(system.waits, 1);
}

TEST_F(InstanceLockTest, CountsAsHeldWhenTheSystemGivesNoObject) {
  firstSystem_.refuseMutexes = true;
  InstanceLock lock(firstSystem_, FolderIdentity{"D:\\Work", ""});
  EXPECT_TRUE(lock.TryHold(0));
}

}  // namespace
}  // namespace korvale

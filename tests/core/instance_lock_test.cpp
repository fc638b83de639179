#include "app/core/instance_lock.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "tests/fakes/fake_system.h"

namespace korvale {
namespace {

TEST(InstanceLockNameTest, IsTheSameForEverySpellingOfAFolder) {
  const std::string name = InstanceLockName("D:\\Tools\\W\xc3\xb6rk\\");
  EXPECT_EQ(InstanceLockName("d:\\TOOLS\\w\xc3\x96RK\\"), name);
  EXPECT_EQ(InstanceLockName("D:\\Tools\\W\xc3\xb6rk"), name);
}

TEST(InstanceLockNameTest, DiffersBetweenFolders) {
  EXPECT_NE(InstanceLockName("D:\\Tools\\Work\\"), InstanceLockName("D:\\Tools\\Home\\"));
  EXPECT_NE(InstanceLockName("C:\\Work\\"), InstanceLockName("D:\\Work\\"));
}

TEST(InstanceLockNameTest, BelongsToTheSessionAndHoldsNoPath) {
  const std::string name = InstanceLockName("D:\\Tools\\Work\\");
  const std::string prefix = "Local\\Korvale.";
  ASSERT_TRUE(name.starts_with(prefix)) << name;
  EXPECT_EQ(name.find_first_not_of("0123456789abcdef", prefix.size()), std::string::npos) << name;
  EXPECT_EQ(name.size(), prefix.size() + 16);
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
  std::optional<InstanceLock> first(std::in_place, firstSystem_, "D:\\Work\\");
  InstanceLock second(secondSystem_, "D:\\WORK\\");
  EXPECT_TRUE(first->TryHold(0));
  EXPECT_TRUE(first->TryHold(0));
  EXPECT_FALSE(second.TryHold(500));
  first.reset();
  EXPECT_TRUE(second.TryHold(0));
}

TEST_F(InstanceLockTest, IsHeldOnceTheOtherCopyLetsGoDuringTheWait) {
  std::optional<InstanceLock> first(std::in_place, firstSystem_, "D:\\Work\\");
  InstanceLock second(secondSystem_, "D:\\Work\\");
  ASSERT_TRUE(first->TryHold(0));
  session_->WhenWaiting([&] { first.reset(); });
  EXPECT_TRUE(second.TryHold(500));
}

TEST_F(InstanceLockTest, OtherInstallationsDoNotMatter) {
  InstanceLock work(firstSystem_, "D:\\Work\\");
  InstanceLock home(secondSystem_, "D:\\Home\\");
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
  InstanceLock lock(system, "D:\\Work\\");
  EXPECT_TRUE(lock.TryHold(0));
  EXPECT_TRUE(lock.TryHold(0));
  EXPECT_EQ(system.waits, 1);
}

TEST_F(InstanceLockTest, CountsAsHeldWhenTheSystemGivesNoObject) {
  firstSystem_.refuseMutexes = true;
  InstanceLock lock(firstSystem_, "D:\\Work\\");
  EXPECT_TRUE(lock.TryHold(0));
}

}  // namespace
}  // namespace korvale

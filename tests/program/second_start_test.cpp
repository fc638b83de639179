#include <memory>
#include <string>

#include "app/core/folder_identity.h"
#include "app/core/instance_lock.h"
#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

using SecondStartTest = StartTest;

/// What holds the lock of C:\Programs\Work, whether or not a window is there.
InstanceLock LockOfWork(FakeSystem& system) {
  return {system, ReadFolderIdentity(system, "C:\\Programs\\Work")};
}

TEST_F(SecondStartTest, AHolderOfTheLockWithoutAWindowIsToldAtOnce) {
  KorvaleCopy& second = UsedCopy();
  FakeSystem broken(log, session);
  broken.files = second.system.files;
  InstanceLock lock = LockOfWork(broken);
  ASSERT_TRUE(lock.TryHold(0));
  int waits = 0;
  session->WhenWaiting([&] { ++waits; });
  second.host.WhenMessageBox([](const ShownMessage& box) {
    EXPECT_EQ(box.text, "'Korvale - Work' is already open.");
    return win32::kIdOk;
  });

  EXPECT_FALSE(second.Start());

  EXPECT_LE(waits, 6);
}

TEST_F(SecondStartTest, ACopyThatIsEndingIsWaitedFor) {
  KorvaleCopy& second = UsedCopy();
  auto ending = std::make_unique<FakeSystem>(log, session);
  ending->files = second.system.files;
  InstanceLock lock = LockOfWork(*ending);
  ASSERT_TRUE(lock.TryHold(0));
  session->WhenWaiting([&] { ending->Die(); });

  EXPECT_TRUE(second.Start());
}

TEST_F(SecondStartTest, AStartUnderAnotherPathIsTheSameInstallation) {
  KorvaleCopy& first = StartedCopy();
  for (const char* folder : {"W:", "c:\\programs\\WORK", "\\\\?\\C:\\Programs\\Work",
                             "C:\\PROGRA~1\\WORK", "\\\\server\\programs\\Work"}) {
    KorvaleCopy& second = NewCopy();
    second.system.links = {{"W:", "C:\\Programs\\Work"}, {"C:\\PROGRA~1", "C:\\Programs"}};
    second.system.shares = {{"\\\\server\\programs", "C:\\Programs"}};
    second.system.executablePath = std::string(folder) + "\\Korvale.exe";
    second.host.WhenMessageBox([&](const ShownMessage& box) {
      EXPECT_EQ(box.text, "'Korvale - Work' is already open.") << folder;
      return win32::kIdOk;
    });
    EXPECT_FALSE(second.Start()) << folder;
    EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle()) << folder;
  }
}

}  // namespace
}  // namespace korvale

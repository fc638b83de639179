#include <functional>
#include <memory>
#include <string>

#include "app/core/folder_identity.h"
#include "app/core/instance_lock.h"
#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

/// What holds the lock of C:\Programs\Work, whether or not a window is there.
InstanceLock LockOfWork(FakeSystem& system) {
  return {system, ReadFolderIdentity(system, "C:\\Programs\\Work")};
}

class SecondStartTest : public StartTest {
 protected:
  /// How often a start waits, 50 milliseconds each, before it tells that another program holds the
  /// lock.
  int WaitsBehindLock() {
    KorvaleCopy& second = UsedCopy();
    FakeSystem holder(log, session);
    holder.files = second.system.files;
    InstanceLock lock = LockOfWork(holder);
    EXPECT_TRUE(lock.TryHold(0));
    int waits = 0;
    session->WhenWaiting([&] { ++waits; });
    second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
    EXPECT_FALSE(second.Start());
    return waits;
  }
};

TEST_F(SecondStartTest, AHolderOfTheLockWithoutAWindowIsToldAtOnce) {
  // 200 milliseconds.
  EXPECT_EQ(WaitsBehindLock(), 4);
}

TEST_F(SecondStartTest, AHolderOfTheLockThatHasAWindowGetsFiveSecondsToShowIt) {
  Open("Korvale - Work", {.className = "Korvale.frmMain", .visible = false, .process = 77});
  EXPECT_EQ(WaitsBehindLock(), 100);
}

/// Runs as administrator.
KorvaleCopy& Elevate(FakeDesktop& desktop, KorvaleCopy& copy) {
  copy.system.elevated = true;
  EXPECT_TRUE(copy.Start());
  desktop.Windows().Find(copy.Handle())->elevated = true;
  return copy;
}

TEST_F(SecondStartTest, ACopyThatRunsAsAdministratorComesForwardToo) {
  KorvaleCopy& first = Elevate(desktop, UsedCopy());
  WorkIn(Open("Alpha"));
  KorvaleCopy& second = NewCopy();
  second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);

  EXPECT_FALSE(second.Start());

  EXPECT_EQ(second.host.Messages().size(), 1U);
  EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle());
}

TEST_F(SecondStartTest, AnElevatedCopyThatCannotComeForwardIsTold) {
  KorvaleCopy& first = Elevate(desktop, UsedCopy());
  desktop.UserMinimizes(first.Handle());
  WorkIn(Open("Alpha"));
  KorvaleCopy& second = NewCopy();
  second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
  second.ExpectBox("The window operation was not successful.  Please try again.", win32::kIdOk);

  EXPECT_FALSE(second.Start());

  EXPECT_EQ(second.host.Messages().size(), 2U);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(SecondStartTest, AnElevatedCopyThatIsJustStartingIsNotMissed) {
  FakeSystem admin(log, session);
  KorvaleCopy& second = UsedCopy();
  admin.files = second.system.files;
  admin.elevated = true;
  InstanceLock lock = LockOfWork(admin);
  ASSERT_TRUE(lock.TryHold(0));
  second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);

  EXPECT_FALSE(second.Start());
}

TEST_F(SecondStartTest, ARefusedForegroundIsTold) {
  StartedCopy();
  WorkIn(Open("Alpha"));
  desktop.LockForeground(ForegroundLock::kForGood);
  KorvaleCopy& second = NewCopy();
  second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
  second.ExpectBox("The window operation was not successful.  Please try again.", win32::kIdOk);

  EXPECT_FALSE(second.Start());

  EXPECT_EQ(second.host.Messages().size(), 2U);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
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

TEST_F(SecondStartTest, TheMessageThatWaitsInTheFirstCopyComesForward) {
  KorvaleCopy& first = StartedCopy();
  const WindowHandle alpha = Open("Alpha");
  first.host.WhenMessageBox([&](const ShownMessage&) {
    const WindowHandle message = desktop.GetForegroundWindow();
    WorkIn(alpha);
    KorvaleCopy& second = NewCopy();
    second.host.AnswerNext(win32::kIdOk);
    EXPECT_FALSE(second.Start());
    EXPECT_EQ(desktop.GetForegroundWindow(), message);
    return win32::kIdOk;
  });
  first.Form().Messages().ShowMessageBox("Question", win32::kMbOk, "Korvale");
}

TEST_F(SecondStartTest, AMessageThatCannotComeForwardIsTold) {
  KorvaleCopy& first = StartedCopy();
  const WindowHandle alpha = Open("Alpha");
  first.host.WhenMessageBox([&](const ShownMessage&) {
    WorkIn(alpha);
    desktop.LockForeground(ForegroundLock::kForGood);
    KorvaleCopy& second = NewCopy();
    second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
    second.ExpectBox("The window operation was not successful.  Please try again.", win32::kIdOk);
    EXPECT_FALSE(second.Start());
    EXPECT_EQ(second.host.Messages().size(), 2U);
    return win32::kIdOk;
  });
  first.Form().Messages().ShowMessageBox("Question", win32::kMbOk, "Korvale");
}

/// The folder has been renamed to other letters of the same name since the first copy started.
KorvaleCopy& Renamed(KorvaleCopy& copy) {
  copy.system.executablePath = "C:\\Programs\\WORK\\Korvale.exe";
  copy.system.files = {copy.system.executablePath};
  copy.host.AnswerNext(win32::kIdOk);
  return copy;
}

TEST_F(SecondStartTest, ACopyWhoseNameDiffersOnlyInCaseIsRestored) {
  KorvaleCopy& first = StartedCopy();
  desktop.ShowWindow(first.Handle(), win32::kSwMinimize);
  WorkIn(Open("Alpha"));
  EXPECT_FALSE(Renamed(NewCopy()).Start());
  EXPECT_FALSE(desktop.IsIconic(first.Handle()));
  EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle());
}

/// The first copy's main window is not shown yet, as a tip of its start-up waits behind another
/// window.
class SecondStartAtATip : public StartTest {
 protected:
  void ExpectTheTipComesForwardAtOnce(const std::function<KorvaleCopy&()>& second) {
    KorvaleCopy& first = UsedCopy();
    first.system.commandLine = "/anything";
    const WindowHandle alpha = Open("Alpha");
    first.host.WhenModal("frmMsgTip", [&](class Form& tip) {
      WorkIn(alpha);
      const std::uint64_t before = clock.GetTickCount64();
      EXPECT_FALSE(second().Start());
      EXPECT_EQ(desktop.GetForegroundWindow(), tip.Handle());
      EXPECT_EQ(clock.GetTickCount64(), before);
      first.user.PressKey(tip.Handle(), win32::kVkEscape);
    });
    EXPECT_TRUE(first.Start());
  }
};

TEST_F(SecondStartAtATip, BringsTheTipForwardAtOnce) {
  ExpectTheTipComesForwardAtOnce([this]() -> KorvaleCopy& {
    KorvaleCopy& second = NewCopy();
    second.host.AnswerNext(win32::kIdOk);
    return second;
  });
}

TEST_F(SecondStartAtATip, BringsItForwardAlsoWhenTheNamesDifferInCase) {
  ExpectTheTipComesForwardAtOnce([this]() -> KorvaleCopy& { return Renamed(NewCopy()); });
}

TEST_F(SecondStartTest, AStartThroughTheRootOfAShareBringsTheRunningCopyForward) {
  KorvaleCopy& first = StartedCopy();
  desktop.ShowWindow(first.Handle(), win32::kSwMinimize);
  WorkIn(Open("Alpha"));
  KorvaleCopy& second = NewCopy();
  second.system.shares = {{"\\\\server\\tool", "C:\\Programs\\Work"}};
  second.system.executablePath = "\\\\server\\tool\\Korvale.exe";
  int waits = 0;
  session->WhenWaiting([&] { ++waits; });
  second.ExpectBox("'Korvale - tool' is already open.", win32::kIdOk);
  EXPECT_FALSE(second.Start());
  EXPECT_EQ(waits, 0);
  EXPECT_FALSE(desktop.IsIconic(first.Handle()));
  EXPECT_EQ(desktop.GetForegroundWindow(), first.Handle());
}

}  // namespace
}  // namespace korvale

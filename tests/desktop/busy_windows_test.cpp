#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "desktop/window_actions.h"
#include "platform/win32_constants.h"
#include "tests/desktop/activation_case.h"

namespace korvale {
namespace {

constexpr std::uint64_t kLong = 4000;

/// Windows whose programs are busy for four seconds, which Windows does not call hung yet.
class BusyWindows : public Activation {
 protected:
  BusyWindows() { start = clock.GetTickCount64(); }

  void ExpectShortWait() {
    EXPECT_LE(Waited(), 100U);
    EXPECT_EQ(desktop.CallsThatWaited(), 0);
  }
  std::uint64_t Waited() { return clock.GetTickCount64() - start; }

  std::uint64_t start = 0;
};

TEST_F(BusyWindows, AMinimizedOneIsSelectedAndUnfoldsLater) {
  desktop.UserMinimizes(alpha);
  desktop.SetBusy(alpha, kLong);
  WindowTriple window = Triple(alpha);
  EXPECT_EQ(Activate(window), kActivationDone);
  ExpectShortWait();
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
  EXPECT_TRUE(desktop.IsIconic(alpha));
  clock.Advance(kLong);
  EXPECT_FALSE(desktop.IsIconic(alpha));
}

TEST_F(BusyWindows, AnOwnerThatDoesNotUnfoldIsNotTakenForAClosedWindow) {
  const WindowHandle owned = desktop.Open("Owned", {.owner = alpha});
  desktop.UserMinimizes(alpha);
  desktop.UserActivates(beta);
  desktop.SetBusy(alpha, kLong);
  WindowTriple window = Triple(owned, "Owned");
  EXPECT_EQ(Activate(window), kWindowNotAnswering);
  ExpectShortWait();
  EXPECT_EQ(window.handle, owned);
}

TEST_F(BusyWindows, AWindowThatStandsBesideItsMinimizedOwnerIsSelectedAllTheSame) {
  const WindowHandle owned = desktop.Open("Owned", {.owner = alpha});
  desktop.UserMinimizes(alpha);
  desktop.Reveal(owned);
  desktop.UserActivates(beta);
  desktop.SetHung(alpha, true);
  WindowTriple window = Triple(owned, "Owned");
  EXPECT_EQ(Activate(window), kActivationDone);
  EXPECT_EQ(desktop.ForegroundTitle(), "Owned");
}

TEST_F(BusyWindows, AnOwnerThatUnfoldsInTimeIsWaitedFor) {
  const WindowHandle owned = desktop.Open("Owned", {.owner = alpha});
  desktop.UserMinimizes(alpha);
  desktop.UserActivates(beta);
  desktop.SetBusy(alpha, 60);
  WindowTriple window = Triple(owned, "Owned");
  EXPECT_EQ(Activate(window), kActivationDone);
  EXPECT_EQ(Waited(), 60U);
  EXPECT_EQ(desktop.ForegroundTitle(), "Owned");
}

TEST_F(BusyWindows, TheMinimizeKeyGoesOnToThePreviousWindow) {
  previous.alternate = Triple(alpha);
  desktop.SetBusy(beta, kLong);
  actions.MinimizeOrMaximizeForeground("HOTKEY_MINIMIZE_PARENT");
  ExpectShortWait();
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
  clock.Advance(kLong);
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(BusyWindows, TheMinimizeKeyWaitsUntilWindowsHasBroughtTheNextOne) {
  const WindowHandle gamma = desktop.Open("Gamma");
  previous.alternate = Triple(alpha);
  desktop.SetBusy(gamma, 40);
  actions.MinimizeOrMaximizeForeground("HOTKEY_MINIMIZE_PARENT");
  EXPECT_EQ(Waited(), 40U);
  EXPECT_TRUE(desktop.IsIconic(gamma));
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
}

TEST_F(BusyWindows, TheMinimizeKeyDoesNotWaitWhereNothingComesForward) {
  desktop.UserMinimizes(alpha);
  desktop.UserMinimizes(mainWindow.handle);
  desktop.UserActivates(beta);
  actions.MinimizeOrMaximizeForeground("HOTKEY_MINIMIZE_PARENT");
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_EQ(Waited(), 0U);
}

TEST_F(BusyWindows, TheMaximizeKeyDoesNotWait) {
  desktop.SetBusy(beta, kLong);
  actions.MinimizeOrMaximizeForeground("HOTKEY_RESTORE/MAXIMIZE_PARENT");
  EXPECT_EQ(Waited(), 0U);
  clock.Advance(kLong);
  EXPECT_TRUE(desktop.IsZoomed(beta));
}

TEST_F(BusyWindows, HoldUpNeitherMinimizeAllNorRestoreAll) {
  std::vector<WindowHandle> busy;
  for (const char* const title : {"One", "Two", "Three", "Four"}) {
    busy.push_back(desktop.Open(title));
    desktop.SetBusy(busy.back(), kLong);
  }
  actions.MinimizeAll();
  ExpectShortWait();
  EXPECT_TRUE(desktop.IsIconic(alpha));
  clock.Advance(kLong);
  for (const WindowHandle hwnd : busy) {
    EXPECT_TRUE(desktop.IsIconic(hwnd));
    desktop.SetBusy(hwnd, kLong);
  }
  start = clock.GetTickCount64();
  actions.RestoreAll();
  ExpectShortWait();
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(desktop.ForegroundTitle(), "Main");
}

TEST_F(BusyWindows, RestoreAllWaitsForALivingOneAfterABusyOne) {
  desktop.UserMinimizes(beta);
  desktop.UserMinimizes(alpha);
  desktop.SetBusy(beta, kLong);
  desktop.SetBusy(alpha, 60);
  actions.RestoreAll();
  ExpectShortWait();
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(desktop.ForegroundTitle(), "Main");
}

TEST_F(BusyWindows, RestoreAllWaitsForNoneThatIsNot) {
  desktop.UserMinimizes(beta);
  desktop.UserMinimizes(alpha);
  const Calls calls = CallsOf([this] { actions.RestoreAll(); });
  EXPECT_EQ(Waited(), 0U);
  for (const char* const asked :
       {"SendMessageTimeoutW(Alpha, 0x0)", "SendMessageTimeoutW(Beta, 0x0)"}) {
    EXPECT_EQ(std::ranges::count(calls, asked), 1) << asked;
  }
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(beta));
}

TEST_F(BusyWindows, GoOnTopWhenTheyComeToIt) {
  desktop.SetBusy(alpha, kLong);
  requests.SetTopmost(alpha, true);
  ExpectShortWait();
  clock.Advance(kLong);
  EXPECT_EQ(desktop.GetWindowLongA(alpha, win32::kGwlExStyle), win32::kWsExTopmost);
}

TEST_F(BusyWindows, AreOnTopBeforeTheNextStepWhenTheyComeToItSoon) {
  desktop.SetBusy(alpha, 60);
  requests.SetTopmost(alpha, true);
  EXPECT_EQ(Waited(), 60U);
  EXPECT_EQ(desktop.GetWindowLongA(alpha, win32::kGwlExStyle), win32::kWsExTopmost);
}

TEST_F(BusyWindows, AreWaitedForOnceInAllByOneCommand) {
  desktop.UserMinimizes(alpha);
  desktop.UserMinimizes(beta);
  desktop.SetBusy(alpha, kLong);
  desktop.SetBusy(beta, kLong);
  WindowTriple first = Triple(alpha);
  WindowTriple second = Triple(beta, "Beta");
  Activate(first);
  Activate(second);
  requests.SetTopmost(alpha, true);
  ExpectShortWait();
}

TEST_F(BusyWindows, AreWaitedForAgainByTheNextCommand) {
  desktop.UserMinimizes(alpha);
  desktop.SetBusy(alpha, kLong);
  WindowTriple window = Triple(alpha);
  Activate(window);
  clock.Advance(1000);
  desktop.SetBusy(alpha, 50);
  start = clock.GetTickCount64();
  Activate(window);
  EXPECT_EQ(Waited(), 50U);
  EXPECT_FALSE(desktop.IsIconic(alpha));
}

TEST_F(BusyWindows, OurOwnAreChangedAtOnce) {
  log.Clear();
  requests.Show(mainWindow.handle, win32::kSwMinimize);
  requests.SetTopmost(mainWindow.handle, true);
  EXPECT_EQ(log.Take(), (Calls{"ShowWindow(Main, SW_MINIMIZE)",
                               "SetWindowPos(Main, HWND_TOPMOST, 0, 0, 0, 0, 3)"}));
}

}  // namespace
}  // namespace korvale

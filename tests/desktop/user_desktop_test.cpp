#include "desktop/user_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

/// Ours stands on the first virtual desktop; the user is on the second.
class UserDesktop : public DesktopCase {
 protected:
  UserDesktop() {
    desktop.UserSwitchesDesktop(2);
    log.Clear();
  }

  void Bring() { BringToUsersDesktop(desktop, desktop, desktop, mainWindow.handle); }

  Calls BringOurs() {
    log.Clear();
    Bring();
    return log.Take();
  }

  bool OursIsHere() {
    return desktop.IsWindowOnCurrentVirtualDesktop(mainWindow.handle) == true &&
           desktop.DwmGetWindowAttribute(mainWindow.handle) == 0;
  }

  const Calls moved = {"MoveWindowToDesktop(Main)"};
  const Calls shownAnew = {"ShowWindow(Main, SW_HIDE)", "ShowWindow(Main, SW_SHOWNA)"};
};

TEST_F(UserDesktop, AWindowThatIsThereStays) {
  desktop.UserSwitchesDesktop(1);
  EXPECT_EQ(BringOurs(), Calls{});
}

TEST_F(UserDesktop, TheWindowInFrontTellsWhereTheUserIs) {
  desktop.Open("Alpha");
  EXPECT_EQ(BringOurs(), moved);
  EXPECT_TRUE(OursIsHere());
}

TEST_F(UserDesktop, AnyOtherWindowTellsItWhenTheOneInFrontDoesNot) {
  desktop.Open("Alpha");
  desktop.Open("Clock", {.onEveryDesktop = true});
  EXPECT_EQ(BringOurs().back(), moved.back());
  EXPECT_TRUE(OursIsHere());
}

TEST_F(UserDesktop, AHiddenWindowIsNotAsked) {
  desktop.Hide(desktop.Open("Alpha"));
  const Calls calls = CallsOf([this] { Bring(); });
  EXPECT_EQ(std::ranges::count(calls, "GetWindowDesktopId(Main)"), 1);
  EXPECT_EQ(std::ranges::count(calls, "GetWindowDesktopId(Alpha)"), 0);
}

TEST_F(UserDesktop, WithNobodyToTellItIsShownAnew) {
  EXPECT_EQ(BringOurs(), shownAnew);
  EXPECT_TRUE(OursIsHere());
}

TEST_F(UserDesktop, WhatCannotBeMovedIsTriedOnceForEachDesktopAndThenShownAnew) {
  for (const char* const title : {"Alpha", "Beta", "Gamma"}) desktop.Open(title);
  desktop.LoseVirtualDesktopManager("MoveWindowToDesktop");
  Calls expected = moved;
  expected.insert(expected.end(), shownAnew.begin(), shownAnew.end());
  EXPECT_EQ(BringOurs(), expected);
}

TEST_F(UserDesktop, AWindowOfTheDesktopThatTheUserIsLeavingTellsNothing) {
  desktop.Open("Alpha");
  desktop.Windows().AnimateSwitch(true);
  desktop.UserSwitchesDesktop(3);
  EXPECT_EQ(BringOurs(), shownAnew);
}

TEST_F(UserDesktop, TheManagerMayBeLostMeanwhile) {
  for (const char* const title : {"Alpha", "Beta"}) desktop.Open(title);
  log.WhenCalled("MoveWindowToDesktop", [this] { desktop.LoseVirtualDesktopManager(); });
  Calls expected = moved;
  expected.insert(expected.end(), shownAnew.begin(), shownAnew.end());
  EXPECT_EQ(BringOurs(), expected);
}

}  // namespace
}  // namespace korvale

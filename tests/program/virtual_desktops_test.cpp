#include "tests/program/virtual_desktops_test.h"

#include <string>
#include <vector>

namespace korvale {
namespace {

TEST_F(VirtualDesktopsTest, ATagLeadsToItsWindowOnAnotherDesktop) {
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_EQ(Desktop(), 1);
  EXPECT_TRUE(korvale.host.Messages().empty());
}

TEST_F(VirtualDesktopsTest, ATagFindsItsWindowOnAnotherDesktopAgain) {
  korvale.TagEntry(1)->tag = "0";
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(VirtualDesktopsTest, TheWayBackCrossesDesktops) {
  ExpectTagLeadsTo(0, "Alpha");
  EXPECT_EQ(Desktop(), 1);
  ExpectTagLeadsTo(0, "Beta");
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, MinimizeAllLeavesOtherDesktopsAlone) {
  PressHotKey(win32::kModWin, 'O');
  CloseOptions();
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Minimize All"});
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsIconic(alpha));
  desktop.Windows().Find(alpha)->iconic = true;
  desktop.UserRestores(korvale.Handle());
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Restore All"});
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_TRUE(desktop.IsIconic(alpha));
}

TEST_F(VirtualDesktopsTest, MinimizingAWindowStaysOnTheDesktop) {
  PressHotKey(win32::kModAlt, win32::kVkDown);
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, TheOptionsDialogOpensWhereTheUserIs) {
  OpenOptions();
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(Desktop(), 2);
  EXPECT_EQ(DesktopOf(korvale.Handle()), 2) << "the dialog hangs on it";
  CloseOptions();
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, AnOpenOptionsDialogComesToTheUser) {
  SwitchDesktop(1);
  OpenOptions();
  SwitchDesktop(2);
  EXPECT_EQ(Front(), "Beta");
  OpenOptions();
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, ClosingADialogNeverLeadsToAnotherDesktop) {
  OpenOptions();
  desktop.Close(beta);
  CloseOptions();
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, TheWindowMenuPopsUpWhereTheUserIs) {
  korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>&) {
    EXPECT_EQ(Desktop(), 2);
    return "";
  });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, AMessageAppearsWhereTheUserIsAndLeavesTheMainWindowWhereItIs) {
  desktop.Close(alpha);
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, "Window:  [Alpha]  is not open.");
    EXPECT_EQ(Desktop(), 2);
    EXPECT_FALSE(desktop.IsWindowEnabled(korvale.Handle()));
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(Desktop(), 2);
  EXPECT_EQ(DesktopOf(korvale.Handle()), 1);
  EXPECT_TRUE(desktop.IsWindowEnabled(korvale.Handle()));
}

TEST_F(VirtualDesktopsTest, AMessageOverTheOptionsDialogBringsItAlong) {
  desktop.Close(alpha);
  SwitchDesktop(1);
  OpenOptions();
  SwitchDesktop(2);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    EXPECT_EQ(Desktop(), 2);
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(DesktopOf(korvale.Loaded("frmOptions").Handle()), 2);
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(VirtualDesktopsTest, TheNoticeOverAMessageOfAnotherDesktopBringsThatAlong) {
  desktop.Close(alpha);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    SwitchDesktop(1);
    korvale.host.WhenMessageBox([&](const ShownMessage&) {
      EXPECT_EQ(Desktop(), 1);
      return win32::kIdOk;
    });
    PressTag(1);
    EXPECT_EQ(Desktop(), 1);
    return win32::kIdOk;
  });
  Open("Gamma");
  SwitchDesktop(1);
  Open("Delta");
  SwitchDesktop(2);
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 2U);
}

TEST_F(VirtualDesktopsTest, TheWaitWindowAppearsWhereTheUserIs) {
  korvale.host.WhenWaiting([&] {
    const WindowHandle notice = korvale.Loaded("frmWaitWindow").Handle();
    EXPECT_EQ(desktop.DwmGetWindowAttribute(notice), 0U);
    EXPECT_EQ(Desktop(), 2);
  });
  PressHotKey(0, win32::kVkPause);
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(VirtualDesktopsTest, TheUsersDesktopIsKnownByAnyWindowThatStandsThere) {
  WorkIn(desktop.FindWindowA("Program Manager"));
  OpenOptions();
  EXPECT_EQ(Desktop(), 2);
  EXPECT_EQ(DesktopOf(korvale.Handle()), 2);
}

TEST_F(VirtualDesktopsTest, AWindowOnEveryDesktopDoesNotTellWhichOneIsTheUsers) {
  Open("Pinned", {.onEveryDesktop = true});
  OpenOptions();
  EXPECT_EQ(Desktop(), 2);
  EXPECT_EQ(DesktopOf(korvale.Handle()), 2);
}

TEST_F(VirtualDesktopsTest, OnAnEmptyDesktopTheDialogAndThePopUpComeToTheUserToo) {
  desktop.Close(beta);
  SwitchDesktop(3);
  OpenOptions();
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(Desktop(), 3);
  SwitchDesktop(4);
  OpenOptions();
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(Desktop(), 4);
  SwitchDesktop(5);
  korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>&) {
    EXPECT_EQ(Desktop(), 5);
    return "";
  });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(Desktop(), 5);
}

TEST_F(VirtualDesktopsTest, OnTheSameDesktopNothingIsMoved) {
  SwitchDesktop(1);
  log.Clear();
  OpenOptions();
  CloseOptions();
  EXPECT_EQ(log.CallsOf("MoveWindowToDesktop"), std::vector<std::string>{});
}

TEST_F(VirtualDesktopsTest, ASecondStartBringsTheFirstCopyForwardFromItsDesktop) {
  KorvaleCopy& second = NewCopy();
  second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
  EXPECT_FALSE(second.Start());
  EXPECT_EQ(desktop.GetForegroundWindow(), korvale.Handle());
  EXPECT_EQ(Desktop(), 1);
}

TEST_F(VirtualDesktopsTest, ASuspendedProgramOfTheSameTitleIsNotTakenForTheTaggedWindow) {
  const WindowHandle mail = Open("Alpha", {.className = "ApplicationFrameWindow"});
  desktop.SetSuspended(mail, true);
  WorkIn(beta);
  desktop.Close(alpha);
  korvale.ExpectBox("Window:  [Alpha]  is not open.", win32::kIdOk);
  PressTag(1);
  EXPECT_EQ(Front(), "Beta");
  desktop.SetSuspended(mail, false);
  ExpectTagLeadsTo(1, "Alpha");
}

TEST_F(VirtualDesktopsTest, TheWayBackPassesOverASuspendedProgram) {
  const WindowHandle mail = Open("Mail", {.className = "ApplicationFrameWindow"});
  WorkIn(beta);
  desktop.SetSuspended(mail, true);
  ExpectTagLeadsTo(0, "Alpha");
}

}  // namespace
}  // namespace korvale

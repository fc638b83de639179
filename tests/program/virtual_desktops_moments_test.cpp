#include <string>

#include "tests/program/virtual_desktops_test.h"

namespace korvale {
namespace {

TEST_F(VirtualDesktopsTest, WithoutAManagerOfDesktopsEverythingIsStillFound) {
  desktop.LoseVirtualDesktopManager();
  OpenOptions();
  EXPECT_EQ(Front(), "Korvale - Options");
  CloseOptions();
  SwitchDesktop(2);
  ExpectTagLeadsTo(1, "Alpha");
  SwitchDesktop(2);
  ExpectTagLeadsTo(0, "Alpha");
  SwitchDesktop(2);
  KorvaleCopy& second = NewCopy();
  second.ExpectBox("'Korvale - Work' is already open.", win32::kIdOk);
  EXPECT_FALSE(second.Start());
  EXPECT_EQ(desktop.GetForegroundWindow(), korvale.Handle());
}

TEST_F(VirtualDesktopsTest, NobodyWaitsForAShellThatHangs) {
  desktop.SetHung(desktop.GetShellWindow(), true);
  log.BeforeEachCall([](const std::string& call) {
    EXPECT_EQ(call.find("VirtualDesktop("), std::string::npos) << call;
    EXPECT_EQ(call.find("DesktopId("), std::string::npos) << call;
  });
  ExpectTagLeadsTo(1, "Alpha");
  OpenOptions();
  log.BeforeEachCall(nullptr);
}

class LeftInFront : public VirtualDesktopsTest {
 protected:
  LeftInFront() {
    SwitchDesktop(1);
    WorkIn(alpha);
    desktop.UserSwitchesDesktop(2, FrontOfLeftDesktop::kStays);
    LetTick();
  }
};

TEST_F(LeftInFront, ATagLeadsBackToTheWindowThatIsOnlyNominallyInFront) {
  EXPECT_EQ(Front(), "Alpha");
  PressTag(1);
  EXPECT_EQ(Desktop(), 1);
  EXPECT_EQ(Front(), "Alpha");
}

TEST_F(LeftInFront, TheKeysThatMinimizeAndMaximizeLeaveItAlone) {
  PressHotKey(win32::kModAlt, win32::kVkDown);
  PressHotKey(win32::kModAlt, win32::kVkUp);
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsZoomed(alpha));
  EXPECT_EQ(Desktop(), 2);
}

TEST_F(VirtualDesktopsTest, OptionsMayCloseWhileTheManagerIsAsked) {
  SwitchDesktop(1);
  OpenOptions();
  LetTick();
  WorkIn(alpha);
  SwitchDesktop(2);
  log.WhenCalled("IsWindowOnCurrentVirtualDesktop(Alpha",
                 [this] { korvale.Loaded("frmOptions").Unload(); });
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(VirtualDesktopsTest, AMinimizedWindowOfAnotherDesktopIsRestoredThere) {
  desktop.Windows().Find(alpha)->iconic = true;
  ExpectTagLeadsTo(1, "Alpha");
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(Desktop(), 1);
}

TEST_F(VirtualDesktopsTest, AWindowWhoseOwnerIsMinimizedOnAnotherDesktopIsShownThere) {
  SwitchDesktop(1);
  Open("Palette", {.owner = alpha});
  AddTagEntry(korvale.Tags(), 3, "&3  Palette");
  WorkIn(alpha);
  desktop.UserMinimizes(alpha);
  SwitchDesktop(2);
  ExpectTagLeadsTo(3, "Palette");
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_EQ(Desktop(), 1);
}

TEST_F(VirtualDesktopsTest, WhileTheDesktopChangesTheOldOneIsNotTakenForTheUsers) {
  desktop.Windows().AnimateSwitch(true);
  SwitchDesktop(3);
  EXPECT_EQ(desktop.DwmGetWindowAttribute(beta), 0U);
  OpenOptions();
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(Desktop(), 3);
}

TEST_F(VirtualDesktopsTest, AStoreProgramThatTheUserClosesLeavesTheDisplay) {
  const WindowHandle mail = Open("Mail", {.className = "ApplicationFrameWindow"});
  LetTick();
  EXPECT_EQ(korvale.TargetWindow(), "Mail");
  desktop.SetSuspended(mail, true);
  LetTick();
  EXPECT_EQ(korvale.TargetWindow(), "Beta");
}

TEST_F(VirtualDesktopsTest, TheNoticeComesAlongWhenAHotKeyIsPressedElsewhere) {
  desktop.Close(alpha);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    korvale.host.WhenMessageBox([&](const ShownMessage& notice) {
      const WindowHandle window = desktop.FindWindowA(notice.title);
      for (const int elsewhere : {1, 3}) {
        SwitchDesktop(elsewhere);
        EXPECT_NE(desktop.DwmGetWindowAttribute(window), 0U);
        PressTag(1);
        EXPECT_EQ(Desktop(), elsewhere);
        EXPECT_EQ(desktop.GetForegroundWindow(), window);
      }
      return win32::kIdOk;
    });
    PressTag(1);
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 2U);
}

class EmptyDesktop : public VirtualDesktopsTest {
 protected:
  void GoToEmptyDesktop() {
    desktop.Close(beta);
    SwitchDesktop(3);
    EXPECT_EQ(Front(), "Program Manager");
  }
};

TEST_F(EmptyDesktop, AMessageOverTheOptionsDialogComesToTheUser) {
  desktop.Close(alpha);
  SwitchDesktop(1);
  OpenOptions();
  GoToEmptyDesktop();
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    EXPECT_EQ(Desktop(), 3);
    EXPECT_EQ(desktop.DwmGetWindowAttribute(desktop.GetForegroundWindow()), 0U);
    return win32::kIdOk;
  });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_EQ(Desktop(), 3);
}

TEST_F(EmptyDesktop, ATipComesToTheUser) {
  GoToEmptyDesktop();
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    EXPECT_EQ(Desktop(), 3);
    EXPECT_EQ(desktop.DwmGetWindowAttribute(tip.Handle()), 0U);
    korvale.user.PressKey(tip.Handle(), win32::kVkEscape);
  });
  korvale.Form().ShowTip(TipNumber::kCommandLine, "Text", "TIP", 3000);
  EXPECT_EQ(Desktop(), 3);
}

TEST_F(VirtualDesktopsTest, ASecondStartBringsForwardWhatWaitsOnAnotherDesktop) {
  SwitchDesktop(1);
  WorkIn(alpha);
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    const WindowHandle message = desktop.GetForegroundWindow();
    SwitchDesktop(2);
    KorvaleCopy& second = NewCopy();
    second.host.AnswerNext(win32::kIdOk);
    EXPECT_FALSE(second.Start());
    EXPECT_EQ(desktop.GetForegroundWindow(), message);
    EXPECT_EQ(Desktop(), 1);
    return win32::kIdOk;
  });
  korvale.Form().Messages().ShowMessageBox("Question", win32::kMbOk, "Korvale");
}

}  // namespace
}  // namespace korvale

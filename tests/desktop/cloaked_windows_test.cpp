#include <string>

#include "desktop/foreground_return.h"
#include "desktop/waiting_window.h"
#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

/// Mail is a suspended Store program, Alpha stands on another virtual desktop, Beta where the user
/// is.
class CloakedWindows : public DesktopCase {
 protected:
  CloakedWindows() {
    desktop.UserSwitchesDesktop(2);
    mainWindow.handle = desktop.Open("Second main", {.process = kOurProcess});
    mail = desktop.Open("Mail", {.className = "ApplicationFrameWindow"});
    beta = desktop.Open("Beta");
    desktop.SetSuspended(mail, true);
    log.Clear();
  }

  ActivationResult Activate(WindowHandle hwnd, bool act) {
    WindowTriple window{hwnd, desktop.Title(hwnd), desktop.Windows().Find(hwnd)->className};
    return actions.ActivateWindow(window, false, act);
  }

  const WindowHandle alpha = desktop.Open("Alpha");
  WindowHandle mail = 0;
  WindowHandle beta = 0;
};

TEST_F(CloakedWindows, SearchesPassOverASuspendedWindow) {
  EXPECT_EQ(enumeration.FindByTitle("Mail"), 0);
  EXPECT_EQ(enumeration.FindByTitleAndClass("Mail", "ApplicationFrameWindow"), 0);
  desktop.SetSuspended(mail, false);
  EXPECT_EQ(enumeration.FindByTitle("Mail"), mail);
}

TEST_F(CloakedWindows, SearchesFindAWindowOfAnotherDesktop) {
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), alpha);
  EXPECT_EQ(enumeration.FindByTitleAndClass("Alpha", "Window"), alpha);
}

TEST_F(CloakedWindows, SearchesFindADialogWhoseOwnerStandsOnAnotherDesktop) {
  const WindowHandle dialog = desktop.OpenModalDialog(alpha, "Save As");
  desktop.UserSwitchesDesktop(2);
  EXPECT_EQ(enumeration.FindByTitle("Save As"), dialog);
}

TEST_F(CloakedWindows, AWindowThatItsOwnProgramCloaksIsNotFoundOnAnyDesktop) {
  desktop.Windows().Find(alpha)->cloaked = win32::kDwmCloakedApp;
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), 0);
  desktop.UserSwitchesDesktop(1);
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), 0);
}

TEST_F(CloakedWindows, TheRefreshOfTheTagsDoesTheSame) {
  AddTag(1, "Mail");
  AddTag(2, "Alpha");
  AddTag(3, "Beta");
  enumeration.RefreshTags();
  EXPECT_EQ(HandleOfTag(1), 0);
  EXPECT_EQ(ClassOfTag(1), "");
  EXPECT_EQ(HandleOfTag(2), alpha);
  EXPECT_EQ(HandleOfTag(3), beta);
}

TEST_F(CloakedWindows, AreNotTheFirstWindow) {
  EXPECT_EQ(enumeration.FindTopWindow(), beta);
  desktop.Close(beta);
  EXPECT_EQ(enumeration.FindTopWindow(), 0);
}

TEST_F(CloakedWindows, MinimizeAllAndRestoreAllLeaveThemAlone) {
  actions.MinimizeAll();
  EXPECT_TRUE(desktop.IsIconic(beta));
  EXPECT_FALSE(desktop.IsIconic(mail));
  EXPECT_FALSE(desktop.IsIconic(alpha));
  for (const WindowHandle hwnd : {mail, alpha}) desktop.Windows().Find(hwnd)->iconic = true;
  actions.RestoreAll();
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_TRUE(desktop.IsIconic(mail));
  EXPECT_TRUE(desktop.IsIconic(alpha));
}

TEST_F(CloakedWindows, ASuspendedWindowIsNotOpen) {
  EXPECT_EQ(Activate(mail, false), kWindowNotOpen);
  EXPECT_EQ(Activate(mail, true), kWindowNotOpen);
  EXPECT_EQ(desktop.ForegroundTitle(), "Beta");
}

TEST_F(CloakedWindows, AWindowOfAnotherDesktopComesForwardThere) {
  EXPECT_EQ(Activate(alpha, false), kActivationDone);
  EXPECT_EQ(Activate(alpha, true), kActivationDone);
  EXPECT_EQ(desktop.ForegroundTitle(), "Alpha");
  EXPECT_EQ(desktop.Windows().CurrentDesktop(), 1);
}

TEST_F(CloakedWindows, WithoutAManagerOfDesktopsACloakedWindowIsNotOpen) {
  desktop.LoseVirtualDesktopManager();
  EXPECT_EQ(Activate(alpha, false), kWindowNotOpen);
}

TEST_F(CloakedWindows, TheManagerIsAskedOnlyAboutCloakedWindows) {
  log.IncludeReads(true);
  Activate(beta, true);
  enumeration.FindByTitle("Beta");
  log.IncludeReads(false);
  const Calls calls = log.CallsOf("IsWindowOnCurrentVirtualDesktop");
  for (const std::string& call : calls) {
    EXPECT_EQ(call.find("(Beta)"), std::string::npos) << call;
  }
}

TEST_F(CloakedWindows, TheForegroundIsNotReturnedAcrossDesktops) {
  EXPECT_FALSE(ReturnForegroundTo(desktop, routines.requests, Know(desktop, alpha)));
  EXPECT_FALSE(ReturnForegroundTo(desktop, routines.requests, Know(desktop, mail)));
  EXPECT_EQ(log.CallsOf("SetForegroundWindow"), Calls{});
}

TEST_F(CloakedWindows, ADialogThatIsNotOnTheScreenTakesNoInput) {
  const WindowHandle dialog = desktop.OpenModalDialog(beta, "Save As");
  EXPECT_EQ(FindInputWindow(desktop, beta), dialog);
  desktop.Windows().Find(dialog)->cloaked = win32::kDwmCloakedApp;
  EXPECT_EQ(FindInputWindow(desktop, beta), 0);
}

TEST_F(CloakedWindows, ADialogOnAnotherDesktopTakesTheInputOfItsOwner) {
  const WindowHandle dialog = desktop.OpenModalDialog(alpha, "Save As");
  desktop.UserSwitchesDesktop(2);
  EXPECT_EQ(FindInputWindow(desktop, alpha), dialog);
}

TEST_F(CloakedWindows, AreFollowedOnceTheUserSeesThem) {
  desktop.UserActivates(beta);
  tracker.tmrWindow_Timer();
  desktop.UserActivates(mail);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, beta);
  desktop.SetSuspended(mail, false);
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, mail);
}

}  // namespace
}  // namespace korvale

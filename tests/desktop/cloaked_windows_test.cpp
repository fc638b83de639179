#include <algorithm>
#include <string>

#include "desktop/foreground_return.h"
#include "desktop/waiting_window.h"
#include "desktop/window_visibility.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/desktop/cloaked_case.h"

namespace korvale {
namespace {

TEST_F(CloakedWindows, SearchesPassOverASuspendedWindow) {
  EXPECT_EQ(enumeration.FindByTitle("Mail"), 0);
  EXPECT_EQ(FindByTitleAndClass("Mail", "ApplicationFrameWindow"), 0);
  desktop.SetSuspended(mail, false);
  EXPECT_EQ(enumeration.FindByTitle("Mail"), mail);
}

TEST_F(CloakedWindows, SearchesFindTheLowestWindowAboveSuspendedOnes) {
  desktop.SetSuspended(desktop.Open("Mail 2"), true);
  const WindowHandle shown = desktop.Open("Mail 3");
  desktop.Open("Mail 4");
  EXPECT_EQ(enumeration.FindByTitle("Mail"), shown);
}

TEST_F(CloakedWindows, SearchesFindAWindowOfAnotherDesktop) {
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), alpha);
  EXPECT_EQ(FindByTitleAndClass("Alpha", "Window"), alpha);
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

TEST_F(CloakedWindows, NobodyIsAskedAboutTheOwnerOfAWindowThatHasNone) {
  EXPECT_EQ(CallsOf([this] { EXPECT_TRUE(IsPutAway(desktop, desktop, mail)); }),
            (Calls{"DwmGetWindowAttribute(Mail)", "DwmGetWindowAttribute(Mail)",
                   "IsWindowOnCurrentVirtualDesktop(Mail)", "GetWindow(Mail, GW_OWNER)"}));
}

TEST_F(CloakedWindows, OfALongChainOfOwnersOnlyTheNearestAreAsked) {
  WindowHandle last = alpha;
  for (int i = 0; i < 40; ++i) last = desktop.Open("Owned", {.owner = last});
  desktop.UserSwitchesDesktop(2);
  const Calls calls = CallsOf([&] { IsPutAway(desktop, desktop, last); });
  EXPECT_EQ(std::ranges::count(calls, "IsWindowOnCurrentVirtualDesktop(Owned)"), 16);
}

TEST_F(CloakedWindows, TheRefreshOfTheTagsDoesTheSame) {
  AddTag(1, "Mail");
  AddTag(2, "Alpha");
  AddTag(3, "Beta");
  enumeration.RefreshTags(1);
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

TEST_F(CloakedWindows, WithoutAnAnswerACloakedWindowIsAsVisibleAsEver) {
  MenuItem& tag = AddTag(1, "Alpha");
  for (const char* const lost : {"", "IsWindowOnCurrentVirtualDesktop", "GetWindowDesktopId"}) {
    desktop.LoseVirtualDesktopManager(lost);
    EXPECT_EQ(Activate(alpha, false), kActivationDone) << lost;
    EXPECT_EQ(enumeration.FindByTitle("Alpha"), alpha) << lost;
    EXPECT_EQ(FindByTitleAndClass("Alpha", "Window"), alpha) << lost;
    tag.tag = "0";
    enumeration.RefreshTags(1);
    EXPECT_EQ(HandleOfTag(1), alpha) << lost;
  }
}

TEST_F(CloakedWindows, WithoutAnAnswerAWindowThatItsOwnProgramCloaksIsStillNotOpen) {
  desktop.LoseVirtualDesktopManager();
  desktop.Windows().Find(alpha)->cloaked = win32::kDwmCloakedApp;
  EXPECT_EQ(Activate(alpha, false), kWindowNotOpen);
}

TEST_F(CloakedWindows, TheManagerIsAskedOnlyAboutCloakedWindows) {
  const Calls calls = CallsOf([this] {
    Activate(beta, true);
    Activate(alpha, false);
  });
  EXPECT_EQ(std::ranges::count(calls, "IsWindowOnCurrentVirtualDesktop(Beta)"), 0);
  EXPECT_EQ(std::ranges::count(calls, "IsWindowOnCurrentVirtualDesktop(Alpha)"), 1);
}

TEST_F(CloakedWindows, ASearchAsksOnlyAboutTheWindowsThatFit) {
  const Calls calls = CallsOf([this] {
    enumeration.FindByTitle("Beta");
    FindByTitleAndClass("Alpha", "Notepad");
  });
  EXPECT_EQ(std::ranges::count(calls, "DwmGetWindowAttribute(Beta)"), 1);
  for (const char* const title : {"Alpha", "Mail"}) {
    EXPECT_EQ(std::ranges::count(calls, std::string("DwmGetWindowAttribute(") + title + ")"), 0);
  }
}

TEST_F(CloakedWindows, AnotherEntryMayGoWhileTheManagerIsAsked) {
  for (const int tag : {1, 2, 3}) AddTag(tag, "Alpha");
  log.WhenCalled("IsWindowOnCurrentVirtualDesktop", [this] {
    for (const int tag : {1, 2}) tags.mnuWindowParentList.Unload(tag);
  });
  enumeration.RefreshTags(1);
  EXPECT_EQ(tags.mnuWindowParentList.Find(1), nullptr);
  EXPECT_EQ(HandleOfTag(3), alpha);
}

TEST_F(CloakedWindows, ATagRenamedWhileTheManagerIsAskedIsFoundByItsNewName) {
  AddTag(1, "Gone", "Old");
  AddTag(2, "Alpha");
  log.WhenCalled("IsWindowOnCurrentVirtualDesktop(Alpha",
                 [this] { tags.mnuWindowParentList.Find(1)->caption = "&1  Beta"; });
  const Calls calls = CallsOf([this] { routines.selection.SelectTag(1); });
  EXPECT_EQ(HandleOfTag(1), beta) << "which the refresh has passed over under the former name";
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 2);
}

TEST_F(CloakedWindows, AQuestionThatChangesNothingTakesNoSecondPass) {
  AddTag(1, "Gone", "Old");
  AddTag(2, "Alpha");
  const Calls calls = CallsOf([this] { routines.selection.SelectTag(1); });
  EXPECT_EQ(std::ranges::count(calls, "IsWindowOnCurrentVirtualDesktop(Alpha)"), 1);
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 1);
  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(CloakedWindows, ASearchWhileTheManagerIsAskedLeavesTheTagsResolved) {
  AddTag(1, "Beta");
  AddTag(2, "Alpha");
  log.WhenCalled("IsWindowOnCurrentVirtualDesktop(Alpha",
                 [this] { EXPECT_THROW(enumeration.RefreshTags(1), RunTimeError); });
  enumeration.RefreshTags(2);
  EXPECT_EQ(HandleOfTag(1), beta);
  EXPECT_EQ(HandleOfTag(2), alpha);
}

TEST_F(CloakedWindows, TheManagerIsAskedOnceAboutASuspendedWindowThatATagFits) {
  AddTag(1, "Mail", "ApplicationFrameWindow");
  const Calls calls = CallsOf([this] { routines.selection.SelectTag(1); });
  EXPECT_EQ(std::ranges::count(calls, "IsWindowOnCurrentVirtualDesktop(Mail)"), 1);
  EXPECT_EQ(std::ranges::count(calls, "EnumWindows()"), 1);
  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(CloakedWindows, TheEntryMayGoWhileItIsSelected) {
  for (int question = 1; question <= 6; ++question) {
    AddTag(1, "Alpha");
    int asked = 0;
    log.BeforeEachCall([&](const std::string& call) {
      const bool now = call.starts_with("IsWindowOnCurrentVirtualDesktop(Alpha") &&
                       ++asked == question && tags.mnuWindowParentList.Find(1) != nullptr;
      if (now) tags.mnuWindowParentList.Unload(1);
    });
    routines.selection.SelectTag(1);
    log.BeforeEachCall(nullptr);
    EXPECT_TRUE(messages.shown.empty());
    if (tags.mnuWindowParentList.Find(1) != nullptr) tags.mnuWindowParentList.Unload(1);
    desktop.UserSwitchesDesktop(2);
  }
}

TEST_F(CloakedWindows, AWindowWorkedInMayBeForgottenWhileTheManagerIsAsked) {
  for (const WindowHandle hwnd : {alpha, beta}) {
    desktop.UserActivates(hwnd);
    tracker.tmrWindow_Timer();
  }
  desktop.UserSwitchesDesktop(2);
  tracker.tmrWindow_Timer();
  log.WhenCalled("IsWindowOnCurrentVirtualDesktop(Alpha", [this] {
    tracker.ForgetVisit(beta);
    tracker.ForgetVisit(alpha);
  });
  tracker.UpdateRecord();
  tracker.UpdateRecord();
  EXPECT_EQ(previous.current.handle, 0);
}

TEST_F(CloakedWindows, TheForegroundIsNotReturnedAcrossDesktops) {
  EXPECT_EQ(ReturnForegroundTo(desktop, routines.requests, Know(desktop, alpha)),
            RequestResult::kFailed);
  EXPECT_EQ(ReturnForegroundTo(desktop, routines.requests, Know(desktop, mail)),
            RequestResult::kFailed);
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

TEST_F(CloakedWindows, ADialogThatItsProgramCloaksTakesNoInputOnAnyDesktop) {
  const WindowHandle dialog = desktop.OpenModalDialog(alpha, "Save As");
  desktop.SetCloakedByProgram(dialog, true);
  desktop.UserSwitchesDesktop(2);
  EXPECT_EQ(FindInputWindow(desktop, alpha), 0);
}

TEST_F(CloakedWindows, AWindowJustSelectedOnAnotherDesktopCanBeMinimizedAtOnce) {
  AddTag(1, "Alpha");
  desktop.DelayForeground(true);
  routines.selection.SelectTag(1);
  actions.MinimizeOrMaximizeForeground("HOTKEY_MINIMIZE_PARENT");
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(beta));
}

TEST_F(CloakedWindows, AWindowSelectedEarlierIsNotMinimizedOnceItsDesktopIsLeft) {
  AddTag(1, "Alpha");
  routines.selection.SelectTag(1);
  tracker.tmrWindow_Timer();
  desktop.UserSwitchesDesktop(2, FrontOfLeftDesktop::kStays);
  ASSERT_EQ(desktop.ForegroundTitle(), "Alpha");
  actions.MinimizeOrMaximizeForeground("HOTKEY_MINIMIZE_PARENT");
  EXPECT_FALSE(desktop.IsIconic(alpha));
}

}  // namespace
}  // namespace korvale

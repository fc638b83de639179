#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "tests/program/korvale_world.h"

namespace korvale {
namespace {

using Calls = std::vector<std::string>;

class WindowMenuActionsTest : public KorvaleWorld {
 protected:
  /// A started copy, written as "Korvale" in the log; the user has come from `window` to its main
  /// window.
  KorvaleCopy& StartedAfter(WindowHandle window) {
    KorvaleCopy& korvale = KorvaleWorld::StartedAfter(window);
    log.NameWindow(korvale.Handle(), "Korvale");
    log.Clear();
    return korvale;
  }

  /// The calls that changed the desktop, without those on the settings and the forms.
  Calls DesktopCalls() {
    Calls calls;
    for (const std::string& call : log.Calls()) {
      if (call.starts_with("ShowWindow") || call.starts_with("SetForegroundWindow") ||
          call.starts_with("SetWindowPos")) {
        calls.push_back(call);
      }
    }
    return calls;
  }

  /// Changes something that the next menu command saves.
  static void ChangeColor(KorvaleCopy& korvale) { ++korvale.Startup().LastColorSelected; }
  bool Saved() { return !log.CallsOf("SaveSetting").empty(); }
};

TEST_F(WindowMenuActionsTest, MinimizeAllAndRestoreAllWorkOnTheWholeDesktop) {
  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
  KorvaleCopy& korvale = StartedAfter(beta);
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Minimize All"});
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_TRUE(desktop.IsIconic(beta));
  desktop.UserRestores(korvale.Handle());
  LetTick();
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Restore All"});
  EXPECT_FALSE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuActionsTest, AlwaysOnTopOfTheMainWindowTogglesAndIsStored) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Korvale  Always On Top"});
  EXPECT_TRUE(korvale.WindowMenuItems().front().checked);
  EXPECT_EQ(log.CallsOf("SetWindowPos").front(),
            "SetWindowPos(Korvale, HWND_TOPMOST, 0, 0, 0, 0, 3)");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "Startup", "AlwaysOnTop"), "True");
  log.Clear();
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "Korvale  Always On Top"});
  EXPECT_FALSE(korvale.WindowMenuItems().front().checked);
  EXPECT_EQ(log.CallsOf("SetWindowPos").front(),
            "SetWindowPos(Korvale, HWND_NOTOPMOST, 0, 0, 0, 0, 3)");
  EXPECT_EQ(store.GetSetting("Korvale - Work", "Startup", "AlwaysOnTop"), "False");
}

TEST_F(WindowMenuActionsTest, AlwaysOnTopOfThePreviousWindowComesBackToTheMainWindow) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  log.Clear();
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "[Alpha]  Always On Top"});
  EXPECT_EQ(log.CallsOf("SetWindowPos"),
            std::vector<std::string>{"SetWindowPos(Alpha, HWND_TOPMOST, 0, 0, 0, 0, 16403)"});
  EXPECT_EQ(Front(), "Korvale - Work");
  const MenuItem& item = korvale.Form().Menu("mnuWindowPreviousWindowAlwaysOnTop");
  EXPECT_TRUE(item.checked) << "not only when the menu opens";
  EXPECT_TRUE(korvale.WindowMenuItems()[1].checked);
  log.Clear();
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "[Alpha]  Always On Top"});
  EXPECT_FALSE(item.checked);
  EXPECT_EQ(DesktopCalls(), (Calls{"SetForegroundWindow(Alpha)",
                                   "SetWindowPos(Alpha, HWND_NOTOPMOST, 0, 0, 0, 0, 16403)",
                                   "SetForegroundWindow(Korvale)"}));
  EXPECT_FALSE(korvale.WindowMenuItems()[1].checked);
}

TEST_F(WindowMenuActionsTest, ABusyWindowPutOnTopStaysBehindTheMainWindowWhenItAnswers) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.SetBusy(alpha, 5000);
  korvale.user.ChooseMenu(korvale.Handle(), {"Window", "[Alpha]  Always On Top"});
  EXPECT_EQ(Front(), "Korvale - Work");
  clock.Advance(5000);
  EXPECT_EQ(desktop.GetWindowLongA(alpha, win32::kGwlExStyle), win32::kWsExTopmost);
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(WindowMenuActionsTest, AlwaysOnTopOfAPreviousWindowThatCannotBeActivatedOnlySaysSo) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.SetEnabled(alpha, false);
  korvale.ExpectBox("The window operation was not successful.  Please try again.", "Korvale",
                    win32::kMbSetForeground, win32::kIdOk);
  log.Clear();
  ChangeColor(korvale);
  korvale.ChooseLate("mnuWindowPreviousWindowAlwaysOnTop");
  EXPECT_FALSE(korvale.Form().Menu("mnuWindowPreviousWindowAlwaysOnTop").checked);
  EXPECT_TRUE(log.CallsOf("SetWindowPos").empty());
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_TRUE(Saved());
}

TEST_F(WindowMenuActionsTest, AlwaysOnTopOfThePreviousWindowStaysThereWithoutTheFocusTag) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  WorkIn(alpha);
  WorkIn(Open("Beta"));
  log.Clear();
  ChangeColor(korvale);
  korvale.ChooseLate("mnuWindowPreviousWindowAlwaysOnTop");
  EXPECT_EQ(DesktopCalls(), Calls{"SetWindowPos(Beta, HWND_TOPMOST, 0, 0, 0, 0, 16403)"});
  EXPECT_EQ(Front(), "Beta");
  EXPECT_TRUE(Saved());
}

TEST_F(WindowMenuActionsTest, MinimizeAllMinimizesFromTheTopWithTheTimersStopped) {
  Open("Lower");
  KorvaleCopy& korvale = StartedAfter(Open("Upper"));
  bool running = true;
  log.WhenCalled("ShowWindowAsync(Upper", [&] { running = korvale.Form().tmrWindow().Enabled(); });
  ChangeColor(korvale);
  korvale.ChooseLate("mnuWindowMinimizeAll");
  EXPECT_EQ(DesktopCalls(),
            (Calls{"ShowWindow(Korvale, SW_MINIMIZE)", "ShowWindowAsync(Upper, SW_MINIMIZE)",
                   "ShowWindowAsync(Lower, SW_MINIMIZE)"}));
  EXPECT_FALSE(running);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
  EXPECT_TRUE(Saved());
}

TEST_F(WindowMenuActionsTest, RestoreAllEndsInKorvaleBeforeTheTimersRunAgain) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  desktop.UserMinimizes(alpha);
  log.Clear();
  bool running = true;
  log.WhenCalled("SetForegroundWindow", [&] { running = korvale.Form().tmrWindow().Enabled(); });
  ChangeColor(korvale);
  korvale.ChooseLate("mnuWindowRestoreAll");
  EXPECT_EQ(DesktopCalls(),
            (Calls{"ShowWindowAsync(Alpha, SW_RESTORE)", "SetForegroundWindow(Korvale)"}));
  EXPECT_FALSE(running);
  EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
  EXPECT_TRUE(Saved());
}

TEST_F(WindowMenuActionsTest, WhileASearchIsForbiddenNothingIsMinimizedOrRestored) {
  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
  KorvaleCopy& korvale = StartedAfter(beta);
  desktop.UserMinimizes(alpha);
  korvale.Selection().windowSearch = true;
  log.Clear();
  ChangeColor(korvale);
  korvale.ChooseLate("mnuWindowMinimizeAll");
  EXPECT_TRUE(Saved());
  log.Clear();
  ChangeColor(korvale);
  korvale.ChooseLate("mnuWindowRestoreAll");
  EXPECT_TRUE(Saved());
  EXPECT_EQ(DesktopCalls(), Calls{});
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(beta));
}

struct FailingCommand {
  const char* caption;
  const char* call;  ///< In which it fails.
};

constexpr FailingCommand kFailingCommands[] = {
    {"Korvale  Always On Top", "SetWindowPos(Korvale"},
    {"[Alpha]  Always On Top", "SetWindowPos(Alpha"},
    {"Minimize All", "ShowWindow"},
    {"Restore All", "EnumWindows"},
    {"0  Previous Window", "SetForegroundWindow(Alpha"},
    {"1  Alpha", "SetForegroundWindow(Alpha"},
    {"Add  Korvale  to Window menu...", "CreateWindowExW(frmGetWindow"},
    {"Add  [Alpha]  to Window menu...", "CreateWindowExW(frmGetWindow"},
};

TEST_F(WindowMenuActionsTest, ACommandThatFailsLeavesMenusAndStoreUpToDateAndTheTimersRunning) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.TagPrevious();
  for (const auto& [caption, call] : kFailingCommands) {
    SCOPED_TRACE(caption);
    WorkIn(korvale.Handle());
    ChangeColor(korvale);
    korvale.Startup().WindowInfo = !korvale.Startup().WindowInfo;
    bool savedBeforeItWasTold = false;
    korvale.host.WhenMessageBox([&](const ShownMessage& box) {
      EXPECT_TRUE(box.text.starts_with("VB ERROR 6 - Overflow"));
      savedBeforeItWasTold = Saved();
      return win32::kIdOk;
    });
    log.Clear();
    log.WhenCalled(call, [] { throw RunTimeError(RunTimeError::kOverflow); });
    korvale.user.ChooseMenu(korvale.Handle(), {"Window", caption});
    EXPECT_TRUE(savedBeforeItWasTold);
    EXPECT_EQ(korvale.Form().Menu("mnuViewWindowInfo").checked, korvale.Startup().WindowInfo);
    EXPECT_TRUE(korvale.Form().tmrWindow().Enabled());
    desktop.UserRestores(korvale.Handle());
  }
}

TEST_F(WindowMenuActionsTest, AHotKeyOfATagThatFailsLeavesTheStoreUpToDate) {
  KorvaleCopy& korvale = StartedAfter(Open("Alpha"));
  korvale.TagPrevious();
  WorkIn(Open("Beta"));
  ChangeColor(korvale);
  korvale.host.AnswerNext(win32::kIdOk);
  log.Clear();
  log.WhenCalled("SetForegroundWindow(Alpha", [] { throw RunTimeError(RunTimeError::kOverflow); });
  PressTag(1);
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_TRUE(Saved());
}

}  // namespace
}  // namespace korvale

#include <algorithm>
#include <string>

#include "platform/win32_constants.h"
#include "tests/program/window_menu_test.h"

namespace korvale {
namespace {

constexpr const char* kFailure = "The window operation was not successful.  Please try again.";

/// Tag 1 is Admin, whose program runs as administrator; the user works in Beta, before in Alpha.
class DeniedWindowsTest : public WindowMenuTest {
 protected:
  DeniedWindowsTest() {
    StoreTag(1, "Admin");
    // Were another window looked for, it would be found.
    desktop.Open("Admin's helper", {.className = "Helper", .activate = false});
    korvale = &StartedCopy();
    for (const WindowHandle hwnd : {admin, alpha, beta}) WorkIn(hwnd);
  }

  template <typename Action>
  void ExpectFailureToldOf(Action action) {
    ExpectMessage(*korvale, kFailure, win32::kMbSetForeground);
    const std::size_t before = korvale->host.Messages().size();
    action();
    EXPECT_EQ(korvale->host.Messages().size(), before + 1);
  }

  void PopUpAndChoose(const std::string& beginning) {
    korvale->host.WhenPopupMenu(
        [=](const std::vector<ShownMenuItem>& items) { return Existing(items, beginning); });
    PressHotKey(win32::kModWin, 'W');
  }

  void UseMainWindow(const std::string& beginning) {
    korvale->user.ChooseMenu(korvale->Handle(),
                             {"Window", Existing(korvale->WindowMenuItems(), beginning)});
  }
  static std::string Existing(const std::vector<ShownMenuItem>& items,
                              const std::string& beginning) {
    const std::string entry = EntryThatBegins(items, beginning);
    if (entry.empty()) FailTest(beginning + " is missing");
    return entry;
  }

  KorvaleCopy* korvale = nullptr;
  const WindowHandle admin = Open("Admin", {.elevated = true});
  const WindowHandle alpha = Open("Alpha");
  const WindowHandle beta = Open("Beta");
};

TEST_F(DeniedWindowsTest, ATagLeadsToOneThatIsNotMinimized) { ExpectTagLeadsTo(1, "Admin"); }

TEST_F(DeniedWindowsTest, ATagOfAMinimizedOneTellsTheUserAndStaysItsTag) {
  ExpectTagLeadsTo(1, "Admin");
  desktop.UserMinimizes(admin);
  WorkIn(alpha);
  WorkIn(beta);
  const std::string tag = korvale->TagEntry(1)->tag;
  const WindowTriple current = korvale->Record().current;
  const WindowTriple alternate = korvale->Record().alternate;
  ExpectFailureToldOf([&] { PressTag(1); });
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale->TagEntry(1)->tag, tag);
  EXPECT_EQ(korvale->Tags().ParentWindowClass[0], "Window");
  EXPECT_EQ(korvale->Record().current, current);
  EXPECT_EQ(korvale->Record().alternate, alternate);
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(DeniedWindowsTest, ATagOfAMinimizedOneInThePopUpTellsTheUser) {
  ExpectTagLeadsTo(1, "Admin");
  desktop.UserMinimizes(admin);
  WorkIn(beta);
  ExpectFailureToldOf([&] { PopUpAndChoose("1  "); });
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(DeniedWindowsTest, ATagOfAMinimizedOneInFrontTellsTheUser) {
  ExpectTagLeadsTo(1, "Admin");
  desktop.UserMinimizes(admin);
  desktop.Windows().Activate(admin);
  LetTick();
  ExpectFailureToldOf([&] { PressTag(1); });
}

TEST_F(DeniedWindowsTest, Alt0ToAMinimizedOneTellsTheUserAndLeadsNowhereElse) {
  WorkIn(admin);
  desktop.UserMinimizes(admin);
  WorkIn(beta);
  EXPECT_EQ(korvale->Record().alternate.handle, admin);
  ExpectFailureToldOf([&] { PressTag(0); });
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(korvale->Record().current.handle, beta);
  EXPECT_EQ(korvale->Record().alternate.handle, admin);
}

TEST_F(DeniedWindowsTest, TheKeysForTheWindowInFrontTellTheUserAndNoOtherComesForward) {
  WorkIn(admin);
  for (const std::uint32_t key : {win32::kVkDown, win32::kVkUp}) {
    ExpectFailureToldOf([&] { PressHotKey(win32::kModAlt, key); });
    EXPECT_EQ(Front(), "Admin");
    EXPECT_EQ(korvale->Record().current.handle, admin);
  }
  ExpectTagLeadsTo(0, "Beta");
}

TEST_F(DeniedWindowsTest, PreviousWindowAlwaysOnTopTellsTheUserAndIsNotChecked) {
  WorkIn(admin);
  WorkIn(korvale->Handle());
  ExpectFailureToldOf([&] { UseMainWindow("[Admin]"); });
  EXPECT_FALSE(korvale->Form().Menu("mnuWindowPreviousWindowAlwaysOnTop").checked);
  EXPECT_EQ(desktop.GetForegroundWindow(), korvale->Handle());
}

TEST_F(DeniedWindowsTest, MinimizeAllTellsTheUserOnce) {
  WorkIn(korvale->Handle());
  ExpectFailureToldOf([&] { UseMainWindow("Minimize All"); });
  EXPECT_TRUE(desktop.IsIconic(alpha));
  EXPECT_FALSE(desktop.IsIconic(admin));
}

TEST_F(DeniedWindowsTest, TheStartTellsNothing) {
  korvale->Exit();
  EndCopy(*korvale);
  WorkIn(admin);
  desktop.UserMinimizes(admin);
  desktop.Windows().Activate(admin);
  KorvaleCopy& next = StartedCopy();
  EXPECT_TRUE(next.host.Messages().empty());
}

TEST_F(DeniedWindowsTest, ARefusedForegroundIsToldAndRebindsNoTag) {
  desktop.LockForeground(ForegroundLock::kForGood);
  for (const int tag : {0, 1}) {
    log.Clear();
    ExpectFailureToldOf([&] { PressTag(tag); });
    const std::string target = tag == 0 ? "Alpha" : "Admin";
    const std::string asked = "SetForegroundWindow(" + target + ")";
    const std::vector<std::string>& calls = log.Calls();
    const auto first = std::ranges::find(calls, asked);
    ASSERT_LE(first + 3, calls.end());
    EXPECT_EQ(std::vector<std::string>(first, first + 3),
              (std::vector<std::string>{asked, "SendMouseInput()", asked}));
    EXPECT_EQ(Front(), "Beta");
    EXPECT_EQ(korvale->Record().current.handle, beta);
  }
  EXPECT_EQ(korvale->TagEntry(1)->tag, std::to_string(admin));
}

TEST_F(DeniedWindowsTest, ALockedForegroundOpensToOurOwnInput) {
  for (const int tag : {1, 0}) {
    desktop.LockForeground(ForegroundLock::kUntilInput);
    log.Clear();
    PressTag(tag);
    EXPECT_EQ(Front(), "Admin");
    EXPECT_EQ(log.CallsOf("SendMouseInput").size(), 1U);
    desktop.UserActivates(beta);
    LetTick();
  }
}

TEST_F(DeniedWindowsTest, OwnFormsAndThePopUpAskOnceMoreToo) {
  desktop.LockForeground(ForegroundLock::kUntilInput);
  log.Clear();
  PressHotKey(win32::kModWin, 'O');
  EXPECT_EQ(Front(), "Korvale - Options");
  EXPECT_EQ(log.CallsOf("SendMouseInput").size(), 1U);
  WorkIn(beta);
  desktop.LockForeground(ForegroundLock::kUntilInput);
  log.Clear();
  std::string front;
  korvale->host.WhenPopupMenu([&](const auto& /*items*/) {
    front = Front();
    return std::string();
  });
  PressHotKey(win32::kModWin, 'W');
  EXPECT_EQ(front, desktop.Title(korvale->Handle()));
  EXPECT_EQ(Front(), "Beta");
  EXPECT_EQ(log.CallsOf("SendMouseInput").size(), 1U);
}

TEST_F(DeniedWindowsTest, APopUpWithoutTheForegroundIsToldInstead) {
  desktop.LockForeground(ForegroundLock::kForGood);
  // A menu that opened would fail the test: nobody chooses from it.
  ExpectFailureToldOf([&] { PressHotKey(win32::kModWin, 'W'); });
  EXPECT_EQ(Front(), "Beta");
  EXPECT_NE(korvale->Form().Menu("mnuWindow").tag, "HOTKEY_WINDOW_MENU_POPUP");
}

TEST_F(DeniedWindowsTest, OptionsThatStayBehindAreTold) {
  desktop.LockForeground(ForegroundLock::kForGood);
  // Loaded and shown first, only shown the second time.
  for (int i = 0; i < 2; ++i) {
    ExpectFailureToldOf([&] { PressHotKey(win32::kModWin, 'O'); });
    EXPECT_EQ(Front(), "Beta");
    EXPECT_TRUE(korvale->Loaded("frmOptions").Visible());
  }
}

TEST_F(DeniedWindowsTest, NoDialogIsOpenedBehindTheOthers) {
  desktop.LockForeground(ForegroundLock::kForGood);
  ExpectFailureToldOf([&] { korvale->ChooseLate("mnuWindowAddToList", 1); });
  EXPECT_EQ(korvale->FindForm("frmGetWindow"), nullptr);
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(DeniedWindowsTest, NothingIsToldOfAForegroundThatWasNotTheUsersWish) {
  const std::size_t told = korvale->host.Messages().size();
  desktop.LockForeground(ForegroundLock::kForGood);
  PressHotKey(win32::kModAlt, win32::kVkDown);
  EXPECT_TRUE(desktop.IsIconic(beta));
  WorkIn(korvale->Handle());
  korvale->ChooseLate("mnuWindowPreviousWindowAlwaysOnTop");
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_NE(desktop.GetWindowLongA(alpha, win32::kGwlExStyle) & win32::kWsExTopmost, 0);
  korvale->ChooseLate("mnuWindowRestoreAll");
  EXPECT_FALSE(desktop.IsIconic(beta));
  EXPECT_EQ(korvale->host.Messages().size(), told);
}

TEST_F(DeniedWindowsTest, ATagOfAMinimizedOneLeavesTheForegroundAloneAllTheTime) {
  desktop.UserMinimizes(admin);
  WorkIn(beta);
  korvale->host.WhenMessageBox([](const ShownMessage& /*box*/) { return win32::kIdOk; });
  log.Clear();
  PressTag(1);
  EXPECT_TRUE(log.CallsOf("SetForegroundWindow").empty());
}

TEST_F(DeniedWindowsTest, AWindowThatStaysMinimizedTellsTheUserAndGivesTheForegroundBack) {
  desktop.Close(alpha);
  const WindowHandle stubborn = Open("Stubborn", {.staysIconic = true});
  korvale->TagPrevious();
  desktop.UserMinimizes(stubborn);
  WorkIn(beta);
  ExpectFailureToldOf([&] { PressTag(2); });
  EXPECT_EQ(Front(), "Beta");
  EXPECT_TRUE(desktop.IsIconic(stubborn));
}

TEST_F(DeniedWindowsTest, Alt0ToOneThatStaysMinimizedBehindItsDialogTellsTheUser) {
  const WindowHandle stubborn = Open("Stubborn", {.staysIconic = true});
  WorkIn(stubborn);
  desktop.OpenModalDialog(stubborn, "Save As");
  desktop.UserMinimizes(stubborn);
  WorkIn(beta);
  ExpectFailureToldOf([&] { PressTag(0); });
  EXPECT_EQ(Front(), "Beta");
}

TEST_F(DeniedWindowsTest, AForegroundThatIsGrantedNeedsNoInput) {
  log.Clear();
  PressTag(1);
  PressTag(0);
  PopUpAndChoose("1  ");
  PressHotKey(win32::kModWin, 'O');
  EXPECT_TRUE(log.CallsOf("SendMouseInput").empty());
}

}  // namespace
}  // namespace korvale

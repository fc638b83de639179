#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

using FirstActivationTest = StartTest;

TEST_F(FirstActivationTest, AnActivationBeforeTheWindowIsShownDoesNotCount) {
  KorvaleCopy& korvale = UsedCopy();
  korvale.system.commandLine = "/x";
  korvale.host.WhenModal("frmMsgTip", [&](class Form& tip) {
    korvale.Form().OnActivated();
    EXPECT_FALSE(korvale.State().firstActivation);
    tip.Unload();
  });
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(korvale.State().firstActivation);
}

TEST_F(FirstActivationTest, LaterActivationsDoNothingOfIt) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  StoreOption("SelectPrevWinOnStart", "True");
  Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  WorkIn(Open("Beta"));
  log.Clear();

  WorkIn(korvale.Handle());

  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_TRUE(log.CallsOf("SetWindowPos").empty());
}

TEST_F(FirstActivationTest, WithoutAnotherWindowThereIsNothingToSelect) {
  StoreOption("SelectPrevWinOnStart", "True");
  KorvaleCopy& korvale = UsedCopy();
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.TargetWindow(), "");
  EXPECT_FALSE(korvale.Form().Menu("mnuWindowParentList", 0).enabled);
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(FirstActivationTest, TheMainWindowIsNotTopmostUnlessTheSettingSaysSo) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(log.CallsOf("SetWindowPos(frmMain").empty());
  EXPECT_FALSE(korvale.WindowMenuItems().front().checked);
}

TEST_F(FirstActivationTest, AlwaysOnTopIsAppliedAtTheFirstActivation) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  KorvaleCopy& korvale = StartedCopy();
  const std::int32_t style = desktop.GetWindowLongA(korvale.Handle(), win32::kGwlExStyle);
  EXPECT_NE(style & win32::kWsExTopmost, 0);
  EXPECT_TRUE(korvale.WindowMenuItems().front().checked);
}

TEST_F(FirstActivationTest, AlwaysOnTopIsAppliedByItself) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  KorvaleCopy& korvale = UsedCopy();
  const auto exStyle = [&]() -> std::int32_t& {
    return desktop.Windows().Find(korvale.Handle())->exStyle;
  };
  log.WhenCalled("RegisterHotKey",
                 [&] { EXPECT_TRUE(korvale.Form().Menu("mnuWindowAlwaysOnTop").checked); });
  // What the start has done for the hidden window is undone.
  log.WhenCalled("ShowWindow(frmMain", [&] { exStyle() &= ~win32::kWsExTopmost; });

  EXPECT_TRUE(korvale.Start());

  EXPECT_NE(exStyle() & win32::kWsExTopmost, 0);
}

TEST_F(FirstActivationTest, AlwaysOnTopUsesUpNothingOfTheFirstActivation) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  Open("Alpha");
  KorvaleCopy& korvale = UsedCopy();
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(korvale.State().firstActivation);
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(FirstActivationTest, AlwaysOnTopLeavesThePreviousWindowToBeSelected) {
  store.SaveSetting("Korvale - Work", "Startup", "AlwaysOnTop", "True");
  StoreOption("SelectPrevWinOnStart", "True");
  Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(Front(), "Alpha");
  WorkIn(Open("Beta"));
  WorkIn(korvale.Handle());
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(FirstActivationTest, TheWindowInFrontBeforeTheStartIsThePreviousWindow) {
  Open("Below");
  Open("Alpha", {.className = "AlphaClass"});
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  EXPECT_EQ(korvale.TargetClass(), "AlphaClass");
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(FirstActivationTest, AnUntitledWindowInFrontIsPassedOverAtTheStart) {
  Open("Below");
  Open("");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.TargetWindow(), "Below");
}

/// Two tool windows, which only Tag 3 makes windows to come back to.
class TaggedToolsAtStart : public StartTest {
 protected:
  void SetUp() override {
    store.SaveSetting("Korvale - Work", "ParentWindowList", "3", "&3  Tool");
    store.SaveSetting("Korvale - Work", "ParentWindowClass", "3", "Window");
    Open("Tool below", {.exStyle = win32::kWsExToolWindow});
    tool = Open("Tool", {.exStyle = win32::kWsExToolWindow});
  }

  WindowHandle tool = 0;
};

TEST_F(TaggedToolsAtStart, TheTopmostOneIsThePreviousWindowAndHasTheTag) {
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.TargetWindow(), "Tool");
  EXPECT_EQ(TagHandle(korvale.Form().Menu("mnuWindowParentList", 3)), tool);
  ExpectTagLeadsTo(3, "Tool");
}

TEST_F(TaggedToolsAtStart, NoneOfThemHasTheTagWhenAnotherWindowWasInFront) {
  Open("Alpha");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
  EXPECT_EQ(TagHandle(korvale.Form().Menu("mnuWindowParentList", 3)), 0);
  ExpectTagLeadsTo(3, "Tool");
}

TEST_F(FirstActivationTest, ThePreviousWindowIsSelectedWhenTheOptionSaysSo) {
  Open("Below");
  const WindowHandle alpha = Open("Alpha", {.className = "A"});
  StoreOption("SelectPrevWinOnStart", "True");
  KorvaleCopy& korvale = StartedCopy();
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_EQ(korvale.Record().current, (WindowTriple{alpha, "Alpha", "A"}));
  EXPECT_EQ(korvale.Record().alternate,
            (WindowTriple{korvale.Handle(), "Korvale - Work", "Korvale.frmMain"}));
  EXPECT_EQ(korvale.TargetWindow(), "Alpha");
}

TEST_F(FirstActivationTest, TheUserHasLeftForTheSelectedWindowEvenIfItComesForwardLate) {
  const WindowHandle alpha = Open("Alpha");
  StoreOption("SelectPrevWinOnStart", "True");
  KorvaleCopy& korvale = UsedCopy();
  log.WhenCalled("SetForegroundWindow(Alpha)", [this] { desktop.DelayForeground(true); });
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(Front(), "Korvale - Work");
  EXPECT_EQ(korvale.Form().FocusTag(), "");
  clock.Advance(kTrackingInterval);
  EXPECT_EQ(korvale.Form().FocusTag(), "");
  EXPECT_EQ(korvale.Record().current.handle, alpha);
  EXPECT_EQ(korvale.Record().alternate.handle, korvale.Handle());
  desktop.DelayForeground(false);
  EXPECT_EQ(Front(), "Alpha");
  ExpectTagLeadsTo(0, "Korvale - Work");
}

/// Behind a locked foreground, the main window is shown without being activated.
TEST_F(FirstActivationTest, ThePopUpOfTheWindowMenuIsNone) {
  StoreOption("SelectPrevWinOnStart", "True");
  Open("Beta");
  const WindowHandle alpha = Open("Alpha");
  desktop.LockForeground(ForegroundLock::kForGood);
  KorvaleCopy& korvale = StartedCopy();
  desktop.LockForeground(ForegroundLock::kNone);
  WorkIn(desktop.FindWindowA("Beta"));
  WorkIn(alpha);
  std::string frontOfMenu;
  korvale.host.WhenPopupMenu([&](const std::vector<ShownMenuItem>&) {
    frontOfMenu = Front();
    return "";
  });

  PressHotKey(win32::kModWin, 'W');

  EXPECT_EQ(frontOfMenu, "Korvale - Work");
  EXPECT_EQ(Front(), "Alpha");
  EXPECT_FALSE(korvale.State().firstActivation);
  ExpectTagLeadsTo(0, "Beta");
  WorkIn(korvale.Handle());
  EXPECT_TRUE(korvale.State().firstActivation);
  EXPECT_EQ(Front(), "Beta");
}

/// The user has asked for the main window, and stays in it.
TEST_F(FirstActivationTest, ATagOfTheMainWindowLeadsToItAndNotOnToThePreviousWindow) {
  StoreOption("SelectPrevWinOnStart", "True");
  StoreTag(1, "Korvale - Work", "Korvale.frmMain");
  const WindowHandle alpha = Open("Alpha");
  desktop.LockForeground(ForegroundLock::kForGood);
  KorvaleCopy& korvale = StartedCopy();
  desktop.LockForeground(ForegroundLock::kNone);
  WorkIn(alpha);

  ExpectTagLeadsTo(1, "Korvale - Work");

  EXPECT_TRUE(korvale.State().firstActivation);
  LetTick();
  ExpectTagLeadsTo(0, "Alpha");
  WorkIn(korvale.Handle());
  EXPECT_EQ(Front(), "Korvale - Work");
}

TEST_F(FirstActivationTest, AfterAMinimizedStartTheWayBackLeadsToTheOnlyWindowWorkedIn) {
  store.SaveSetting("Korvale - Work", "Startup", "WindowState", "1");
  Open("Alpha");
  Open("Tool", {.exStyle = win32::kWsExToolWindow});
  StartedCopy();
  EXPECT_EQ(Front(), "Tool");
  ExpectTagLeadsTo(0, "Alpha");
  ExpectTagLeadsTo(0, "Alpha");
}

}  // namespace
}  // namespace korvale

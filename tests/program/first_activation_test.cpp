#include <iterator>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

constexpr const char* kReviewQuestion =
    "Korvale is installed with Hot Keys active.  It is recommended that you review the Hot Keys "
    "before getting started.\r\rDo you want to review the Hot Keys now ?";

using FirstActivationTest = StartTest;

TEST_F(FirstActivationTest, TheFirstRunStoresAllDefaultsBeforeItAsks) {
  KorvaleCopy& korvale = NewCopy();
  std::string splashAtQuestion;
  korvale.host.WhenMessageBox([&](const ShownMessage& box) {
    EXPECT_EQ(box.text, kReviewQuestion);
    EXPECT_EQ(box.title, "Korvale - CAUTION");
    EXPECT_EQ(box.style, win32::kMbYesNo);
    splashAtQuestion = Stored("Options", "SplashScreen") + Stored("Startup", "Width");
    return win32::kIdNo;
  });

  EXPECT_TRUE(korvale.Start());

  EXPECT_EQ(splashAtQuestion, "True4500");
  EXPECT_EQ(Stored("Startup", "Left"), "3000");
  EXPECT_EQ(Stored("Options", "HotKeyGeneral2"), "19");
  EXPECT_EQ(korvale.FindForm("frmOptions"), nullptr);
  EXPECT_EQ(log.CallsOf("SaveSetting(Korvale - Work, Saving, Complete").size(), 1U)
      << "all defaults are one save";
  EXPECT_EQ(korvale.State().lastAnswer, win32::kIdNo);
}

TEST_F(FirstActivationTest, YesToTheFirstQuestionOpensTheOptionsOnTheHotKeysTab) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdYes);

  EXPECT_TRUE(korvale.Start());

  class Form& options = korvale.Loaded("frmOptions");
  EXPECT_EQ(options.Caption(), "Korvale - Options");
  EXPECT_EQ(korvale.user.ListIndex(options.Handle(), korvale.Id(options, "tabOptions")), 1);
  EXPECT_EQ(korvale.Startup().OptionsTab, 2);
}

TEST_F(FirstActivationTest, AnActivationDuringTheFirstQuestionAsksNoSecondOne) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    korvale.Form().OnActivated();
    return win32::kIdNo;
  });
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

TEST_F(FirstActivationTest, TheFirstRunShowsNoSplash) {
  KorvaleCopy& korvale = NewCopy();
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_TRUE(log.CallsOf("CreateWindowExW(frmMsgBox2)").empty());
}

TEST_F(FirstActivationTest, TheFirstRunKeepsItsOrder) {
  Open("Alpha");
  KorvaleCopy& korvale = NewCopy();
  bool finishedAtQuestion = true;
  std::string targetAtQuestion;
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    finishedAtQuestion = korvale.State().firstActivation;
    targetAtQuestion = korvale.TargetWindow();
    return win32::kIdYes;
  });
  log.IncludeReads(true);

  EXPECT_TRUE(korvale.Start());

  const std::vector<std::string> order = {
      "RegisterHotKey",
      "SaveSetting(Korvale - Work, Startup",
      "SaveSetting(Korvale - Work, Options",
      "ShowWindow(frmMain",
      "EnumWindows",
      "MessageBoxW(frmMain",
      "CreateWindowExW(frmOptions)",
  };
  const std::vector<std::string> seen = Order(order);
  ASSERT_GE(seen.size(), order.size());
  // Before the window is shown there are other searches.
  EXPECT_EQ(std::vector<std::string>(seen.end() - std::ssize(order), seen.end()), order);
  EXPECT_FALSE(finishedAtQuestion);
  EXPECT_EQ(targetAtQuestion, "Alpha");
  EXPECT_TRUE(korvale.State().firstActivation);
}

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

TEST_F(FirstActivationTest, AFirstRunWithoutAWritableStoreRunsAllTheSame) {
  KorvaleCopy& korvale = NewCopy();
  store.RefuseWrites(true);
  korvale.host.AnswerNext(win32::kIdOk);
  korvale.host.AnswerNext(win32::kIdNo);
  EXPECT_TRUE(korvale.Start());
  EXPECT_EQ(hotKeys.Registered().size(), 15U);
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

TEST_F(FirstActivationTest, AfterAMinimizedStartTheWayBackLeadsToTheOnlyWindowWorkedIn) {
  store.SaveSetting("Korvale - Work", "Startup", "WindowState", "1");
  Open("Alpha");
  Open("Tool", {.exStyle = win32::kWsExToolWindow});
  StartedCopy();
  EXPECT_EQ(Front(), "Tool");
  ExpectTagLeadsTo(0, "Alpha");
  ExpectTagLeadsTo(0, "Alpha");
}

TEST_F(FirstActivationTest, TheSessionCanEndWhileTheReviewIsOffered) {
  KorvaleCopy& korvale = NewCopy();
  int boxes = 0;
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    ++boxes;
    korvale.Form().OnCloseRequested(CloseReason::kSession);
    return win32::kIdYes;
  });
  korvale.Start();
  EXPECT_EQ(boxes, 1);
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_EQ(korvale.FindForm("frmOptions"), nullptr);
}

}  // namespace
}  // namespace korvale

#include <stdexcept>

#include "platform/win32_constants.h"
#include "tests/program/start_test.h"

namespace korvale {
namespace {

using ShutdownTest = StartTest;

TEST_F(ShutdownTest, ShutdownKeepsItsOrder) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  desktop.Close(alpha);
  korvale.Form().udmOptions("LOAD_AND_OR_REFRESH");
  log.IncludeReads(true);
  log.Clear();
  bool timerAtSave = true;
  std::vector<std::string> tickAtSave;
  log.WhenCalled("SaveSetting", [&] {
    const std::size_t before = log.Calls().size();
    clock.Advance(2 * kTrackingInterval);
    tickAtSave.assign(log.Calls().begin() + static_cast<std::ptrdiff_t>(before), log.Calls().end());
    timerAtSave = clock.AnyTimerOf(korvale.Handle());
  });
  bool tagAtUnregister = true;
  log.WhenCalled("UnregisterHotKey", [&] { tagAtUnregister = korvale.TagEntry(1) != nullptr; });
  bool optionsAtDestroy = false;
  log.WhenCalled("DestroyWindow(frmOptions)", [&] { optionsAtDestroy = korvale.HasOptions(); });

  korvale.Form().mnuFileExit_Click();

  const std::vector<std::string> order = {
      "SaveSetting(Korvale - Work, Startup",
      "SaveSetting(Korvale - Work, ParentWindowList",
      "IsWindow(Alpha)",
      "UnregisterHotKey(frmMain",
      "SetWindowLongPtrA(frmMain",
      "DestroyWindow(frmOptions)",
      "PostQuitMessage()",
      "DestroyWindow(frmMain)",
  };
  EXPECT_EQ(Order(order), order);
  EXPECT_EQ(tickAtSave.size(), 1U) << "only stops the timer";
  EXPECT_FALSE(timerAtSave);
  EXPECT_FALSE(tagAtUnregister);
  EXPECT_TRUE(optionsAtDestroy);
  EXPECT_FALSE(korvale.HasOptions());
}

class ShutdownOfStarted : public ShutdownTest {
 protected:
  /// The user has moved the main window, which is stored when the program ends.
  void Move() { korvale.user.Drag(korvale.Handle(), {4005, 2010, 4500, 1100}); }
  void ExpectThePlaceStoredOnce() {
    EXPECT_EQ(Stored("Startup", "Left"), "4005");
    EXPECT_EQ(Stored("Startup", "Top"), "2010");
    EXPECT_EQ(log.CallsOf("SaveSetting(Korvale - Work, Startup, Left").size(), 1U);
  }

  KorvaleCopy& korvale = StartedCopy();
};

TEST_F(ShutdownOfStarted, EveryHotKeyIsGivenBackAndNoOptionStored) {
  korvale.Exit();

  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_EQ(log.CallsOf("UnregisterHotKey").size(), kAllHotKeys);
  EXPECT_TRUE(log.CallsOf("SaveSetting(Korvale - Work, Options").empty());
  EXPECT_TRUE(korvale.host.QuitPosted());
}

TEST_F(ShutdownTest, AShutdownThatIsNotNormalSavesNothing) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  desktop.Close(alpha);
  log.Clear();

  korvale.Form().udmUnload(false);

  EXPECT_TRUE(log.CallsOf("SaveSetting").empty());
  EXPECT_TRUE(log.CallsOf("DeleteSection").empty());
  EXPECT_EQ(korvale.TagEntry(1), nullptr);
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_FALSE(korvale.HasOptions());
}

TEST_F(ShutdownOfStarted, ItHappensOnce) {
  korvale.Form().udmUnload(true);
  log.Clear();

  korvale.Exit();

  EXPECT_EQ(log.Calls(), (std::vector<std::string>{"PostQuitMessage()", "DestroyWindow(frmMain)"}));
}

TEST_F(ShutdownTest, TheCloseBoxAndAltF4AreExits) {
  for (const bool byKey : {false, true}) {
    KorvaleCopy& korvale = StartedCopy();
    if (byKey) {
      korvale.user.PressKey(korvale.Handle(), win32::kVkF4, kAlt);
    } else {
      korvale.user.PressCloseBox(korvale.Handle());
    }
    EXPECT_FALSE(log.CallsOf("SaveSetting(Korvale - Work, Startup").empty());
    EXPECT_TRUE(hotKeys.Registered().empty());
    EXPECT_TRUE(korvale.host.QuitPosted());
    EndCopy(korvale);
  }
}

TEST_F(ShutdownOfStarted, ClosingTheHiddenOwnerEndsTheProgramAsAnExitDoes) {
  korvale.user.CloseOwner(korvale.Handle());
  EXPECT_FALSE(log.CallsOf("SaveSetting(Korvale - Work, Startup").empty());
  ExpectEnded(korvale);
}

TEST_F(ShutdownOfStarted, ClosingTheHiddenOwnerEndsTheProgramDuringATipToo) {
  korvale.host.WhenModal("frmMsgTip",
                         [&](class Form&) { korvale.user.CloseOwner(korvale.Handle()); });
  korvale.Form().mnuToolsToggleHotKeys_Click();
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_FALSE(log.CallsOf("SaveSetting(Korvale - Work, Startup").empty());
}

TEST_F(ShutdownOfStarted, AThreadThatIsToldToQuitEndsAsAnExitDoes) {
  korvale.host.WhenWaiting([&] { korvale.user.QuitThread(); });
  korvale.program.Run();
  EXPECT_FALSE(log.CallsOf("SaveSetting(Korvale - Work, Startup").empty());
  ExpectEnded(korvale);
}

TEST_F(ShutdownTest, AThreadThatIsToldToQuitDuringTheImportQuestionStoresNothing) {
  store.SaveSetting("Korvale Installations", "0", "Korvale - Old", "C:\\Gone\\Old");
  store.SaveSetting("Korvale - Old", "Options", "SplashScreen", "False");
  KorvaleCopy& korvale = NewCopy();
  korvale.host.WhenMessageBox([&](const ShownMessage&) {
    korvale.user.QuitThread();
    return win32::kIdNo;
  });

  EXPECT_FALSE(korvale.Start());

  EXPECT_TRUE(store.Sections("Korvale - Work").empty());
  ExpectEnded(korvale);
}

TEST_F(ShutdownOfStarted, TheSessionCanEndWhileAMessageBoxIsShown) {
  Move();
  korvale.EndSessionAtBox(win32::kIdOk);
  korvale.ChooseLate("mnuWindowAddToList", 2);
  ExpectEnded(korvale);
  EXPECT_FALSE(clock.AdvanceToNextTick());
  ExpectThePlaceStoredOnce();
}

TEST_F(ShutdownOfStarted, TheSessionCanEndWhileTheTipOfTheToggleIsShown) {
  korvale.host.WhenModal("frmMsgTip", [&](class Form&) {
    korvale.Form().OnCloseRequested(CloseReason::kSession);
    log.Clear();
  });
  korvale.Form().mnuToolsToggleHotKeys_Click();
  EXPECT_FALSE(korvale.Form().IsLoaded());
  EXPECT_TRUE(log.CallsOf("UnregisterHotKey").empty());
}

TEST_F(ShutdownOfStarted, AnyErrorOfASaveLeavesTheHotKeysGivenBack) {
  korvale.ExpectBox("VB ERROR 51 - Internal error\r\rKorvale Error #5", win32::kIdOk);
  log.WhenCalled("SaveSetting", [] { throw std::runtime_error("broken"); });
  korvale.Exit();
  ExpectEnded(korvale);
}

TEST_F(ShutdownTest, AStoreThatCannotBeReadLeavesTheHotKeysGivenBack) {
  KorvaleCopy& korvale = StartedCopy();
  korvale.host.AnswerNext(win32::kIdOk);
  log.WhenCalled("GetAllSettings", [] { throw std::runtime_error("broken"); });
  korvale.Exit();
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
  EXPECT_TRUE(hotKeys.Registered().empty());
  EXPECT_FALSE(korvale.HasOptions());
  EXPECT_FALSE(korvale.Form().IsLoaded());
}

TEST_F(ShutdownTest, TagsOfClosedWindowsStayStoredButLeaveTheMenuAtShutdown) {
  const WindowHandle alpha = Open("Alpha");
  KorvaleCopy& korvale = StartedAfter(alpha);
  korvale.TagPrevious();
  desktop.Close(alpha);
  LetTick();

  korvale.Form().udmUnload(true);

  EXPECT_EQ(Stored("ParentWindowList", "1"), "&1  Alpha");
  EXPECT_EQ(korvale.TagEntry(1), nullptr);
}

TEST_F(ShutdownOfStarted, TheEndOfTheSessionUnloadsNormally) {
  Move();
  korvale.Form().OnCloseRequested(CloseReason::kSession);
  korvale.program.Run();
  ExpectThePlaceStoredOnce();
  EXPECT_TRUE(hotKeys.Registered().empty());
}

TEST_F(ShutdownTest, ASessionThatEndsDuringATipOfTheStartSavesNothing) {
  KorvaleCopy& korvale = UsedCopy();
  korvale.system.commandLine = "/x";
  korvale.host.WhenModal("frmMsgTip", [&](class Form&) {
    log.Clear();
    korvale.Form().OnCloseRequested(CloseReason::kSession);
  });

  EXPECT_FALSE(korvale.Start());

  EXPECT_TRUE(log.CallsOf("SaveSetting").empty());
  EXPECT_TRUE(log.CallsOf("RegisterHotKey").empty());
  EXPECT_TRUE(korvale.host.Messages().empty());
  EXPECT_FALSE(korvale.Form().IsLoaded());
}

TEST_F(ShutdownTest, ASessionThatEndsDuringTheImportQuestionLeavesTheSettingsAlone) {
  store.SaveSetting("Korvale Installations", "0", "Korvale - Old", "C:\\Gone\\Old");
  store.SaveSetting("Korvale - Old", "Options", "SplashScreen", "False");
  KorvaleCopy& korvale = NewCopy();
  korvale.EndSessionAtBox(win32::kIdNo);

  EXPECT_FALSE(korvale.Start());

  EXPECT_TRUE(store.Sections("Korvale - Work").empty());
  EXPECT_EQ(korvale.host.Messages().size(), 1U);
}

}  // namespace
}  // namespace korvale

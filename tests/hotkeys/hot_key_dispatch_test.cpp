#include "hotkeys/hot_key_dispatch.h"

#include <stdexcept>
#include <string>

#include "platform/run_time_error.h"
#include "tests/hotkeys/dispatch_fixture.h"
#include "tests/hotkeys/reserved_names.h"

namespace korvale {
namespace {

constexpr const char* kTimersOff = "udmTimersEnabled(false)";
constexpr const char* kTimersOn = "udmTimersEnabled(true)";

TEST_F(HotKeyDispatchTest, SelectsTheWindowOfTheTagThenTellsTheMenus) {
  AddTag(3, "Other", other);

  EXPECT_EQ(Press("HOTKEY_PARENT3"), "Select Window 3");

  EXPECT_EQ(log.Calls(),
            (Calls{kTimersOff, kTimersOff, "SetForegroundWindow(other)",
                   "EnablePreviousWindowItems(true)", "ShowTargetWindow(\"Other\", \"Other\")",
                   kTimersOn, "TagSelected", kTimersOn}));
}

TEST_F(HotKeyDispatchTest, SelectsTheWindowOfEachTag) {
  std::vector<WindowHandle> windows{target};
  for (int tag = 1; tag <= 9; ++tag) {
    const std::string title = "Window " + std::to_string(tag);
    windows.push_back(Open(title, "Editor", title));
    AddTag(tag, title, windows.back());
  }

  for (int tag = 0; tag <= 9; ++tag) {
    for (const WindowHandle worked : {target, other}) {
      desktop.UserActivates(worked);
      tracker.tmrWindow_Timer();
    }
    Press("HOTKEY_PARENT" + std::to_string(tag));
    EXPECT_EQ(desktop.GetForegroundWindow(), windows[static_cast<std::size_t>(tag)]) << tag;
  }
  EXPECT_EQ(actions.log, Calls(10, "TagSelected"));
}

TEST_F(HotKeyDispatchTest, DoesNothingForATagWithoutAWindow) {
  EXPECT_EQ(Press("HOTKEY_PARENT4"), "Select Window 4");

  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, kTimersOn}));
}

TEST_F(HotKeyDispatchTest, DoesNothingForAnEntryWithoutTheMark) {
  AddTag(4, "Other", other);
  tags.mnuWindowParentList.Find(4)->caption = "4  Other";
  tags.mnuWindowParentList.Find(0)->caption = "0  Previous Window";

  EXPECT_EQ(Press("HOTKEY_PARENT4"), "Select Window 4");
  EXPECT_EQ(Press("HOTKEY_PARENT0"), "Select Window 0");

  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, kTimersOn, kTimersOff, kTimersOn}));
}

TEST_F(HotKeyDispatchTest, TakesTheNameInAnyCase) {
  AddTag(3, "Other", other);

  EXPECT_EQ(Press("HotKey_Parent3"), "Select Window 3");

  EXPECT_EQ(desktop.GetForegroundWindow(), other);
}

TEST_F(HotKeyDispatchTest, MinimizesTheForegroundWindow) {
  EXPECT_EQ(Press("HOTKEY_MINIMIZE_PARENT"), "Minimize Parent Window");

  EXPECT_TRUE(desktop.IsIconic(target));
  EXPECT_EQ(log.Calls().front(), kTimersOff);
  EXPECT_EQ(log.Calls().back(), kTimersOn);
}

TEST_F(HotKeyDispatchTest, MaximizesAndRestoresTheForegroundWindow) {
  EXPECT_EQ(Press("HOTKEY_RESTORE/MAXIMIZE_PARENT"), "Restore/Maximize Parent Window");
  EXPECT_TRUE(desktop.IsZoomed(target));

  Press("HOTKEY_RESTORE/MAXIMIZE_PARENT");
  EXPECT_FALSE(desktop.IsZoomed(target));
}

TEST_F(HotKeyDispatchTest, OpensTheOptions) {
  EXPECT_EQ(Press("HOTKEY_DISPLAY_OPTIONS"), "Display Options");

  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, "udmOptions(\"LOAD_AND_OR_REFRESH\")", kTimersOn}));
}

TEST_F(HotKeyDispatchTest, BringsTheLoadedOptionsToTheFront) {
  forms.Load("frmOptions", Open("Korvale - Options", "Korvale.frmOptions", "options"));
  log.Clear();

  EXPECT_EQ(Press("HOTKEY_DISPLAY_OPTIONS"), "Display Options");

  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, "BringOptionsToFront", kTimersOn}));
}

TEST_F(HotKeyDispatchTest, PopsTheWindowMenuUpOverItsOwnForegroundWindow) {
  EXPECT_EQ(Press("HOTKEY_WINDOW_MENU_POPUP"), "Display Window Menu");

  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, "SetForegroundWindow(main)",
                                "SetWindowMenuTag(\"HOTKEY_WINDOW_MENU_POPUP\")", "PopUpWindowMenu",
                                "PostMessageW(main, 0x0)", "SetWindowMenuTag(\"\")",
                                "SetForegroundWindow(target)", kTimersOn}));
}

TEST_F(HotKeyDispatchTest, LeavesTheUserWhereThePopUpHasLedThem) {
  actions.selectedInMenu = main;
  Press("HOTKEY_WINDOW_MENU_POPUP");
  EXPECT_EQ(desktop.GetForegroundWindow(), main);

  desktop.UserActivates(target);
  actions.selectedInMenu = 0;
  actions.onCall = [this](const std::string& call) {
    if (call == "PopUpWindowMenu") desktop.UserActivates(other);
  };
  Press("HOTKEY_WINDOW_MENU_POPUP");
  EXPECT_EQ(desktop.GetForegroundWindow(), other);
}

TEST_F(HotKeyDispatchTest, GivesTheForegroundBackToNoWindowMinimizedThroughThePopUp) {
  actions.onCall = [this](const std::string& call) {
    if (call == "PopUpWindowMenu") desktop.UserMinimizes(target);
  };
  Press("HOTKEY_WINDOW_MENU_POPUP");
  EXPECT_EQ(desktop.GetForegroundWindow(), main);
}

TEST_F(HotKeyDispatchTest, TakesTheMenuTagBackWhenThePopUpFails) {
  actions.onCall = [this](const std::string& call) {
    log.Add(call);
    if (call == "PopUpWindowMenu") throw std::runtime_error("no menu");
  };

  EXPECT_EQ(Press("HOTKEY_WINDOW_MENU_POPUP"), "");

  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, "SetForegroundWindow(main)",
                                "SetWindowMenuTag(\"HOTKEY_WINDOW_MENU_POPUP\")", "PopUpWindowMenu",
                                "SetWindowMenuTag(\"\")", kTimersOn, "udmNonFatalError"}));
}

TEST_F(HotKeyDispatchTest, TakesTheMenuTagBackWhenThePopUpEndsTheProgram) {
  actions.onCall = [](const std::string& call) {
    if (call == "PopUpWindowMenu") throw ProgramEnded{};
  };

  EXPECT_THROW(Press("HOTKEY_WINDOW_MENU_POPUP"), ProgramEnded);

  EXPECT_EQ(actions.log.back(), "SetWindowMenuTag(\"\")");
}

TEST_F(HotKeyDispatchTest, TogglesTheHotKeys) {
  EXPECT_EQ(Press("HOTKEY_TOGGLE_HOTKEYS"), "Toggle All Hot Keys ON/OFF");

  EXPECT_FALSE(table.HotKeysActive());
  EXPECT_TRUE(actions.tips.empty());
  EXPECT_EQ(log.Calls().front(), kTimersOff);
  EXPECT_EQ(log.Calls().back(), kTimersOn);
}

TEST_F(HotKeyDispatchTest, DoesNotToggleWhileTheKeyListIsLoaded) {
  forms.Load("FRMKEYS2LIST", 0);

  EXPECT_EQ(Press("HOTKEY_TOGGLE_HOTKEYS"), "Toggle All Hot Keys ON/OFF");

  EXPECT_TRUE(table.HotKeysActive());
  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, kTimersOn}));
}

TEST_F(HotKeyDispatchTest, RecognisesReservedNamesWithoutDoingAnything) {
  desktop.UserActivates(other);
  log.Clear();

  for (const std::string& name : ReservedHotKeyNames()) EXPECT_EQ(Press(name), "") << name;

  EXPECT_EQ(previous.current.handle, target);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(actions.log.empty());
}

TEST_F(HotKeyDispatchTest, OnlyDescribesWithoutAction) {
  AddTag(7, "Other", other);

  EXPECT_EQ(Describe("HOTKEY_PARENT7"), "Select Window 7");
  EXPECT_EQ(Describe("HOTKEY_MINIMIZE_PARENT"), "Minimize Parent Window");
  EXPECT_EQ(Describe("HOTKEY_RESTORE/MAXIMIZE_PARENT"), "Restore/Maximize Parent Window");
  EXPECT_EQ(Describe("HOTKEY_DISPLAY_OPTIONS"), "Display Options");
  EXPECT_EQ(Describe("HOTKEY_WINDOW_MENU_POPUP"), "Display Window Menu");
  EXPECT_EQ(Describe("HOTKEY_TOGGLE_HOTKEYS"), "Toggle All Hot Keys ON/OFF");
  EXPECT_EQ(Describe("HOTKEY_CHILD7"), "");
  desktop.UserActivates(other);
  EXPECT_EQ(Describe("NO_HOT_KEY"), "");

  EXPECT_TRUE(actions.log.empty());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(table.HotKeysActive());
  EXPECT_FALSE(desktop.IsIconic(target));
  EXPECT_EQ(previous.current.handle, target);
}

TEST_F(HotKeyDispatchTest, StopsTheTimersDuringTheActionAndStartsThemAgain) {
  bool during = true;
  actions.onCall = [&](const std::string&) { during = mainWindow.timer.enabled; };

  Press("HOTKEY_DISPLAY_OPTIONS");

  EXPECT_FALSE(during);
  EXPECT_TRUE(mainWindow.timer.enabled);
}

TEST_F(HotKeyDispatchTest, ReportsAnErrorWithItsNumberAndStartsTheTimers) {
  actions.onCall = [](const std::string&) {
    throw RunTimeError(RunTimeError::kSubscriptOutOfRange);
  };

  EXPECT_EQ(Press("HOTKEY_DISPLAY_OPTIONS"), "");

  EXPECT_EQ(errors.reported, (std::vector<ReportedError>{{ErrorPlace::kProcessHotKey, 9}}));
  EXPECT_EQ(log.Calls(), (Calls{kTimersOff, kTimersOn, "udmNonFatalError"}));
}

TEST_F(HotKeyDispatchTest, ReportsAnyOtherExceptionAsAnInternalError) {
  actions.onCall = [](const std::string&) { throw std::runtime_error("broken"); };
  Press("HOTKEY_DISPLAY_OPTIONS");

  actions.onCall = [](const std::string&) { throw 5; };
  Press("HOTKEY_DISPLAY_OPTIONS");

  const ReportedError internal{ErrorPlace::kProcessHotKey, 51};
  EXPECT_EQ(errors.reported, (std::vector<ReportedError>{internal, internal}));
  EXPECT_TRUE(mainWindow.timer.enabled);
}

TEST_F(HotKeyDispatchTest, LetsTheEndOfTheProgramThroughWithTheTimersStopped) {
  actions.onCall = [](const std::string&) { throw ProgramEnded{}; };

  EXPECT_THROW(Press("HOTKEY_DISPLAY_OPTIONS"), ProgramEnded);

  EXPECT_TRUE(errors.reported.empty());
  EXPECT_EQ(log.Calls(), Calls{kTimersOff});
}

TEST_F(HotKeyDispatchTest, ReturnsTheTitleOfTheTargetWindow) {
  EXPECT_EQ(dispatch.udmProcessHotKey("HOTKEY_PARENT1", false, true, ""), "Target");
}

TEST_F(HotKeyDispatchTest, ReturnsTheTitleOfTheMainWindowWhileThatHasTheFocus) {
  mainWindow.focusTag = kGotFocus;

  EXPECT_EQ(dispatch.udmProcessHotKey("HOTKEY_PARENT1", false, true, ""), "Korvale - Work");
}

TEST_F(HotKeyDispatchTest, ReturnsTheSuppliedTitle) {
  mainWindow.focusTag = kGotFocus;

  EXPECT_EQ(dispatch.udmProcessHotKey("HOTKEY_PARENT1", false, true, "Supplied"), "Supplied");
}

}  // namespace
}  // namespace korvale

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/hotkeys/dispatch_fixture.h"

namespace korvale {
namespace {

/// A name that belongs to no hot key makes the foreground window the target.
class UnknownHotKeyTest : public HotKeyDispatchTest {
 protected:
  WindowHandle OpenToolWindow() {
    const WindowHandle tool = Open("Palette", "Tool", "tool", win32::kWsExToolWindow);
    desktop.UserActivates(tool);
    log.Clear();
    return tool;
  }
};

TEST_F(UnknownHotKeyTest, LeavesTheTargetThatIsInTheForeground) {
  EXPECT_EQ(Press("NO_HOT_KEY"), "");

  EXPECT_EQ(log.Calls(), (Calls{"udmTimersEnabled(false)", "udmTimersEnabled(true)"}));
}

TEST_F(UnknownHotKeyTest, MakesTheForegroundWindowTheTarget) {
  desktop.UserActivates(other);
  log.Clear();

  EXPECT_EQ(Press("NO_HOT_KEY"), "");

  EXPECT_EQ(previous.current, (WindowTriple{other, "Other", "Other"}));
  EXPECT_EQ(previous.alternate, (WindowTriple{target, "Target", "Editor"}));
  EXPECT_EQ(log.Calls(),
            (Calls{"udmTimersEnabled(false)", "EnablePreviousWindowItems(true)",
                   "ShowTargetWindow(\"Other\", \"Other\")", "udmTimersEnabled(true)"}));
}

TEST_F(UnknownHotKeyTest, KeepsTheWindowBeforeTheNewTargetWhenTheTrackingComesToSeeIt) {
  tracker.tmrWindow_Timer();
  desktop.UserActivates(other);

  Press("NO_HOT_KEY");
  tracker.tmrWindow_Timer();

  EXPECT_EQ(previous.current.handle, other);
  EXPECT_EQ(previous.alternate.handle, target);
}

TEST_F(UnknownHotKeyTest, ReturnsTheTitleOfTheNewTarget) {
  desktop.UserActivates(other);

  EXPECT_EQ(dispatch.udmProcessHotKey("NO_HOT_KEY", true, true, ""), "Other");
}

TEST_F(UnknownHotKeyTest, ShowsTheAlwaysOnTopStateOfTheNewTarget) {
  desktop.SetWindowPos(other, win32::kHwndTopmost, 0, 0, 0, 0, 3);
  desktop.UserActivates(other);

  Press("NO_HOT_KEY");

  EXPECT_TRUE(mainWindow.previousAlwaysOnTop);
}

TEST_F(UnknownHotKeyTest, LooksAtTheForegroundWhenATitleIsSupplied) {
  EXPECT_EQ(dispatch.udmProcessHotKey("NO_HOT_KEY", true, true, "Supplied"), "Target");
}

TEST_F(UnknownHotKeyTest, MakesTheMainWindowTheTrackedOneWithoutMovingTheRecord) {
  desktop.UserActivates(main);

  Press("NO_HOT_KEY");

  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
  EXPECT_EQ(previous.current.handle, target);
}

TEST_F(UnknownHotKeyTest, LeavesTheTrackedMainWindowThatIsInTheForeground) {
  desktop.UserActivates(main);
  mainWindow.focusTag = kGotFocus;
  log.Clear();

  Press("NO_HOT_KEY");

  EXPECT_EQ(log.Calls(), (Calls{"udmTimersEnabled(false)", "udmTimersEnabled(true)"}));
}

TEST_F(UnknownHotKeyTest, TakesTheMainWindowAsTheOneLeftForTheNewTarget) {
  mainWindow.focusTag = kGotFocus;
  desktop.UserActivates(other);

  Press("NO_HOT_KEY");

  EXPECT_EQ(mainWindow.focusTag, "");
  EXPECT_EQ(previous.current.handle, other);
  EXPECT_EQ(previous.alternate, (WindowTriple{main, "Korvale - Work", "Korvale.frmMain"}));
}

TEST_F(UnknownHotKeyTest, TellsThatAnExcludedWindowIsNotRecognized) {
  const WindowHandle tool = OpenToolWindow();
  messages.whileShown = [this](const ShownMessageBox&) {
    log.Add("ShowMessageBox");
    desktop.UserActivates(other);
    log.Clear();
  };

  EXPECT_EQ(Press("NO_HOT_KEY"), "");

  EXPECT_EQ(messages.shown,
            (std::vector<ShownMessageBox>{
                {"Korvale does not recognize the Window: [Palette].  Try changing options under "
                 "'Window Identification' on the General tab of the Options dialog box.",
                 0x10000, "Korvale"}}));
  EXPECT_EQ(log.Calls(), (Calls{"udmTimersEnabled(true)", "SetForegroundWindow(tool)"}));
  EXPECT_EQ(desktop.GetForegroundWindow(), tool);
  EXPECT_EQ(previous.current.handle, target);
}

TEST_F(UnknownHotKeyTest, NamesAnExcludedWindowAsOtherMessagesDo) {
  desktop.UserActivates(
      Open("\u202ePal\nette " + std::string(101, 'x'), "Tool", "tool", win32::kWsExToolWindow));

  Press("NO_HOT_KEY");

  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(
      messages.shown.front().prompt,
      "Korvale does not recognize the Window: [\u202ePal ette " + std::string(100, 'x') +
          "\u202c...].  Try changing options under 'Window Identification' on the General tab "
          "of the Options dialog box.");
}

TEST_F(UnknownHotKeyTest, TellsNothingMoreWhenTheExcludedWindowClosesMeanwhile) {
  const WindowHandle tool = OpenToolWindow();
  messages.whileShown = [&](const ShownMessageBox&) { desktop.Close(tool); };

  EXPECT_EQ(Press("NO_HOT_KEY"), "");

  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(UnknownHotKeyTest, RecognizesAnExcludedWindowThatTheUserTagged) {
  const WindowHandle tool = OpenToolWindow();
  AddTag(5, "Palette", tool);
  tags.mnuWindowParentList.Find(5)->tag = "0";

  Press("NO_HOT_KEY");

  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(previous.current, (WindowTriple{tool, "Palette", "Tool"}));
  EXPECT_EQ(TagHandle(*tags.mnuWindowParentList.Find(5)), tool);
}

TEST_F(UnknownHotKeyTest, RecognizesAnExcludedWindowOnceTheOptionsAllowIt) {
  const WindowHandle tool = OpenToolWindow();
  options.Get().booAllowToolbarWindow = true;

  Press("NO_HOT_KEY");

  EXPECT_EQ(previous.current.handle, tool);
}

TEST_F(UnknownHotKeyTest, NeverRecognizesTheDesktop) {
  desktop.UserActivates(Open("Program Manager", "Progman", "desktop"));

  Press("NO_HOT_KEY");

  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(previous.current.handle, target);
}

TEST_F(UnknownHotKeyTest, RecognizesNoWindowWhereThereIsNone) {
  options.Get().booAllowNoTextWindow = true;
  desktop.LoseForeground();

  EXPECT_EQ(Press("NO_HOT_KEY"), "");

  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(previous.current.handle, target);
  EXPECT_TRUE(mainWindow.timer.enabled);
}

TEST_F(UnknownHotKeyTest, TakesASuppliedTitleWhereThereIsNoWindow) {
  desktop.LoseForeground();

  EXPECT_EQ(dispatch.udmProcessHotKey("NO_HOT_KEY", true, true, "Supplied"), "Supplied");

  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(UnknownHotKeyTest, DoesNotIdentifyAnythingWithoutAction) {
  desktop.UserActivates(other);

  Describe("NO_HOT_KEY");

  EXPECT_EQ(previous.current.handle, target);
}

}  // namespace
}  // namespace korvale

#include "desktop/foreground_tracker.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/win32_constants.h"
#include "tests/desktop/tracking_case.h"

namespace korvale {
namespace {

TEST_F(ForegroundTracking, FirstTickOnlyRemembersTheMainWindowInFront) {
  EXPECT_EQ(previous.current, WindowTriple{});
  EXPECT_EQ(mainWindow.focusTag, "");
  EXPECT_TRUE(mainWindow.timer.intervals.empty());
}

using FirstTick = DesktopCase;

TEST_F(FirstTick, FollowsTheUserIntoAnotherWindowInFront) {
  const WindowHandle alpha = desktop.Open("Alpha", {.className = "Notepad"});
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current, (WindowTriple{alpha, "Alpha", "Notepad"}));
  EXPECT_EQ(previous.alternate, WindowTriple{});
  EXPECT_EQ(mainWindow.txtWindow, "Alpha");
  EXPECT_TRUE(mainWindow.previousWindowItems);
}

class TrackingFromAlphaOn : public ForegroundTracking {
 protected:
  TrackingFromAlphaOn() { WorkIn(alpha); }
};

TEST_F(TrackingFromAlphaOn, NewForegroundBecomesThePreviousWindow) {
  ExpectRecord(Triple(alpha), WindowTriple{});
  EXPECT_EQ(mainWindow.txtWindow, "Alpha");
  EXPECT_EQ(mainWindow.txtWindowClass, "Notepad");
  EXPECT_TRUE(mainWindow.previousWindowItems);
}

TEST_F(TrackingFromAlphaOn, WindowBeforeBecomesTheAlternate) {
  WorkIn(beta);
  ExpectRecord(Triple(beta), Triple(alpha));
  WorkIn(gamma);
  ExpectRecord(Triple(gamma), Triple(beta));
}

TEST_F(TrackingFromAlphaOn, EachChangeSetsTheIntervalTo100) {
  tracker.tmrWindow_Timer();
  WorkIn(beta);
  EXPECT_EQ(mainWindow.timer.intervals, (std::vector<std::uint32_t>{100, 100}));
}

TEST_F(TrackingFromAlphaOn, MainWindowDoesNotMoveTheRecord) {
  WorkIn(beta);
  WorkIn(mainWindow.handle);
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
  ExpectRecord(Triple(beta), Triple(alpha));
  EXPECT_EQ(mainWindow.txtWindow, "Beta");
}

TEST_F(TrackingFromAlphaOn, MainWindowBecomesTheAlternateWhenTheUserLeavesIt) {
  WorkIn(mainWindow.handle);
  WorkIn(beta);
  EXPECT_EQ(mainWindow.focusTag, "");
  ExpectRecord(Triple(beta), Triple(mainWindow.handle));
}

TEST_F(TrackingFromAlphaOn, MainWindowGoesIntoTheRecordUnderItsCaption) {
  WorkIn(mainWindow.handle);
  mainWindow.caption = "Korvale - Work";
  WorkIn(beta);
  EXPECT_EQ(previous.alternate.text, "Korvale - Work");
}

TEST_F(TrackingFromAlphaOn, BackAndForthLeavesTheWindowThePreviousOne) {
  WorkIn(mainWindow.handle);
  WorkIn(alpha);
  ExpectRecord(Triple(alpha), Triple(mainWindow.handle));
  WorkIn(mainWindow.handle);
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
  EXPECT_EQ(previous.current, Triple(alpha));
}

TEST_F(TrackingFromAlphaOn, AnotherWindowUnderTheHandleOfTheOldOneIsNotTakenForIt) {
  WorkIn(beta);
  desktop.Close(alpha);
  desktop.Open("Another", {.className = "Another", .activate = false, .reuseHandle = alpha});
  tracker.tmrWindow_Timer();
  tracker.LookAtForeground();
  ExpectRecord(Triple(beta), WindowTriple{});
}

/// Far behind in what the user worked in, where nothing of the record was asked for.
TEST_F(TrackingFromAlphaOn, AWindowClosedLongAgoIsForgottenBeforeItsHandleIsUsedAgain) {
  WorkIn(gamma);
  WorkIn(beta);
  desktop.Close(alpha);
  tracker.LookAtForeground();
  WorkIn(gamma);
  desktop.Open("Never Seen", {.className = "Notepad", .activate = false, .reuseHandle = alpha});
  desktop.Close(beta);
  tracker.tmrWindow_Timer();
  ExpectRecord(Triple(gamma), WindowTriple{});
}

TEST_F(TrackingFromAlphaOn, LastOtherForegroundIsNeverTheMainWindow) {
  EXPECT_EQ(previous.lastOtherForeground, alpha);
  WorkIn(mainWindow.handle);
  EXPECT_EQ(previous.lastOtherForeground, alpha);
  desktop.LoseForeground();
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.lastOtherForeground, 0);
}

TEST_F(ForegroundTracking, LastOtherForegroundIsKeptForUnselectableWindowsToo) {
  WorkIn(desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(previous.lastOtherForeground, desktop.FindWindowA("Program Manager"));
  EXPECT_EQ(previous.current, WindowTriple{});
}

TEST_F(TrackingFromAlphaOn, TaskbarDesktopAndHiddenOwnerNeverBecomeThePreviousWindow) {
  WorkIn(desktop.FindWindowA("Program Manager"));
  WorkIn(desktop.FindWindowA(""));
  desktop.Reveal(owner);
  WorkIn(owner);
  ExpectRecord(Triple(alpha), WindowTriple{});
}

TEST_F(TrackingFromAlphaOn, NoForegroundChangesNothing) {
  log.Clear();
  desktop.LoseForeground();
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current, Triple(alpha));
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(TrackingFromAlphaOn, HiddenForegroundChangesNothing) {
  WorkIn(beta);
  desktop.UserActivates(gamma);
  desktop.Windows().Find(gamma)->visible = false;
  tracker.tmrWindow_Timer();
  ExpectRecord(Triple(beta), Triple(alpha));
}

TEST_F(TrackingFromAlphaOn, SameForegroundChangesNothing) {
  previous.current.text = "untouched";
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.text, "untouched");
}

TEST_F(ForegroundTracking, UntitledWindowIsPassedOverWithoutTheOption) {
  const WindowHandle untitled = desktop.Open("");
  WorkIn(alpha);
  WorkIn(untitled);
  EXPECT_EQ(previous.current, Triple(alpha));
}

TEST_F(ForegroundTracking, UntitledWindowIsShownAsSuch) {
  options.Get().booAllowNoTextWindow = true;
  WorkIn(desktop.Open("", {.className = "Bare"}));
  EXPECT_EQ(mainWindow.txtWindow, "(window without a title)");
  EXPECT_EQ(mainWindow.txtWindowClass, "Bare");
  EXPECT_EQ(previous.current.text, "");
}

TEST_F(ForegroundTracking, UnacceptedWindowIsLookedAtAgainOnTheNextTick) {
  const WindowHandle untitled = desktop.Open("");
  WorkIn(untitled);
  WorkIn(untitled);
  EXPECT_EQ(mainWindow.timer.intervals.size(), 2U);
  options.Get().booAllowNoTextWindow = true;
  tracker.tmrWindow_Timer();
  EXPECT_EQ(previous.current.handle, untitled);
}

TEST_F(ForegroundTracking, TaggedWindowBecomesThePreviousWindowDespiteTheOptions) {
  AddTag(3, "", "Bare");
  const WindowHandle untitled = desktop.Open("", {.className = "Bare"});
  WorkIn(untitled);
  EXPECT_EQ(previous.current, Triple(untitled));
  EXPECT_EQ(HandleOfTag(3), untitled);
}

TEST_F(ForegroundTracking, TaggedToolAndModalWindowsAreAcceptedToo) {
  AddTag(1, "Tool", "Window");
  AddTag(2, "Frame", "Window");
  const WindowHandle tool = desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow});
  const WindowHandle frame = desktop.Open("Frame", {.style = win32::kDsModalFrame});
  WorkIn(tool);
  EXPECT_EQ(previous.current, Triple(tool));
  WorkIn(frame);
  EXPECT_EQ(previous.current, Triple(frame));
}

TEST_F(ForegroundTracking, OnlyTheFirstFittingTagTakesTheWindow) {
  AddTag(2, "Tool", "Other");
  AddTag(3, "Other", "Window");
  AddTag(5, "Tool", "Window");
  AddTag(7, "Tool", "Window");
  const WindowHandle tool = desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow});
  WorkIn(tool);
  EXPECT_EQ(HandleOfTag(2), 0);
  EXPECT_EQ(HandleOfTag(3), 0);
  EXPECT_EQ(HandleOfTag(5), tool);
  EXPECT_EQ(HandleOfTag(7), 0);
}

TEST_F(ForegroundTracking, TaggedWindowIsKnownByAPartOfItsTitle) {
  AddTag(3, "Brushes", "Window");
  AddTag(5, "*** - Paint", "Window");
  const WindowHandle tool = desktop.Open("Tool - Paint", {.exStyle = win32::kWsExToolWindow});
  const WindowHandle brushes = desktop.Open("My Brushes 2", {.exStyle = win32::kWsExToolWindow});
  WorkIn(tool);
  EXPECT_EQ(HandleOfTag(5), tool);
  WorkIn(brushes);
  EXPECT_EQ(HandleOfTag(3), brushes);
}

TEST_F(ForegroundTracking, DialogOfAPaletteIsTheWindowThatThePaletteBelongsTo) {
  WorkIn(beta);
  desktop.SetEnabled(alpha, false);
  const WindowHandle palette = desktop.Open(
      "Palette", {.owner = alpha, .exStyle = win32::kWsExToolWindow, .enabled = false});
  WorkIn(desktop.Open("Colors", {.owner = palette, .style = win32::kDsModalFrame}));
  ExpectRecord(Triple(alpha), Triple(beta));
}

TEST_F(ForegroundTracking, AskingWhetherAWindowIsAcceptedLeavesItsTagAlone) {
  AddTag(3, "Tool", "Window");
  const WindowHandle tool = desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow});
  SeenWindow seen(desktop, tool);
  EXPECT_TRUE(tracker.IsAccepted(seen));
  EXPECT_EQ(HandleOfTag(3), 0);
}

TEST_F(ForegroundTracking, TagWithoutAClassAcceptsNoWindow) {
  AddTag(3, "Tool");
  WorkIn(desktop.Open("Tool", {.exStyle = win32::kWsExToolWindow}));
  EXPECT_EQ(previous.current, WindowTriple{});
  EXPECT_EQ(HandleOfTag(3), 0);
}

TEST_F(ForegroundTracking, AcceptedWindowLeavesTheTagsAlone) {
  AddTag(3, "Alpha", "Notepad");
  WorkIn(alpha);
  EXPECT_EQ(HandleOfTag(3), 0);
}

TEST_F(ForegroundTracking, LookingAnewTakesTheSameForegroundOnceMore) {
  tracker.LookAnew();
  tracker.tmrWindow_Timer();
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
}

TEST_F(ForegroundTracking, LookingAnewBeforeTheFirstTickTakesTheForegroundAtOnce) {
  ForegroundTracker fresh(routines, filter, actions, tags);
  fresh.LookAnew();
  fresh.tmrWindow_Timer();
  EXPECT_EQ(mainWindow.focusTag, kGotFocus);
}

TEST_F(ForegroundTracking, StepsComeInTheirOrder) {
  desktop.UserActivates(gamma);
  EXPECT_EQ(
      CallsOf([&] { tracker.tmrWindow_Timer(); }),
      // Is the window in front followed?
      (Calls{"GetForegroundWindow()", "GetClassNameA(Gamma, 255)", "GetWindow(Main, GW_OWNER)",
             "GetWindowLongA(Gamma, GWL_STYLE)", "DwmGetWindowAttribute(Gamma)",
             "GetWindowTextA(Gamma, 512)", "GetWindowLongA(Gamma, GWL_EXSTYLE)",
             // Can the record that has moved to it be used?
             "GetClassNameA(Gamma, 255)", "GetWindow(Main, GW_OWNER)",
             "GetWindowLongA(Gamma, GWL_STYLE)", "DwmGetWindowAttribute(Gamma)",
             "GetWindowTextA(Gamma, 512)", "GetForegroundWindow()",
             // The marks, and the display last.
             "GetWindowLongA(Main, GWL_EXSTYLE)", "GetWindowLongA(Gamma, GWL_EXSTYLE)",
             "EnablePreviousWindowItems(true)", "ShowTargetWindow(\"Gamma\", \"Window\")"}));
}

}  // namespace
}  // namespace korvale

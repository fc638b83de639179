#include "desktop/window_enumeration.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/run_time_error.h"
#include "tests/desktop/desktop_case.h"
#include "tests/fakes/error_of.h"

namespace korvale {
namespace {

class WindowEnumerationTest : public DesktopCase {
 protected:
  WindowHandle FindInstance(const std::string& className, const std::string& title,
                            bool visible = true) {
    return enumeration.FindInstanceAmong(enumeration.FindByClass(className), title, visible);
  }
};

TEST_F(WindowEnumerationTest, CallbackAlwaysAsksForMore) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  for (std::int32_t mode = -1; mode <= 9; ++mode) {
    EXPECT_TRUE(enumeration.EnumWindowsProc(hwnd, mode));
    EXPECT_TRUE(enumeration.EnumWindowsProc(0, mode));
    SeenWindow window(desktop, hwnd);
    EXPECT_TRUE(WindowEnumeration::EnumInstanceProc(window, mode, WindowEnumeration::PassOver));
  }
}

TEST_F(WindowEnumerationTest, NoModeActsOnAWindowThatIsNotSelectable) {
  AddTag(1, "Alpha");
  for (const bool iconic : {false, true}) {
    const WindowHandle hwnd = desktop.Open("Alpha", {.className = "Progman", .iconic = iconic});
    for (std::int32_t mode = 0; mode <= 8; ++mode) {
      enumeration.EnumWindowsProc(hwnd, mode,
                                  [&](SeenWindow&) { ADD_FAILURE() << "handed over in " << mode; });
    }
  }
  EXPECT_EQ(HandleOfTag(1), 0);
  EXPECT_EQ(log.Take(), Calls{});
}

TEST_F(WindowEnumerationTest, UnknownModesReadNothingOfAWindow) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  for (const std::int32_t mode : {-1, 0, 5, 8, 1000}) {
    EXPECT_EQ(CallsOf([&] { enumeration.EnumWindowsProc(hwnd, mode); }),
              Calls{"GetWindow(Main, GW_OWNER)"})
        << mode;
  }
}

TEST_F(WindowEnumerationTest, VisitsTheWindowsFromTheTop) {
  desktop.Open("Beta");
  desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { enumeration.FindByClass("Window"); }),
            (Calls{"EnumWindows()", "GetClassNameA(Alpha, 255)", "GetClassNameA(Beta, 255)",
                   "GetClassNameA(Main, 255)", "GetClassNameA(Owner, 255)"}));
}

TEST_F(WindowEnumerationTest, NestedEnumerationsAreAnError) {
  desktop.Open("Alpha");
  std::int16_t number = 0;
  log.WhenCalled("GetClassNameA",
                 [&] { number = ErrorOf([&] { enumeration.FindByTitle("Alpha"); }); });
  enumeration.EnumWindows(kTopWindow);
  EXPECT_EQ(number, RunTimeError::kInvalidCall);
}

TEST_F(WindowEnumerationTest, InstanceSearchInsideAnotherOneIsAnErrorToo) {
  desktop.Open("Alpha");
  log.WhenCalled("GetClassNameA", [&] { enumeration.FindByClass("c"); });
  EXPECT_THROW(enumeration.EnumWindows(kTopWindow), RunTimeError);
}

TEST_F(WindowEnumerationTest, EnumeratesAgainAfterAnError) {
  const WindowHandle hwnd = desktop.Open("Alpha");
  log.WhenCalled("GetClassNameA", [&] { throw RunTimeError(RunTimeError::kOutOfMemory); });
  EXPECT_THROW(enumeration.EnumWindows(kTopWindow), RunTimeError);
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), hwnd);
}

TEST_F(WindowEnumerationTest, RefreshResolvesEachTagToItsTopmostWindow) {
  AddTag(1, "Alpha").tag = "17";
  AddTag(2, "Beta");
  desktop.Open("Alpha below");
  const WindowHandle above = desktop.Open("Alpha above");
  enumeration.RefreshTags(1);
  EXPECT_EQ(HandleOfTag(1), above);
  EXPECT_EQ(HandleOfTag(2), 0);
}

TEST_F(WindowEnumerationTest, RefreshPassesOverWindowsWithoutChildren) {
  AddTag(1, "Alpha");
  const WindowHandle below = desktop.Open("Alpha below");
  desktop.Open("Alpha above", {.children = 0});
  enumeration.RefreshTags(1);
  EXPECT_EQ(HandleOfTag(1), below);
}

TEST_F(WindowEnumerationTest, RefreshFindsHiddenWindowsToo) {
  AddTag(1, "Alpha");
  const WindowHandle hidden = desktop.Open("Alpha", {.visible = false});
  enumeration.RefreshTags(1);
  EXPECT_EQ(HandleOfTag(1), hidden);
}

TEST_F(WindowEnumerationTest, RefreshResolvesNineTagsAtOnce) {
  std::vector<WindowHandle> handles;
  for (int tag = 1; tag <= kTagCount; ++tag) {
    AddTag(tag, "Window " + std::to_string(tag));
    handles.push_back(desktop.Open("Window " + std::to_string(tag)));
  }
  enumeration.RefreshTags(1);
  for (int tag = 1; tag <= kTagCount; ++tag) {
    EXPECT_EQ(HandleOfTag(tag), handles.at(static_cast<std::size_t>(tag - 1)));
  }
}

TEST_F(WindowEnumerationTest, RefreshLearnsTheClassOfTheTopmostWindow) {
  AddTag(1, "Alpha");
  desktop.Open("Alpha", {.className = "Lower"});
  desktop.Open("Alpha", {.className = "Upper"});
  enumeration.RefreshTags(1);
  EXPECT_EQ(ClassOfTag(1), "Upper");
}

TEST_F(WindowEnumerationTest, SearchByTitleFindsTheLowestMatch) {
  const WindowHandle lower = desktop.Open("Alpha 1", {.className = "One"});
  desktop.Open("Alpha 2", {.className = "Two"});
  desktop.Open("Beta");
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), lower);
}

TEST_F(WindowEnumerationTest, SearchByTitleFindsWindowsWithoutChildren) {
  const WindowHandle alpha = desktop.Open("Alpha", {.children = 0});
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), alpha);
}

TEST_F(WindowEnumerationTest, SearchByTitlePassesOverHiddenAndUnselectableWindows) {
  desktop.Open("Program Manager", {.className = "Progman"});
  desktop.Open("Alpha", {.visible = false});
  EXPECT_EQ(enumeration.FindByTitle("Program Manager"), 0);
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), 0);
}

TEST_F(WindowEnumerationTest, SearchByTitleFindsDisabledAndIconicWindows) {
  const WindowHandle disabled = desktop.Open("Disabled", {.enabled = false});
  const WindowHandle iconic = desktop.Open("Iconic", {.iconic = true});
  EXPECT_EQ(enumeration.FindByTitle("Disabled"), disabled);
  EXPECT_EQ(enumeration.FindByTitle("Iconic"), iconic);
}

TEST_F(WindowEnumerationTest, SearchByTitleUsesTheTextAsItIs) {
  const WindowHandle alpha = desktop.Open("x - Alpha");
  EXPECT_EQ(enumeration.FindByTitle("*** - Alpha"), alpha);
  EXPECT_EQ(enumeration.FindByTitle("&3  Alpha"), 0);
}

TEST_F(WindowEnumerationTest, SearchByTitleForgetsTheLastSearch) {
  const WindowHandle alpha = desktop.Open("Alpha");
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), alpha);
  desktop.Close(alpha);
  EXPECT_EQ(enumeration.FindByTitle("Alpha"), 0);
}

TEST_F(WindowEnumerationTest, SearchByTitleAndClassFindsTheLowestMatchOfBoth) {
  const WindowHandle lower = desktop.Open("Alpha 1", {.className = "Notepad"});
  desktop.Open("Alpha 2", {.className = "Notepad"});
  desktop.Open("Alpha 3", {.className = "WordPad"});
  EXPECT_EQ(FindByTitleAndClass("Alpha", "Notepad"), lower);
  EXPECT_EQ(FindByTitleAndClass("Alpha", "notepad"), 0);
  EXPECT_EQ(FindByTitleAndClass("Beta", "Notepad"), 0);
}

TEST_F(WindowEnumerationTest, SearchByTitleAndClassPassesOverHiddenWindows) {
  desktop.Open("Alpha", {.className = "Notepad", .visible = false});
  EXPECT_EQ(FindByTitleAndClass("Alpha", "Notepad"), 0);
}

TEST_F(WindowEnumerationTest, SearchByTitleAndClassReadsOnlyTheClassOfAnyOtherWindow) {
  desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { FindByTitleAndClass("Alpha", "Window"); }),
            (Calls{"EnumWindows()", "GetClassNameA(Alpha, 255)", "GetClassNameA(Main, 255)",
                   "GetClassNameA(Owner, 255)", "GetWindowLongA(Alpha, GWL_STYLE)",
                   "GetWindowTextA(Alpha, 512)", "GetWindow(Main, GW_OWNER)",
                   "GetClassNameA(Alpha, 255)", "DwmGetWindowAttribute(Alpha)"}));
}

TEST_F(WindowEnumerationTest, ARefreshFindsTheLowestMatchByTitleForTheSoughtTagToo) {
  AddTag(1, "Alpha", "Old");
  AddTag(2, "Alpha 2", "New");
  const WindowHandle lower = desktop.Open("Alpha 1", {.className = "New"});
  const WindowHandle upper = desktop.Open("Alpha 2", {.className = "New"});
  desktop.Open("Alpha 3", {.className = "New", .visible = false});
  desktop.Open("Beta");
  EXPECT_EQ(enumeration.RefreshTags(1), (WindowHandles{upper, lower}));
  EXPECT_EQ(enumeration.LastOnScreen({upper, lower}), lower);
  EXPECT_EQ(HandleOfTag(1), 0);
  EXPECT_EQ(HandleOfTag(2), upper);
  EXPECT_EQ(enumeration.RefreshTags(2), std::nullopt) << "it is resolved";
  EXPECT_EQ(enumeration.RefreshTags(3), std::nullopt) << "there is none";
}

TEST_F(WindowEnumerationTest, ARefreshInsideAnotherSearchLeavesTheTagsAlone) {
  AddTag(1, "Alpha").tag = "17";
  desktop.Open("Alpha");
  std::int16_t number = 0;
  log.WhenCalled("GetClassNameA", [&] { number = ErrorOf([&] { enumeration.RefreshTags(1); }); });
  enumeration.FindByTitle("Alpha");
  EXPECT_EQ(number, RunTimeError::kInvalidCall);
  EXPECT_EQ(HandleOfTag(1), 17);
}

TEST_F(WindowEnumerationTest, InstanceSearchFindsTheLowestOtherCopy) {
  const NewWindow copy{.className = "Korvale.frmMain", .process = 2};
  const WindowHandle lower = desktop.Open("Main", copy);
  desktop.Open("Main", copy);
  desktop.UserActivates(mainWindow.handle);
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main"), lower);
}

TEST_F(WindowEnumerationTest, InstanceSearchPassesOverTheProgramItself) {
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main"), 0);
}

TEST_F(WindowEnumerationTest, InstanceSearchNeedsTheExactTitleAndClassOfAVisibleWindow) {
  desktop.Open("Main 2", {.className = "Korvale.frmMain"});
  desktop.Open("Main", {.className = "korvale.frmmain"});
  desktop.Open("Main", {.className = "Korvale.frmMain", .visible = false});
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main"), 0);
}

TEST_F(WindowEnumerationTest, InstanceSearchIgnoresTheCaseOfTheFolder) {
  const WindowHandle hwnd = desktop.Open("MAIN", {.className = "Korvale.frmMain"});
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main"), hwnd);
}

TEST_F(WindowEnumerationTest, HiddenInstanceSearchFindsACopyThatIsStarting) {
  desktop.Open("Main", {.className = "Korvale.frmMain"});
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main", false), 0);
  const WindowHandle hidden =
      desktop.Open("Main", {.className = "Korvale.frmMain", .visible = false});
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main", false), hidden);
}

TEST_F(WindowEnumerationTest, InstanceSearchDoesNotApplyTheFilter) {
  const WindowHandle hwnd = desktop.Open("Program Manager", {.className = "Progman"});
  EXPECT_EQ(FindInstance("Progman", "Program Manager"), hwnd);
}

TEST_F(WindowEnumerationTest, InstanceSearchActsInMode4Only) {
  for (std::int32_t mode = 0; mode <= 8; ++mode) {
    WindowHandle handedOver = 0;
    SeenWindow window(desktop, 17);
    WindowEnumeration::EnumInstanceProc(window, mode,
                                        [&](SeenWindow& handed) { handedOver = handed.Handle(); });
    EXPECT_EQ(handedOver, mode == 4 ? 17 : 0) << mode;
  }
}

TEST_F(WindowEnumerationTest, InstanceSearchForgetsTheLastSearch) {
  const WindowHandle hwnd = desktop.Open("Main", {.className = "Korvale.frmMain"});
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main"), hwnd);
  desktop.Close(hwnd);
  EXPECT_EQ(FindInstance("Korvale.frmMain", "Main"), 0);
}

}  // namespace
}  // namespace korvale

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "desktop/waiting_window.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

constexpr int kWindowCounts[] = {20, 200};
/// The main window and the hidden one that owns it.
constexpr int kOwnWindows = 2;
/// Class, style and title of the main window; its owner is known by its handle.
constexpr int kOwnAtRefresh = 3;
/// EnumWindows, and which window owns the main window.
constexpr int kPass = 2;
/// What is in front, before and after, and what the main window is told.
constexpr int kAroundIt = 6;
/// The same of a window that was found: whether it is on the screen, its class, what decides
/// whether it can come forward, its way there and into the record.
constexpr int kActivation = 28;

/// How many calls to Windows each search makes, at most.
class CallCounts : public DesktopCase {
 protected:
  /// The windows of nine Tags below others of their class, such that each is looked at in vain
  /// first; `hidden` ones on top of all.
  void OpenWindows(int count, int hidden = 0) {
    for (int tag = 1; tag <= kTagCount; ++tag) {
      AddTag(tag, "*** - Editor " + std::to_string(tag), "Editor");
      desktop.Open("Text - Editor " + std::to_string(tag), {.className = "Editor"});
    }
    for (int i = kTagCount; i < count; ++i) desktop.Open("Text - Other", {.className = "Editor"});
    for (int i = 0; i < hidden; ++i) {
      desktop.Open("Text - Other", {.className = "Editor", .visible = false});
    }
  }

  template <typename Action>
  int CountOf(Action action) {
    const Calls calls = CallsOf(action);
    enumerations = std::ranges::count(calls, "EnumWindows()");
    return static_cast<int>(calls.size());
  }

  std::ptrdiff_t enumerations = 0;
};

TEST_F(CallCounts, RefindingAllTagsReadsClassAndTitleOfEachWindow) {
  for (const int count : kWindowCounts) {
    OpenWindows(count);
    const int calls = CountOf([this] { enumeration.RefreshTags(kTagCount); });
    constexpr int kChildAndCloak = 2;
    EXPECT_EQ(calls, kPass + 2 * count + kChildAndCloak * kTagCount);
    EXPECT_EQ(enumerations, 1);
    for (int tag = 1; tag <= kTagCount; ++tag) {
      EXPECT_NE(HandleOfTag(tag), 0);
      tags.mnuWindowParentList.Unload(tag);
    }
    for (const WindowHandle hwnd : std::vector(desktop.Windows().TopLevel())) {
      if (hwnd != owner && hwnd != mainWindow.handle) desktop.Close(hwnd);
    }
  }
}

TEST_F(CallCounts, RefindingReadsTheTitlesOfVisibleWindowsUntilTheSoughtTagIsFound) {
  OpenWindows(kTagCount);
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  const int calls = CountOf([this] { enumeration.RefreshTags(1); });
  constexpr int kClassStyleTitle = 3;
  EXPECT_EQ(calls, kPass + 100 * kClassStyleTitle + 4 * kTagCount);
}

TEST_F(CallCounts, RefindingReadsTheClassAloneOnceTheSoughtTagIsFound) {
  AddTag(1, "Gone", "Editor");
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  AddTag(2, "Found", "Editor");
  desktop.Open("Found", {.className = "Editor"});
  const int calls = CountOf([this] { enumeration.RefreshTags(2); });
  const int classOfMain = 1;
  EXPECT_EQ(calls, kPass + 4 + 100 + classOfMain);
}

TEST_F(CallCounts, RefindingReadsTheTitleOfAHiddenWindowOnlyWhenItsClassFits) {
  AddTag(1, "Gone", "Editor");
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other", .visible = false});
  const int ofOtherClass = CountOf([this] { enumeration.RefreshTags(1); });
  constexpr int kClassAndStyle = 2;
  EXPECT_EQ(ofOtherClass, kPass + 100 * kClassAndStyle + kOwnAtRefresh);
  for (int i = 0; i < 100; ++i) desktop.Open("Text", {.className = "Editor", .visible = false});
  constexpr int kClassAndTitle = 2;
  EXPECT_EQ(CountOf([this] { enumeration.RefreshTags(1); }), ofOtherClass + 100 * kClassAndTitle);
}

TEST_F(CallCounts, RefindingEndsItsReadingWithTheLastTag) {
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  OpenWindows(kTagCount);
  const int calls = CountOf([this] { enumeration.RefreshTags(1); });
  EXPECT_EQ(calls, kPass + 4 * kTagCount);
}

TEST_F(CallCounts, NothingToFindTakesOnePassUpToTheMessage) {
  AddTag(1, "Gone", "Editor");
  int editors = 0;
  for (const int count : kWindowCounts) {
    for (int i = 0; i < count; ++i) desktop.Open("Text - Other", {.className = "Editor"});
    for (int i = 0; i < count; ++i) desktop.Open("Other", {.className = "Other"});
    for (int i = 0; i < count; ++i) {
      desktop.Open("Hidden", {.className = "Other", .visible = false});
    }
    editors += count;
    messages.shown.clear();
    const int selection = CountOf([this] { routines.selection.SelectTag(1); });
    // The record is made sure of before the message, too.
    EXPECT_EQ(selection, kPass + (2 + 3 + 2) * editors + kOwnAtRefresh + kAroundIt + 3);
    EXPECT_EQ(enumerations, 1);
    EXPECT_EQ(messages.shown.size(), 1U);
  }
}

TEST_F(CallCounts, AWindowFoundByItsTitleAloneTakesOnePass) {
  AddTag(1, "Alpha", "Old");
  const WindowHandle alpha = desktop.Open("Alpha", {.className = "New"});
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  const int calls = CountOf([this] { routines.selection.SelectTag(1); });
  EXPECT_EQ(calls, kPass + 3 * 101 + kOwnAtRefresh + kActivation);
  EXPECT_EQ(enumerations, 1);
  EXPECT_EQ(HandleOfTag(1), alpha);
  EXPECT_EQ(ClassOfTag(1), "New");
}

TEST_F(CallCounts, ATagWhoseWindowIsDisabledTakesTwoPasses) {
  AddTag(1, "Alpha", "Window");
  desktop.Open("Alpha", {.enabled = false});
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  CountOf([this] { routines.selection.SelectTag(1); });
  EXPECT_EQ(enumerations, 2);
  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(CallCounts, SearchByTitleReadsOnlyWhetherAHiddenWindowIsVisible) {
  OpenWindows(20, 100);
  const int calls = CountOf([this] { enumeration.FindByTitle("Text"); });
  const int cloakOfTheLast = 1;
  EXPECT_EQ(calls, kPass + 3 * 21 + 101 + cloakOfTheLast);
}

TEST_F(CallCounts, SearchByClassReadsTheClassAlone) {
  OpenWindows(20, 100);
  const int calls = CountOf([this] { enumeration.FindByClass("Other"); });
  EXPECT_EQ(calls, 1 + 120 + kOwnWindows);
}

TEST_F(CallCounts, SearchForTheTopWindowReadsTheStyleAloneOfAHiddenOne) {
  OpenWindows(20, 100);
  const int calls = CountOf([this] { EXPECT_NE(enumeration.FindTopWindow(), 0); });
  EXPECT_EQ(calls, 2 + 4 * 20 + 100 + kOwnWindows);
}

TEST_F(CallCounts, MinimizeAllReadsTheStyleAloneOfWhatItLeavesAlone) {
  OpenWindows(20, 100);
  enumeration.EnumWindows(kMinimizeAll);
  const int calls = CountOf([this] { enumeration.EnumWindows(kMinimizeAll); });
  const int allOfMain = 5;
  EXPECT_EQ(calls, 2 + 120 + kOwnWindows + allOfMain);
}

TEST_F(CallCounts, SearchForADialogReadsTheOwnerAloneOfAWindowWithoutOne) {
  OpenWindows(20, 100);
  const WindowHandle disabled = desktop.Open("Disabled", {.enabled = false});
  const int calls = CountOf([&] { EXPECT_EQ(FindInputWindow(desktop, disabled), 0); });
  const int ownerOfTheOwner = 1;
  EXPECT_EQ(calls, 4 + 121 + kOwnWindows + ownerOfTheOwner);
}

TEST_F(CallCounts, SearchForAWaitingWindowReadsTheThreadAloneOfOtherPrograms) {
  OpenWindows(20, 100);
  const int calls =
      CountOf([this] { EXPECT_EQ(FindWaitingWindow(desktop, mainWindow.handle, "None"), 0); });
  const int styleAndClassOfMain = 2;
  const int styleOfItsOwner = 1;
  EXPECT_EQ(calls, 2 + 120 + kOwnWindows + styleAndClassOfMain + styleOfItsOwner);
}

}  // namespace
}  // namespace korvale

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
    EXPECT_LE(calls, 2 + 2 * count + kChildAndCloak * kTagCount);
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

TEST_F(CallCounts, RefindingReadsTheClassAloneOfAWindowThatFitsNoTagByIt) {
  OpenWindows(kTagCount);
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  const int calls = CountOf([this] { enumeration.RefreshTags(); });
  EXPECT_LE(calls, 2 + 100 + 4 * kTagCount);
}

TEST_F(CallCounts, RefindingEndsItsReadingWithTheLastTag) {
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  OpenWindows(kTagCount);
  const int calls = CountOf([this] { enumeration.RefreshTags(1); });
  EXPECT_LE(calls, 2 + 4 * kTagCount);
}

TEST_F(CallCounts, NothingToFindTakesOnePassUpToTheMessage) {
  AddTag(1, "Gone", "Editor");
  for (const int count : kWindowCounts) {
    for (int i = 0; i < count; ++i) desktop.Open("Text - Other", {.className = "Editor"});
    for (int i = 0; i < count; ++i) desktop.Open("Other", {.className = "Other"});
    int calls = 0;
    messages.shown.clear();
    calls = CountOf([this] { enumeration.RefreshTags(1); });
    EXPECT_LE(calls, 2 + 2 * static_cast<int>(desktop.Windows().TopLevel().size()));
    EXPECT_LE(CountOf([this] { routines.selection.SelectTag(1); }), calls + 20);
    EXPECT_EQ(enumerations, 1);
    EXPECT_EQ(messages.shown.size(), 1U);
  }
}

TEST_F(CallCounts, AWindowFoundByItsTitleAloneTakesOnePass) {
  AddTag(1, "Alpha", "Old");
  const WindowHandle alpha = desktop.Open("Alpha", {.className = "New"});
  for (int i = 0; i < 100; ++i) desktop.Open("Other", {.className = "Other"});
  CountOf([this] { routines.selection.SelectTag(1); });
  EXPECT_EQ(enumerations, 1);
  EXPECT_EQ(HandleOfTag(1), alpha);
  EXPECT_EQ(ClassOfTag(1), "New");
}

TEST_F(CallCounts, SearchByTitleReadsOnlyWhetherAHiddenWindowIsVisible) {
  OpenWindows(20, 100);
  const int calls = CountOf([this] { enumeration.FindByTitle("Text"); });
  const int cloakOfTheLast = 1;
  EXPECT_LE(calls, 2 + 3 * (20 + kOwnWindows) + 100 + cloakOfTheLast);
}

TEST_F(CallCounts, SearchByClassReadsTheClassAlone) {
  OpenWindows(20, 100);
  const int calls = CountOf([this] { enumeration.FindByClass("Other"); });
  EXPECT_LE(calls, 1 + 120 + kOwnWindows);
}

TEST_F(CallCounts, SearchForTheTopWindowReadsTheStyleAloneOfAHiddenOne) {
  OpenWindows(20, 100);
  const int calls = CountOf([this] { EXPECT_NE(enumeration.FindTopWindow(), 0); });
  EXPECT_LE(calls, 2 + 4 * 20 + 100 + kOwnWindows);
}

TEST_F(CallCounts, MinimizeAllReadsTheStyleAloneOfWhatItLeavesAlone) {
  OpenWindows(20, 100);
  enumeration.EnumWindows(kMinimizeAll);
  const int calls = CountOf([this] { enumeration.EnumWindows(kMinimizeAll); });
  const int allOfMain = 5;
  EXPECT_LE(calls, 2 + 120 + kOwnWindows + allOfMain);
}

TEST_F(CallCounts, SearchForADialogReadsTheOwnerAloneOfAWindowWithoutOne) {
  OpenWindows(20, 100);
  const WindowHandle disabled = desktop.Open("Disabled", {.enabled = false});
  const int calls = CountOf([&] { EXPECT_EQ(FindInputWindow(desktop, disabled), 0); });
  const int ownerOfTheOwner = 1;
  EXPECT_LE(calls, 4 + 121 + kOwnWindows + ownerOfTheOwner);
}

TEST_F(CallCounts, SearchForAWaitingWindowReadsTheThreadAloneOfOtherPrograms) {
  OpenWindows(20, 100);
  const int calls =
      CountOf([this] { EXPECT_EQ(FindWaitingWindow(desktop, mainWindow.handle, "None"), 0); });
  const int styleAndClassOfMain = 2;
  const int styleOfItsOwner = 1;
  EXPECT_LE(calls, 2 + 120 + kOwnWindows + styleAndClassOfMain + styleOfItsOwner);
}

}  // namespace
}  // namespace korvale

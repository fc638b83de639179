#include "desktop/tag_list.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class TagListTest : public DesktopCase {
 protected:
  void Match(WindowHandle hwnd) { passes.TagListPass(TagListMode::kMatch, 0, hwnd); }
  std::vector<int> Entries() { return tags.mnuWindowParentList.Indexes(); }
};

TEST(TagEntry, TextIsTheCaptionBehindItsFirstTwoCharacters) {
  MenuItem entry;
  entry.caption = "&3  Untitled - ***";
  EXPECT_EQ(IdentificationText(entry), "Untitled - ***");
  entry.caption = "&3    無題 🦊   ";
  EXPECT_EQ(IdentificationText(entry), "無題 🦊");
  entry.caption = "&3";
  EXPECT_EQ(IdentificationText(entry), "");
  entry.caption = "";
  EXPECT_EQ(IdentificationText(entry), "");
}

TEST(TagEntry, HandleIsTheDecimalNumberInItsTag) {
  MenuItem entry;
  for (const auto& [tag, handle] :
       std::vector<std::pair<std::string, WindowHandle>>{{"0", 0},
                                                         {"65552", 65552},
                                                         {"-2", -2},
                                                         {"2147483647", 2147483647},
                                                         {"2147483648", 0},
                                                         {"", 0},
                                                         {"12x", 0},
                                                         {"window", 0}}) {
    entry.tag = tag;
    EXPECT_EQ(TagHandle(entry), handle) << tag;
  }
}

TEST_F(TagListTest, Tag0AlwaysExists) { EXPECT_EQ(passes.TagListPass(TagListMode::kExists, 0), 1); }

TEST_F(TagListTest, TagsExistWithTheirEntries) {
  AddTag(1, "Alpha");
  AddTag(9, "Beta");
  EXPECT_EQ(passes.TagListPass(TagListMode::kExists, 1), 1);
  EXPECT_EQ(passes.TagListPass(TagListMode::kExists, 9), 1);
  for (const std::int16_t tag : std::vector<std::int16_t>{-1, 2, 8, 10}) {
    EXPECT_EQ(passes.TagListPass(TagListMode::kExists, tag), -1) << tag;
  }
}

TEST_F(TagListTest, UnresolvingClearsEveryTagButTheFirstEntry) {
  for (int tag = 1; tag <= 9; ++tag) AddTag(tag, "Alpha").tag = "11";
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(passes.TagListPass(TagListMode::kUnresolve), -1); }), Calls{});
  for (int tag = 1; tag <= 9; ++tag) {
    EXPECT_EQ(tags.mnuWindowParentList.Find(tag)->tag, "0") << tag;
  }
  EXPECT_EQ(tags.mnuWindowParentList.Find(0)->tag, "7");
}

TEST_F(TagListTest, MatchingStoresTheHandleAsDecimalText) {
  AddTag(3, "*** - Notepad", "Notepad");
  const WindowHandle hwnd = desktop.Open("Untitled - Notepad", {.className = "Notepad"});
  EXPECT_EQ(passes.TagListPass(TagListMode::kMatch, 0, hwnd), -1);
  EXPECT_EQ(tags.mnuWindowParentList.Find(3)->tag, std::to_string(hwnd));
}

TEST_F(TagListTest, MatchingKeepsAResolvedEntry) {
  AddTag(3, "Alpha").tag = "17";
  Match(desktop.Open("Alpha"));
  EXPECT_EQ(HandleOfTag(3), 17);
}

TEST_F(TagListTest, MatchingTakesACorruptHandleForUnresolved) {
  AddTag(3, "Alpha").tag = "nothing";
  const WindowHandle hwnd = desktop.Open("Alpha");
  Match(hwnd);
  EXPECT_EQ(HandleOfTag(3), hwnd);
}

TEST_F(TagListTest, MatchingNeedsTheExactClass) {
  AddTag(3, "Alpha", "Notepad");
  Match(desktop.Open("Alpha", {.className = "notepad"}));
  Match(desktop.Open("Alpha", {.className = "Notepad2"}));
  EXPECT_EQ(HandleOfTag(3), 0);
  EXPECT_EQ(ClassOfTag(3), "Notepad");
}

TEST_F(TagListTest, MatchingWithoutAClassLearnsIt) {
  AddTag(3, "Alpha");
  const WindowHandle hwnd = desktop.Open("Alpha", {.className = "Notepad"});
  Match(hwnd);
  EXPECT_EQ(HandleOfTag(3), hwnd);
  EXPECT_EQ(ClassOfTag(3), "Notepad");
  passes.TagListPass(TagListMode::kUnresolve);
  Match(desktop.Open("Alpha", {.className = "WordPad"}));
  EXPECT_EQ(HandleOfTag(3), 0);
}

TEST_F(TagListTest, MatchingNeedsTheTitle) {
  AddTag(3, "alpha");
  Match(desktop.Open("Alpha"));
  EXPECT_EQ(HandleOfTag(3), 0);
  EXPECT_EQ(ClassOfTag(3), "");
}

TEST_F(TagListTest, MatchingNeedsAChildWindow) {
  AddTag(3, "Alpha");
  Match(desktop.Open("Alpha", {.children = 0}));
  EXPECT_EQ(HandleOfTag(3), 0);
  EXPECT_EQ(ClassOfTag(3), "");
}

TEST_F(TagListTest, OneWindowMatchesSeveralEntries) {
  AddTag(9, "Notepad");
  AddTag(1, "Untitled - ***");
  AddTag(4, "WordPad");
  const WindowHandle hwnd = desktop.Open("Untitled - Notepad");
  Match(hwnd);
  EXPECT_EQ(HandleOfTag(1), hwnd);
  EXPECT_EQ(HandleOfTag(4), 0);
  EXPECT_EQ(HandleOfTag(9), hwnd);
}

TEST_F(TagListTest, MatchingNeverTouchesTheFirstEntry) {
  MenuItem& first = *tags.mnuWindowParentList.Find(0);
  first.tag = "0";
  Match(desktop.Open("Previous Window"));
  EXPECT_EQ(first.tag, "0");
}

TEST_F(TagListTest, MatchingReadsEachFactOnceForAllTags) {
  AddTag(3, "Alpha", "Window");
  AddTag(5, "Alpha");
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { Match(hwnd); }),
            (Calls{"GetClassNameA(Alpha, 255)", "GetWindowTextA(Alpha, 512)",
                   "GetWindow(Alpha, GW_CHILD)", "DwmGetWindowAttribute(Alpha)"}));
  EXPECT_EQ(HandleOfTag(3), hwnd);
  EXPECT_EQ(HandleOfTag(5), hwnd);
}

TEST_F(TagListTest, MatchingReadsNothingForAResolvedEntry) {
  AddTag(3, "Alpha", "Window").tag = "17";
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { Match(hwnd); }), Calls{});
}

TEST_F(TagListTest, MatchingReadsNoTitleWhenTheClassDiffers) {
  AddTag(3, "Alpha", "Other");
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { Match(hwnd); }), Calls{"GetClassNameA(Alpha, 255)"});
}

TEST_F(TagListTest, MatchingLooksForNoChildWhenTheTitleDiffers) {
  AddTag(3, "Beta");
  const WindowHandle hwnd = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { Match(hwnd); }), (Calls{"GetWindowTextA(Alpha, 512)"}));
}

TEST_F(TagListTest, UnloadingLeavesTheFirstEntryAlone) {
  for (int tag = 1; tag <= kTagCount; ++tag) AddTag(tag, "Alpha");
  EXPECT_EQ(passes.TagListPass(TagListMode::kUnload), -1);
  EXPECT_EQ(Entries(), std::vector<int>{0});
}

TEST_F(TagListTest, AnUnknownModeDoesNothing) {
  AddTag(3, "Alpha").tag = "17";
  EXPECT_EQ(passes.TagListPass(static_cast<TagListMode>(6)), -1);
  EXPECT_EQ(HandleOfTag(3), 17);
}

TEST_F(TagListTest, RemovingClosedKeepsTheEntriesOfLivingWindows) {
  const WindowHandle alpha = desktop.Open("Alpha");
  const WindowHandle beta = desktop.Open("Beta");
  AddTag(1, "Alpha").tag = std::to_string(alpha);
  AddTag(2, "Beta").tag = std::to_string(beta);
  AddTag(3, "Gamma").tag = "0";
  AddTag(4, "Delta").tag = "corrupt";
  desktop.Close(beta);
  passes.RemoveClosed();
  EXPECT_EQ(Entries(), (std::vector<int>{0, 1}));
}

}  // namespace
}  // namespace korvale

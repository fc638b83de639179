#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class TagKeys : public KorvaleTest {};

TEST_F(TagKeys, BringTheTaggedWindowToTheFront) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  Open("Beta");
  Press(TagKey(3));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(TagKeys, RestoreAMinimizedWindow) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ShowWindow(alpha.handle(), SW_MINIMIZE);
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(3));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(WaitFor([&] { return !alpha.Minimized(); }));
}

TEST_F(TagKeys, MakeTheWindowThatTheUserLeftThePreviousWindow) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(3));
  ASSERT_TRUE(InFront(alpha));
  ASSERT_TRUE(StaysInFront(alpha));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(beta));
  ASSERT_TRUE(StaysInFront(beta));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(TagKeys, LeaveThePreviousWindowAloneWhenTheirWindowIsAlreadyInFront) {
  installation_.StoreTag(2, "Beta", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  ASSERT_TRUE(WorkIn(alpha));
  Press(TagKey(2));
  ASSERT_TRUE(InFront(beta));
  ASSERT_TRUE(StaysInFront(beta));
  Press(TagKey(2));
  EXPECT_TRUE(StaysInFront(beta));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(TagKeys, DoNothingWithoutAWindow) {
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  Press(TagKey(7));
  EXPECT_TRUE(StaysInFront(alpha));
}

TEST_F(TagKeys, FindAWindowByPartOfItsTitle) {
  installation_.StoreTag(1, "Note", kClass);
  Start();
  const Window notes = Open("Notes - Editor");
  Open("Beta");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(notes));
}

TEST_F(TagKeys, FindAWindowByTheTextBeforeTheFirstSeparator) {
  installation_.StoreTag(1, "a - ***", kClass);
  Start();
  Open("x - a - c");
  const Window wanted = Open("a - b - c");
  Open("Beta");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(wanted));
}

TEST_F(TagKeys, FindAWindowByTheTextAfterTheLastSeparator) {
  installation_.StoreTag(1, "*** - c", kClass);
  Start();
  const Window wanted = Open("a - b - c");
  Open("c - d");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(wanted));
}

TEST_F(TagKeys, TakeATitleWithoutSeparatorWhole) {
  installation_.StoreTag(1, "Plain - ***", kClass);
  installation_.StoreTag(2, "*** - Plain", kClass);
  Start();
  const Window plain = Open("Plain");
  const Window other = Open("Plainer");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(plain));
  ASSERT_TRUE(WorkIn(other));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(plain));
}

TEST_F(TagKeys, MindUpperAndLowerCase) {
  installation_.StoreTag(1, "alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  Press(TagKey(1));
  EXPECT_TRUE(Says("Window:  [alpha]  is not open."));
}

TEST_F(TagKeys, TakeTheTopmostOfSeveralMatchesByTitleAndClass) {
  installation_.StoreTag(1, "Twin", kClass);
  Start();
  const Window lower = Open("Twin");
  const Window upper = Open("Twin");
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(1));
  EXPECT_TRUE(InFront(upper));
  EXPECT_NE(Foreground(), lower);
}

TEST_F(TagKeys, TakeTheLowestOfSeveralMatchesByTitleAlone) {
  installation_.StoreTag(1, "Twin", "Gone.Class");
  Start();
  const Window lower = Open("Twin");
  Open("Twin");
  const Window beta = Open("Beta");
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(1));
  EXPECT_TRUE(InFront(lower));
}

TEST_F(TagKeys, LearnTheClassOfAWindowFoundByTitleAlone) {
  installation_.StoreTag(1, "Alpha", "Gone.Class");
  Start();
  const Window alpha = Open("Alpha");
  Open("Beta");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(alpha));
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowClass", "1"), kClass);
}

TEST_F(TagKeys, LearnTheClassOnTheFirstUse) {
  installation_.StoreTag(1, "Alpha", "");
  Start();
  const Window alpha = Open("Alpha");
  Open("Beta");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(alpha));
  ASSERT_TRUE(Exit());
  EXPECT_EQ(installation_.settings().Get("ParentWindowClass", "1"), kClass);
}

TEST_F(TagKeys, FindAWindowWithoutChildWindows) {
  installation_.StoreTag(1, "Bare", kClass);
  Start();
  const Window bare = Open({.title = "Bare", .with_child = false});
  Open("Beta");
  Press(TagKey(1));
  EXPECT_TRUE(InFront(bare));
}

TEST_F(TagKeys, SelectNineWindows) {
  for (int tag = 1; tag <= 9; ++tag) {
    installation_.StoreTag(tag, "Window " + std::to_string(tag), kClass);
  }
  Start();
  std::vector<Window> windows;
  for (int tag = 1; tag <= 9; ++tag) {
    windows.push_back(Open({.title = "Window " + std::to_string(tag)}));
  }
  for (int tag = 1; tag <= 9; ++tag) {
    Press(TagKey(tag));
    EXPECT_TRUE(InFront(windows[static_cast<size_t>(tag - 1)]));
  }
}

class TagKeysForTitle : public KorvaleTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(TagKeysForTitle, BringTheWindowToTheFront) {
  installation_.StoreTag(4, GetParam(), kClass);
  Start();
  const Window window = Open(GetParam());
  ASSERT_TRUE(WorkIn(window));
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(4));
  EXPECT_TRUE(InFront(window));
  EXPECT_TRUE(Target(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Titles, TagKeysForTitle,
                         ::testing::Values("Отчёт за год", "日本語の題名", "party 🎉🎈 time",
                                           "R&D && more", "A title of exactly 30 letters.",
                                           "A title of exactly 31 letters.."));

}  // namespace
}  // namespace korvale::endtoend

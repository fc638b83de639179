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
  WorkInNew("Beta");
  Press(TagKey(3));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(WaitFor([&] { return !alpha.Minimized(); }));
}

TEST_F(TagKeys, MakeTheWindowThatTheUserLeftThePreviousWindow) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = WorkInNew("Alpha");
  const Window beta = WorkInNew("Beta");
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
  const Window alpha = WorkInNew("Alpha");
  const Window beta = WorkInNew("Beta");
  ASSERT_TRUE(WorkIn(alpha));
  Press(TagKey(2));
  ASSERT_TRUE(InFront(beta));
  ASSERT_TRUE(StaysInFront(beta));
  Press(TagKey(2));
  EXPECT_TRUE(StaysInFront(beta));
  Press(TagKey(0));
  EXPECT_TRUE(InFront(alpha));
}

class TagKeysForTitle : public KorvaleTest, public ::testing::WithParamInterface<const char*> {};

TEST_P(TagKeysForTitle, BringTheWindowToTheFront) {
  installation_.StoreTag(4, GetParam(), kClass);
  Start();
  const Window window = WorkInNew(GetParam());
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(4));
  EXPECT_TRUE(InFront(window));
  EXPECT_TRUE(Target(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Titles, TagKeysForTitle,
                         ::testing::Values("Отчёт за год", "日本語の題名", "party 🎉🎈 time",
                                           "R&D && more"));

}  // namespace
}  // namespace korvale::endtoend

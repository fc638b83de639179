#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class TagFailures : public KorvaleTest {};

TEST_F(TagFailures, AClosedWindowIsReportedAsNotOpen) {
  installation_.StoreTag(3, "*** - Notes", kClass);
  Start();
  const Window notes = Open("Day - Notes");
  const Window beta = WorkInNew("Beta");
  Press(TagKey(3));
  ASSERT_TRUE(InFront(notes));
  ASSERT_TRUE(notes.Close());
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(3));
  const Window box = korvale_->MessageBox();
  EXPECT_EQ(box.Title(), "Korvale");
  EXPECT_TRUE(InFront(box));
  EXPECT_TRUE(Says("Window:  [*** - Notes]  is not open."));
  EXPECT_TRUE(InFront(beta)) << "the user goes on where they worked";
  EXPECT_TRUE(StaysInFront(beta));
}

TEST_F(TagFailures, AReopenedWindowIsFoundUnderItsNewHandle) {
  installation_.StoreTag(3, "*** - Notes", kClass);
  Start();
  const Window first = Open("Day - Notes");
  const Window beta = WorkInNew("Beta");
  Press(TagKey(3));
  ASSERT_TRUE(InFront(first));
  ASSERT_TRUE(first.Close());
  const Window second = Open("Night - Notes");
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(3));
  EXPECT_TRUE(InFront(second));
}

TEST_F(TagFailures, ADisabledWindowIsReportedAndStaysBehind) {
  installation_.StoreTag(2, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  WorkInNew("Beta");
  EnableWindow(alpha.handle(), FALSE);
  Press(TagKey(2));
  EXPECT_TRUE(Says("Window:  [Alpha]  is not enabled, and currently cannot be selected."));
  EXPECT_NE(Foreground(), alpha);
}

TEST_F(TagFailures, AHiddenWindowIsReportedAsNotOpen) {
  installation_.StoreTag(2, "Alpha", kClass);
  Start();
  Open({.title = "Alpha", .show = SW_HIDE});
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(2));
  EXPECT_TRUE(Says("Window:  [Alpha]  is not open."));
}

TEST_F(TagFailures, AnAmpersandIsShownAsItIsInTheMessage) {
  installation_.StoreTag(2, "R&D", kClass);
  Start();
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(2));
  EXPECT_TRUE(Says("Window:  [R&D]  is not open."));
}

TEST_F(TagFailures, AWindowThatChangedItsTitleGivesWayToTheOneThatHasItNow) {
  installation_.StoreTag(2, "Alpha", kClass);
  Start();
  const Window old_one = Open("Alpha");
  const Window other = Open("Gamma");
  const Window beta = WorkInNew("Beta");
  Press(TagKey(2));
  ASSERT_TRUE(InFront(old_one));
  ASSERT_TRUE(WorkIn(other));
  ASSERT_TRUE(WorkIn(beta));
  old_one.SetTitle("Something else");
  const Window new_one = Open("Alpha");
  ASSERT_TRUE(WorkIn(other));
  ASSERT_TRUE(WorkIn(beta));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(new_one));
}

TEST_F(TagFailures, AHungWindowDoesNotHoldUpTheOthers) {
  installation_.StoreTag(1, "Stuck", kClass);
  installation_.StoreTag(2, "Alpha", kClass);
  Start();
  TestProgram stuck_program;
  const Window stuck = stuck_program.Open("Stuck");
  const Window alpha = Open("Alpha");
  WorkInNew("Beta");
  stuck_program.Hang();
  Press(TagKey(1));
  EXPECT_TRUE(HoldsFor([&] { return main().Responds(); }));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(stuck.Exists());
  stuck_program.Recover();
}

TEST_F(TagFailures, TheOwnerOfAWindowIsRestoredFirst) {
  installation_.StoreTag(1, "Owned", kClass);
  Start();
  const Window owner = Open("Owner");
  const Window owned = WorkInNew({.title = "Owned", .owner = owner});
  ShowWindow(owner.handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return owner.Minimized(); }));
  ASSERT_TRUE(WorkIn(Open("Beta")));
  Press(TagKey(1));
  EXPECT_TRUE(InFront(owned));
  EXPECT_FALSE(owner.Minimized());
}

TEST_F(TagFailures, AFailedSelectionLeavesThePreviousWindowAlone) {
  installation_.StoreTag(5, "Nowhere", kClass);
  Start();
  WorkInNew("Alpha");
  const Window beta = WorkInNew("Beta");
  Press(TagKey(5));
  ASSERT_TRUE(Says("Window:  [Nowhere]  is not open."));
  ASSERT_TRUE(InFront(beta));
  EXPECT_TRUE(StaysInFront(beta));
  EXPECT_EQ(korvale_->TargetTitle(), "Beta");
}

}  // namespace
}  // namespace korvale::endtoend

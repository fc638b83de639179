#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class WindowMenu : public KorvaleTest {};

TEST_F(WindowMenu, SelectsATaggedWindow) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, '3'});
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(Target("Alpha"));
}

TEST_F(WindowMenu, PopsUpAnywhereAndSelectsATaggedWindow) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  ASSERT_TRUE(PopUpWindowMenu());
  EXPECT_TRUE(InFront(main()));
  Press({0, '3'});
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(WindowMenu, PopsUpAtTheMouse) {
  Start();
  ASSERT_TRUE(WorkIn(Open("Beta")));
  SetCursorPos(700, 300);
  ASSERT_TRUE(PopUpWindowMenu());
  RECT area{};
  GetWindowRect(korvale_->OpenMenu().handle(), &area);
  EXPECT_NEAR(area.left, 700, 4);
  EXPECT_NEAR(area.top, 300, 4);
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
}

TEST_F(WindowMenu, PoppedUpTwiceWorksAgainAfterEscape) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, '3'});
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(WindowMenu, SaysThatATaggedWindowIsNotOpen) {
  installation_.StoreTag(3, "Nowhere", kClass);
  Start();
  ASSERT_TRUE(WorkIn(Open("Beta")));
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, '3'});
  EXPECT_TRUE(Says("Window:  [Nowhere]  is not open."));
}

TEST_F(WindowMenu, ReturnsToThePreviousWindow) {
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(alpha));
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, '0'});
  EXPECT_TRUE(InFront(alpha));
}

}  // namespace
}  // namespace korvale::endtoend

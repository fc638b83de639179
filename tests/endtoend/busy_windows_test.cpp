#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

/// A program beside the others that stops answering for less long than Windows needs to call it
/// hung. Each test must see its effects before it lets the program go on.
class BusyWindows : public KorvaleTest {
 protected:
  void StartWithTags() {
    installation_.StoreTag(1, "Busy", kClass);
    installation_.StoreTag(2, "Alpha", kClass);
    installation_.StoreTag(3, "Beta", kClass);
    Start();
    busy_ = busy_program_.Open("Busy");
    alpha_ = Open("Alpha");
    beta_ = Open("Beta");
    ASSERT_TRUE(WorkIn(alpha_));
  }
  bool Minimize(Window window) {
    ShowWindow(window.handle(), SW_MINIMIZE);
    return WaitFor([&] { return window.Minimized(); });
  }

  TestProgram busy_program_;
  Window busy_;
  Window alpha_;
  Window beta_;
};

TEST_F(BusyWindows, DoNotHoldUpTheNextKeyWhenSelectedMinimized) {
  StartWithTags();
  ASSERT_TRUE(Minimize(busy_));
  ASSERT_TRUE(WorkIn(alpha_));
  busy_program_.Hang();
  Press(TagKey(1));
  Press(TagKey(3));
  EXPECT_TRUE(InFront(beta_));
  EXPECT_TRUE(busy_.Minimized());
  EXPECT_FALSE(korvale_->HasMessageBox());
  busy_program_.Recover();
  EXPECT_TRUE(WaitFor([&] { return !busy_.Minimized(); }));
}

TEST_F(BusyWindows, DoNotHoldUpMinimizeAllAndRestoreAll) {
  StartWithTags();
  busy_program_.Hang();
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, 'M'});
  EXPECT_TRUE(WaitFor([&] { return alpha_.Minimized() && beta_.Minimized(); }));
  EXPECT_FALSE(busy_.Minimized());
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, 'R'});
  EXPECT_TRUE(WaitFor([&] { return !alpha_.Minimized() && !beta_.Minimized(); }));
  Press(TagKey(2));
  EXPECT_TRUE(InFront(alpha_));
  busy_program_.Recover();
}

TEST_F(BusyWindows, DoNotHoldUpTheMinimizeKey) {
  StartWithTags();
  ASSERT_TRUE(WorkIn(busy_));
  busy_program_.Hang();
  PressAtOnce(kMinimizeKey);
  EXPECT_TRUE(InFront(alpha_));
  PressAtOnce(TagKey(3));
  EXPECT_TRUE(InFront(beta_));
  EXPECT_FALSE(busy_.Minimized());
  busy_program_.Recover();
  EXPECT_TRUE(WaitFor([&] { return busy_.Minimized(); }));
}

TEST_F(BusyWindows, DoNotHoldUpTheSwitchThatPutsThemOnTop) {
  StartWithTags();
  ASSERT_TRUE(WorkIn(busy_));
  ASSERT_TRUE(OpenWindowMenu());
  busy_program_.Hang();
  Press({0, 'T'});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
  PressAtOnce(TagKey(3));
  EXPECT_TRUE(InFront(beta_));
  EXPECT_FALSE(busy_.Topmost());
  busy_program_.Recover();
  EXPECT_TRUE(WaitFor([&] { return busy_.Topmost(); }));
}

TEST_F(BusyWindows, AreNotCalledClosedWhenTheirOwnerDoesNotUnfold) {
  installation_.StoreTag(4, "Owned", kClass);
  StartWithTags();
  const Window owned = busy_program_.Open({.title = "Owned", .owner = busy_});
  ASSERT_TRUE(WorkIn(owned));
  ASSERT_TRUE(WorkIn(alpha_));
  Press(TagKey(4));
  ASSERT_TRUE(InFront(owned));
  ASSERT_TRUE(Minimize(busy_));
  ASSERT_TRUE(WorkIn(alpha_));
  busy_program_.Hang();
  Press(TagKey(4));
  // Wine leaves it visible beside its minimized owner, Windows does not.
  if (owned.Visible()) {
    EXPECT_TRUE(HoldsFor([&] { return !korvale_->HasMessageBox(); }));
  } else {
    EXPECT_TRUE(Says("The window operation was not successful.  Please try again."));
  }
  busy_program_.Recover();
}

}  // namespace
}  // namespace korvale::endtoend

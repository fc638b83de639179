#include <cstdlib>
#include <string>
#include <vector>

#include "tests/endtoend/korvale_test.h"

namespace korvale::endtoend {
namespace {

constexpr char kClass[] = "Test.Window";

class WindowMenu : public KorvaleTest {
 protected:
  /// How many menus are on the screen.
  size_t OpenMenus() {
    std::vector<Window> menus = TopLevelWindows();
    std::erase_if(
        menus, [](Window window) { return window.ClassName() != "#32768" || !window.Visible(); });
    return menus.size();
  }

  bool MenuIsAt(int x, int y) {
    RECT area{};
    GetWindowRect(korvale_->OpenMenu().handle(), &area);
    return std::abs(area.left - x) <= 4 && std::abs(area.top - y) <= 4;
  }
};

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
  PutPointer({700, 300});
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
  const Window beta = WorkInNew("Beta");
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, VK_ESCAPE});
  ASSERT_TRUE(InFront(beta));
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, '3'});
  EXPECT_TRUE(InFront(alpha));
}

TEST_F(WindowMenu, PoppedUpAndLeftWithoutAChoiceGivesTheKeyboardBack) {
  Start();
  const Window beta = WorkInNew("Beta");
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
  EXPECT_TRUE(InFront(beta));
  EXPECT_TRUE(StaysInFront(beta));
}

TEST_F(WindowMenu, PoppedUpLeadsToTheWindowBeforeWhenTheUsersOneHasGone) {
  Start();
  const Window alpha = WorkInNew("Alpha");
  const Window beta = WorkInNew("Beta");
  ASSERT_TRUE(PopUpWindowMenu());
  ASSERT_TRUE(beta.Close());
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(StaysInFront(alpha));
}

TEST_F(WindowMenu, PoppedUpFromAMinimizedStripLeavesItMinimized) {
  Start();
  const Window strip = main();
  const Window beta = Open("Beta");
  ShowWindow(strip.handle(), SW_MINIMIZE);
  ASSERT_TRUE(WaitFor([&] { return strip.Minimized(); }));
  ASSERT_TRUE(BringToFront(beta));
  ASSERT_TRUE(PopUpWindowMenu());
  EXPECT_TRUE(strip.Minimized());
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasMenu(); }));
  EXPECT_TRUE(InFront(beta));
  EXPECT_TRUE(strip.Minimized());
}

TEST_F(WindowMenu, ASwitchOfThePopUpLeavesTheUserWhereTheyWork) {
  Start();
  const Window beta = WorkInNew("Beta");
  ASSERT_TRUE(PopUpWindowMenu());
  Press({0, 'O'});
  EXPECT_TRUE(
      WaitFor([&] { return installation_.settings().Get("Startup", "AlwaysOnTop") == "True"; }));
  EXPECT_TRUE(InFront(beta));
  EXPECT_TRUE(StaysInFront(beta));
}

TEST_F(WindowMenu, PoppedUpOverAnOpenMenuOfTheBarIsTheOnlyMenu) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  PutPointer({700, 300});
  ASSERT_TRUE(OpenWindowMenu());
  PressAtOnce(kMenuKey);
  EXPECT_TRUE(WaitFor([&] { return OpenMenus() == 1 && MenuIsAt(700, 300); }));
  Press({0, '3'});
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(WaitFor([&] { return OpenMenus() == 0; }));
}

TEST_F(WindowMenu, PoppedUpAgainNeverShowsTwoMenus) {
  Start();
  const Window beta = WorkInNew("Beta");
  PutPointer({300, 300});
  ASSERT_TRUE(PopUpWindowMenu());
  const Window first = korvale_->OpenMenu();
  PutPointer({700, 350});
  PressAtOnce(kMenuKey);
  EXPECT_TRUE(WaitFor([&] { return MenuIsAt(700, 350); }));
  EXPECT_FALSE(first.Visible());
  EXPECT_TRUE(HoldsFor([&] { return OpenMenus() == 1; }));
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([&] { return OpenMenus() == 0; }));
  EXPECT_TRUE(InFront(beta));
}

TEST_F(WindowMenu, ATagKeyClosesThePopUpAndSelectsItsWindow) {
  installation_.StoreTag(3, "Alpha", kClass);
  Start();
  const Window alpha = Open("Alpha");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  ASSERT_TRUE(PopUpWindowMenu());
  PressAtOnce(TagKey(3));
  EXPECT_TRUE(WaitFor([&] { return OpenMenus() == 0; }));
  EXPECT_TRUE(InFront(alpha));
  EXPECT_TRUE(StaysInFront(alpha));
}

TEST_F(WindowMenu, TwoTagKeysOverThePopUpSelectInTheirOrder) {
  installation_.StoreTag(3, "Alpha", kClass);
  installation_.StoreTag(4, "Gamma", kClass);
  Start();
  Open("Alpha");
  const Window gamma = Open("Gamma");
  ASSERT_TRUE(WorkIn(Open("Beta")));
  ASSERT_TRUE(PopUpWindowMenu());
  PressAtOnce(TagKey(3));
  PressAtOnce(TagKey(4));
  EXPECT_TRUE(InFront(gamma));
  EXPECT_TRUE(WaitFor([&] { return OpenMenus() == 0; }));
  EXPECT_TRUE(StaysInFront(gamma));
}

TEST_F(WindowMenu, AKeyThatSelectsNothingClosesThePopUpAndLeavesTheUserWhereTheyWork) {
  Start();
  const Window beta = WorkInNew("Beta");
  ASSERT_TRUE(PopUpWindowMenu());
  Press(kToggleKey);
  EXPECT_TRUE(korvale_->Form("frmWaitWindow"));
  EXPECT_EQ(OpenMenus(), 0U);
  EXPECT_TRUE(WaitFor([&] { return !korvale_->HasForm("frmWaitWindow"); }));
  EXPECT_TRUE(StaysInFront(beta));
}

TEST_F(WindowMenu, IsNeverWiderThanTheScreen) {
  installation_.StoreTag(3, std::string(900, 'M'), kClass);
  Start();
  ASSERT_TRUE(WorkIn(Open("Beta")));
  PutPointer({100, 300});
  ASSERT_TRUE(PopUpWindowMenu());
  RECT area{};
  GetWindowRect(korvale_->OpenMenu().handle(), &area);
  EXPECT_LE(area.right - area.left, GetSystemMetrics(SM_CXSCREEN));
  Press({0, VK_ESCAPE});
  EXPECT_EQ(installation_.settings().Get("ParentWindowList", "3"), "&3  " + std::string(900, 'M'));
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
  const Window alpha = WorkInNew("Alpha");
  ASSERT_TRUE(BringToFront(main()));
  ASSERT_TRUE(StaysInFront(main()));
  ASSERT_TRUE(OpenWindowMenu());
  Press({0, '0'});
  EXPECT_TRUE(InFront(alpha));
}

}  // namespace
}  // namespace korvale::endtoend

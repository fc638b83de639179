#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_desktop.h"

namespace korvale {
namespace {

using Titles = std::vector<std::string>;

class FakeDesktopOwnerTest : public testing::Test {
 protected:
  WindowHandle OpenOwned(const std::string& title, WindowHandle owner) {
    NewWindow options;
    options.owner = owner;
    options.style = fakes::kWsPopup | fakes::kWsCaption;
    return desktop_.Open(title, options);
  }
  WindowHandle OpenHidden(const std::string& title) {
    return desktop_.Open(title, {.visible = false});
  }

  CallLog log_;
  FakeDesktop desktop_{log_};
};

TEST_F(FakeDesktopOwnerTest, MinimizingAWindowOfAHiddenOwnerSendsBothToTheBottom) {
  const WindowHandle owner = OpenHidden("Hidden owner");
  const WindowHandle main = OpenOwned("Main", owner);
  desktop_.Open("Alpha");

  desktop_.UserActivates(main);
  desktop_.UserMinimizes(main);

  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Alpha", "Main"}));
  EXPECT_EQ(desktop_.Windows().TopLevel().back(), owner);
}

TEST_F(FakeDesktopOwnerTest, MinimizingADialogLeavesItAboveItsVisibleOwner) {
  desktop_.Open("Beta");
  const WindowHandle find = OpenOwned("Find", desktop_.Open("Alpha"));
  desktop_.Open("Gamma");

  desktop_.UserMinimizes(find);

  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Gamma", "Find", "Alpha", "Beta"}));
}

TEST_F(FakeDesktopOwnerTest, MinimizingAnOwnerHidesWhatItOwns) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle find = OpenOwned("Find", alpha);
  const WindowHandle options = OpenOwned("Options", find);
  desktop_.Open("Beta");
  desktop_.UserActivates(find);

  desktop_.UserMinimizes(alpha);

  EXPECT_FALSE(desktop_.IsWindowVisible(find));
  EXPECT_FALSE(desktop_.IsWindowVisible(options));
  EXPECT_FALSE(desktop_.ShowWindow(find, win32::kSwShowNormal));
  EXPECT_TRUE(desktop_.IsWindowVisible(find));
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Find", "Alpha", "Beta"}));
}

TEST_F(FakeDesktopOwnerTest, MinimizingAnOwnerTakesTheForegroundFromItsDialog) {
  desktop_.Open("Beta");
  const WindowHandle alpha = desktop_.Open("Alpha");
  OpenOwned("Find", alpha);

  desktop_.UserMinimizes(alpha);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Beta");
}

TEST_F(FakeDesktopOwnerTest, RestoringAnOwnerShowsWhatItHid) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle find = OpenOwned("Find", alpha);
  const WindowHandle options = OpenOwned("Options", find);
  desktop_.UserMinimizes(find);
  desktop_.UserMinimizes(alpha);

  desktop_.UserRestores(alpha);

  EXPECT_TRUE(desktop_.IsWindowVisible(find));
  EXPECT_TRUE(desktop_.IsIconic(find));
  EXPECT_FALSE(desktop_.IsWindowVisible(options));
}

TEST_F(FakeDesktopOwnerTest, ClosingAnOwnedWindowPrefersItsOwnerToItsSiblings) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle find = OpenOwned("Find", alpha);
  OpenOwned("Replace", alpha);
  desktop_.UserActivates(find);

  desktop_.Close(find);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopOwnerTest, HidingAnOwnedWindowPrefersItsOwnerToItsSiblings) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle find = OpenOwned("Find", alpha);
  OpenOwned("Replace", alpha);
  desktop_.UserActivates(find);

  desktop_.Hide(find);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
}

TEST_F(FakeDesktopOwnerTest, AnOwnedWindowStaysAboveItsOwner) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  OpenOwned("Find", alpha);
  desktop_.Open("Beta");

  desktop_.UserActivates(alpha);

  EXPECT_EQ(desktop_.ForegroundTitle(), "Alpha");
  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Find", "Alpha", "Beta"}));
}

TEST_F(FakeDesktopOwnerTest, AWholeGroupComesForwardWithOneOfItsWindows) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle find = OpenOwned("Find", alpha);
  OpenOwned("Replace", alpha);
  desktop_.Open("Beta");

  desktop_.UserActivates(find);

  EXPECT_EQ(desktop_.VisibleTitles(), (Titles{"Find", "Replace", "Alpha", "Beta"}));
}

TEST_F(FakeDesktopOwnerTest, ATopmostOwnerMakesItsWindowsTopmost) {
  const WindowHandle alpha = desktop_.Open("Alpha");
  const WindowHandle find = OpenOwned("Find", alpha);
  const auto is_topmost = [&](WindowHandle hwnd) {
    return (desktop_.GetWindowLongA(hwnd, win32::kGwlExStyle) & win32::kWsExTopmost) != 0;
  };

  desktop_.SetWindowPos(alpha, win32::kHwndTopmost, 0, 0, 0, 0, 3);
  EXPECT_TRUE(is_topmost(find));
  EXPECT_TRUE(is_topmost(OpenOwned("Replace", alpha)));

  desktop_.SetWindowPos(find, win32::kHwndNoTopmost, 0, 0, 0, 0, 3);
  EXPECT_FALSE(is_topmost(find));
  EXPECT_FALSE(is_topmost(alpha));
}

}  // namespace
}  // namespace korvale

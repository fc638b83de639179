#include "desktop/seen_window.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/win32_constants.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {
namespace {

class SeenWindowTest : public DesktopCase {};

TEST_F(SeenWindowTest, ReadsNothingBeforeItIsAsked) {
  const WindowHandle alpha = desktop.Open("Alpha");
  EXPECT_EQ(CallsOf([&] { EXPECT_EQ(SeenWindow(desktop, alpha).Handle(), alpha); }), Calls{});
}

TEST_F(SeenWindowTest, ReadsEachFactOnce) {
  const WindowHandle alpha = desktop.Open("Alpha", {.exStyle = win32::kWsExToolWindow});
  const auto ask = [&](SeenWindow& seen) {
    EXPECT_EQ(seen.Title(), "Alpha");
    EXPECT_EQ(seen.ClassName(), "Window");
    EXPECT_NE(seen.Style() & win32::kWsMinimizeBox, 0);
    EXPECT_EQ(seen.ExStyle(), win32::kWsExToolWindow);
    EXPECT_TRUE(seen.IsShownHere() && seen.TakesInput() && !seen.IsIconic());
    EXPECT_NE(seen.FirstChild(), 0);
  };
  SeenWindow seen(desktop, alpha);
  EXPECT_EQ(CallsOf([&] { ask(seen); }).size(), 6U);
  desktop.Close(alpha);
  EXPECT_EQ(CallsOf([&] { ask(seen); }), Calls{});
}

TEST_F(SeenWindowTest, SeesNothingOfAWindowThatIsGone) {
  SeenWindow seen(desktop, 0x7777);
  EXPECT_EQ(seen.Title(), "");
  EXPECT_EQ(seen.ClassName(), "");
  EXPECT_EQ(seen.Style(), 0);
  EXPECT_EQ(seen.ExStyle(), 0);
  EXPECT_FALSE(seen.IsVisible());
  EXPECT_FALSE(seen.IsShownHere());
  EXPECT_EQ(seen.FirstChild(), 0);
  EXPECT_EQ(seen.Cloak(), 0U);
}

TEST_F(SeenWindowTest, HoldsALongTitleToo) {
  const std::string title(70000, 'x');
  SeenWindow seen(desktop, desktop.Open(title));
  EXPECT_EQ(seen.Title(), title);
  EXPECT_EQ(seen.Title(), title);
}

}  // namespace
}  // namespace korvale

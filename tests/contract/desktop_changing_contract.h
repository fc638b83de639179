#pragma once

#include <gtest/gtest.h>

#include "platform/types.h"
#include "platform/win32_constants.h"
#include "tests/contract/desktop_contract_fixture.h"

namespace korvale {

TEST_F(DesktopContract, RefusesToChangeAWindowThatIsGone) {
  const WindowHandle gone = OpenPlain("Contract Alpha");
  Close(gone);

  EXPECT_FALSE(commands_.ShowWindow(gone, win32::kSwRestore));
  EXPECT_FALSE(commands_.ShowWindowAsync(gone, win32::kSwRestore));
  EXPECT_FALSE(SetTopmost(gone, true));
  EXPECT_FALSE(commands_.SetForegroundWindow(gone));
  EXPECT_FALSE(commands_.PostMessageW(gone, win32::kWmNull));
}

TEST_F(DesktopContract, ReturnsFromShowingWhetherTheWindowWasVisible) {
  const WindowHandle hwnd = OpenPlain("Contract Alpha");

  EXPECT_TRUE(Show(hwnd, win32::kSwHide));
  EXPECT_FALSE(queries_.IsWindowVisible(hwnd));
  EXPECT_FALSE(Show(hwnd, win32::kSwShow));
  EXPECT_TRUE(queries_.IsWindowVisible(hwnd));
}

TEST_F(DesktopContract, KeepsAMinimizedWindowVisible) {
  const WindowHandle hwnd = OpenPlain("Contract Alpha");

  EXPECT_TRUE(Show(hwnd, win32::kSwMinimize));
  EXPECT_TRUE(queries_.IsIconic(hwnd));
  EXPECT_TRUE(queries_.IsWindowVisible(hwnd));
  EXPECT_TRUE(Show(hwnd, win32::kSwRestore));
  EXPECT_FALSE(queries_.IsIconic(hwnd));
}

TEST_F(DesktopContract, RestoresAMinimizedWindowToItsFormerSize) {
  const WindowHandle hwnd = OpenPlain("Contract Alpha");

  Show(hwnd, win32::kSwMaximize);
  EXPECT_TRUE(queries_.IsZoomed(hwnd));
  Show(hwnd, win32::kSwMinimize);
  EXPECT_FALSE(queries_.IsZoomed(hwnd));
  Show(hwnd, win32::kSwRestore);
  EXPECT_TRUE(queries_.IsZoomed(hwnd));
  Show(hwnd, win32::kSwRestore);
  EXPECT_FALSE(queries_.IsZoomed(hwnd));
}

TEST_F(DesktopContract, ShowsAHiddenWindowByMinimizingIt) {
  const WindowHandle hwnd = Open({.title = "Contract Alpha", .visible = false});

  EXPECT_FALSE(Show(hwnd, win32::kSwMinimize));

  EXPECT_TRUE(queries_.IsWindowVisible(hwnd));
  EXPECT_TRUE(queries_.IsIconic(hwnd));
}

TEST_F(DesktopContract, MinimizesWithoutWaiting) {
  const WindowHandle hwnd = OpenPlain("Contract Alpha");

  EXPECT_TRUE(commands_.ShowWindowAsync(hwnd, win32::kSwMinimize));
  desktop_->Settle();

  EXPECT_TRUE(queries_.IsIconic(hwnd));
}

TEST_F(DesktopContract, BringsAWindowToTheForegroundAndToTheTop) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  const WindowHandle beta = OpenPlain("Contract Beta");

  EXPECT_TRUE(SetForeground(alpha));

  EXPECT_EQ(queries_.GetForegroundWindow(), alpha);
  EXPECT_EQ(Enumerated(), (Handles{alpha, beta}));
}

TEST_F(DesktopContract, LeavesAMinimizedWindowMinimizedInTheForeground) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  OpenPlain("Contract Beta");
  Show(alpha, win32::kSwMinimize);

  EXPECT_TRUE(SetForeground(alpha));

  EXPECT_EQ(queries_.GetForegroundWindow(), alpha);
  EXPECT_TRUE(queries_.IsIconic(alpha));
}

TEST_F(DesktopContract, TakesAHiddenOrDisabledWindowIntoTheForegroundButNoChild) {
  const WindowHandle hidden = Open({.title = "Contract Hidden", .visible = false, .children = 1});
  const WindowHandle disabled = Open({.title = "Contract Disabled", .enabled = false});
  OpenPlain("Contract Alpha");

  EXPECT_TRUE(SetForeground(hidden));
  EXPECT_EQ(queries_.GetForegroundWindow(), hidden);
  EXPECT_TRUE(SetForeground(disabled));
  EXPECT_EQ(queries_.GetForegroundWindow(), disabled);
  EXPECT_FALSE(SetForeground(queries_.GetWindow(hidden, win32::kGwChild)));
  EXPECT_EQ(queries_.GetForegroundWindow(), disabled);
}

TEST_F(DesktopContract, BringsARestoredWindowToTheForeground) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  Show(alpha, win32::kSwMinimize);
  OpenPlain("Contract Beta");

  Show(alpha, win32::kSwRestore);

  EXPECT_EQ(queries_.GetForegroundWindow(), alpha);
}

TEST_F(DesktopContract, PassesTheForegroundOnWhenItsWindowCloses) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  const WindowHandle beta = OpenPlain("Contract Beta");

  Close(beta);

  EXPECT_EQ(queries_.GetForegroundWindow(), alpha);
}

TEST_F(DesktopContract, KeepsATopmostWindowAboveTheOthers) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  const WindowHandle beta = OpenPlain("Contract Beta");

  EXPECT_TRUE(SetTopmost(alpha, true));
  SetForeground(beta);
  EXPECT_EQ(Enumerated(), (Handles{alpha, beta}));
  EXPECT_TRUE(HasStyle(alpha, win32::kGwlExStyle, win32::kWsExTopmost));

  EXPECT_TRUE(SetTopmost(alpha, false));
  SetForeground(beta);
  EXPECT_EQ(Enumerated(), (Handles{beta, alpha}));
  EXPECT_FALSE(HasStyle(alpha, win32::kGwlExStyle, win32::kWsExTopmost));
}

TEST_F(DesktopContract, ActivatesAWindowThatIsPutTopmost) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  OpenPlain("Contract Beta");

  SetTopmost(alpha, true);

  EXPECT_EQ(queries_.GetForegroundWindow(), alpha);
}

TEST_F(DesktopContract, AcceptsAPostedMessage) {
  EXPECT_TRUE(commands_.PostMessageW(OpenPlain("Contract Alpha"), win32::kWmNull));
}

}  // namespace korvale

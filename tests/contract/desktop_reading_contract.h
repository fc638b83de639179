#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "platform/types.h"
#include "platform/win32_constants.h"
#include "tests/contract/desktop_contract_fixture.h"

namespace korvale {

TEST_F(DesktopContract, EnumeratesFromTheNewestWindowDown) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  const WindowHandle beta = OpenPlain("Contract Beta");

  EXPECT_EQ(Enumerated(), (Handles{beta, alpha}));
  EXPECT_EQ(queries_.GetForegroundWindow(), beta);
}

TEST_F(DesktopContract, EnumeratesHiddenWindowsButNoChildren) {
  const WindowHandle hidden = Open({.title = "Contract Hidden", .visible = false, .children = 1});
  opened_.push_back(queries_.GetWindow(hidden, win32::kGwChild));

  EXPECT_EQ(Enumerated(), Handles{hidden});
}

TEST_F(DesktopContract, StopsTheEnumerationWhenTheVisitorSaysSo) {
  OpenPlain("Contract Alpha");
  OpenPlain("Contract Beta");
  int visits = 0;

  queries_.EnumWindows([&](WindowHandle) { return ++visits < 1; });

  EXPECT_EQ(visits, 1);
}

TEST_F(DesktopContract, EnumeratesTheWindowsThatWereThereAtItsStart) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  const WindowHandle beta = OpenPlain("Contract Beta");
  Handles met;

  queries_.EnumWindows([&](WindowHandle hwnd) {
    if (hwnd == beta) commands_.SetForegroundWindow(alpha);
    if (hwnd == alpha || hwnd == beta) met.push_back(hwnd);
    return true;
  });

  EXPECT_EQ(met, (Handles{beta, alpha}));
}

TEST_F(DesktopContract, TellsWhichWindowsOneProcessHasMade) {
  const WindowHandle alpha = OpenPlain("Contract Alpha");
  const WindowHandle beta = OpenPlain("Contract Beta");

  EXPECT_NE(queries_.GetWindowThreadProcessId(alpha), 0U);
  EXPECT_EQ(queries_.GetWindowThreadProcessId(beta), queries_.GetWindowThreadProcessId(alpha));
  EXPECT_EQ(queries_.GetWindowThreadProcessId(0), 0U);
}

TEST_F(DesktopContract, ReadsTitlesInAnyScript) {
  for (const char* title : {"Contract - Notepad", "Блокнот", "メモ帳", "a😀b", ""}) {
    const WindowHandle hwnd = OpenPlain(title);
    EXPECT_EQ(Title(hwnd), title);
    EXPECT_GE(queries_.GetWindowTextLengthA(hwnd), static_cast<int>(std::string(title).size()));
  }
}

TEST_F(DesktopContract, ReadsATextThatJustFitsAndCutsALongerOne) {
  const std::string name(200, 'c');
  const WindowHandle hwnd = Open({.title = "Блокнот", .className = name});

  EXPECT_EQ(ClassName(hwnd, name.size() + 1), name);
  EXPECT_EQ(ClassName(hwnd, name.size()), name.substr(1));
  EXPECT_EQ(Title(hwnd, 15), "Блокнот");
  EXPECT_EQ(Title(hwnd, 13), "Блокно");
  EXPECT_EQ(Title(hwnd, 1), "");
}

TEST_F(DesktopContract, CutsATitleToTheBuffer) {
  const WindowHandle hwnd = OpenPlain("Contract");
  std::array<char, 4> buffer{'?', '?', '?', '?'};

  EXPECT_EQ(queries_.GetWindowTextA(hwnd, buffer), 3);
  EXPECT_EQ(buffer, (std::array<char, 4>{'C', 'o', 'n', '\0'}));
  EXPECT_EQ(Title(hwnd, 9), "Contract");
}

TEST_F(DesktopContract, ReadsATitleIntoABufferOfAnySize) {
  std::string title;
  for (int i = 0; i < 200; ++i) title += "\u30e2";
  const WindowHandle hwnd = OpenPlain(title);

  for (const std::size_t size : {511U, 512U, 513U, 600U}) {
    EXPECT_EQ(Title(hwnd, size), title.substr(0, size - 1)) << size;
  }
  for (const std::size_t size : {601U, 602U, 2000U}) EXPECT_EQ(Title(hwnd, size), title) << size;
}

TEST_F(DesktopContract, ReadsTheTitleAsItIsNow) {
  const WindowHandle hwnd = OpenPlain("Contract Alpha");

  desktop_->Rename(hwnd, "Contract Beta");
  desktop_->Settle();

  EXPECT_EQ(Title(hwnd), "Contract Beta");
}

TEST_F(DesktopContract, ReadsClassNames) {
  const WindowHandle hwnd = Open({.title = "Contract", .className = "Korvale.contract.other"});

  EXPECT_EQ(ClassName(hwnd), "Korvale.contract.other");
  EXPECT_EQ(ClassName(hwnd, 8), "Korvale");
}

TEST_F(DesktopContract, AnswersForAWindowThatIsGoneAsForNone) {
  const WindowHandle gone = OpenPlain("Contract Alpha");
  Close(gone);

  for (const WindowHandle hwnd : {gone, WindowHandle{0}}) {
    EXPECT_FALSE(queries_.IsWindow(hwnd));
    EXPECT_FALSE(queries_.IsWindowVisible(hwnd));
    EXPECT_FALSE(queries_.IsWindowEnabled(hwnd));
    EXPECT_FALSE(queries_.IsIconic(hwnd));
    EXPECT_FALSE(queries_.IsZoomed(hwnd));
    EXPECT_EQ(Title(hwnd), "");
    EXPECT_EQ(ClassName(hwnd), "");
    EXPECT_EQ(queries_.GetWindowTextLengthA(hwnd), 0);
    EXPECT_EQ(queries_.GetWindowLongA(hwnd, win32::kGwlStyle), 0);
    EXPECT_EQ(queries_.GetWindowLongA(hwnd, win32::kGwlExStyle), 0);
    EXPECT_EQ(queries_.GetWindow(hwnd, win32::kGwOwner), 0);
    EXPECT_EQ(queries_.GetWindow(hwnd, win32::kGwChild), 0);
    EXPECT_EQ(queries_.GetParent(hwnd), 0);
  }
}

TEST_F(DesktopContract, KnowsTheFirstChildAndItsParent) {
  const WindowHandle with = Open({.title = "Contract Alpha", .children = 2});
  const WindowHandle without = OpenPlain("Contract Beta");

  const WindowHandle child = queries_.GetWindow(with, win32::kGwChild);
  EXPECT_NE(child, 0);
  EXPECT_EQ(queries_.GetParent(child), with);
  EXPECT_EQ(queries_.GetWindow(child, win32::kGwOwner), 0);
  EXPECT_TRUE(HasStyle(child, win32::kGwlStyle, win32::kWsChild));
  EXPECT_EQ(queries_.GetWindow(without, win32::kGwChild), 0);
}

TEST_F(DesktopContract, GivesTheOwnerAsParentOfAPopupOnly) {
  const WindowHandle owner = OpenPlain("Contract Alpha");
  const WindowHandle popup = Open({.title = "Contract Popup", .owner = owner, .popup = true});
  const WindowHandle framed = Open({.title = "Contract Framed", .owner = owner});

  EXPECT_EQ(queries_.GetWindow(popup, win32::kGwOwner), owner);
  EXPECT_EQ(queries_.GetParent(popup), owner);
  EXPECT_EQ(queries_.GetWindow(framed, win32::kGwOwner), owner);
  EXPECT_EQ(queries_.GetParent(framed), 0);
  EXPECT_EQ(queries_.GetWindow(owner, win32::kGwOwner), 0);
  EXPECT_EQ(queries_.GetParent(owner), 0);
}

TEST_F(DesktopContract, KnowsWhichWindowOfAnOwnerWasActiveLast) {
  const WindowHandle owner = OpenPlain("Contract Alpha");
  EXPECT_EQ(queries_.GetLastActivePopup(owner), owner);
  const WindowHandle popup = Open({.title = "Contract Popup", .owner = owner, .popup = true});
  const WindowHandle inner = Open({.title = "Contract Inner", .owner = popup, .popup = true});
  OpenPlain("Contract Beta");

  EXPECT_EQ(queries_.GetLastActivePopup(owner), inner);
  Close(inner);
  SetForeground(popup);
  EXPECT_EQ(queries_.GetLastActivePopup(owner), popup);
  SetForeground(owner);
  EXPECT_EQ(queries_.GetLastActivePopup(owner), owner);
}

TEST_F(DesktopContract, ClosesOwnedWindowsWithTheirOwner) {
  const WindowHandle owner = OpenPlain("Contract Alpha");
  const WindowHandle owned = Open({.title = "Contract Popup", .owner = owner, .popup = true});

  Close(owner);

  EXPECT_FALSE(queries_.IsWindow(owned));
}

TEST_F(DesktopContract, TellsVisibleFromHiddenAndEnabledFromDisabled) {
  const WindowHandle shown = Open({.title = "Contract Shown", .enabled = false});
  const WindowHandle hidden = Open({.title = "Contract Hidden", .visible = false, .children = 1});

  EXPECT_TRUE(queries_.IsWindowVisible(shown));
  EXPECT_FALSE(queries_.IsWindowEnabled(shown));
  EXPECT_FALSE(queries_.IsWindowVisible(hidden));
  EXPECT_TRUE(queries_.IsWindowEnabled(hidden));
  EXPECT_FALSE(queries_.IsWindowVisible(queries_.GetWindow(hidden, win32::kGwChild)));
  EXPECT_FALSE(queries_.IsHungAppWindow(shown));
}

TEST_F(DesktopContract, TellsTheSameByTheStyle) {
  const WindowHandle shown = OpenPlain("Contract Shown");
  const WindowHandle hidden = Open({.title = "Contract Hidden", .visible = false});
  const WindowHandle disabled = Open({.title = "Contract Disabled", .enabled = false});
  const WindowHandle owner = OpenPlain("Contract Owner");
  const WindowHandle owned = Open({.title = "Contract Owned", .owner = owner, .popup = true});
  Show(owner, win32::kSwMinimize);
  const WindowHandle gone = OpenPlain("Contract Gone");
  Close(gone);

  EXPECT_TRUE(queries_.IsIconic(owner));
  for (const WindowHandle hwnd : {shown, hidden, disabled, owner, owned, gone}) {
    const auto has = [&](std::int32_t bit) { return HasStyle(hwnd, win32::kGwlStyle, bit); };
    EXPECT_EQ(has(win32::kWsVisible), queries_.IsWindowVisible(hwnd)) << Title(hwnd);
    EXPECT_EQ(has(win32::kWsMinimize), queries_.IsIconic(hwnd)) << Title(hwnd);
    const bool enabled = queries_.IsWindow(hwnd) && !has(win32::kWsDisabled);
    EXPECT_EQ(enabled, queries_.IsWindowEnabled(hwnd)) << Title(hwnd);
  }
}

TEST_F(DesktopContract, CloaksNoOrdinaryWindow) {
  const WindowHandle shown = OpenPlain("Shown");
  const WindowHandle hidden = Open({.title = "Hidden", .visible = false});
  const WindowHandle gone = OpenPlain("Gone");
  Close(gone);
  for (const WindowHandle hwnd : {shown, hidden, gone}) {
    EXPECT_EQ(queries_.DwmGetWindowAttribute(hwnd), 0U);
    EXPECT_NE(desktops_.IsWindowOnCurrentVirtualDesktop(hwnd), false);
    EXPECT_NE(queries_.GetShellWindow(), hwnd);
  }
  for (const WindowHandle hwnd : {hidden, gone}) {
    EXPECT_EQ(desktops_.GetWindowDesktopId(hwnd).value_or(kNoVirtualDesktop), kNoVirtualDesktop);
  }
  EXPECT_FALSE(desktops_.MoveWindowToDesktop(gone, {1}));
}

TEST_F(DesktopContract, TellsTheStylesOfAWindow) {
  const WindowHandle plain = OpenPlain("Contract Alpha");
  const WindowHandle bare = Open({.title = "Contract Beta", .toolWindow = true, .boxes = false});

  EXPECT_TRUE(HasStyle(plain, win32::kGwlStyle, win32::kWsMinimizeBox | win32::kWsMaximizeBox));
  EXPECT_FALSE(HasStyle(plain, win32::kGwlExStyle, win32::kWsExToolWindow));
  EXPECT_FALSE(HasStyle(bare, win32::kGwlStyle, win32::kWsMinimizeBox));
  EXPECT_FALSE(HasStyle(bare, win32::kGwlStyle, win32::kWsMaximizeBox));
  EXPECT_TRUE(HasStyle(bare, win32::kGwlExStyle, win32::kWsExToolWindow));
}

TEST_F(DesktopContract, FindsTheTopmostWindowWithATitle) {
  OpenPlain("Contract Twin");
  const WindowHandle upper = OpenPlain("Contract Twin");
  const WindowHandle hidden = Open({.title = "Contract Hidden", .visible = false});

  EXPECT_EQ(queries_.FindWindowA("Contract Twin"), upper);
  EXPECT_EQ(queries_.FindWindowA("contract twin"), upper);
  EXPECT_EQ(queries_.FindWindowA("Contract Hidden"), hidden);
  EXPECT_EQ(queries_.FindWindowA("Contract T"), 0);
}

}  // namespace korvale

#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include "platform/windows/handles.h"
#include "tests/contract/contract_fixture.h"
#include "tests/endtoend/contract/windows_user.h"

namespace korvale {
namespace {

constexpr WORD kAllCues = UISF_HIDEACCEL | UISF_HIDEFOCUS;

/// What forms make of messages that only Windows sends.
class WindowsMessagesTest : public FormHostContract {};

TEST_F(WindowsMessagesTest, AMonitorOfOtherDotsGivesTheFormItsPlaceAndTellsIt) {
  strip_.Show();
  const HWND window = ToHwnd(strip_.Handle());
  const int before = strip_.resizes;
  const RECT place{150, 120, 750, 300};
  SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&place));
  RECT now{};
  GetWindowRect(window, &now);
  // It keeps its 6000 by 1500 twips, here still at 96 dots per inch.
  const RECT wanted{150, 120, 550, 220};
  EXPECT_TRUE(EqualRect(&now, &wanted));
  EXPECT_GT(strip_.resizes, before);
}

TEST_F(WindowsMessagesTest, AMonitorOfOtherDotsTellsAFormThatKeepsItsSize) {
  strip_.Show();
  const HWND window = ToHwnd(strip_.Handle());
  const int before = strip_.resizes;
  RECT same{};
  GetWindowRect(window, &same);
  SendMessageW(window, WM_DPICHANGED, MAKEWPARAM(96, 96), reinterpret_cast<LPARAM>(&same));
  EXPECT_EQ(strip_.resizes, before + 1);
}

LRESULT CALLBACK CountCues(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR /*id*/,
                           DWORD_PTR count) {
  if (message == WM_CHANGEUISTATE && wParam == MAKEWPARAM(UIS_CLEAR, kAllCues)) {
    ++*reinterpret_cast<int*>(count);
  }
  return DefSubclassProc(window, message, wParam, lParam);
}

TEST_F(WindowsMessagesTest, TheKeyboardBringsItsCuesAndTypingDoesNot) {
  ShowForm();
  int cues = 0;
  SetWindowSubclass(ToHwnd(Window()), CountCues, 1, reinterpret_cast<DWORD_PTR>(&cues));
  User().PressKey(Window(), 'A');
  EXPECT_EQ(cues, 0);
  User().PressKey(Window(), VK_TAB);
  EXPECT_GT(cues, 0);
}

}  // namespace
}  // namespace korvale

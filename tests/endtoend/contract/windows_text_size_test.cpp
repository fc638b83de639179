#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>
#include <vector>

#include "tests/endtoend/contract/real_form.h"
#include "tests/endtoend/harness/layout.h"
#include "tests/endtoend/harness/resources.h"
#include "tests/endtoend/harness/text_size.h"
#include "ui/windows/units.h"

namespace korvale {
namespace {

/// What real windows make of another size of text, and of messages that tell of one.
class WindowsTextSizeTest : public RealForm {
 protected:
  /// Lets the windows handle what they have been told.
  void Settle() { User().LetPass(100); }
  void Change(int percent) {
    size_.Change(percent);
    Settle();
  }
  /// No window is told.
  static void ChangeUntold(int percent) {
    NONCLIENTMETRICSW metrics{};
    metrics.cbSize = sizeof(metrics);
    SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
    metrics.lfMessageFont.lfHeight = -12 * percent / 100;
    SystemParametersInfoW(SPI_SETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  }
  static SIZE SizeOf(HWND window) { return endtoend::SizeOf(endtoend::Window(window)); }
  HWND Strip() const { return ToHwnd(strip_.Handle()); }

  /// Where the form and its controls are on the screen.
  std::vector<RECT> Places() {
    std::vector<RECT> all;
    for (const ControlState& control : form_.State().controls) {
      RECT area{};
      GetWindowRect(FindControl(Window(), control.id), &area);
      all.push_back(area);
    }
    all.emplace_back();
    GetWindowRect(Hwnd(), &all.back());
    return all;
  }
  static bool AreEqual(const std::vector<RECT>& one, const std::vector<RECT>& other) {
    return std::ranges::equal(one, other,
                              [](const RECT& a, const RECT& b) { return EqualRect(&a, &b) != 0; });
  }

  endtoend::TextSize size_{100};
};

TEST_F(WindowsTextSizeTest, AnOpenFormFollowsTheTextThereAndBack) {
  ShowForm();
  const std::vector<RECT> before = Places();
  Change(200);
  EXPECT_EQ(endtoend::FlawOf(endtoend::Window(Hwnd()), 24), "");
  // 3000 by 315 twips.
  EXPECT_EQ(SizeOf(Control("txtName")).cx, 400);
  EXPECT_EQ(SizeOf(Control("cboSize")).cy, SizeOf(Control("txtName")).cy);
  Change(100);
  EXPECT_TRUE(AreEqual(Places(), before));
  EXPECT_EQ(form_.Place(), kContractDesign.place);
}

/// Windows itself draws letters that the font lacks with its fall-backs, but only of that font.
TEST_F(WindowsTextSizeTest, EveryControlThatShowsTextHasTheSystemsOwnFont) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0);
  ShowForm();
  for (const ControlState& control : form_.State().controls) {
    if (control.kind == ControlKind::kTimer || control.kind == ControlKind::kPage) continue;
    const HWND window = FindControl(Window(), control.id);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    LOGFONTW used{};
    EXPECT_NE(GetObjectW(font, sizeof(used), &used), 0) << control.name << " has no font";
    EXPECT_STREQ(used.lfFaceName, metrics.lfMessageFont.lfFaceName) << control.name;
    EXPECT_EQ(used.lfHeight, metrics.lfMessageFont.lfHeight) << control.name;
  }
}

TEST_F(WindowsTextSizeTest, AListIsAsHighAsItsDesignWhateverTheHeightOfALine) {
  ShowForm();
  EXPECT_EQ(SizeOf(Control("cboSize")).cy, 21);
  EXPECT_EQ(SizeOf(Control("cboPlace")).cy, 21);
}

TEST_F(WindowsTextSizeTest, FocusAndSelectionStay) {
  ShowForm();
  class Control& place = form_.Find("cboPlace");
  place.SetText("Elsewhere");
  place.SetFocus();
  Host().SetSelection(Window(), place.Id(), {2, 3});
  form_.Take();
  Change(150);
  EXPECT_EQ(Focus(), "cboPlace");
  const TextSelection selection = Host().GetSelection(Window(), place.Id());
  EXPECT_EQ(selection.start, 2);
  EXPECT_EQ(selection.length, 3);
  EXPECT_EQ(Text("cboPlace"), "Elsewhere");
  EXPECT_EQ(form_.Take(), Lines{});
}

TEST_F(WindowsTextSizeTest, ToolTipsGrowWithTheText) {
  ShowForm();
  const HWND tips = ToolTipsUnderTheMouse();
  Change(150);
  LOGFONTW font{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(tips, WM_GETFONT, 0, 0)), sizeof(font), &font);
  EXPECT_EQ(font.lfHeight, -18);
  EXPECT_EQ(SendMessageW(tips, TTM_GETMAXTIPWIDTH, 0, 0), 600);
}

TEST_F(WindowsTextSizeTest, ToolTipsFollowTheDotsOfAnotherMonitor) {
  ShowForm();
  const HWND tips = ToolTipsUnderTheMouse();
  ASSERT_EQ(SendMessageW(tips, TTM_GETMAXTIPWIDTH, 0, 0), 400);
  ChangeUntold(150);
  RECT same{};
  GetWindowRect(Hwnd(), &same);
  SendMessageW(Hwnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&same));
  EXPECT_EQ(SendMessageW(tips, TTM_GETMAXTIPWIDTH, 0, 0), 600);
}

TEST_F(WindowsTextSizeTest, AFormThatTheUserSizesKeepsItsTwips) {
  strip_.Show();
  const TwipsRect place = strip_.Place();
  for (const int percent : {225, 150, 100}) {
    Change(percent);
    EXPECT_EQ(SizeOf(Strip()).cx, 400 * percent / 100);
    EXPECT_EQ(strip_.Place(), place);
  }
}

TEST_F(WindowsTextSizeTest, AFormAtTheRightEdgeStaysOnTheScreenAndComesBack) {
  strip_.Show();
  const TwipsRect area = Screen().GetMonitorInfoW(strip_.Handle());
  TwipsRect place = strip_.Place();
  place.left = area.left + area.width - place.width;
  strip_.SetPlace(place);
  Change(200);
  EXPECT_EQ(SizeOf(Strip()).cx, 800);
  EXPECT_EQ(Screen().GetWindowRect(strip_.Handle()).left, area.left + area.width - 12000);
  Change(100);
  EXPECT_EQ(strip_.Place(), place);
}

TEST_F(WindowsTextSizeTest, AFormWiderThanTheScreenIsNarrowedAndComesBack) {
  strip_.Show();
  const TwipsRect area = Screen().GetMonitorInfoW(strip_.Handle());
  const TwipsRect place = {area.left, 900, area.width - 300, 1500};
  strip_.SetPlace(place);
  Change(225);
  EXPECT_NEAR(Screen().GetWindowRect(strip_.Handle()).width, area.width, 15);
  EXPECT_EQ(strip_.PlaceToKeep(), place);
  Change(100);
  EXPECT_EQ(strip_.Place(), place);
}

TEST_F(WindowsTextSizeTest, EveryMessageThatMayTellOfItIsHeard) {
  ShowForm();
  for (const UINT message : {WM_SETTINGCHANGE, WM_THEMECHANGED, WM_DISPLAYCHANGE, WM_SYSCOLORCHANGE,
                             WM_ACTIVATE, WM_EXITSIZEMOVE}) {
    ChangeUntold(150);
    EXPECT_EQ(SizeOf(Control("txtName")).cx, 200) << message;
    SendMessageW(Hwnd(), message, WA_ACTIVE, 0);
    EXPECT_EQ(SizeOf(Control("txtName")).cx, 300) << message;
    Change(100);
  }
}

TEST_F(WindowsTextSizeTest, ADialogTellsTheSizeThatItWillTakeOnAnotherMonitor) {
  ShowForm();
  strip_.Show();
  const auto ask = [](HWND window, WPARAM dpi, SIZE& size) {
    return SendMessageW(window, WM_GETDPISCALEDSIZE, dpi, reinterpret_cast<LPARAM>(&size));
  };
  SIZE size{};
  EXPECT_EQ(ask(Hwnd(), 120, size), TRUE);
  EXPECT_NEAR(size.cx, SizeOf(Hwnd()).cx * 5 / 4, 1);
  EXPECT_NEAR(size.cy, SizeOf(Hwnd()).cy * 5 / 4, 1);
  EXPECT_EQ(ask(Hwnd(), 960, size), TRUE);
  EXPECT_LE(ToTwips(size.cy, 96), Screen().GetMonitorInfoW(Window()).height);
  // Windows sizes the others in proportion.
  EXPECT_EQ(ask(Strip(), 120, size), FALSE);
  for (const LPARAM wild : {LPARAM{-1}, LPARAM{64}}) {
    PostMessageW(Hwnd(), WM_GETDPISCALEDSIZE, 120, wild);
  }
  Settle();
}

TEST_F(WindowsTextSizeTest, AMinimizedFormIsRestoredToItsTwipsAndStaysInactive) {
  strip_.Show();
  const TwipsRect place = strip_.Place();
  strip_.SetWindowState(ShowState::kMinimized);
  Settle();
  Change(200);
  EXPECT_TRUE(IsIconic(Strip()));
  strip_.SetWindowState(ShowState::kNormal);
  Settle();
  EXPECT_EQ(SizeOf(Strip()).cx, 800);
  EXPECT_EQ(strip_.Place(), place);
}

TEST_F(WindowsTextSizeTest, AMaximizedFormStaysMaximizedAndIsRestoredToItsTwips) {
  strip_.Show();
  strip_.SetWindowState(ShowState::kMaximized);
  Settle();
  const SIZE before = SizeOf(Strip());
  Change(200);
  EXPECT_TRUE(IsZoomed(Strip()));
  EXPECT_EQ(SizeOf(Strip()).cx, before.cx);
  strip_.SetWindowState(ShowState::kNormal);
  Settle();
  EXPECT_EQ(SizeOf(Strip()).cx, 800);
}

TEST_F(WindowsTextSizeTest, AHiddenFormStaysHidden) {
  strip_.Load();
  Change(200);
  EXPECT_FALSE(IsWindowVisible(Strip()));
  strip_.Show();
  EXPECT_EQ(SizeOf(Strip()).cx, 800);
}

TEST_F(WindowsTextSizeTest, NothingIsLeftBehind) {
  ShowForm();
  Change(150);
  Change(100);
  const int before = endtoend::GdiObjectsOf(GetCurrentProcessId());
  for (int times = 0; times < 10; ++times) {
    size_.Change(150);
    size_.Change(100);
    SendMessageW(Hwnd(), WM_SYSCOLORCHANGE, 0, 0);
  }
  Settle();
  EXPECT_LE(endtoend::GdiObjectsOf(GetCurrentProcessId()), before + 2);
}

TEST_F(WindowsTextSizeTest, MessagesThatTellOfNothingNewChangeNothing) {
  strip_.Show();
  Settle();
  const int resizes = strip_.resizes;
  for (const LPARAM wild : {LPARAM{-1}, LPARAM{64}, LPARAM{0}}) {
    for (const WPARAM what : {WPARAM{SPI_SETNONCLIENTMETRICS}, WPARAM{SPI_SETWORKAREA},
                              WPARAM{SPI_SETICONMETRICS}, WPARAM{SPI_SETHIGHCONTRAST}}) {
      PostMessageW(Strip(), WM_SETTINGCHANGE, what, wild);
      PostMessageW(Strip(), WM_THEMECHANGED, what, wild);
      PostMessageW(Strip(), WM_DISPLAYCHANGE, what, wild);
    }
  }
  Settle();
  EXPECT_EQ(strip_.resizes, resizes);
}

TEST_F(WindowsTextSizeTest, TheIconsOfTheMainFormGoWithItsMonitor) {
  strip_.Show();
  const UINT dpi = GetDpiForWindow(Strip());
  const auto icon = [&](WPARAM kind) {
    return reinterpret_cast<HICON>(SendMessageW(Strip(), WM_GETICON, kind, 0));
  };
  for (int times = 0; times < 2; ++times) {
    ExpectProgramIcon(icon(ICON_BIG), GetSystemMetricsForDpi(SM_CXICON, dpi));
    ExpectProgramIcon(icon(ICON_SMALL), GetSystemMetricsForDpi(SM_CXSMICON, dpi));
    SendMessageW(Strip(), WM_SETICON, ICON_SMALL, 0);
    SendMessageW(Strip(), WM_SETICON, ICON_BIG, 0);
    RECT same{};
    GetWindowRect(Strip(), &same);
    SendMessageW(Strip(), WM_DPICHANGED, MAKEWPARAM(dpi, dpi), reinterpret_cast<LPARAM>(&same));
  }
}

}  // namespace
}  // namespace korvale

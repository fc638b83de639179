#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>
#include <vector>

#include "platform/windows/text.h"
#include "tests/endtoend/contract/real_form.h"
#include "tests/endtoend/harness/resources.h"
#include "tests/endtoend/harness/system_color.h"

namespace korvale {
namespace {

/// The windows of this thread that hear of other system colours while it exists.
class ColorListener {
 public:
  ColorListener() { heard_.clear(); }
  static bool HasHeard(HWND window) { return std::ranges::find(heard_, window) != heard_.end(); }

 private:
  static LRESULT CALLBACK Listen(int code, WPARAM wParam, LPARAM lParam) {
    const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (sent->message == WM_SYSCOLORCHANGE) heard_.push_back(sent->hwnd);
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline std::vector<HWND> heard_;
  UniqueHandle<HHOOK> hook_{
      SetWindowsHookExW(WH_CALLWNDPROC, Listen, nullptr, GetCurrentThreadId())};
};

/// What the controls of real windows look like on the screen.
class WindowsFormLookTest : public RealForm {
 protected:
  std::wstring TipOf(std::string_view control) {
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    wchar_t text[256] = L"";
    tool.lpszText = text;
    tool.hwnd = Hwnd();
    tool.uId = reinterpret_cast<UINT_PTR>(Control(control));
    SendMessageW(ToolTipsUnderTheMouse(), TTM_GETTEXTW, 256, reinterpret_cast<LPARAM>(&tool));
    return text;
  }
  /// The tip of the place of a control in the window below it, which has the mouse there when the
  /// control takes none.
  std::wstring TipOfPlace(std::string_view control) {
    RECT area{};
    GetWindowRect(Control(control), &area);
    wchar_t text[256] = L"";
    TTHITTESTINFOW hit{};
    hit.hwnd = GetParent(Control(control));
    hit.pt = {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
    ScreenToClient(hit.hwnd, &hit.pt);
    hit.ti.cbSize = sizeof(hit.ti);
    hit.ti.lpszText = text;
    const HWND tips = ToolTipsUnderTheMouse();
    if (SendMessageW(tips, TTM_HITTESTW, 0, reinterpret_cast<LPARAM>(&hit)) == FALSE) return L"";
    hit.ti.lpszText = text;
    SendMessageW(tips, TTM_GETTEXTW, 256, reinterpret_cast<LPARAM>(&hit.ti));
    return text;
  }
};

TEST_F(WindowsFormLookTest, ALabelThatLosesItsBorderShowsNothingOfItsFormerColor) {
  ShowForm();
  class Control& label = form_.Find("lblClick");
  label.SetText("");
  label.SetBackColor(0x9FFFFF);
  label.SetBorder(true);
  ASSERT_EQ(ColorOf(Control("lblClick")), 0x9FFFFFU);
  label.SetBackColor(kButtonFaceColor);
  label.SetBorder(false);
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  EXPECT_EQ(ColorOf(Control("lblClick")), face);
  RECT area{};
  GetWindowRect(Control("lblClick"), &area);
  const HDC screen = GetDC(nullptr);
  for (LONG y = area.top; y < area.bottom; ++y) {
    for (const LONG x : {area.left, area.right - 1}) EXPECT_EQ(GetPixel(screen, x, y), face) << y;
  }
  for (LONG x = area.left; x < area.right; ++x) {
    for (const LONG y : {area.top, area.bottom - 1}) EXPECT_EQ(GetPixel(screen, x, y), face) << x;
  }
  ReleaseDC(nullptr, screen);
}

TEST_F(WindowsFormLookTest, ADialogHasTheProgramsIconWhereWindowsAsksForIt) {
  ShowForm();
  ASSERT_TRUE(form_.State().modalFrame);
  const auto icon = [&](int which) {
    return reinterpret_cast<HICON>(GetClassLongPtrW(Hwnd(), which));
  };
  ExpectProgramIcon(icon(GCLP_HICON), GetSystemMetrics(SM_CXICON));
  ExpectProgramIcon(icon(GCLP_HICONSM), GetSystemMetrics(SM_CXSMICON));
}

TEST_F(WindowsFormLookTest, AnOpenFormTakesOnOtherSystemColorsAndKeepsTheUsersOwn) {
  ShowForm();
  form_.Find("lblClick").SetText("");
  form_.Find("txtFixed").SetBackColor(0x9FFFFF);
  {
    const endtoend::SystemColor face(COLOR_BTNFACE, RGB(0, 0, 0));
    EXPECT_EQ(ColorOf(Control("lblClick")), RGB(0, 0, 0));
    EXPECT_EQ(ColorOf(Hwnd()), RGB(0, 0, 0));
    EXPECT_EQ(ColorOf(Control("txtFixed")), 0x9FFFFFU);
  }
  EXPECT_EQ(ColorOf(Control("lblClick")), GetSysColor(COLOR_BTNFACE));
}

TEST_F(WindowsFormLookTest, EveryControlIsToldOfOtherSystemColors) {
  ShowForm();
  const ColorListener listener;
  const endtoend::SystemColor face(COLOR_BTNFACE, RGB(180, 190, 200));
  User().LetPass(50);
  int told = 0;
  for (const ControlState& control : form_.State().controls) {
    const HWND window = FindControl(Window(), control.id);
    if (window == nullptr) continue;
    EXPECT_TRUE(ColorListener::HasHeard(window)) << control.name;
    ++told;
  }
  // All but the timer.
  EXPECT_EQ(told, static_cast<int>(kContractControls.size()) - 1);
}

TEST_F(WindowsFormLookTest, AnOpenFormIsToldWhenHighContrastIsTurnedOnAndOff) {
  ShowForm();
  HIGHCONTRASTW before{};
  before.cbSize = sizeof(before);
  SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(before), &before, 0);
  for (const DWORD flags : {before.dwFlags | HCF_HIGHCONTRASTON, before.dwFlags}) {
    const int changes = form_.colorChanges;
    HIGHCONTRASTW contrast = before;
    contrast.dwFlags = flags;
    if (SystemParametersInfoW(SPI_SETHIGHCONTRAST, sizeof(contrast), &contrast, SPIF_SENDCHANGE) ==
        FALSE) {
      GTEST_SKIP() << "the system has no high contrast";
    }
    User().LetPass(100);
    EXPECT_EQ(Screen().HighContrast(), (flags & HCF_HIGHCONTRASTON) != 0);
    EXPECT_GT(form_.colorChanges, changes);
  }
}

TEST_F(WindowsFormLookTest, ColorsThatAreNoLongerShownLeaveNothingBehind) {
  ShowForm();
  class Control& label = form_.Find("lblClick");
  label.SetText("");
  const auto show = [&](Color color) {
    label.SetBackColor(color);
    EXPECT_EQ(ColorOf(Control("lblClick")), static_cast<COLORREF>(color));
    return endtoend::GdiObjectsOf(GetCurrentProcessId());
  };
  show(0x9FFFFF);
  const int before = show(0x9FFFFE);
  for (Color color = 0x203040; color < 0x203050; ++color) show(color);
  EXPECT_EQ(show(0x9FFFFF), before);
}

TEST_F(WindowsFormLookTest, ToolTipsAreMadeWhenTheMouseComes) {
  ShowForm();
  EXPECT_EQ(FindToolTips(), nullptr);
  form_.Find("txtName").SetText("changed");
  EXPECT_EQ(TipOf("txtName"), L" the name ");
}

TEST_F(WindowsFormLookTest, AToolTipInOneLineIsShownAsItIsWritten) {
  ShowForm();
  EXPECT_EQ(TipOf("txtName"), L" the name ");
}

TEST_F(WindowsFormLookTest, PlainLabelsAndDisabledControlsHaveTheirToolTipsToo) {
  ShowForm();
  form_.Find("cmdStay").SetEnabled(false);
  EXPECT_EQ(TipOfPlace("lblName"), L" whose name it is ");
  EXPECT_EQ(TipOfPlace("cmdStay"), L" leaves all ");
  form_.Find("cmdStay").SetVisible(false);
  EXPECT_EQ(TipOfPlace("cmdStay"), L"");
}

TEST_F(WindowsFormLookTest, TheLinesOfALongToolTipBeginBelowEachOther) {
  ShowForm();
  const std::wstring tip = TipOf("txtFixed");
  EXPECT_TRUE(tip.starts_with(L"a text that no user")) << ToUtf8(tip);
  EXPECT_TRUE(tip.ends_with(L"of a tool tip to tell")) << ToUtf8(tip);
}

TEST_F(WindowsFormLookTest, WordOfOtherDotsRenewsTheWidthOfToolTips) {
  ShowForm();
  const HWND tips = ToolTipsUnderTheMouse();
  const LRESULT width = SendMessageW(tips, TTM_GETMAXTIPWIDTH, 0, 0);
  EXPECT_EQ(width, MulDiv(400, static_cast<int>(GetDpiForWindow(Hwnd())), 96));
  SendMessageW(tips, TTM_SETMAXTIPWIDTH, 0, 1);
  RECT same{};
  GetWindowRect(Hwnd(), &same);
  SendMessageW(Hwnd(), WM_DPICHANGED, MAKEWPARAM(144, 144), reinterpret_cast<LPARAM>(&same));
  EXPECT_EQ(SendMessageW(tips, TTM_GETMAXTIPWIDTH, 0, 0), width);
}

}  // namespace
}  // namespace korvale

#include <gtest/gtest.h>
#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <array>
#include <string>
#include <string_view>

#include "platform/windows/handles.h"
#include "tests/contract/contract_fixture.h"
#include "tests/endtoend/contract/windows_user.h"

namespace korvale {
namespace {

/// What the controls of real windows look like on the screen.
class WindowsFormLookTest : public FormHostContract {
 protected:
  HWND Hwnd() const { return ToHwnd(Window()); }
  HWND Control(std::string_view name) { return FindControl(Window(), Id(name, -1)); }
  /// The tool tips of the form.
  HWND FindTips() const {
    HWND tips = nullptr;
    do {
      tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr);
    } while (tips != nullptr && GetWindow(tips, GW_OWNER) != Hwnd());
    return tips;
  }
  /// The text of a control's tool tip.
  std::wstring TipOf(std::string_view name) {
    std::array<wchar_t, 256> text{};
    TTTOOLINFOW tool{};
    tool.cbSize = sizeof(tool);
    tool.lpszText = text.data();
    tool.hwnd = Hwnd();
    tool.uId = reinterpret_cast<UINT_PTR>(Control(name));
    SendMessageW(FindTips(), TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&tool));
    return text.data();
  }
  /// The colour of a control's first pixel.
  COLORREF ColorOf(HWND window) {
    User().LetPass(50);
    const HDC dc = GetDC(window);
    const COLORREF color = GetPixel(dc, 1, 1);
    ReleaseDC(window, dc);
    return color;
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

TEST_F(WindowsFormLookTest, AToolTipOfOneLineKeepsItsBlanks) {
  ShowForm();
  EXPECT_EQ(TipOf("txtName"), L" the name ");
}

TEST_F(WindowsFormLookTest, TheLinesOfAToolTipBeginBelowEachOther) {
  ShowForm();
  EXPECT_EQ(TipOf("cmdStay"),
            L"a text that is so long that no tool tip has room for all of it in one line, so that "
            L"the words at its end stand below the first ones");
}

}  // namespace
}  // namespace korvale

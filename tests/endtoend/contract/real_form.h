#pragma once

#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include <string>
#include <string_view>

#include "platform/windows/handles.h"
#include "tests/contract/contract_fixture.h"
#include "tests/endtoend/contract/windows_user.h"
#include "tests/endtoend/harness/screen.h"

namespace korvale {

/// The form of the contract tests as real windows.
class RealForm : public FormHostContract {
 protected:
  HWND Hwnd() const { return ToHwnd(Window()); }
  HWND Control(std::string_view name, int index = -1) {
    return FindControl(Window(), Id(name, index));
  }
  /// The window of the form's tool tips, null while it has none.
  HWND FindToolTips() const {
    HWND tips = nullptr;
    do {
      tips = FindWindowExW(nullptr, tips, TOOLTIPS_CLASSW, nullptr);
    } while (tips != nullptr && GetWindow(tips, GW_OWNER) != Hwnd());
    return tips;
  }
  /// The same after the mouse has come to the form.
  HWND ToolTipsUnderTheMouse() {
    PostMessageW(Hwnd(), WM_MOUSEMOVE, 0, 0);
    User().LetPass(50);
    return FindToolTips();
  }
  /// Opens a list of nine entries, all of which must be whole, and tells its window.
  HWND OpenNineEntries() {
    for (int entry = 4; entry <= 9; ++entry) form_.Find("cboSize").AddItem(std::to_string(entry));
    SendMessageW(Control("cboSize"), CB_SHOWDROPDOWN, TRUE, 0);
    COMBOBOXINFO info{};
    info.cbSize = sizeof(info);
    GetComboBoxInfo(Control("cboSize"), &info);
    RECT last{};
    RECT list{};
    SendMessageW(info.hwndList, LB_GETITEMRECT, 8, reinterpret_cast<LPARAM>(&last));
    GetClientRect(info.hwndList, &list);
    EXPECT_LE(last.bottom, list.bottom);
    return info.hwndList;
  }
  /// The icon is the program's own, of that size in pixels.
  static void ExpectProgramIcon(HICON icon, int size) {
    constexpr COLORREF kGround = RGB(0, 255, 0);
    ICONINFO info{};
    ASSERT_NE(GetIconInfo(icon, &info), FALSE) << size;
    BITMAP bitmap{};
    GetObjectW(info.hbmMask, sizeof(bitmap), &bitmap);
    DeleteObject(info.hbmMask);
    DeleteObject(info.hbmColor);
    EXPECT_EQ(bitmap.bmWidth, size);
    EXPECT_TRUE(endtoend::PictureOf(icon, size, kGround) ==
                endtoend::PictureOfProgramIcon(GetModuleHandleW(nullptr), size, kGround))
        << size;
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

}  // namespace korvale

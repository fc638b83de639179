#pragma once

#include <windows.h>

#include <string_view>

#include "platform/windows/handles.h"
#include "tests/contract/contract_fixture.h"
#include "tests/endtoend/contract/windows_user.h"

namespace korvale {

/// The form of the contract tests as real windows.
class RealForm : public FormHostContract {
 protected:
  HWND Hwnd() const { return ToHwnd(Window()); }
  HWND Control(std::string_view name, int index = -1) {
    return FindControl(Window(), Id(name, index));
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

#include <windows.h>
// After windows.h, which it needs.
#include <commdlg.h>

#include "ui/windows/windows_form_host.h"

namespace korvale {

std::optional<Color> WindowsFormHost::ChooseColorW(WindowHandle owner, Color initial) {
  CHOOSECOLORW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = ToHwnd(owner);
  dialog.rgbResult = static_cast<COLORREF>(initial);
  dialog.lpCustColors = customColors_.data();
  dialog.Flags = CC_RGBINIT | CC_FULLOPEN;
  if (::ChooseColorW(&dialog) == FALSE) {
    return std::nullopt;
  }
  return static_cast<Color>(dialog.rgbResult);
}

void WindowsFormHost::SetCursor(MousePointer pointer) {
  pointer_ = pointer;
  // Windows asks again only when the mouse moves.
  POINT at{};
  GetCursorPos(&at);
  if (loop_.IsOurs(WindowFromPoint(at))) ::SetCursor(LoadPointer(classes_.Instance(), pointer));
}

}  // namespace korvale

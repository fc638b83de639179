#include "ui/windows/windows_system_dialogs.h"

// After windows.h, which it needs.
#include <commdlg.h>

#include "platform/windows/handles.h"
#include "platform/windows/text.h"
#include "ui/windows/form_window.h"
#include "ui/windows/message_guard.h"

namespace korvale {

std::int16_t WindowsSystemDialogs::MessageBoxW(WindowHandle owner, const std::string& text,
                                               const std::string& title, std::int32_t style) {
  return static_cast<std::int16_t>(::MessageBoxW(ToHwnd(owner), ToUtf16(text).c_str(),
                                                 ToUtf16(title).c_str(), static_cast<UINT>(style)));
}

std::optional<Color> WindowsSystemDialogs::ChooseColorW(WindowHandle owner, Color initial) {
  auto* const choose = dialogs_.Find<decltype(::ChooseColorW)>("ChooseColorW");
  if (choose == nullptr) return std::nullopt;
  CHOOSECOLORW dialog{};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = ToHwnd(owner);
  dialog.rgbResult = static_cast<COLORREF>(initial);
  dialog.lpCustColors = customColors_.data();
  dialog.Flags = CC_RGBINIT | CC_FULLOPEN;
  if (choose(&dialog) == FALSE) return std::nullopt;
  return static_cast<Color>(dialog.rgbResult);
}

void WindowsSystemDialogs::TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) {
  if (const auto form = forms_->Find(hwnd)) form->TrackPopup(menu);
}

bool WindowsSystemDialogs::EndMenu() {
  // A menu has a loop of its own.
  if (IsOnlyOurLoop()) return false;
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  constexpr DWORD kAnyMenu = GUI_INMENUMODE | GUI_SYSTEMMENUMODE | GUI_POPUPMENUMODE;
  const BOOL known = GetGUIThreadInfo(GetCurrentThreadId(), &info);
  return known != FALSE && (info.flags & kAnyMenu) != 0 && ::EndMenu() != FALSE;
}

}  // namespace korvale

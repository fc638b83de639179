#pragma once

#include <windows.h>

#include <array>
#include <optional>
#include <string>

#include "platform/system_dialogs.h"
#include "platform/windows/system_library.h"
#include "ui/windows/open_forms.h"

namespace korvale {

class WindowsSystemDialogs : public SystemDialogs {
 public:
  explicit WindowsSystemDialogs(const OpenForms& forms) : forms_(&forms) {}

  std::int16_t MessageBoxW(WindowHandle owner, const std::string& text, const std::string& title,
                           std::int32_t style) override;
  std::optional<Color> ChooseColorW(WindowHandle owner, Color initial) override;
  void TrackPopupMenuEx(WindowHandle hwnd, MenuItem& menu) override;
  bool EndMenu() override;

 private:
  const OpenForms* forms_;
  SystemLibrary dialogs_{L"comdlg32.dll"};
  /// The colours that the user mixed in the colour dialog, which has room for so many.
  std::array<COLORREF, 16> customColors_ = {};
};

}  // namespace korvale

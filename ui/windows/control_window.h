#pragma once

#include <windows.h>

#include <string>

#include "platform/form_model.h"

namespace korvale {

/// Makes the window of a control, without place and font. Null for kinds that have none, and
/// when Windows refuses it.
HWND CreateControlWindow(const ControlState& control, HWND parent, HINSTANCE instance,
                         const wchar_t* pageClass);

/// True for kinds that are a window.
bool HasWindow(ControlKind kind);
/// True for buttons, check boxes and option buttons.
bool IsButtonKind(ControlKind kind);
/// True for the two kinds of combo boxes.
bool IsComboKind(ControlKind kind);

/// The text as the window takes it: "&" is doubled for kinds that would not show it.
std::wstring WindowText(const ControlState& control);

}  // namespace korvale

#pragma once

#include <windows.h>

#include <string>

#include "platform/windows/handles.h"

namespace korvale {

/// A font that the user has chosen for a part of all windows, at these dots per inch: `part` is
/// lfMessageFont, lfMenuFont and so on (SystemParametersInfoForDpi).
UniqueFont MakeSystemFont(LOGFONTW NONCLIENTMETRICSW::*part, UINT dpi);

/// The width of a text in one line, in pixels (GetTextExtentPoint32).
int TextWidth(HFONT font, const std::wstring& text);

}  // namespace korvale

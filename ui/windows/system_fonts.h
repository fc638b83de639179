#pragma once

#include <windows.h>

#include <string>

namespace korvale {

/// The sizes and fonts that the user has chosen for all windows, at these dots per inch
/// (SystemParametersInfoForDpi); the same sizes and fonts are the same bytes.
NONCLIENTMETRICSW SystemMetricsFor(UINT dpi);

/// The width of a text in one line, in pixels (GetTextExtentPoint32).
int TextWidth(HFONT font, const std::wstring& text);

}  // namespace korvale

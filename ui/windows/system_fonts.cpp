#include "ui/windows/system_fonts.h"

#include <algorithm>
#include <iterator>

namespace korvale {

namespace {

/// Windows leaves anything at all behind the end of the name.
void ClearBehindName(LOGFONTW& font) {
  const auto end = std::ranges::find(font.lfFaceName, L'\0');
  std::ranges::fill(end, std::end(font.lfFaceName), L'\0');
}

}  // namespace

NONCLIENTMETRICSW SystemMetricsFor(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, dpi);
  for (LOGFONTW* const font :
       {&metrics.lfCaptionFont, &metrics.lfSmCaptionFont, &metrics.lfMenuFont,
        &metrics.lfStatusFont, &metrics.lfMessageFont}) {
    ClearBehindName(*font);
  }
  return metrics;
}

int TextWidth(HFONT font, const std::wstring& text) {
  const HDC screen = GetDC(nullptr);
  const HGDIOBJ before = SelectObject(screen, font);
  SIZE size{};
  GetTextExtentPoint32W(screen, text.c_str(), static_cast<int>(text.size()), &size);
  SelectObject(screen, before);
  ReleaseDC(nullptr, screen);
  return size.cx;
}

}  // namespace korvale

#include "ui/windows/system_fonts.h"

namespace korvale {

NONCLIENTMETRICSW SystemMetricsFor(UINT dpi) {
  NONCLIENTMETRICSW metrics{};
  metrics.cbSize = sizeof(metrics);
  SystemParametersInfoForDpi(SPI_GETNONCLIENTMETRICS, sizeof(metrics), &metrics, 0, dpi);
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

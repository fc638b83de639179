#include "ui/windows/system_colors.h"

#include <cstddef>
#include <cstdint>

namespace korvale {

COLORREF ToColorRef(Color color) {
  constexpr std::uint32_t kSystemColor = 0x80000000U;
  constexpr std::uint32_t kNumber = 0xFFU;
  const auto bits = static_cast<std::uint32_t>(color);
  if ((bits & kSystemColor) != 0) return GetSysColor(static_cast<int>(bits & kNumber));
  constexpr std::uint32_t kRgb = 0x00FFFFFFU;
  return bits & kRgb;
}

bool IsHighContrastOn() {
  HIGHCONTRASTW contrast{};
  contrast.cbSize = sizeof(contrast);
  return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof(contrast), &contrast, 0) != FALSE &&
         (contrast.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

SystemColors SystemColors::Now() {
  SystemColors now;
  for (std::size_t i = 0; i < now.colors.size(); ++i) {
    now.colors[i] = GetSysColor(static_cast<int>(i));
  }
  now.highContrast = IsHighContrastOn();
  return now;
}

}  // namespace korvale

#include "ui/windows/system_colors.h"

#include <cstddef>

namespace korvale {

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

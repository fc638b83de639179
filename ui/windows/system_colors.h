#pragma once

#include <windows.h>

#include <array>

#include "platform/types.h"

namespace korvale {

/// What a colour stands for on this screen now (GetSysColor for system colours).
COLORREF ToColorRef(Color color);

/// The user wants high contrast (SystemParametersInfoW with SPI_GETHIGHCONTRAST).
bool IsHighContrastOn();

/// The colours that the user has chosen for all windows.
struct SystemColors {
  /// Those of the moment (GetSysColor).
  static SystemColors Now();

  std::array<COLORREF, COLOR_MENUBAR + 1> colors{};
  bool highContrast = false;

  friend bool operator==(const SystemColors&, const SystemColors&) = default;
};

}  // namespace korvale

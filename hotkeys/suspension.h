#pragma once

#include <cstdint>

namespace korvale {

/// While one of these is set, pressed hot keys are not carried out.
struct Suspension {
  /// A message box of the program is on the screen.
  bool MessageBoxShown = false;
  /// A dialog box of the program is on the screen.
  bool DialogShown = false;
  /// How deep message boxes are nested.
  std::int16_t MessageBoxDepth = 0;

  bool Active() const { return MessageBoxShown || DialogShown; }
};

}  // namespace korvale

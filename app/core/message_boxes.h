#pragma once

#include <cstdint>
#include <string>

namespace korvale {

/// The program shows all its message boxes through this.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows a message box and returns the number of the button pressed (IDOK 1 .. IDNO 7). `buttons`
  /// is a sum of MB_ values. Calls may nest; while the outermost box is shown, the foreground
  /// tracking is paused and the main window disabled.
  virtual std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                                      const std::string& title) = 0;
};

}  // namespace korvale

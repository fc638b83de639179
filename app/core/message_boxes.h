#pragma once

#include <cstdint>
#include <string>

namespace korvale {

/// The only way to a message box of the program.
class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows a message box and returns the number of the button pressed (IDOK 1 .. IDNO 7).
  /// `buttons` is a sum of MB_ values. Calls may nest; the foreground tracking and the main window
  /// rest while the outermost is shown.
  virtual std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                                      const std::string& title) = 0;
};

}  // namespace korvale

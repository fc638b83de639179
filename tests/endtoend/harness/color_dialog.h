#pragma once

#include <optional>
#include <string>

#include "tests/endtoend/harness/running_korvale.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// Red, green and blue, each from 0 to 255.
struct Rgb {
  int red = 0;
  int green = 0;
  int blue = 0;

  friend bool operator==(const Rgb&, const Rgb&) = default;
};

/// The number that the settings hold for a colour.
std::string StoredColor(Rgb color);

/// The back colour of a text box on the screen.
Rgb ColorOnScreen(Window box);

/// The system's colour dialog as Korvale shows it.
class ColorDialog {
 public:
  /// Waits for the dialog.
  explicit ColorDialog(const RunningKorvale& korvale);

  Window window() const { return window_; }
  /// The colour that is chosen at the moment.
  Rgb Shown() const;
  /// Enters the colour and presses OK; true when the dialog is gone.
  bool Choose(Rgb color) const;
  /// Clicks a basic colour, 0 to 47, that is not chosen yet and presses OK.
  bool Pick(int cell) const;
  /// Presses Esc; true when the dialog is gone.
  bool Cancel() const;

 private:
  bool Enter(int field, int value) const;

  Window window_;
};

}  // namespace korvale::endtoend

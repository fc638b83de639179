#pragma once

#include <optional>

#include "tests/program/main_window_test.h"

namespace korvale {

/// Started copies in which the colours of the two fields are chosen.
class CustomizeColorsTest : public MainWindowTest {
 protected:
  /// A started copy whose user has silenced the tip.
  KorvaleCopy& Started() {
    Store("Tips", "0");
    return StartedCopy();
  }
  /// The mode is on.
  KorvaleCopy& Customizing() {
    KorvaleCopy& copy = Started();
    Toggle(copy);
    return copy;
  }
  static void Toggle(KorvaleCopy& copy) { Choose(copy, {"View", "Customize Colors - C"}); }
  static bool IsOn(KorvaleCopy& copy) { return IsChecked(copy, "View", "Customize Colors - C"); }
  static void ClickAt(KorvaleCopy& copy, const char* field, Twips x, Twips y,
                      unsigned shift = kNoShift, MouseButton button = MouseButton::kLeft) {
    copy.user.ClickAt(copy.Handle(), Field(copy, field), x, y, shift, button);
  }
  static void Tell(KorvaleCopy& copy, const MouseInput& input, const char* field = "txtWindow") {
    copy.host.Tell(copy.Handle(),
                   [&](FormEvents& events) { events.OnMouse(Field(copy, field), input); });
  }
  static void ChooseNext(KorvaleCopy& copy, std::optional<Color> color) {
    copy.host.WhenColorDialog([color](Color) { return color; });
  }
};

}  // namespace korvale

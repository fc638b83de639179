#pragma once

#include <string>

#include "desktop/window_actions.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {

/// Alpha stands behind Beta; both are ordinary windows.
class Activation : public DesktopCase {
 protected:
  Activation() { log.Clear(); }

  ActivationResult Activate(WindowTriple& window) {
    return actions.ActivateWindow(window, false, true);
  }
  ActivationResult Activate(WindowTriple&& window) { return Activate(window); }
  ActivationResult Validate(WindowTriple& window) {
    return actions.ActivateWindow(window, false, false);
  }
  ActivationResult Validate(WindowTriple&& window) { return Validate(window); }
  WindowTriple Triple(WindowHandle hwnd, const std::string& text = "Alpha") {
    return {hwnd, text, "Window"};
  }

  const WindowHandle alpha = desktop.Open("Alpha");
  const WindowHandle beta = desktop.Open("Beta");
};

}  // namespace korvale

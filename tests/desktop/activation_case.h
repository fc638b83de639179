#pragma once

#include <string>

#include "desktop/window_actions.h"
#include "tests/desktop/desktop_case.h"

namespace korvale {

/// Alpha stands behind Beta; both are ordinary windows.
class Activation : public DesktopCase {
 protected:
  void SetUp() override {
    alpha = desktop.Open("Alpha");
    beta = desktop.Open("Beta");
    log.Clear();
  }

  ActivationResult Activate(WindowTriple& window) {
    return actions.ActivateWindow(window, false, true);
  }
  ActivationResult Validate(WindowTriple& window) {
    return actions.ActivateWindow(window, false, false);
  }
  WindowTriple Triple(WindowHandle hwnd, const std::string& text = "Alpha") {
    return {hwnd, text, "Window"};
  }

  WindowHandle alpha = 0;
  WindowHandle beta = 0;
};

}  // namespace korvale

#pragma once

#include <string>

#include "platform/types.h"

namespace korvale {

/// A window reference: handle, title or identification text, class name.
struct WindowTriple {
  WindowHandle handle = 0;
  std::string text;
  std::string className;

  friend bool operator==(const WindowTriple&, const WindowTriple&) = default;
};

/// The record of the window that Tag 0 stands for.
struct PreviousWindow {
  /// The Previous Window; its text is its title as last read.
  WindowTriple current;
  /// The window to fall back to: the one before the current one, or the main window when the user
  /// left that.
  WindowTriple alternate;
  /// The last foreground window that was not the main window.
  WindowHandle lastOtherForeground = 0;
  /// A selection has moved the record already; the tick that sees the selected window come to the
  /// front does not move it once more.
  bool menuSelection = false;
};

}  // namespace korvale

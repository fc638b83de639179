#pragma once

#include <string>

#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

/// A window reference: handle, title or identification text, class name.
struct WindowTriple {
  WindowHandle handle = 0;
  std::string text;
  std::string className;

  friend bool operator==(const WindowTriple&, const WindowTriple&) = default;
};

/// The record of the window that Tag 0 stands for. It never holds one window twice.
struct PreviousWindow {
  /// The Previous Window; its text is its title as last read.
  WindowTriple current;
  /// The window to fall back to: the one before the current one, or the main window when the user
  /// left that.
  WindowTriple alternate;
  /// The last foreground window that was not the main window.
  WindowHandle lastOtherForeground = 0;
  /// A selection has moved the record already, or the main window was in front only for its menu:
  /// the next tick may still find the window in front that is on its way to the back.
  bool menuSelection = false;
  /// With menuSelection: the window on its way to the back, and the one that takes its place.
  WindowHandle leaving = 0;
  WindowHandle coming = 0;
  /// While the user is outside the main window, Tag 0 stands for the alternate, since they are in
  /// the current window; false when the window that they were in is gone.
  bool tagZeroIsAlternate = true;

  /// A selection has yet to take effect, and the selected window still exists.
  bool IsPending(WindowQueries& windows) const {
    return menuSelection && (coming == 0 || windows.IsWindow(coming));
  }

  /// The window that the user has in front (GetForegroundWindow) once a selection has taken effect.
  WindowHandle InFront(WindowQueries& windows) const {
    const WindowHandle foreground = windows.GetForegroundWindow();
    const bool late = (foreground == leaving || foreground == 0) && IsPending(windows);
    return late ? coming : foreground;
  }

  /// The window of Tag 0; `mainInFront` = the main window has the focus.
  WindowTriple& OfTagZero(bool mainInFront) {
    return mainInFront || !tagZeroIsAlternate ? current : alternate;
  }
};

}  // namespace korvale

#pragma once

#include "app/core/options.h"
#include "desktop/main_window.h"
#include "desktop/seen_window.h"
#include "platform/types.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"
#include "util/forms.h"

namespace korvale {

/// The program's own windows that never count as one.
struct OwnWindows {
  /// The hidden window that owns the program's forms.
  WindowHandle owner = 0;
  WindowHandle about = 0;
};

/// Decides which top-level windows count as a window at all.
class WindowFilter {
 public:
  WindowFilter(WindowQueries& windows, VirtualDesktops& virtualDesktops,
               const OptionsHolder& options, const LoadedForms& forms,
               const MainWindow& mainWindow);

  /// (hwnd, false, false) makes the basic checks alone, (hwnd, true, true) the option checks alone.
  bool IsSelectableWindow(WindowHandle hwnd, bool checkOptions, bool skipBasicChecks) const;
  /// The same for a window that others look at in the same visit.
  bool IsSelectableWindow(SeenWindow& window, bool checkOptions, bool skipBasicChecks) const;

  /// What PassesBasicChecks needs, once for all the windows of an enumeration.
  OwnWindows FindOwnWindows() const;
  bool PassesBasicChecks(SeenWindow& window, const OwnWindows& own) const;

  /// IsPutAway of window_visibility.h: the user cannot see the window on any virtual desktop.
  bool IsPutAway(WindowHandle hwnd) const;
  /// IsShown of window_visibility.h: the user can see the window, here or on another virtual
  /// desktop.
  bool IsShown(SeenWindow& window) const;

 private:
  bool IsOrdinary(SeenWindow& window) const;
  bool PassesOptionChecks(SeenWindow& window) const;
  bool PassesModalFrameCheck(SeenWindow& window) const;

  WindowQueries* windows_;
  VirtualDesktops* virtualDesktops_;
  const OptionsHolder* options_;
  const LoadedForms* forms_;
  const MainWindow* mainWindow_;
};

}  // namespace korvale

#pragma once

#include "app/core/options.h"
#include "desktop/main_window.h"
#include "platform/types.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"
#include "util/forms.h"

namespace korvale {

/// Decides which top-level windows count as a window at all.
class WindowFilter {
 public:
  WindowFilter(WindowQueries& windows, VirtualDesktops& virtualDesktops,
               const OptionsHolder& options, const LoadedForms& forms,
               const MainWindow& mainWindow);

  /// (hwnd, false, false) makes the basic checks alone, (hwnd, true, true) the option checks alone.
  bool IsSelectableWindow(WindowHandle hwnd, bool checkOptions, bool skipBasicChecks) const;

  /// IsPutAway of window_visibility.h: the user cannot see the window on any virtual desktop.
  bool IsPutAway(WindowHandle hwnd) const;
  /// IsShown of window_visibility.h: the user can see the window, here or on another virtual
  /// desktop.
  bool IsShown(WindowHandle hwnd) const;

 private:
  bool PassesBasicChecks(WindowHandle hwnd, const std::string& title) const;
  bool PassesOptionChecks(WindowHandle hwnd, const std::string& title) const;
  bool PassesModalFrameCheck(WindowHandle hwnd) const;

  WindowQueries* windows_;
  VirtualDesktops* virtualDesktops_;
  const OptionsHolder* options_;
  const LoadedForms* forms_;
  const MainWindow* mainWindow_;
};

}  // namespace korvale

#pragma once

#include "app/core/options.h"
#include "desktop/main_window.h"
#include "platform/types.h"
#include "platform/window_api.h"
#include "util/forms.h"

namespace korvale {

/// Window classes of the taskbar and of the bare desktop.
inline constexpr const char* kTaskbarClass = "Shell_TrayWnd";
inline constexpr const char* kBareDesktopClass = "Progman";

/// Decides which top-level windows count as a window at all.
class WindowFilter {
 public:
  WindowFilter(WindowQueries& windows, const OptionsHolder& options, const LoadedForms& forms,
               const MainWindow& mainWindow);

  /// (hwnd, false, false) makes the basic checks alone, (hwnd, true, true) the option checks alone.
  bool IsSelectableWindow(WindowHandle hwnd, bool checkOptions, bool skipBasicChecks) const;

 private:
  bool PassesBasicChecks(WindowHandle hwnd, const std::string& title) const;
  bool PassesOptionChecks(WindowHandle hwnd, const std::string& title) const;
  bool PassesModalFrameCheck(WindowHandle hwnd) const;

  WindowQueries* windows_;
  const OptionsHolder* options_;
  const LoadedForms* forms_;
  const MainWindow* mainWindow_;
};

}  // namespace korvale

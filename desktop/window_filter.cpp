#include "desktop/window_filter.h"

#include <string>

#include "desktop/shell_surfaces.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"

namespace korvale {

WindowFilter::WindowFilter(WindowQueries& windows, VirtualDesktops& virtualDesktops,
                           const OptionsHolder& options, const LoadedForms& forms,
                           const MainWindow& mainWindow)
    : windows_(&windows),
      virtualDesktops_(&virtualDesktops),
      options_(&options),
      forms_(&forms),
      mainWindow_(&mainWindow) {}

bool WindowFilter::IsPutAway(WindowHandle hwnd) const {
  return korvale::IsPutAway(*windows_, *virtualDesktops_, hwnd);
}

bool WindowFilter::IsShown(WindowHandle hwnd) const {
  return korvale::IsShown(*windows_, *virtualDesktops_, hwnd);
}

bool WindowFilter::IsSelectableWindow(WindowHandle hwnd, bool checkOptions,
                                      bool skipBasicChecks) const {
  const std::string title = GetWindowTitle(*windows_, hwnd);
  if (!skipBasicChecks && !PassesBasicChecks(hwnd, title)) return false;
  return !checkOptions || PassesOptionChecks(hwnd, title);
}

bool WindowFilter::PassesBasicChecks(WindowHandle hwnd, const std::string& title) const {
  const std::string className = GetWindowClass(*windows_, hwnd);
  if (hwnd == 0 || !windows_->IsWindow(hwnd)) return false;
  // The hidden window that owns the program's forms.
  if (hwnd == windows_->GetWindow(mainWindow_->MainHandle(), win32::kGwOwner)) return false;
  if (IsShellSurface(className)) return false;
  if (title.empty() && className == "Static") return false;
  return hwnd != FormHandle(*forms_, "frmMsgBox2");
}

bool WindowFilter::PassesOptionChecks(WindowHandle hwnd, const std::string& title) const {
  const clsOptions& options = options_->Get();
  if (!options.booAllowNoTextWindow && title.empty()) return false;
  if (!options.booAllowToolbarWindow) {
    const std::int32_t exStyle = windows_->GetWindowLongA(hwnd, win32::kGwlExStyle);
    if ((exStyle & win32::kWsExToolWindow) != 0) return false;
  }
  return options.booAllowModalFrameWindow || PassesModalFrameCheck(hwnd);
}

bool WindowFilter::PassesModalFrameCheck(WindowHandle hwnd) const {
  const std::int32_t style = windows_->GetWindowLongA(hwnd, win32::kGwlStyle);
  const bool modalFrame = (style & win32::kDsModalFrame) != 0;
  // The Options dialog has a modal frame, yet the user works in it as in any other window.
  if (modalFrame && hwnd != FormHandle(*forms_, "frmOptions")) return false;
  return (style & win32::kDsSysModal) == 0;
}

}  // namespace korvale

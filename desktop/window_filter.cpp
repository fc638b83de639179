#include "desktop/window_filter.h"

#include <string_view>

#include "app/core/form_names.h"
#include "desktop/shell_surfaces.h"
#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"

namespace korvale {
namespace {

bool IsOneOf(const OwnWindows& own, WindowHandle hwnd) {
  return hwnd == own.owner || hwnd == own.about;
}

}  // namespace

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

bool WindowFilter::IsShown(SeenWindow& window) const {
  return korvale::IsShown(*windows_, *virtualDesktops_, window);
}

bool WindowFilter::IsSelectableWindow(WindowHandle hwnd, bool checkOptions,
                                      bool skipBasicChecks) const {
  SeenWindow window(*windows_, hwnd);
  return IsSelectableWindow(window, checkOptions, skipBasicChecks);
}

bool WindowFilter::IsSelectableWindow(SeenWindow& window, bool checkOptions,
                                      bool skipBasicChecks) const {
  const bool basic =
      skipBasicChecks || (IsOrdinary(window) && !IsOneOf(FindOwnWindows(), window.Handle()));
  return basic && (!checkOptions || PassesOptionChecks(window));
}

OwnWindows WindowFilter::FindOwnWindows() const {
  return {windows_->GetWindow(mainWindow_->MainHandle(), win32::kGwOwner),
          FormHandle(*forms_, kAboutForm)};
}

bool WindowFilter::PassesBasicChecks(SeenWindow& window, const OwnWindows& own) const {
  return !IsOneOf(own, window.Handle()) && IsOrdinary(window);
}

bool WindowFilter::IsOrdinary(SeenWindow& window) const {
  if (window.Handle() == 0) return false;
  const std::string_view className = window.ClassName();
  if (className.empty() && !windows_->IsWindow(window.Handle())) return false;
  if (IsShellSurface(className)) return false;
  return className != "Static" || !window.Title().empty();
}

bool WindowFilter::PassesOptionChecks(SeenWindow& window) const {
  const clsOptions& options = options_->Get();
  if (!options.booAllowNoTextWindow && window.Title().empty()) return false;
  if (!options.booAllowToolbarWindow && (window.ExStyle() & win32::kWsExToolWindow) != 0) {
    return false;
  }
  return options.booAllowModalFrameWindow || PassesModalFrameCheck(window);
}

bool WindowFilter::PassesModalFrameCheck(SeenWindow& window) const {
  const bool modalFrame = (window.Style() & win32::kDsModalFrame) != 0;
  // The Options dialog has a modal frame, yet the user works in it as in any other window.
  if (modalFrame && window.Handle() != FormHandle(*forms_, kOptionsForm)) return false;
  return (window.Style() & win32::kDsSysModal) == 0;
}

}  // namespace korvale

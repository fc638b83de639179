#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "desktop/window_readers.h"
#include "platform/types.h"
#include "platform/win32_constants.h"
#include "platform/window_api.h"

namespace korvale {

/// One visit of a window: each fact is read when it is first asked for and never again, so that all
/// who look at the window see the same. Made anew for each visit.
class SeenWindow {
 public:
  SeenWindow(WindowQueries& windows, WindowHandle hwnd) : windows_(&windows), hwnd_(hwnd) {}
  SeenWindow(const SeenWindow&) = delete;
  SeenWindow& operator=(const SeenWindow&) = delete;

  WindowHandle Handle() const { return hwnd_; }
  /// As GetWindowTitle; lives as long as this visit.
  std::string_view Title();
  bool HasReadTitle() const { return title_.has_value(); }
  /// As GetWindowClass; lives as long as this visit. A window that exists has a class.
  std::string_view ClassName();
  /// As StillExists of window_readers.h, by the class alone, which most who look at a window read
  /// anyway.
  bool IsStill(std::string_view className);
  /// GetWindowLongA(GWL_STYLE) and (GWL_EXSTYLE).
  std::int32_t Style();
  std::int32_t ExStyle();
  bool HasStyle(std::int32_t bit) { return (Style() & bit) != 0; }
  /// By its style: IsWindowVisible of a top-level window, the same with IsWindowEnabled, and
  /// IsIconic.
  bool IsVisible() { return HasStyle(win32::kWsVisible); }
  bool TakesInput() { return IsVisible() && !HasStyle(win32::kWsDisabled); }
  bool IsIconic() { return HasStyle(win32::kWsMinimize); }
  /// Visible, and Windows does not cloak it (IsShownHere of window_visibility.h).
  bool IsShownHere();
  /// GetWindow(GW_CHILD).
  WindowHandle FirstChild();
  /// DwmGetWindowAttribute: DWM_CLOAKED_ values, 0 for a window on the screen.
  std::uint32_t Cloak();

 private:
  WindowQueries* windows_;
  WindowHandle hwnd_;
  // Neither is cleared: what stands there is told by the views below.
  TitleBuffer titleBuffer_;
  std::string longTitle_;
  ClassBuffer classBuffer_;
  std::optional<std::string_view> title_;
  std::optional<std::string_view> className_;
  std::optional<std::int32_t> style_;
  std::optional<std::int32_t> exStyle_;
  std::optional<WindowHandle> firstChild_;
  std::optional<std::uint32_t> cloak_;
};

}  // namespace korvale

#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "desktop/main_window.h"
#include "desktop/tag_list.h"
#include "desktop/window_filter.h"
#include "desktop/window_requests.h"
#include "platform/types.h"
#include "platform/window_api.h"

namespace korvale {

/// What an enumeration does with each window; other numbers do nothing.
enum EnumerationMode : std::int32_t {
  kMinimizeAll = 1,
  kRestoreAll = 2,
  kTagRefresh = 3,
  kSearchTitleAndClass = 4,
  kTopWindow = 6,
  kSearchTitle = 7,
};

/// The one enumeration of the top-level windows through which every search over the desktop runs.
class WindowEnumeration {
 public:
  using Visit = std::function<void(WindowHandle)>;
  using Test = std::function<bool(WindowHandle)>;
  static void PassOver(WindowHandle /*hwnd*/) {}
  static bool Any(WindowHandle /*hwnd*/) { return true; }

  WindowEnumeration(WindowQueries& windows, WindowRequests& requests, const WindowFilter& filter,
                    const MainWindow& mainWindow, TagListPasses& tagPasses);

  /// Hands every top-level window, topmost first, to EnumWindowsProc. Enumerations must not be
  /// nested: error 5.
  void EnumWindows(std::int32_t mode, const Visit& visit = PassOver);

  /// Does what `mode` says with a selectable window; the search modes pass visible ones to `visit`,
  /// those that minimize or restore the windows that Windows denied.
  /// Always true, so that an enumeration visits all windows.
  bool EnumWindowsProc(WindowHandle hwnd, std::int32_t mode, const Visit& visit = PassOver);
  /// Hands any window to `visit` in mode 4; always true.
  static bool EnumInstanceProc(WindowHandle hwnd, std::int32_t mode, const Visit& visit);

  /// Unresolves every Tag, then matches all of them against the desktop in mode 3.
  void RefreshTags();
  /// Mode 7: the last visible window whose title fits the identification, 0 = none.
  WindowHandle FindByTitle(const std::string& identificationText);
  /// Mode 4: the same with an exact class.
  WindowHandle FindByTitleAndClass(const std::string& title, const std::string& className);
  /// Another copy of the program, by exact class and, since folder names ignore case, by title in
  /// any case: the last one that `qualifies` and is visible, or not shown yet; 0 = none.
  WindowHandle FindInstance(const std::string& className, const std::string& title,
                            bool visible = true, const Test& qualifies = Any);
  /// Mode 6: the topmost window, below always-on-top ones and other than the main window, that can
  /// be worked in and `qualifies`; 0 = none.
  WindowHandle FindTopWindow(const Test& qualifies = Any);

 private:
  void Enumerate(const Test& visit);
  void HandleSelectable(WindowHandle hwnd, std::int32_t mode, const Visit& visit);
  bool Minimize(WindowHandle hwnd);
  bool Restore(WindowHandle hwnd);
  bool CanMinimizeOrRestore(WindowHandle hwnd, bool iconic) const;
  bool FitsTitle(WindowHandle hwnd, const std::string& text) const;
  bool CanBeTopWindow(WindowHandle hwnd) const;

  WindowQueries* windows_;
  WindowRequests* requests_;
  const WindowFilter* filter_;
  const MainWindow* mainWindow_;
  TagListPasses* tagPasses_;
  bool enumerating_ = false;
};

}  // namespace korvale

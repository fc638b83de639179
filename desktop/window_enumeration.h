#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "desktop/main_window.h"
#include "desktop/seen_window.h"
#include "desktop/tag_list_passes.h"
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

using WindowHandles = std::vector<WindowHandle>;

/// The one enumeration of the top-level windows through which every search over the desktop runs.
class WindowEnumeration {
 public:
  using Visit = std::function<void(SeenWindow&)>;
  using Test = std::function<bool(SeenWindow&)>;
  static void PassOver(SeenWindow& /*window*/) {}
  static bool Any(SeenWindow& /*window*/) { return true; }

  WindowEnumeration(WindowQueries& windows, WindowRequests& requests, const WindowFilter& filter,
                    const MainWindow& mainWindow, TagListPasses& tagPasses);

  /// Hands every top-level window, topmost first, to EnumWindowsProc. Enumerations must not be
  /// nested: error 5.
  void EnumWindows(std::int32_t mode, const Visit& visit = PassOver);

  /// Does what `mode` says with a selectable window; the search modes pass visible ones to `visit`,
  /// those that minimize or restore the windows that Windows denied, the refresh those that it has
  /// not found to be kept off the screen for good.
  /// Always true, so that an enumeration visits all windows.
  bool EnumWindowsProc(WindowHandle hwnd, std::int32_t mode, const Visit& visit = PassOver);
  /// Hands any window to `visit` in mode 4; always true.
  static bool EnumInstanceProc(SeenWindow& window, std::int32_t mode, const Visit& visit);

  /// Unresolves every Tag, then matches all of them against the desktop (mode 3). The windows that
  /// the search by title alone (mode 7) finds for Tag `sought` in the same pass, for LastOnScreen;
  /// none when it cannot tell: the Tag is resolved, or the Tags were changed during the pass.
  std::optional<WindowHandles> RefreshTags(int sought);
  /// Mode 7: the last visible window whose title fits the identification, 0 = none.
  WindowHandle FindByTitle(const std::string& identificationText);
  /// The last one that Windows does not keep off the screen for good, 0 = none.
  WindowHandle LastOnScreen(const WindowHandles& windows) const;

  /// The windows of exactly this class, selectable or not, topmost first.
  WindowHandles FindByClass(const std::string& className);
  /// Mode 4: of these windows of one class the last visible and selectable one whose title fits;
  /// 0 = none.
  WindowHandle FindByTitleAmong(const WindowHandles& windows, const std::string& title) const;
  /// Of these windows another copy of the program, by title in any case, since folder names ignore
  /// case: the last one that `qualifies` and is visible, or not shown yet; 0 = none.
  WindowHandle FindInstanceAmong(const WindowHandles& windows, const std::string& title,
                                 bool visible = true, const Test& qualifies = Any) const;
  /// Mode 6: the topmost window, below always-on-top ones and other than the main window, that can
  /// be worked in and `qualifies`; 0 = none.
  WindowHandle FindTopWindow(const Test& qualifies = Any);

 private:
  struct Pass;

  Pass BeginPass(std::int32_t mode) const;
  void RefuseNested() const;
  void Enumerate(const Visit& visit);
  void Handle(SeenWindow& window, std::int32_t mode, Pass& pass, const Visit& visit);
  bool Minimize(WindowHandle hwnd);
  bool Restore(WindowHandle hwnd);
  bool CanMinimizeOrRestore(SeenWindow& window, bool iconic, const Pass& pass) const;
  bool CanBeTopWindow(SeenWindow& window, const Pass& pass) const;

  WindowQueries* windows_;
  WindowRequests* requests_;
  const WindowFilter* filter_;
  const MainWindow* mainWindow_;
  TagListPasses* tagPasses_;
  bool enumerating_ = false;
};

}  // namespace korvale

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

/// Set before an enumeration, read after it.
struct SearchFields {
  std::string searchTitle;  ///< Mode 4.
  std::string searchClass;
  WindowHandle searchResult = 0;
  std::int16_t topWindowCount = 0;  ///< Mode 6.
  WindowHandle topWindowResult = 0;
  /// A further condition of mode 6; empty = none.
  std::function<bool(WindowHandle)> topWindowQualifies;
  std::string titleSearchText;  ///< Mode 7.
  WindowHandle titleSearchResult = 0;
  std::string instanceClass;  ///< Instance search.
  std::string instanceTitle;
  bool instanceVisible = true;
  /// A further condition of the instance search; empty = none.
  std::function<bool(WindowHandle)> instanceQualifies;
  WindowHandle instanceResult = 0;
};

/// The one enumeration of the top-level windows through which every search over the desktop runs.
class WindowEnumeration {
 public:
  WindowEnumeration(WindowQueries& windows, WindowRequests& requests, const WindowFilter& filter,
                    const MainWindow& mainWindow, TagListPasses& tagPasses);

  SearchFields& Fields() { return fields_; }

  /// Hands every top-level window, topmost first, to EnumWindowsProc. An enumeration inside another
  /// one would spoil its search fields: error 5.
  void EnumWindows(std::int32_t mode);
  /// Hands every top-level window to EnumInstanceProc with mode 4; error 5 inside another
  /// enumeration.
  void EnumInstances();

  /// Always true, so that an enumeration visits all windows. Modes 4 and 7 keep the last match in
  /// Z-order, mode 6 the first.
  bool EnumWindowsProc(WindowHandle hwnd, std::int32_t mode);
  /// Finds another copy of the program by exact class, and title in any case, as folder names are
  /// the same in any; the last match wins.
  bool EnumInstanceProc(WindowHandle hwnd, std::int32_t mode);

  /// Matches every Tag anew against the desktop: all unresolved first, then mode 3.
  void RefreshTags();
  /// Mode 7: the last visible window whose title fits the identification, 0 = none.
  WindowHandle FindByTitle(const std::string& identificationText);
  /// Mode 4: the same with an exact class.
  WindowHandle FindByTitleAndClass(const std::string& title, const std::string& className);
  /// The instance search; 0 = no other copy.
  WindowHandle FindInstance(const std::string& className, const std::string& title);
  /// The same for a copy whose window is not shown yet and that `qualifies`.
  WindowHandle FindHiddenInstance(const std::string& className, const std::string& title,
                                  std::function<bool(WindowHandle)> qualifies = {});
  /// Mode 6: the topmost window below the program's own that `qualifies`, 0 = none.
  WindowHandle FindTopWindow(std::function<bool(WindowHandle)> qualifies = {});

 private:
  WindowHandle SearchInstance(const std::string& className, const std::string& title);
  void Enumerate(const std::function<bool(WindowHandle)>& visit);
  void HandleSelectable(WindowHandle hwnd, std::int32_t mode);
  void Minimize(WindowHandle hwnd);
  void Restore(WindowHandle hwnd);
  bool CanMinimizeOrRestore(WindowHandle hwnd, bool iconic) const;
  bool FitsTitle(WindowHandle hwnd, const std::string& text) const;
  void CountTopWindow(WindowHandle hwnd);

  WindowQueries* windows_;
  WindowRequests* requests_;
  const WindowFilter* filter_;
  const MainWindow* mainWindow_;
  TagListPasses* tagPasses_;
  SearchFields fields_;
  bool enumerating_ = false;
};

}  // namespace korvale

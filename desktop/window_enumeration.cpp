#include "desktop/window_enumeration.h"

#include <utility>

#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

class FlagWhile {
 public:
  explicit FlagWhile(bool& flag) : flag_(&flag) { *flag_ = true; }
  ~FlagWhile() { *flag_ = false; }
  FlagWhile(const FlagWhile&) = delete;
  FlagWhile& operator=(const FlagWhile&) = delete;

 private:
  bool* flag_;
};

}  // namespace

WindowEnumeration::WindowEnumeration(WindowQueries& windows, WindowRequests& requests,
                                     const WindowFilter& filter, const MainWindow& mainWindow,
                                     TagListPasses& tagPasses)
    : windows_(&windows),
      requests_(&requests),
      filter_(&filter),
      mainWindow_(&mainWindow),
      tagPasses_(&tagPasses) {}

void WindowEnumeration::EnumWindows(std::int32_t mode) {
  Enumerate([&](WindowHandle hwnd) { return EnumWindowsProc(hwnd, mode); });
}

void WindowEnumeration::EnumInstances() {
  Enumerate([&](WindowHandle hwnd) { return EnumInstanceProc(hwnd, kSearchTitleAndClass); });
}

void WindowEnumeration::Enumerate(const std::function<bool(WindowHandle)>& visit) {
  if (enumerating_) throw RunTimeError(RunTimeError::kInvalidCall);
  const FlagWhile enumerating(enumerating_);
  windows_->EnumWindows(visit);
}

bool WindowEnumeration::EnumWindowsProc(WindowHandle hwnd, std::int32_t mode) {
  if (filter_->IsSelectableWindow(hwnd, false, false)) HandleSelectable(hwnd, mode);
  return true;
}

void WindowEnumeration::HandleSelectable(WindowHandle hwnd, std::int32_t mode) {
  switch (mode) {
    case kMinimizeAll:
      if (CanMinimizeOrRestore(hwnd, false)) Minimize(hwnd);
      break;
    case kRestoreAll:
      if (CanMinimizeOrRestore(hwnd, true)) Restore(hwnd);
      break;
    case kTagRefresh:
      tagPasses_->TagListPass(TagListMode::kMatch, 0, "", hwnd);
      break;
    case kSearchTitleAndClass:
      if (windows_->IsWindowVisible(hwnd) &&
          GetWindowClass(*windows_, hwnd) == fields_.searchClass &&
          FitsTitle(hwnd, fields_.searchTitle)) {
        fields_.searchResult = hwnd;
      }
      break;
    case kTopWindow:
      CountTopWindow(hwnd);
      break;
    case kSearchTitle:
      if (windows_->IsWindowVisible(hwnd) && FitsTitle(hwnd, fields_.titleSearchText)) {
        fields_.titleSearchResult = hwnd;
      }
      break;
    default:
      break;
  }
}

bool WindowEnumeration::EnumInstanceProc(WindowHandle hwnd, std::int32_t mode) {
  if (mode == kSearchTitleAndClass && windows_->IsWindowVisible(hwnd) == fields_.instanceVisible &&
      GetWindowClass(*windows_, hwnd) == fields_.instanceClass &&
      EqualsIgnoreCase(GetWindowTitle(*windows_, hwnd), fields_.instanceTitle) &&
      hwnd != mainWindow_->MainHandle() &&
      (!fields_.instanceQualifies || fields_.instanceQualifies(hwnd))) {
    fields_.instanceResult = hwnd;
  }
  return true;
}

void WindowEnumeration::RefreshTags() {
  tagPasses_->TagListPass(TagListMode::kUnresolve);
  EnumWindows(kTagRefresh);
}

WindowHandle WindowEnumeration::FindByTitle(const std::string& identificationText) {
  fields_.titleSearchText = identificationText;
  fields_.titleSearchResult = 0;
  EnumWindows(kSearchTitle);
  return fields_.titleSearchResult;
}

WindowHandle WindowEnumeration::FindByTitleAndClass(const std::string& title,
                                                    const std::string& className) {
  fields_.searchTitle = title;
  fields_.searchClass = className;
  fields_.searchResult = 0;
  EnumWindows(kSearchTitleAndClass);
  return fields_.searchResult;
}

WindowHandle WindowEnumeration::FindInstance(const std::string& className,
                                             const std::string& title) {
  fields_.instanceVisible = true;
  fields_.instanceQualifies = {};
  return SearchInstance(className, title);
}

WindowHandle WindowEnumeration::FindHiddenInstance(const std::string& className,
                                                   const std::string& title,
                                                   std::function<bool(WindowHandle)> qualifies) {
  fields_.instanceVisible = false;
  fields_.instanceQualifies = std::move(qualifies);
  return SearchInstance(className, title);
}

WindowHandle WindowEnumeration::SearchInstance(const std::string& className,
                                               const std::string& title) {
  fields_.instanceClass = className;
  fields_.instanceTitle = title;
  fields_.instanceResult = 0;
  EnumInstances();
  return fields_.instanceResult;
}

WindowHandle WindowEnumeration::FindTopWindow(std::function<bool(WindowHandle)> qualifies) {
  fields_.topWindowQualifies = std::move(qualifies);
  fields_.topWindowCount = 0;
  fields_.topWindowResult = 0;
  EnumWindows(kTopWindow);
  return fields_.topWindowResult;
}

void WindowEnumeration::Minimize(WindowHandle hwnd) {
  requests_->Show(hwnd, win32::kSwMinimize);
  requests_->AwaitOneOfMany(hwnd, [&] { return windows_->IsIconic(hwnd); });
}

/// A restored window comes to the front, each above the one before.
void WindowEnumeration::Restore(WindowHandle hwnd) {
  requests_->Show(hwnd, win32::kSwRestore);
  if (requests_->AwaitOneOfMany(hwnd, [&] { return !windows_->IsIconic(hwnd); })) {
    requests_->AwaitAnswer(hwnd);
  }
}

bool WindowEnumeration::CanMinimizeOrRestore(WindowHandle hwnd, bool iconic) const {
  return windows_->GetParent(hwnd) == 0 && windows_->IsWindowVisible(hwnd) &&
         windows_->IsWindowEnabled(hwnd) && windows_->IsIconic(hwnd) == iconic &&
         (windows_->GetWindowLongA(hwnd, win32::kGwlStyle) & win32::kWsMinimizeBox) != 0 &&
         GetRelatedWindow(*windows_, hwnd, 2) == 0;
}

bool WindowEnumeration::FitsTitle(WindowHandle hwnd, const std::string& text) const {
  return TitleMatches(text, GetWindowTitle(*windows_, hwnd), false);
}

void WindowEnumeration::CountTopWindow(WindowHandle hwnd) {
  if (!windows_->IsWindowVisible(hwnd) || !windows_->IsWindowEnabled(hwnd) ||
      windows_->IsIconic(hwnd) || hwnd == mainWindow_->MainHandle() ||
      GetWindowClass(*windows_, hwnd) == "Shell_TrayWnd") {
    return;
  }
  const std::int32_t exStyle = windows_->GetWindowLongA(hwnd, win32::kGwlExStyle);
  if ((exStyle & win32::kWsExTopmost) != 0) return;
  if (fields_.topWindowQualifies && !fields_.topWindowQualifies(hwnd)) return;
  fields_.topWindowCount = AddInt16(fields_.topWindowCount, 1);
  if (fields_.topWindowCount == 1) fields_.topWindowResult = hwnd;
}

}  // namespace korvale

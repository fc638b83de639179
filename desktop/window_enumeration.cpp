#include "desktop/window_enumeration.h"

#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/raised_flag.h"
#include "util/text.h"

namespace korvale {

WindowEnumeration::WindowEnumeration(WindowQueries& windows, WindowRequests& requests,
                                     const WindowFilter& filter, const MainWindow& mainWindow,
                                     TagListPasses& tagPasses)
    : windows_(&windows),
      requests_(&requests),
      filter_(&filter),
      mainWindow_(&mainWindow),
      tagPasses_(&tagPasses) {}

void WindowEnumeration::EnumWindows(std::int32_t mode, const Visit& visit) {
  Enumerate([&](WindowHandle hwnd) { return EnumWindowsProc(hwnd, mode, visit); });
}

void WindowEnumeration::Enumerate(const Test& visit) {
  if (enumerating_) throw RunTimeError(RunTimeError::kInvalidCall);
  const RaisedFlag enumerating(enumerating_);
  windows_->EnumWindows(visit);
}

bool WindowEnumeration::EnumWindowsProc(WindowHandle hwnd, std::int32_t mode, const Visit& visit) {
  if (filter_->IsSelectableWindow(hwnd, false, false)) HandleSelectable(hwnd, mode, visit);
  return true;
}

void WindowEnumeration::HandleSelectable(WindowHandle hwnd, std::int32_t mode, const Visit& visit) {
  switch (mode) {
    case kMinimizeAll:
      if (CanMinimizeOrRestore(hwnd, false) && !Minimize(hwnd)) visit(hwnd);
      break;
    case kRestoreAll:
      if (CanMinimizeOrRestore(hwnd, true) && !Restore(hwnd)) visit(hwnd);
      break;
    case kTagRefresh:
      tagPasses_->TagListPass(TagListMode::kMatch, 0, hwnd);
      break;
    case kTopWindow:
      if (CanBeTopWindow(hwnd)) visit(hwnd);
      break;
    case kSearchTitleAndClass:
    case kSearchTitle:
      if (windows_->IsWindowVisible(hwnd)) visit(hwnd);
      break;
    default:
      break;
  }
}

bool WindowEnumeration::EnumInstanceProc(WindowHandle hwnd, std::int32_t mode, const Visit& visit) {
  if (mode == kSearchTitleAndClass) visit(hwnd);
  return true;
}

void WindowEnumeration::RefreshTags() {
  tagPasses_->TagListPass(TagListMode::kUnresolve);
  EnumWindows(kTagRefresh);
}

WindowHandle WindowEnumeration::FindByTitle(const std::string& identificationText) {
  WindowHandle last = 0;
  EnumWindows(kSearchTitle, [&](WindowHandle hwnd) {
    if (FitsTitle(hwnd, identificationText) && !filter_->IsPutAway(hwnd)) last = hwnd;
  });
  return last;
}

WindowHandle WindowEnumeration::FindByTitleAndClass(const std::string& title,
                                                    const std::string& className) {
  WindowHandle last = 0;
  EnumWindows(kSearchTitleAndClass, [&](WindowHandle hwnd) {
    const bool fits = GetWindowClass(*windows_, hwnd) == className && FitsTitle(hwnd, title);
    if (fits && !filter_->IsPutAway(hwnd)) last = hwnd;
  });
  return last;
}

WindowHandle WindowEnumeration::FindInstance(const std::string& className, const std::string& title,
                                             bool visible, const Test& qualifies) {
  WindowHandle last = 0;
  const Visit keepMatch = [&](WindowHandle hwnd) {
    if (windows_->IsWindowVisible(hwnd) == visible &&
        GetWindowClass(*windows_, hwnd) == className &&
        EqualsIgnoreCase(GetWindowTitle(*windows_, hwnd), title) &&
        hwnd != mainWindow_->MainHandle() && qualifies(hwnd)) {
      last = hwnd;
    }
  };
  Enumerate(
      [&](WindowHandle hwnd) { return EnumInstanceProc(hwnd, kSearchTitleAndClass, keepMatch); });
  return last;
}

WindowHandle WindowEnumeration::FindTopWindow(const Test& qualifies) {
  WindowHandle top = 0;
  std::int16_t count = 0;
  EnumWindows(kTopWindow, [&](WindowHandle hwnd) {
    if (!qualifies(hwnd)) return;
    count = AddInt16(count, 1);
    if (count == 1) top = hwnd;
  });
  return top;
}

/// False when Windows denies it.
bool WindowEnumeration::Minimize(WindowHandle hwnd) {
  if (requests_->Show(hwnd, win32::kSwMinimize) == RequestResult::kDenied) return false;
  requests_->AwaitOneOfMany(hwnd, [&] { return windows_->IsIconic(hwnd); });
  return true;
}

/// A restored window comes to the front, each above the one before. False when Windows denies it.
bool WindowEnumeration::Restore(WindowHandle hwnd) {
  if (requests_->Show(hwnd, win32::kSwRestore) == RequestResult::kDenied) return false;
  if (requests_->AwaitOneOfMany(hwnd, [&] { return !windows_->IsIconic(hwnd); })) {
    requests_->AwaitAnswer(hwnd);
  }
  return true;
}

bool WindowEnumeration::CanMinimizeOrRestore(WindowHandle hwnd, bool iconic) const {
  return windows_->GetParent(hwnd) == 0 && IsShownHere(*windows_, hwnd) &&
         windows_->IsWindowEnabled(hwnd) && windows_->IsIconic(hwnd) == iconic &&
         (windows_->GetWindowLongA(hwnd, win32::kGwlStyle) & win32::kWsMinimizeBox) != 0 &&
         GetRelatedWindow(*windows_, hwnd, 2) == 0;
}

bool WindowEnumeration::FitsTitle(WindowHandle hwnd, const std::string& text) const {
  return TitleMatches(text, GetWindowTitle(*windows_, hwnd), false);
}

bool WindowEnumeration::CanBeTopWindow(WindowHandle hwnd) const {
  if (!IsShownHere(*windows_, hwnd) || !windows_->IsWindowEnabled(hwnd) ||
      windows_->IsIconic(hwnd) || hwnd == mainWindow_->MainHandle()) {
    return false;
  }
  return (windows_->GetWindowLongA(hwnd, win32::kGwlExStyle) & win32::kWsExTopmost) == 0;
}

}  // namespace korvale

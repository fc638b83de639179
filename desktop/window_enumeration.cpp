#include "desktop/window_enumeration.h"

#include <algorithm>

#include "desktop/tag_matching.h"
#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/raised_flag.h"
#include "util/text.h"

namespace korvale {

/// What all visits of one enumeration share.
struct WindowEnumeration::Pass {
  OwnWindows own;
  /// Only in a refresh.
  std::optional<TagMatching> tags;
};

WindowEnumeration::WindowEnumeration(WindowQueries& windows, WindowRequests& requests,
                                     const WindowFilter& filter, const MainWindow& mainWindow,
                                     TagListPasses& tagPasses)
    : windows_(&windows),
      requests_(&requests),
      filter_(&filter),
      mainWindow_(&mainWindow),
      tagPasses_(&tagPasses) {}

WindowEnumeration::Pass WindowEnumeration::BeginPass(std::int32_t mode) const {
  Pass pass{filter_->FindOwnWindows(), std::nullopt};
  if (mode == kTagRefresh) pass.tags.emplace(tagPasses_->BeginMatching());
  return pass;
}

void WindowEnumeration::EnumWindows(std::int32_t mode, const Visit& visit) {
  Pass pass = BeginPass(mode);
  Enumerate([&](SeenWindow& window) { Handle(window, mode, pass, visit); });
}

void WindowEnumeration::RefuseNested() const {
  if (enumerating_) throw RunTimeError(RunTimeError::kInvalidCall);
}

void WindowEnumeration::Enumerate(const Visit& visit) {
  RefuseNested();
  const RaisedFlag enumerating(enumerating_);
  windows_->EnumWindows([&](WindowHandle hwnd) {
    SeenWindow window(*windows_, hwnd);
    visit(window);
    return true;
  });
}

bool WindowEnumeration::EnumWindowsProc(WindowHandle hwnd, std::int32_t mode, const Visit& visit) {
  Pass pass = BeginPass(mode);
  SeenWindow window(*windows_, hwnd);
  Handle(window, mode, pass, visit);
  return true;
}

void WindowEnumeration::Handle(SeenWindow& window, std::int32_t mode, Pass& pass,
                               const Visit& visit) {
  const auto selectable = [&] { return filter_->PassesBasicChecks(window, pass.own); };
  switch (mode) {
    case kMinimizeAll:
      if (CanMinimizeOrRestore(window, false, pass) && !Minimize(window.Handle())) visit(window);
      break;
    case kRestoreAll:
      if (CanMinimizeOrRestore(window, true, pass) && !Restore(window.Handle())) visit(window);
      break;
    case kTagRefresh:
      if (!pass.tags->IsDone() && selectable() && pass.tags->Match(window)) visit(window);
      break;
    case kTopWindow:
      if (CanBeTopWindow(window, pass)) visit(window);
      break;
    case kSearchTitleAndClass:
    case kSearchTitle:
      if (window.IsVisible() && selectable()) visit(window);
      break;
    default:
      break;
  }
}

bool WindowEnumeration::EnumInstanceProc(SeenWindow& window, std::int32_t mode,
                                         const Visit& visit) {
  if (mode == kSearchTitleAndClass) visit(window);
  return true;
}

std::optional<WindowHandles> WindowEnumeration::RefreshTags(int sought) {
  RefuseNested();
  tagPasses_->TagListPass(TagListMode::kUnresolve);
  Pass pass = BeginPass(kTagRefresh);
  WindowHandles found;
  const Visit collect = [&](SeenWindow& window) {
    if (pass.tags->FitsByTitle(sought, window)) found.push_back(window.Handle());
  };
  Enumerate([&](SeenWindow& window) { Handle(window, kTagRefresh, pass, collect); });
  if (!pass.tags->HasLookedFor(sought)) return std::nullopt;
  return found;
}

WindowHandle WindowEnumeration::FindByTitle(const std::string& identificationText) {
  WindowHandles found;
  EnumWindows(kSearchTitle, [&](SeenWindow& window) {
    if (TitleMatches(identificationText, window.Title(), false)) found.push_back(window.Handle());
  });
  return LastOnScreen(found);
}

WindowHandle WindowEnumeration::LastOnScreen(const WindowHandles& windows) const {
  const auto last = std::find_if(windows.rbegin(), windows.rend(),
                                 [&](WindowHandle hwnd) { return !filter_->IsPutAway(hwnd); });
  return last == windows.rend() ? 0 : *last;
}

WindowHandles WindowEnumeration::FindByClass(const std::string& className) {
  WindowHandles found;
  const Visit keepMatch = [&](SeenWindow& window) {
    if (window.ClassName() == className) found.push_back(window.Handle());
  };
  Enumerate([&](SeenWindow& window) { EnumInstanceProc(window, kSearchTitleAndClass, keepMatch); });
  return found;
}

WindowHandle WindowEnumeration::FindByTitleAmong(const WindowHandles& windows,
                                                 const std::string& title) const {
  WindowHandles found;
  std::optional<OwnWindows> own;
  for (const WindowHandle hwnd : windows) {
    SeenWindow window(*windows_, hwnd);
    if (!window.IsVisible() || !TitleMatches(title, window.Title(), false)) continue;
    if (!own) own = filter_->FindOwnWindows();
    if (filter_->PassesBasicChecks(window, *own)) found.push_back(hwnd);
  }
  return LastOnScreen(found);
}

WindowHandle WindowEnumeration::FindInstanceAmong(const WindowHandles& windows,
                                                  const std::string& title, bool visible,
                                                  const Test& qualifies) const {
  WindowHandle last = 0;
  for (const WindowHandle hwnd : windows) {
    SeenWindow window(*windows_, hwnd);
    if (hwnd != mainWindow_->MainHandle() && window.IsVisible() == visible &&
        EqualsIgnoreCase(window.Title(), title) && qualifies(window)) {
      last = hwnd;
    }
  }
  return last;
}

WindowHandle WindowEnumeration::FindTopWindow(const Test& qualifies) {
  WindowHandle top = 0;
  std::int16_t count = 0;
  EnumWindows(kTopWindow, [&](SeenWindow& window) {
    if (!qualifies(window)) return;
    count = AddInt16(count, 1);
    if (count == 1) top = window.Handle();
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

bool WindowEnumeration::CanMinimizeOrRestore(SeenWindow& window, bool iconic,
                                             const Pass& pass) const {
  return window.TakesInput() && window.IsIconic() == iconic &&
         window.HasStyle(win32::kWsMinimizeBox) && filter_->PassesBasicChecks(window, pass.own) &&
         windows_->GetParent(window.Handle()) == 0 && window.Cloak() == 0 &&
         GetRelatedWindow(*windows_, window.Handle(), 2) == 0;
}

bool WindowEnumeration::CanBeTopWindow(SeenWindow& window, const Pass& pass) const {
  return window.TakesInput() && !window.IsIconic() &&
         window.Handle() != mainWindow_->MainHandle() &&
         (window.ExStyle() & win32::kWsExTopmost) == 0 &&
         filter_->PassesBasicChecks(window, pass.own) && window.Cloak() == 0;
}

}  // namespace korvale

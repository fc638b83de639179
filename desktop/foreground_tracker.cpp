#include "desktop/foreground_tracker.h"

#include <utility>

#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr std::uint32_t kTickMilliseconds = 100;

constexpr const char* kTaskbarClass = "Shell_TrayWnd";

}  // namespace

ForegroundTracker::ForegroundTracker(WindowQueries& windows, const WindowFilter& filter,
                                     WindowActions& actions, MainWindow& mainWindow,
                                     PreviousWindow& previous, TagList& tags)
    : windows_(&windows),
      filter_(&filter),
      actions_(&actions),
      mainWindow_(&mainWindow),
      previous_(&previous),
      tags_(&tags) {}

void ForegroundTracker::tmrWindow_Timer() {
  LookAtForeground();
  previous_->menuSelection = false;
}

void ForegroundTracker::LookAtForeground() {
  const WindowHandle foreground = WindowInFront();
  const std::string title = GetWindowTitle(*windows_, foreground);
  const bool isMain = foreground == mainWindow_->MainHandle();
  if (!isMain) previous_->lastOtherForeground = foreground;
  NoteInFront(foreground);
  if (std::exchange(firstTick_, false) && isMain) lastSeen_ = foreground;
  if (IsGone(previous_->current) || IsGone(previous_->alternate)) ValidatePreviousWindow();
  if (!filter_->IsSelectableWindow(foreground, false, false) ||
      !windows_->IsWindowVisible(foreground)) {
    return;
  }
  if (foreground == lastSeen_) {
    // It was passed over while it was disabled or hidden.
    if (!isMain && foreground != previous_->current.handle) ValidatePreviousWindow();
    return;
  }
  mainWindow_->tmrWindow().SetInterval(kTickMilliseconds);
  if (!AcceptForeground(foreground, title)) return;
  MoveRecordTo({foreground, title, GetWindowClass(*windows_, foreground)});
  ValidatePreviousWindow();
}

void ForegroundTracker::LookAnew() {
  firstTick_ = false;
  lastSeen_ = 0;
}

WindowHandle ForegroundTracker::WindowInFront() {
  const WindowHandle foreground = windows_->GetForegroundWindow();
  const bool forItsMenu =
      foreground == mainWindow_->MainHandle() && mainWindow_->WindowMenuPoppedUp();
  const bool onItsWayBack = previous_->menuSelection && foreground == leftBySelection_;
  return forItsMenu || onItsWayBack ? 0 : foreground;
}

void ForegroundTracker::NoteInFront(WindowHandle foreground) {
  if (foreground == 0 || foreground == inFront_) return;
  inFrontBefore_ = std::exchange(inFront_, foreground);
}

WindowHandle ForegroundTracker::WindowBehind(WindowHandle closing) {
  if (windows_->GetForegroundWindow() != closing) return 0;
  const WindowHandle before = inFront_ == closing ? inFrontBefore_ : inFront_;
  if (before != closing && CanComeBack(before)) return before;
  const WindowTriple* const worked = worked_.First([&](const WindowTriple& window) {
    return window.handle != closing && !IsGone(window) && CanComeBack(window.handle);
  });
  return worked == nullptr ? 0 : worked->handle;
}

bool ForegroundTracker::CanComeBack(WindowHandle hwnd) {
  return filter_->IsSelectableWindow(hwnd, false, false) && windows_->IsWindowVisible(hwnd) &&
         windows_->IsWindowEnabled(hwnd) && !windows_->IsIconic(hwnd) &&
         GetWindowClass(*windows_, hwnd) != kTaskbarClass;
}

/// A window that the options exclude is accepted all the same when the user has tagged it.
bool ForegroundTracker::AcceptForeground(WindowHandle hwnd, const std::string& title) {
  if (filter_->IsSelectableWindow(hwnd, true, true)) return true;
  for (int tag = 1; tag <= kTagCount; ++tag) {
    MenuItem* const entry = tags_->mnuWindowParentList.Find(tag);
    if (entry == nullptr || TagClass(*tags_, *entry) != GetWindowClass(*windows_, hwnd) ||
        !TitleMatches(entry->caption, title, true)) {
      continue;
    }
    entry->tag = DecimalText(hwnd);
    return true;
  }
  return false;
}

void ForegroundTracker::MoveRecordTo(const WindowTriple& window) {
  const WindowHandle main = mainWindow_->MainHandle();
  if (window.handle == main) {
    mainWindow_->SetFocusTag(kGotFocus);
    // It is where the user is; they have worked in it only once they leave it.
    worked_.Remove(main);
  } else {
    if (mainWindow_->FocusTag() == kGotFocus) {
      mainWindow_->SetFocusTag("");
      worked_.PutFirst({main, mainWindow_->MainCaption(), GetWindowClass(*windows_, main)});
    }
    worked_.PutFirst(window);
  }
  lastSeen_ = window.handle;
  UpdateRecord();
  if (window.handle != main) udmRefreshAlwaysOnTopMenuChecked();
}

void ForegroundTracker::RecordSelection(const WindowTriple& window) {
  leftBySelection_ = windows_->GetForegroundWindow();
  previous_->menuSelection = leftBySelection_ != window.handle;
  MoveRecordTo(window);
}

void ForegroundTracker::PopUpClosed() {
  const WindowHandle main = mainWindow_->MainHandle();
  if (mainWindow_->FocusTag() == kGotFocus || windows_->GetForegroundWindow() != main) return;
  leftBySelection_ = main;
  previous_->menuSelection = true;
}

/// True also when another window has got the handle.
bool ForegroundTracker::IsGone(const WindowTriple& window) {
  return window.handle != 0 && (!windows_->IsWindow(window.handle) ||
                                GetWindowClass(*windows_, window.handle) != window.className);
}

bool ForegroundTracker::CanBeActivated(const WindowTriple& window) {
  WindowTriple live = Recorded(&window);
  return actions_->ActivateWindow(live, false, false) == kActivationDone;
}

/// The window under its title of now.
WindowTriple ForegroundTracker::Recorded(const WindowTriple* window) {
  if (window == nullptr) return {};
  return {window->handle, GetWindowTitle(*windows_, window->handle), window->className};
}

void ForegroundTracker::UpdateRecord() {
  worked_.RemoveIf([this](const WindowTriple& window) {
    const bool gone = IsGone(window);
    if (gone && window.handle == lastSeen_) lastSeen_ = 0;
    return gone;
  });
  const WindowHandle main = mainWindow_->MainHandle();
  previous_->current = Recorded(worked_.First(
      [&](const WindowTriple& window) { return window.handle != main && CanBeActivated(window); }));
  const WindowHandle current = previous_->current.handle;
  previous_->alternate = Recorded(worked_.First([&](const WindowTriple& window) {
    return window.handle != current && CanBeActivated(window);
  }));
  const WindowTriple* const next = worked_.First([&](const WindowTriple& window) {
    return window.handle != lastSeen_ && CanBeActivated(window);
  });
  previous_->tagZeroIsAlternate = next == nullptr || next->handle != current;
  if (previous_->alternate.handle == main) previous_->alternate.text = mainWindow_->MainCaption();
}

void ForegroundTracker::ValidatePreviousWindow() {
  UpdateRecord();
  ShowRecord();
}

void ForegroundTracker::ShowRecord() {
  const WindowTriple& current = previous_->current;
  const bool valid = current.handle != 0;
  mainWindow_->EnablePreviousWindowItems(valid);
  const bool untitled = valid && current.text.empty();
  mainWindow_->ShowTargetWindow(untitled ? "(window without a title)" : current.text,
                                current.className);
}

void ForegroundTracker::udmRefreshAlwaysOnTopMenuChecked() {
  const std::int32_t main = windows_->GetWindowLongA(mainWindow_->MainHandle(), win32::kGwlExStyle);
  // Without any extended style the mark of the main window stays as it is.
  if (main != 0) mainWindow_->CheckAlwaysOnTop((main & win32::kWsExTopmost) != 0);
  const std::int32_t previous =
      windows_->GetWindowLongA(previous_->current.handle, win32::kGwlExStyle);
  mainWindow_->CheckPreviousWindowAlwaysOnTop((previous & win32::kWsExTopmost) != 0);
}

}  // namespace korvale

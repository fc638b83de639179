#include "desktop/foreground_tracker.h"

#include <utility>

#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

constexpr std::uint32_t kTickMilliseconds = 100;

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
  const WindowHandle foreground = windows_->GetForegroundWindow();
  const std::string title = GetWindowTitle(*windows_, foreground);
  const bool isMain = foreground == mainWindow_->MainHandle();
  if (!isMain) previous_->lastOtherForeground = foreground;
  if (firstTick_) {
    lastSeen_ = foreground;
    firstTick_ = false;
  }
  if (HasLeftSelectionUnseen(foreground)) lastSeen_ = 0;
  if (!filter_->IsSelectableWindow(foreground, false, false) ||
      !windows_->IsWindowVisible(foreground) || foreground == lastSeen_) {
    return;
  }
  mainWindow_->tmrWindow().SetInterval(kTickMilliseconds);
  if (!AcceptForeground(foreground, title)) return;
  lastSeen_ = foreground;
  const bool moved =
      std::exchange(previous_->menuSelection, false) && foreground == previous_->current.handle;
  if (isMain) {
    mainWindow_->SetFocusTag(kGotFocus);
  } else {
    if (!moved) MoveRecordTo({foreground, title, GetWindowClass(*windows_, foreground)});
    udmRefreshAlwaysOnTopMenuChecked();
  }
  ValidatePreviousWindow();
}

/// True when a selection moved the record but the window last seen is in front again, by two quick
/// hot keys say. One tick is passed over, since Windows may bring the selected window late.
bool ForegroundTracker::HasLeftSelectionUnseen(WindowHandle foreground) {
  const bool unseen = previous_->menuSelection && foreground == lastSeen_ &&
                      foreground != previous_->current.handle;
  return std::exchange(selectionUnseen_, unseen) && unseen;
}

void ForegroundTracker::LookAnew() {
  firstTick_ = false;
  lastSeen_ = 0;
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
  WindowTriple left = previous_->current;
  if (mainWindow_->FocusTag() == kGotFocus) {
    mainWindow_->SetFocusTag("");
    left.handle = mainWindow_->MainHandle();
    left.text = mainWindow_->MainCaption();
  }
  left.className = GetWindowClass(*windows_, left.handle);
  previous_->current = window;
  previous_->alternate = std::move(left);
}

void ForegroundTracker::ValidatePreviousWindow() {
  WindowTriple& current = previous_->current;
  bool valid = actions_->ActivateWindow(current, false, false) == kActivationDone;
  if (!valid) {
    current = std::exchange(previous_->alternate, {});
    valid = current.handle != mainWindow_->MainHandle() &&
            actions_->ActivateWindow(current, false, false) == kActivationDone;
  }
  ShowRecord(valid);
}

void ForegroundTracker::ShowRecord(bool valid) {
  WindowTriple& current = previous_->current;
  if (!valid) current = {};
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

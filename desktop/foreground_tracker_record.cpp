#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>

#include "desktop/foreground_tracker.h"
#include "desktop/waiting_window.h"
#include "desktop/window_readers.h"
#include "platform/win32_constants.h"

namespace korvale {

bool ForegroundTracker::IsGone(const WindowTriple& window) {
  SeenWindow seen(*windows_, window.handle);
  return window.handle != 0 && !seen.IsStill(window.className);
}

/// A window of it has gone, or Windows has taken it off the screen or put it there: the user closed
/// a Store program, which leaves its window behind, or changed virtual desktops.
bool ForegroundTracker::RecordIsOutdated() {
  return IsGone(previous_->current) || IsGone(previous_->alternate) ||
         CloakOf(previous_->current.handle) != cloaks_.front() ||
         CloakOf(previous_->alternate.handle) != cloaks_.back();
}

/// The same in the tick after one that found this window in front, too. A window in front is there,
/// and Windows gives no handle anew from one tick to the next; whether the alternate is on the
/// screen, which the user does not see, matters only when it is used.
bool ForegroundTracker::RecordIsOutdatedSinceTick(WindowHandle front) {
  const WindowHandle current = previous_->current.handle;
  const WindowHandle alternate = previous_->alternate.handle;
  return (current != front && IsGone(previous_->current)) ||
         (alternate != 0 && !windows_->IsWindow(alternate)) || CloakOf(current) != cloaks_.front();
}

std::uint32_t ForegroundTracker::CloakOf(WindowHandle hwnd) {
  return hwnd == 0 ? 0 : windows_->DwmGetWindowAttribute(hwnd);
}

/// A dialog that the user was followed into counts as itself.
bool ForegroundTracker::IsBehindDialog(WindowHandle hwnd) {
  const WindowHandle dialog = FindInputWindow(*windows_, hwnd);
  const bool restores = windows_->IsWindowVisible(dialog) || !windows_->IsHungAppWindow(hwnd);
  return restores && filter_->IsSelectableWindow(dialog, false, false) && !worked_.Holds(dialog);
}

/// Also true for a window behind its own dialog, and for one that is out of sight because its owner
/// is minimized: Tag 0 brings the dialog forward and restores the owner.
bool ForegroundTracker::CanBeReached(SeenWindow& window) {
  switch (actions_->Examine(window)) {
    case kActivationDone:
      return true;
    case kWindowNotEnabled:
      return IsBehindDialog(window.Handle());
    case kWindowNotOpen: {
      const WindowHandle owner = GetRelatedWindow(*windows_, window.Handle(), 2);
      return windows_->IsIconic(owner) && windows_->IsWindowVisible(owner) &&
             !windows_->IsHungAppWindow(owner);
    }
    default:
      return false;
  }
}

/// The latest two that can be reached, with their present titles. All that have gone are forgotten,
/// before another window gets the handle of one and is taken for it.
std::array<WindowTriple, 2> ForegroundTracker::FindReachable() {
  std::array<WindowTriple, 2> reachable;
  std::size_t found = 0;
  worked_.ForEach([&](const KnownWindow& window) {
    const bool enough = found == reachable.size();
    SeenWindow seen(*windows_, window.handle);
    const bool gone = enough ? !windows_->IsWindow(window.handle) : !seen.IsStill(window.className);
    if (gone) {
      worked_.Remove(window.handle);
      if (window.handle == lastSeen_) lastSeen_ = 0;
    } else if (!enough && CanBeReached(seen)) {
      cloaks_.at(found) = seen.Cloak();
      reachable.at(found++) = {window.handle, std::string(seen.Title()), window.className};
    }
    return true;
  });
  std::fill(cloaks_.begin() + static_cast<std::ptrdiff_t>(found), cloaks_.end(), 0);
  return reachable;
}

void ForegroundTracker::UpdateRecord() {
  auto [latest, before] = FindReachable();
  const WindowHandle main = mainWindow_->MainHandle();
  const WindowHandle next = latest.handle != lastSeen_ ? latest.handle : before.handle;
  if (latest.handle != 0 && latest.handle == main) {
    std::swap(latest, before);
    std::swap(cloaks_.front(), cloaks_.back());
  }
  previous_->current = std::move(latest);
  previous_->alternate = std::move(before);
  if (previous_->alternate.handle == main) previous_->alternate.text = mainWindow_->MainCaption();
  const WindowHandle current = previous_->current.handle;
  // The only window worked in is the present one only while it is in front.
  previous_->tagZeroIsAlternate =
      next == 0 ? previous_->InFront(*windows_) == current : next != current;
}

void ForegroundTracker::PrepareWindowMenu() {
  FollowForeground();
  previous_->menuSelection = false;
  ValidatePreviousWindow();
  udmRefreshAlwaysOnTopMenuChecked();
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
  mainWindow_->ShowTargetWindow(untitled ? kUntitled : current.text, current.className);
}

void ForegroundTracker::udmRefreshAlwaysOnTopMenuChecked() {
  const std::int32_t main = windows_->GetWindowLongA(mainWindow_->MainHandle(), win32::kGwlExStyle);
  // A main window without any extended style keeps its check mark.
  if (main != 0) mainWindow_->CheckAlwaysOnTop((main & win32::kWsExTopmost) != 0);
  const std::int32_t previous =
      windows_->GetWindowLongA(previous_->current.handle, win32::kGwlExStyle);
  mainWindow_->CheckPreviousWindowAlwaysOnTop((previous & win32::kWsExTopmost) != 0);
}

}  // namespace korvale

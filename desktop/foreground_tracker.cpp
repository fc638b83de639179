#include "desktop/foreground_tracker.h"

#include <utility>

#include "desktop/shell_surfaces.h"
#include "desktop/title_match.h"
#include "desktop/waiting_window.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

/// The entry of the first Tag that has this class stored and fits this title; null when none does.
MenuItem* IdentifyingEntry(TagList& tags, std::string_view title, std::string_view className) {
  for (int tag = 1; tag <= kTagCount; ++tag) {
    MenuItem* const entry = tags.mnuWindowParentList.Find(tag);
    if (entry != nullptr && TagClass(tags, *entry) == className &&
        TitleMatches(entry->caption, title, true)) {
      return entry;
    }
  }
  return nullptr;
}

}  // namespace

ForegroundTracker::ForegroundTracker(const DesktopParts& parts, const WindowFilter& filter,
                                     WindowActions& actions, TagList& tags)
    : windows_(&parts.windows),
      filter_(&filter),
      actions_(&actions),
      mainWindow_(&parts.mainWindow),
      previous_(&parts.previous),
      tags_(&tags) {}

void ForegroundTracker::tmrWindow_Timer() {
  SeenWindow front(*windows_, WindowInFront());
  NoteForeground(front);
  const bool same = std::exchange(tickedOver_, front.Handle()) == front.Handle();
  const bool outdated = same ? RecordIsOutdatedSinceTick(front.Handle()) : RecordIsOutdated();
  if (outdated) ValidatePreviousWindow();
  FollowForeground(front);
  previous_->menuSelection = false;
}

void ForegroundTracker::LookAtForeground() {
  tickedOver_.reset();
  SeenWindow front(*windows_, WindowInFront());
  NoteForeground(front);
  if (RecordIsOutdated()) ValidatePreviousWindow();
  FollowForeground(front);
}

WindowHandle ForegroundTracker::FollowForeground() {
  tickedOver_.reset();
  SeenWindow front(*windows_, WindowInFront());
  NoteForeground(front);
  FollowForeground(front);
  return front.Handle();
}

void ForegroundTracker::NoteForeground(SeenWindow& front) {
  const WindowHandle foreground = front.Handle();
  const bool isMain = foreground == mainWindow_->MainHandle();
  if (!isMain) previous_->lastOtherForeground = foreground;
  if (foreground != 0 && foreground != inFront_.handle) {
    KnownWindow known{foreground, std::string(front.ClassName())};
    inFrontBefore_ = std::exchange(inFront_, std::move(known));
  }
  if (std::exchange(firstTick_, false) && isMain) lastSeen_ = foreground;
}

void ForegroundTracker::FollowForeground(SeenWindow& front) {
  const WindowHandle foreground = front.Handle();
  if (foreground == 0) return;
  const bool known = foreground == lastSeen_;
  // Otherwise it was passed over while it was disabled or hidden.
  const bool recorded =
      foreground == mainWindow_->MainHandle() || foreground == previous_->current.handle;
  if (known && recorded) return;
  if (!filter_->IsSelectableWindow(front, false, false) || !front.IsVisible()) return;
  if (known) {
    if (CanBeReached(front)) ValidatePreviousWindow();
    return;
  }
  // A window may be in front before Windows shows it to the user.
  if (front.Cloak() != 0) return;
  mainWindow_->tmrWindow().SetInterval(kTrackingInterval);
  if (!FollowIfAccepted(front)) LookBehindDialog(foreground);
}

/// To the user, a dialog that is not followed itself and disables its owner is that owner.
void ForegroundTracker::LookBehindDialog(WindowHandle dialog) {
  WindowHandle behind = windows_->GetWindow(dialog, win32::kGwOwner);
  for (int i = 0; i < kMostOwners && behind != 0 && !windows_->IsWindowEnabled(behind); ++i) {
    SeenWindow window(*windows_, behind);
    const bool followed = behind != mainWindow_->MainHandle() && filter_->IsShown(window) &&
                          filter_->IsSelectableWindow(window, false, false) && IsAccepted(window);
    if (followed) return MoveRecordBehindDialog(window);
    behind = windows_->GetWindow(behind, win32::kGwOwner);
  }
}

void ForegroundTracker::MoveRecordBehindDialog(SeenWindow& window) {
  if (window.Handle() != lastSeen_) {
    FollowIfAccepted(window);
  } else if (window.Handle() != previous_->current.handle) {
    ValidatePreviousWindow();
  }
}

void ForegroundTracker::LookAnew() {
  firstTick_ = false;
  lastSeen_ = 0;
}

WindowHandle ForegroundTracker::WindowInFront() {
  const WindowHandle foreground = windows_->GetForegroundWindow();
  const bool forItsMenu =
      foreground == mainWindow_->MainHandle() && mainWindow_->WindowMenuPoppedUp();
  const bool onItsWayBack = foreground == previous_->leaving && previous_->IsPending(*windows_);
  return forItsMenu || onItsWayBack ? 0 : foreground;
}

KnownWindow ForegroundTracker::WindowBehind(WindowHandle closing) {
  if (windows_->GetForegroundWindow() != closing) return {};
  const KnownWindow& last = inFront_.handle == closing ? inFrontBefore_ : inFront_;
  // The bare desktop cannot be selected, yet the user may have been there.
  if (IsBareDesktop(GetWindowClass(*windows_, last.handle))) return last;
  const WindowHandle before = FindInputWindow(*windows_, last.handle);
  if (last.handle != closing && StillExists(*windows_, last) && CanComeBack(before)) {
    return before == last.handle ? last : Know(*windows_, before);
  }
  return LastWorkedIn(closing);
}

KnownWindow ForegroundTracker::LastWorkedIn(WindowHandle except) {
  KnownWindow last;
  worked_.ForEach([&](const KnownWindow& window) {
    if (window.handle == except || !StillExists(*windows_, window)) return true;
    const WindowHandle input = FindInputWindow(*windows_, window.handle);
    if (!CanComeBack(input)) return true;
    last = input == window.handle ? window : Know(*windows_, input);
    return false;
  });
  return last;
}

void ForegroundTracker::ForgetVisit(WindowHandle closing) {
  worked_.Remove(closing);
  if (lastSeen_ != closing) return;
  const WindowHandle before = worked_.Latest();
  lastSeen_ = before == mainWindow_->MainHandle() ? 0 : before;
}

bool ForegroundTracker::CanComeBack(WindowHandle hwnd) {
  return filter_->IsSelectableWindow(hwnd, false, false) && IsShownHere(*windows_, hwnd) &&
         windows_->IsWindowEnabled(hwnd) && !windows_->IsIconic(hwnd);
}

ForegroundTracker::Acceptance ForegroundTracker::Accept(SeenWindow& window) const {
  if (filter_->IsSelectableWindow(window, true, true)) return {true, nullptr};
  MenuItem* const entry = IdentifyingEntry(*tags_, window.Title(), window.ClassName());
  return {entry != nullptr, entry};
}

bool ForegroundTracker::IsAccepted(SeenWindow& window) const { return Accept(window).accepted; }

bool ForegroundTracker::FollowIfAccepted(SeenWindow& window) {
  const auto [accepted, identifiedBy] = Accept(window);
  if (!accepted) return false;
  if (identifiedBy != nullptr) identifiedBy->tag = DecimalText(window.Handle());
  MoveRecordTo({window.Handle(), std::string(window.ClassName())});
  return true;
}

void ForegroundTracker::MoveRecordTo(const KnownWindow& window) {
  const WindowHandle main = mainWindow_->MainHandle();
  const auto isGone = [this](const KnownWindow& known) { return !StillExists(*windows_, known); };
  if (window.handle == main) {
    mainWindow_->SetFocusTag(kGotFocus);
    // It is where the user is; they have worked in it only once they leave it.
    worked_.Remove(main);
  } else {
    if (mainWindow_->FocusTag() == kGotFocus) {
      mainWindow_->SetFocusTag("");
      worked_.PutFirst(Know(*windows_, main), isGone);
    }
    worked_.PutFirst(window, isGone);
  }
  lastSeen_ = window.handle;
  UpdateRecord();
  if (window.handle != main) udmRefreshAlwaysOnTopMenuChecked();
  ShowRecord();
}

void ForegroundTracker::RecordSelection(const KnownWindow& window) {
  previous_->leaving = windows_->GetForegroundWindow();
  previous_->coming = FindInputWindow(*windows_, window.handle);
  previous_->menuSelection = previous_->leaving != previous_->coming;
  MoveRecordTo(window);
}

void ForegroundTracker::PopUpClosed() {
  const WindowHandle main = mainWindow_->MainHandle();
  if (mainWindow_->FocusTag() == kGotFocus || windows_->GetForegroundWindow() != main) return;
  if (!previous_->menuSelection) previous_->coming = inFront_.handle;
  previous_->leaving = main;
  previous_->menuSelection = true;
}

}  // namespace korvale

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
MenuItem* IdentifyingEntry(TagList& tags, const std::string& title, const std::string& className) {
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
  if (RecordIsOutdated()) ValidatePreviousWindow();
  if (!filter_->IsSelectableWindow(foreground, false, false) ||
      !windows_->IsWindowVisible(foreground)) {
    return;
  }
  if (foreground == lastSeen_) {
    // It was passed over while it was disabled or hidden.
    const bool passedOver = !isMain && foreground != previous_->current.handle;
    if (passedOver && CanBeReached(Know(*windows_, foreground))) ValidatePreviousWindow();
    return;
  }
  // A window may be in front before Windows shows it to the user.
  if (IsCloaked(*windows_, foreground)) return;
  mainWindow_->tmrWindow().SetInterval(kTrackingInterval);
  if (AcceptForeground(foreground, title)) {
    Follow({foreground, title, GetWindowClass(*windows_, foreground)});
    ValidatePreviousWindow();
  } else {
    LookBehindDialog(foreground);
  }
}

/// To the user, a dialog that is not followed itself and disables its owner is that owner.
void ForegroundTracker::LookBehindDialog(WindowHandle dialog) {
  WindowHandle behind = windows_->GetWindow(dialog, win32::kGwOwner);
  for (int i = 0; i < kMostOwners && behind != 0 && !windows_->IsWindowEnabled(behind); ++i) {
    const std::string title = GetWindowTitle(*windows_, behind);
    const bool followed = behind != mainWindow_->MainHandle() && filter_->IsShown(behind) &&
                          filter_->IsSelectableWindow(behind, false, false) &&
                          AcceptForeground(behind, title);
    if (followed) return MoveRecordBehindDialog({behind, title, GetWindowClass(*windows_, behind)});
    behind = windows_->GetWindow(behind, win32::kGwOwner);
  }
}

void ForegroundTracker::MoveRecordBehindDialog(const WindowTriple& window) {
  const bool known = window.handle == lastSeen_;
  if (known && window.handle == previous_->current.handle) return;
  if (!known) Follow(window);
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
  const bool onItsWayBack = foreground == previous_->leaving && previous_->IsPending(*windows_);
  return forItsMenu || onItsWayBack ? 0 : foreground;
}

void ForegroundTracker::NoteInFront(WindowHandle foreground) {
  if (foreground == 0 || foreground == inFront_.handle) return;
  inFrontBefore_ = std::exchange(inFront_, Know(*windows_, foreground));
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
  const std::optional<WindowTriple> worked = worked_.First([&](const WindowTriple& window) {
    return window.handle != except && !IsGone(window) &&
           CanComeBack(FindInputWindow(*windows_, window.handle));
  });
  if (!worked) return {};
  const WindowHandle input = FindInputWindow(*windows_, worked->handle);
  if (input == worked->handle) return {input, worked->className};
  return Know(*windows_, input);
}

void ForegroundTracker::ForgetVisit(WindowHandle closing) {
  worked_.Remove(closing);
  if (lastSeen_ != closing) return;
  const auto before = worked_.First([](const WindowTriple&) { return true; });
  const bool unseen = !before || before->handle == mainWindow_->MainHandle();
  lastSeen_ = unseen ? 0 : before->handle;
}

bool ForegroundTracker::CanComeBack(WindowHandle hwnd) {
  return filter_->IsSelectableWindow(hwnd, false, false) && IsShownHere(*windows_, hwnd) &&
         windows_->IsWindowEnabled(hwnd) && !windows_->IsIconic(hwnd);
}

bool ForegroundTracker::AcceptForeground(WindowHandle hwnd, const std::string& title) const {
  return filter_->IsSelectableWindow(hwnd, true, true) ||
         IdentifyingEntry(*tags_, title, GetWindowClass(*windows_, hwnd)) != nullptr;
}

void ForegroundTracker::Follow(const WindowTriple& window) {
  MenuItem* const entry = IdentifyingEntry(*tags_, window.text, window.className);
  if (entry != nullptr && !filter_->IsSelectableWindow(window.handle, true, true)) {
    entry->tag = DecimalText(window.handle);
  }
  MoveRecordTo(window);
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

/// True also when another window has got the handle.
bool ForegroundTracker::IsGone(const WindowTriple& window) {
  return window.handle != 0 && !StillExists(*windows_, {window.handle, window.className});
}

/// A window of it has gone, or Windows has taken it off the screen or put it there: the user closed
/// a Store program, which leaves its window behind, or changed virtual desktops.
bool ForegroundTracker::RecordIsOutdated() {
  return IsGone(previous_->current) || IsGone(previous_->alternate) || RecordCloaks() != cloaks_;
}

ForegroundTracker::Cloaks ForegroundTracker::RecordCloaks() {
  const auto cloak = [this](WindowHandle hwnd) {
    return hwnd == 0 ? 0 : windows_->DwmGetWindowAttribute(hwnd);
  };
  return {cloak(previous_->current.handle), cloak(previous_->alternate.handle)};
}

/// A dialog that the user was followed into counts as itself.
bool ForegroundTracker::IsBehindDialog(WindowHandle hwnd) {
  const WindowHandle dialog = FindInputWindow(*windows_, hwnd);
  const bool restores = windows_->IsWindowVisible(dialog) || !windows_->IsHungAppWindow(hwnd);
  return restores && filter_->IsSelectableWindow(dialog, false, false) &&
         !worked_.First([&](const WindowTriple& other) { return other.handle == dialog; });
}

/// Also true for a window behind its own dialog, and for one that is out of sight because its owner
/// is minimized: Tag 0 brings the dialog forward and restores the owner.
bool ForegroundTracker::CanBeReached(const KnownWindow& window) {
  // Known by its handle, so any title will do; the next reading may give another one.
  WindowTriple live{window.handle, "", window.className};
  switch (actions_->ActivateWindow(live, false, false)) {
    case kActivationDone:
      return true;
    case kWindowNotEnabled:
      return IsBehindDialog(window.handle);
    case kWindowNotOpen: {
      const WindowHandle owner = GetRelatedWindow(*windows_, window.handle, 2);
      return windows_->IsIconic(owner) && windows_->IsWindowVisible(owner) &&
             !windows_->IsHungAppWindow(owner);
    }
    default:
      return false;
  }
}

/// The window with its present title.
WindowTriple ForegroundTracker::Recorded(const std::optional<WindowTriple>& window) {
  if (!window) return {};
  const std::string title = GetWindowTitle(*windows_, window->handle);
  // One that has just gone keeps its title for the messages about it.
  const bool gone = title.empty() && !windows_->IsWindow(window->handle);
  return {window->handle, gone ? window->text : title, window->className};
}

void ForegroundTracker::UpdateRecord() {
  worked_.RemoveIf([this](const WindowTriple& window) {
    const bool gone = IsGone(window);
    if (gone && window.handle == lastSeen_) lastSeen_ = 0;
    return gone;
  });
  const WindowHandle main = mainWindow_->MainHandle();
  previous_->current = Recorded(worked_.First([&](const WindowTriple& window) {
    return window.handle != main && CanBeReached({window.handle, window.className});
  }));
  const WindowHandle current = previous_->current.handle;
  previous_->alternate = Recorded(worked_.First([&](const WindowTriple& window) {
    return window.handle != current && CanBeReached({window.handle, window.className});
  }));
  const std::optional<WindowTriple> next = worked_.First([&](const WindowTriple& window) {
    return window.handle != lastSeen_ && CanBeReached({window.handle, window.className});
  });
  // The only window worked in is the present one only while it is in front.
  previous_->tagZeroIsAlternate =
      !next ? previous_->InFront(*windows_) == current : next->handle != current;
  if (previous_->alternate.handle == main) previous_->alternate.text = mainWindow_->MainCaption();
  cloaks_ = RecordCloaks();
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

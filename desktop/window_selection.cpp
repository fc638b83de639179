#include "desktop/window_selection.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

#include "app/core/identity.h"
#include "desktop/timer_pause.h"
#include "desktop/window_names.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

/// A window that does not answer, or that Windows denies, is the right one: no other is looked for.
bool IsTheWindow(ActivationResult result) {
  return result == kActivationDone || result == kWindowNotAnswering || result == kWindowDenied;
}

}  // namespace

WindowSelection::WindowSelection(const DesktopParts& parts, WindowRequests& requests,
                                 WindowEnumeration& enumeration, WindowActions& actions,
                                 ForegroundTracker& tracker, TagList& tags)
    : windows_(&parts.windows),
      mainWindow_(&parts.mainWindow),
      messages_(&parts.messages),
      previous_(&parts.previous),
      requests_(&requests),
      enumeration_(&enumeration),
      actions_(&actions),
      tracker_(&tracker),
      tags_(&tags) {}

void WindowSelection::SelectTag(std::int16_t tag, std::optional<WindowHandle> inFront) {
  const TimerPause pause(*mainWindow_);
  bool moved = false;
  if (tag == 0) {
    moved = SelectPrevious();
  } else if (const MenuItem* const entry = Entry(tag); entry != nullptr) {
    moved = SelectEntry(*entry, inFront ? *inFront : tracker_->WindowInFront());
  }
  if (!moved) tracker_->ValidatePreviousWindow();
}

bool WindowSelection::SelectPrevious() {
  // Only after its minimized owner is restored does a window prove to be no longer shown; then the
  // one worked in before it is next.
  for (WindowHandle tried = 0;;) {
    tracker_->UpdateRecord();
    WindowTriple window = previous_->OfTagZero(mainWindow_->FocusTag() == kGotFocus);
    if (window.handle == 0 || window.handle == tried) return false;
    tried = window.handle;
    const ActivationResult result = actions_->ActivatePreviousWindow(window);
    if (result == kWindowDenied) {
      tracker_->ValidatePreviousWindow();
      actions_->ReportFailure();
      return false;
    }
    if (result == kActivationDone) {
      selected = tried;
      tracker_->RecordSelection({window.handle, window.className});
      return true;
    }
  }
}

void WindowSelection::SelectAtStart() {
  tracker_->LookAtForeground();
  WindowTriple window = previous_->current;
  if (actions_->ActivatePreviousWindow(window) == kActivationDone) {
    tracker_->RecordSelection({window.handle, window.className});
  }
}

/// Windows may deliver messages during the activation, so the entry is looked up anew afterwards.
bool WindowSelection::SelectEntry(const MenuItem& entry, WindowHandle inFront) {
  const int tag = entry.index;
  // After a change of virtual desktops, what is in front need not be on the screen.
  const bool unseen = inFront != 0 && inFront == TagHandle(entry) && IsCloaked(*windows_, inFront);
  const WindowHandle foreground = unseen ? 0 : inFront;
  if (TagHandle(entry) == foreground && foreground != 0) {
    selected = foreground;
    RestoreInFront(foreground);
    return false;
  }
  const ActivationResult result = ActivateOrSearch(tag, foreground);
  // The strip must not show a window that is gone while a message waits for the user.
  if (result != kActivationDone) tracker_->ValidatePreviousWindow();
  const MenuItem* const selectedEntry = Entry(tag);
  if (selectedEntry == nullptr) return false;
  if (result != kActivationDone) {
    TellFailure(*selectedEntry, result);
    return false;
  }
  if (TagHandle(*selectedEntry) == foreground) return false;
  selected = TagHandle(*selectedEntry);
  tracker_->RecordSelection({selected, TagClass(*tags_, *selectedEntry)});
  return true;
}

void WindowSelection::RestoreInFront(WindowHandle hwnd) {
  const bool denied = windows_->IsIconic(hwnd) &&
                      requests_->Show(hwnd, win32::kSwRestore) == RequestResult::kDenied;
  if (!denied) return;
  tracker_->ValidatePreviousWindow();
  actions_->ReportFailure();
}

WindowTriple WindowSelection::WindowOf(const MenuItem& entry) const {
  return {TagHandle(entry), IdentificationText(entry), TagClass(*tags_, entry)};
}

ActivationResult WindowSelection::Activate(int tag, WindowHandle inFront) {
  const MenuItem* const entry = Entry(tag);
  if (entry == nullptr) return kActivationFailed;
  WindowTriple window = WindowOf(*entry);
  return actions_->ActivateWindow(window, false, true, inFront);
}

ActivationResult WindowSelection::ActivateOrSearch(int tag, WindowHandle inFront) {
  ActivationResult result = Activate(tag, inFront);
  if (IsTheWindow(result) || windowSearch) return result;
  const std::optional<WindowHandles> fitting = enumeration_->RefreshTags(tag);
  result = Activate(tag);
  const MenuItem* const unresolved = Entry(tag);
  if (IsTheWindow(result) || windowSearch || unresolved == nullptr) return result;
  const WindowHandle found = fitting ? enumeration_->LastOnScreen(*fitting)
                                     : enumeration_->FindByTitle(IdentificationText(*unresolved));
  MenuItem* const entry = Entry(tag);
  return found == 0 || entry == nullptr ? result : ActivateFound(*entry, found);
}

ActivationResult WindowSelection::ActivateFound(MenuItem& entry, WindowHandle found) {
  const int tag = entry.index;
  entry.tag = DecimalText(found);
  const KnownWindow candidate = Know(*windows_, found);
  const std::string former = std::exchange(TagClass(*tags_, entry), candidate.className);
  WindowTriple window = WindowOf(entry);
  const ActivationResult result = actions_->ActivateWindow(window, false, true);
  const bool fits = window.handle != 0 && StillExists(*windows_, candidate);
  MenuItem* const left = Entry(tag);
  if (left != nullptr && result != kActivationDone && !fits) {
    // It has gone meanwhile, and its handle may be that of another window.
    left->tag = "0";
    TagClass(*tags_, *left) = former;
  }
  return result;
}

void WindowSelection::TellFailure(const MenuItem& entry, ActivationResult result) {
  const std::string window = InBrackets(IdentificationText(entry));
  if (result == kWindowNotEnabled) {
    messages_->ShowMessageBox(window + "  is not enabled, and currently cannot be selected.",
                              win32::kMbSetForeground, kProductName);
  } else if (result == kWindowNotOpen) {
    messages_->ShowMessageBox(window + "  is not open.", win32::kMbSetForeground, kProductName);
  } else {
    WindowTriple triple = WindowOf(entry);
    actions_->ReportFailureOf(triple);
  }
}

}  // namespace korvale

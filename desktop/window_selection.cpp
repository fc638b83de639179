#include "desktop/window_selection.h"

#include "app/core/identity.h"
#include "desktop/timer_pause.h"
#include "desktop/window_readers.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {

std::string InBrackets(const std::string& text) { return "Window:  [" + text + "]"; }

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

void WindowSelection::SelectTag(std::int16_t tag) {
  const TimerPause pause(*mainWindow_);
  if (tag == 0) {
    SelectPrevious();
  } else if (MenuItem* const entry = tags_->mnuWindowParentList.Find(tag); entry != nullptr) {
    SelectEntry(*entry);
  }
  tracker_->ValidatePreviousWindow();
}

void WindowSelection::SelectPrevious() {
  // Only after its minimized owner is restored does a window prove to be no longer shown; then the
  // one worked in before it is next.
  for (WindowHandle tried = 0;;) {
    tracker_->UpdateRecord();
    WindowTriple window = previous_->OfTagZero(mainWindow_->FocusTag() == kGotFocus);
    if (window.handle == 0 || window.handle == tried) return;
    tried = window.handle;
    if (actions_->ActivatePreviousWindow(window) == kActivationDone) {
      selected = tried;
      tracker_->RecordSelection(window);
      return;
    }
  }
}

void WindowSelection::SelectAtStart() {
  tracker_->LookAtForeground();
  WindowTriple window = previous_->current;
  if (actions_->ActivatePreviousWindow(window) == kActivationDone) {
    tracker_->RecordSelection(window);
  }
}

void WindowSelection::SelectEntry(MenuItem& entry) {
  const WindowHandle foreground = tracker_->WindowInFront();
  if (TagHandle(entry) == foreground && foreground != 0) {
    selected = foreground;
    if (windows_->IsIconic(foreground)) requests_->Show(foreground, win32::kSwRestore);
    return;
  }
  const ActivationResult result = ActivateOrSearch(entry);
  if (result != kActivationDone) return TellFailure(entry, result);
  if (TagHandle(entry) == foreground) return;
  selected = TagHandle(entry);
  tracker_->RecordSelection(
      {selected, GetWindowTitle(*windows_, selected), GetWindowClass(*windows_, selected)});
}

ActivationResult WindowSelection::Activate(const MenuItem& entry, bool reportFailure, bool act) {
  WindowTriple window{TagHandle(entry), IdentificationText(entry), TagClass(*tags_, entry)};
  return actions_->ActivateWindow(window, reportFailure, act);
}

ActivationResult WindowSelection::ActivateOrSearch(MenuItem& entry) {
  ActivationResult result = Activate(entry, false, true);
  // A window that does not answer is the right one: no other is looked for.
  if (result == kActivationDone || result == kWindowNotAnswering || windowSearch) return result;
  enumeration_->RefreshTags();
  result = Activate(entry, false, true);
  if (result == kActivationDone || result == kWindowNotAnswering) return result;
  const WindowHandle found = enumeration_->FindByTitle(IdentificationText(entry));
  if (found == 0) return result;
  entry.tag = DecimalText(found);
  TagClass(*tags_, entry) = GetWindowClass(*windows_, found);
  return Activate(entry, false, true);
}

void WindowSelection::TellFailure(const MenuItem& entry, ActivationResult result) {
  const std::string window = InBrackets(IdentificationText(entry));
  if (result == kWindowNotEnabled) {
    messages_->ShowMessageBox(window + "  is not enabled, and currently cannot be selected.",
                              win32::kMbSetForeground, kProductName);
  } else if (result == kWindowNotOpen) {
    messages_->ShowMessageBox(window + "  is not open.", win32::kMbSetForeground, kProductName);
  } else {
    Activate(entry, true, false);
  }
}

}  // namespace korvale

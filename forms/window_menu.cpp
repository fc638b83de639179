#include "forms/window_menu.h"

#include <utility>

#include "desktop/timer_pause.h"
#include "desktop/window_readers.h"
#include "hotkeys/hot_key_names.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {

namespace {

constexpr int kShortTitleLength = 30;
constexpr int kThisWindow = 1;
constexpr int kPreviousWindow = 2;
/// How much wider than the application name the pop-up's first Add entry is padded.
constexpr int kPopUpPadding = 20;

std::string DoubleAmpersands(const std::string& text) {
  return ReplaceText(text, "&", "&&", false, true);
}

std::string InBrackets(const std::string& text) { return "Window:  [" + text + "]"; }

}  // namespace

std::string ShortTitle(const std::string& title) {
  if (CharacterCount(title) <= kShortTitleLength) {
    return title;
  }
  return LeftCharacters(title, kShortTitleLength - 3) + "...";
}

WindowMenu::WindowMenu(WindowMenuParts parts, std::string applicationTitle)
    : parts_(std::move(parts)), applicationTitle_(std::move(applicationTitle)) {}

MenuItem& WindowMenu::Item(const char* name, int index) {
  MenuItem* item = parts_.menus.Find(name, index);
  if (item == nullptr) {
    throw RunTimeError(RunTimeError::kNoSuchControlArrayElement);
  }
  return *item;
}

void WindowMenu::mnuWindow_Click() {
  parts_.tracker.tmrWindow_Timer();
  parts_.tracker.ValidatePreviousWindow();
  parts_.tracker.udmRefreshAlwaysOnTopMenuChecked();

  MenuItem& addThis = Item("mnuWindowAddToList", kThisWindow);
  addThis.caption = Trim(addThis.caption);
  if (Item("mnuWindow").tag == kHotKeyWindowMenuPopup) {
    const int blanks = CharacterCount(applicationTitle_) + kPopUpPadding;
    addThis.caption.insert(0, static_cast<std::size_t>(blanks), ' ');
  }

  const std::string title = DoubleAmpersands(ShortTitle(parts_.previous.current.text));
  Item("mnuWindowPreviousWindowAlwaysOnTop").caption = "[" + title + "]  Always On &Top";
  Item("mnuWindowAddToList", kPreviousWindow).caption = "Add  [" + title + "]  to &Window menu...";
}

void WindowMenu::mnuWindowParentList_Click(std::int16_t Index) {
  {
    const TimerPause pause(parts_.mainWindow);
    if (Index == 0) {
      SelectPrevious();
    } else if (MenuItem* entry = parts_.tags.mnuWindowParentList.Find(Index); entry != nullptr) {
      SelectTag(*entry, static_cast<std::size_t>(Index - 1));
    }
    parts_.tracker.ValidatePreviousWindow();
  }
  parts_.refreshMenus();
}

void WindowMenu::SelectPrevious() {
  // A window out of sight behind a minimized one proves only when that is restored to be no longer
  // shown; then the one worked in before it is next.
  for (WindowHandle tried = 0;;) {
    parts_.tracker.UpdateRecord();
    WindowTriple window = parts_.previous.OfTagZero(parts_.mainWindow.FocusTag() == kGotFocus);
    if (window.handle == 0 || window.handle == tried) return;
    tried = window.handle;
    if (parts_.actions.ActivatePreviousWindow(window) == kActivationDone) {
      selected = tried;
      parts_.tracker.RecordSelection(window);
      return;
    }
  }
}

void WindowMenu::SelectTag(MenuItem& entry, std::size_t slot) {
  const WindowHandle foreground = parts_.tracker.WindowInFront();
  if (TagHandle(entry) == foreground && foreground != 0) {
    selected = foreground;
    if (parts_.windows.IsIconic(foreground)) {
      parts_.actions.ShowDesktopWindow(foreground, win32::kSwRestore);
    }
    return;
  }
  const ActivationResult result = ActivateOrSearch(entry, slot);
  if (result != kActivationDone) {
    TellFailure(entry, slot, result);
  } else if (TagHandle(entry) != foreground) {
    MoveRecordToSelected(entry);
  }
}

ActivationResult WindowMenu::ActivateTag(MenuItem& entry, std::size_t slot, bool reportFailure,
                                         bool act) {
  WindowTriple window{TagHandle(entry), IdentificationText(entry),
                      parts_.tags.ParentWindowClass[slot]};
  return parts_.actions.ActivateWindow(window, reportFailure, act);
}

ActivationResult WindowMenu::ActivateOrSearch(MenuItem& entry, std::size_t slot) {
  ActivationResult result = ActivateTag(entry, slot, false, true);
  // A window that does not answer is the right one: no other is looked for.
  if (result == kActivationDone || result == kWindowNotAnswering || windowSearch) {
    return result;
  }
  parts_.enumeration.RefreshTags();
  result = ActivateTag(entry, slot, false, true);
  if (result == kActivationDone || result == kWindowNotAnswering) {
    return result;
  }
  const WindowHandle found = parts_.enumeration.FindByTitle(IdentificationText(entry));
  if (found == 0) {
    return result;
  }
  entry.tag = DecimalText(found);
  parts_.tags.ParentWindowClass[slot] = GetWindowClass(parts_.windows, found);
  return ActivateTag(entry, slot, false, true);
}

void WindowMenu::TellFailure(MenuItem& entry, std::size_t slot, ActivationResult result) {
  const std::string window = InBrackets(IdentificationText(entry));
  switch (result) {
    case kActivationDone:
      break;
    case kWindowNotEnabled:
      parts_.messages.ShowMessageBox(window + "  is not enabled, and currently cannot be selected.",
                                     win32::kMbSetForeground, applicationTitle_);
      break;
    case kWindowNotOpen:
      parts_.messages.ShowMessageBox(window + "  is not open.", win32::kMbSetForeground,
                                     applicationTitle_);
      break;
    case kWindowNotAnswering:
    case kActivationFailed:
      ActivateTag(entry, slot, true, false);
      break;
  }
}

void WindowMenu::MoveRecordToSelected(const MenuItem& entry) {
  selected = TagHandle(entry);
  parts_.tracker.RecordSelection({selected, GetWindowTitle(parts_.windows, selected),
                                  GetWindowClass(parts_.windows, selected)});
}

void WindowMenu::mnuWindowAddToList_Click(std::int16_t Index) {
  if (Index != kPreviousWindow || PreviousCanBeAdded()) {
    WindowTriple mainWindow{parts_.mainWindow.MainHandle(), parts_.mainWindow.MainCaption(),
                            GetWindowClass(parts_.windows, parts_.mainWindow.MainHandle())};
    parts_.actions.ActivateWindow(mainWindow, false, true);
    parts_.showAddWindow(Index == kPreviousWindow ? AddWindowMode::kPreviousWindow
                                                  : AddWindowMode::kThisWindow);
  }
  parts_.refreshMenus();
}

bool WindowMenu::PreviousCanBeAdded() {
  WindowTriple& previous = parts_.previous.current;
  const ActivationResult result = parts_.actions.ActivateWindow(previous, false, false);
  if (result == kActivationDone) {
    return true;
  }
  if (previous.handle == 0) {
    parts_.messages.ShowMessageBox(
        "Please select a 'Previous' window to add to the list, then try this operation again.",
        win32::kMbOk, applicationTitle_);
  } else if (result == kWindowNotEnabled) {
    parts_.messages.ShowMessageBox(InBrackets(previous.text) + "  is not enabled.", win32::kMbOk,
                                   applicationTitle_);
  } else if (result == kWindowNotOpen) {
    parts_.messages.ShowMessageBox(InBrackets(previous.text) + "  is not open.", win32::kMbOk,
                                   applicationTitle_);
  } else {
    parts_.actions.ActivateWindow(previous, true, false);
  }
  return false;
}

void WindowMenu::mnuWindowAlwaysOnTop_Click() {
  MenuItem& item = Item("mnuWindowAlwaysOnTop");
  item.checked = !item.checked;
  parts_.actions.SetTopmost(parts_.mainWindow.MainHandle(), item.checked);
  parts_.alwaysOnTop = item.checked;
  parts_.refreshMenus();
}

void WindowMenu::mnuWindowPreviousWindowAlwaysOnTop_Click() {
  WindowTriple& previous = parts_.previous.current;
  if (parts_.actions.ActivateWindow(previous, true, true) == kActivationDone) {
    MenuItem& item = Item("mnuWindowPreviousWindowAlwaysOnTop");
    item.checked = !item.checked;
    parts_.actions.SetTopmost(previous.handle, item.checked);
    if (parts_.mainWindow.FocusTag() == kGotFocus) {
      parts_.commands.SetForegroundWindow(parts_.mainWindow.MainHandle());
    }
  }
  parts_.refreshMenus();
}

void WindowMenu::mnuWindowMinimizeAll_Click() {
  if (!windowSearch) {
    parts_.actions.MinimizeAll();
  }
  parts_.refreshMenus();
}

void WindowMenu::mnuWindowRestoreAll_Click() {
  if (!windowSearch) {
    parts_.actions.RestoreAll();
    selected = parts_.mainWindow.MainHandle();
  }
  parts_.refreshMenus();
}

}  // namespace korvale

#include "forms/window_menu.h"

#include <utility>

#include "app/core/identity.h"
#include "desktop/window_names.h"
#include "desktop/window_readers.h"
#include "forms/main_form_design.h"
#include "hotkeys/hot_key_names.h"
#include "platform/win32_constants.h"
#include "ui/menu_text.h"
#include "util/graphemes.h"
#include "util/text.h"

namespace korvale {

namespace {

constexpr int kShortTitleLength = 30;
/// How much wider than the application name the pop-up's first Add entry is padded.
constexpr int kPopUpPadding = 20;

}  // namespace

std::string ShortTitle(const std::string& title) {
  if (CharacterCount(title) <= kShortTitleLength) return title;
  return LeftClusters(title, kShortTitleLength - CharacterCount(kEllipsis)) + kEllipsis;
}

WindowMenu::WindowMenu(Desktop& desktop, Form& form, bool& alwaysOnTop,
                       std::function<void(AddWindowMode)> showAddWindow)
    : desktop_(&desktop),
      form_(&form),
      alwaysOnTop_(&alwaysOnTop),
      showAddWindow_(std::move(showAddWindow)) {}

void WindowMenu::mnuWindow_Click() {
  desktop_->tracker.PrepareWindowMenu();

  MenuItem& addThis = form_->Menu("mnuWindowAddToList", kAddThisWindow);
  addThis.caption = Trim(addThis.caption);
  if (form_->Menu("mnuWindow").tag == kHotKeyWindowMenuPopup) {
    const int blanks = CharacterCount(kProductName) + kPopUpPadding;
    addThis.caption.insert(0, static_cast<std::size_t>(blanks), ' ');
  }

  const std::string title =
      LiteralMenuText(WithDirectionsEnded(ShortTitle(desktop_->previous.current.text)));
  form_->Menu("mnuWindowPreviousWindowAlwaysOnTop").caption = "[" + title + "]  Always On &Top";
  form_->Menu("mnuWindowAddToList", kAddPreviousWindow).caption =
      "Add  [" + title + "]  to &Window menu...";
}

void WindowMenu::mnuWindowParentList_Click(std::int16_t Index) {
  desktop_->selection.SelectTag(Index);
}

void WindowMenu::mnuWindowAddToList_Click(std::int16_t Index) {
  const bool previous = Index == kAddPreviousWindow;
  if (previous && !CheckPreviousOrTell()) return;
  WindowTriple mainWindow{desktop_->mainWindow.MainHandle(), desktop_->mainWindow.MainCaption(),
                          GetWindowClass(desktop_->windows, desktop_->mainWindow.MainHandle())};
  if (desktop_->actions.ActivateWindow(mainWindow, false, true) == kWindowDenied) {
    // The dialog would suspend the hot keys from somewhere behind the other windows.
    desktop_->actions.ReportFailure();
  } else {
    showAddWindow_(previous ? AddWindowMode::kPreviousWindow : AddWindowMode::kThisWindow);
  }
}

bool WindowMenu::CheckPreviousOrTell() {
  WindowTriple& previous = desktop_->previous.current;
  const ActivationResult result = desktop_->actions.ActivateWindow(previous, false, false);
  if (result == kActivationDone) return true;
  const std::string window = InBrackets(previous.text);
  if (previous.handle == 0) {
    desktop_->messages.ShowMessageBox(
        "Please select a 'Previous' window to add to the list, then try this operation again.",
        win32::kMbOk, kProductName);
  } else if (result == kWindowNotEnabled) {
    desktop_->messages.ShowMessageBox(window + "  is not enabled.", win32::kMbOk, kProductName);
  } else if (result == kWindowNotOpen) {
    desktop_->messages.ShowMessageBox(window + "  is not open.", win32::kMbOk, kProductName);
  } else {
    desktop_->actions.ReportFailureOf(previous);
  }
  return false;
}

void WindowMenu::mnuWindowAlwaysOnTop_Click() {
  MenuItem& item = form_->Menu("mnuWindowAlwaysOnTop");
  item.checked = !item.checked;
  desktop_->requests.SetTopmost(desktop_->mainWindow.MainHandle(), item.checked);
  *alwaysOnTop_ = item.checked;
}

void WindowMenu::mnuWindowPreviousWindowAlwaysOnTop_Click() {
  WindowTriple& previous = desktop_->previous.current;
  if (desktop_->actions.ActivateWindow(previous, true, true) != kActivationDone) return;
  MenuItem& item = form_->Menu("mnuWindowPreviousWindowAlwaysOnTop");
  const bool denied =
      desktop_->requests.SetTopmost(previous.handle, !item.checked) == RequestResult::kDenied;
  if (!denied) item.checked = !item.checked;
  // Where Windows refuses it, the user still sees what they asked for.
  if (desktop_->mainWindow.FocusTag() == kGotFocus) {
    desktop_->requests.SetForegroundWindow(desktop_->mainWindow.MainHandle());
  }
  if (denied) desktop_->actions.ReportFailure();
}

void WindowMenu::mnuWindowMinimizeAll_Click() {
  if (!desktop_->selection.windowSearch) desktop_->actions.MinimizeAll();
}

void WindowMenu::mnuWindowRestoreAll_Click() {
  if (desktop_->selection.windowSearch) return;
  desktop_->actions.RestoreAll();
  desktop_->selection.selected = desktop_->mainWindow.MainHandle();
}

}  // namespace korvale

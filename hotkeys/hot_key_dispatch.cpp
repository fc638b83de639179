#include "hotkeys/hot_key_dispatch.h"

#include <cstdint>
#include <utility>

#include "desktop/foreground_return.h"
#include "desktop/window_readers.h"
#include "hotkeys/hot_key_names.h"
#include "platform/run_time_error.h"
#include "platform/win32_constants.h"
#include "util/text.h"

namespace korvale {
namespace {

// Makes the caption of the suspension notice differ from those of the other message boxes.
constexpr const char* kNoticeMark = "     ";

}  // namespace

HotKeyDispatch::HotKeyDispatch(HotKeyDispatchParts parts, std::string productName,
                               std::string programTitle)
    : parts_(parts), productName_(std::move(productName)), programTitle_(std::move(programTitle)) {}

std::string HotKeyDispatch::udmProcessHotKey(const std::string& name, bool booDoAction,
                                             bool booReturnWindow,
                                             const std::string& strSupplyWindowText) {
  const bool suspended = parts_.suspension.Active();
  try {
    if (!suspended) return Process(name, booDoAction, booReturnWindow, strSupplyWindowText);
    ShowSuspensionNotice();
  } catch (const ProgramEnded&) {
    // The main window is gone, and its timers with it.
    throw;
  } catch (...) {
    const std::int16_t number = CurrentErrorNumber();
    if (!suspended) parts_.mainWindow.udmTimersEnabled(true);
    parts_.errors.udmNonFatalError(ErrorPlace::kProcessHotKey, number);
  }
  return "";
}

std::string HotKeyDispatch::Process(const std::string& name, bool doAction, bool returnWindow,
                                    const std::string& suppliedText) {
  parts_.mainWindow.udmTimersEnabled(false);
  const std::string upperName = UpperCase(name);
  WindowTriple chosen = ChooseWindow(suppliedText);
  if (doAction && !IsHotKeyName(upperName) && !IdentifyForeground(chosen)) {
    ShowNotRecognized(chosen.text);
    parts_.mainWindow.udmTimersEnabled(true);
    parts_.windowActions.ActivateWindow(chosen, false, true);
    return "";
  }
  if (doAction) Perform(upperName);
  parts_.mainWindow.udmTimersEnabled(true);
  return returnWindow ? chosen.text : HotKeyDescription(upperName);
}

void HotKeyDispatch::ShowSuspensionNotice() {
  const std::string caption = programTitle_ + kNoticeMark;
  if (parts_.windows.FindWindowA(caption) != 0) return;
  parts_.messages.ShowMessageBox("Hot Keys are temporarily suspended when " + productName_ +
                                     " has a message box or a dialog box displayed.",
                                 win32::kMbOk, caption);
}

WindowTriple HotKeyDispatch::ChooseWindow(const std::string& suppliedText) {
  if (!suppliedText.empty()) return {0, suppliedText, ""};
  if (parts_.mainWindow.FocusTag() != kGotFocus) return parts_.previous.current;
  const WindowHandle main = parts_.mainWindow.MainHandle();
  return {main, parts_.mainWindow.MainCaption(), GetWindowClass(parts_.windows, main)};
}

/// Puts the foreground window in the place of `chosen`; false when it cannot be identified.
bool HotKeyDispatch::IdentifyForeground(WindowTriple& chosen) {
  const WindowHandle foreground = parts_.windows.GetForegroundWindow();
  if (foreground == chosen.handle) return true;
  chosen = {foreground, GetWindowTitle(parts_.windows, foreground),
            GetWindowClass(parts_.windows, foreground)};
  if (!IsIdentified(chosen)) return false;
  MakeTarget(chosen);
  return true;
}

bool HotKeyDispatch::IsIdentified(const WindowTriple& window) {
  return parts_.filter.IsSelectableWindow(window.handle, false, false) &&
         parts_.tracker.AcceptForeground(window.handle, window.text);
}

void HotKeyDispatch::MakeTarget(const WindowTriple& window) {
  parts_.tracker.MoveRecordTo(window);
  parts_.tracker.ValidatePreviousWindow();
}

void HotKeyDispatch::ShowNotRecognized(const std::string& title) {
  parts_.messages.ShowMessageBox(
      productName_ + " does not recognize the Window: [" + title +
          "].  Try changing options under 'Window Identification' on the General tab of the "
          "Options dialog box.",
      win32::kMbSetForeground, programTitle_);
}

void HotKeyDispatch::Perform(const std::string& name) {
  const int tag = ParentHotKeyTag(name);
  if (tag >= 0) {
    SelectTag(tag);
  } else if (name == kHotKeyMinimizeParent || name == kHotKeyRestoreMaximizeParent) {
    MinimizeOrMaximize(name);
  } else if (name == kHotKeyDisplayOptions) {
    ShowOptions();
  } else if (name == kHotKeyWindowMenuPopup) {
    parts_.tracker.LookAtForeground();
    PopUpWindowMenu();
  } else if (name == kHotKeyToggleHotKeys && !IsFormLoaded(parts_.forms, "frmKeys2List")) {
    parts_.toggle.ToggleHotKeys(kToggleFromHotKey);
  }
}

void HotKeyDispatch::MinimizeOrMaximize(const std::string& name) {
  parts_.tracker.LookAtForeground();
  const WindowTriple next = parts_.windowActions.MinimizeOrMaximizeForeground(name);
  // What Windows has brought forward by itself is where the user is, be it for a moment.
  if (next.handle == 0) return parts_.tracker.LookAtForeground();
  parts_.tracker.RecordSelection(next);
  parts_.tracker.ValidatePreviousWindow();
}

void HotKeyDispatch::SelectTag(int tag) {
  // The user may have changed windows since the last tick.
  parts_.tracker.LookAtForeground();
  const std::int16_t index = ToInt16(tag);
  if (parts_.tagPasses.TagListPass(TagListMode::kExists, index) != -1 &&
      parts_.actions.HasTagCaption(index)) {
    parts_.actions.mnuWindowParentList_Click(index);
  }
}

void HotKeyDispatch::ShowOptions() {
  if (IsFormLoaded(parts_.forms, "frmOptions")) {
    parts_.actions.BringOptionsToFront();
  } else {
    parts_.actions.udmOptions("LOAD_AND_OR_REFRESH");
  }
}

void HotKeyDispatch::PopUpWindowMenu() {
  const WindowHandle main = parts_.mainWindow.MainHandle();
  const WindowHandle left = parts_.windows.GetForegroundWindow();
  const WindowHandle before = parts_.previous.InFront(parts_.windows);
  WindowHandle selected = 0;
  parts_.commands.SetForegroundWindow(main);
  parts_.actions.SetWindowMenuTag(kHotKeyWindowMenuPopup);
  try {
    selected = parts_.actions.PopUpWindowMenu();
    // Without a message behind it the next pop-up of the same menu would vanish at once.
    parts_.commands.PostMessageW(main, win32::kWmNull);
  } catch (...) {
    parts_.actions.SetWindowMenuTag("");
    throw;
  }
  parts_.actions.SetWindowMenuTag("");
  // Only the menu needed the main window in front, or on its way there. A user who has gone to a
  // window meanwhile, by an entry or by a click, keeps it.
  const WindowHandle now = parts_.windows.GetForegroundWindow();
  const bool stays = now != main && now != left;
  if (selected == 0 && before != main && !stays &&
      !ReturnForegroundTo(parts_.windows, parts_.commands, before)) {
    // It has gone while the menu was open.
    ReturnForegroundTo(parts_.windows, parts_.commands, parts_.tracker.WindowBehind(main));
  }
}

}  // namespace korvale

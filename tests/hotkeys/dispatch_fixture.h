#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tests/fakes/dispatch_desktop.h"

namespace korvale {

struct ReportedError {
  ErrorPlace place = ErrorPlace::kProgramEntry;
  std::int16_t number = 0;

  friend bool operator==(const ReportedError&, const ReportedError&) = default;
};

class FakeErrorReporters : public ErrorReporters {
 public:
  explicit FakeErrorReporters(CallLog& log) : log_(&log) {}

  void udmNonFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber) override {
    reported.push_back({intErrorNumber, intVB_ErrNumber});
    log_->Add("udmNonFatalError");
  }

  std::vector<ReportedError> reported;

 private:
  CallLog* log_;
};

/// The dispatcher over a fake desktop with the real routines of the desktop. The log holds what
/// changes windows and what the main window, the menus and the message boxes are told.
class HotKeyDispatchTest : public testing::Test, protected DispatchDesktop {
 protected:
  using Calls = std::vector<std::string>;

  HotKeyDispatchTest() {
    other = Open("Other", "Other", "other");
    target = Open("Target", "Editor", "target");
    main = Open("Korvale - Work", "Korvale.frmMain", "main");
    mainWindow.handle = main;
    forms.Load("frmMain", main);
    SeenWindow seen(desktop, target);
    tracker.FollowIfAccepted(seen);
    desktop.UserActivates(target);
    log.Clear();
    const auto record = [this](const std::string& call) { log.Add(call); };
    mainWindow.onCall = record;
    actions.onCall = record;
    messages.whileShown = [this](const ShownMessageBox&) { log.Add("ShowMessageBox"); };
  }

  WindowHandle Open(const std::string& title, const std::string& className, const std::string& name,
                    std::int32_t exStyle = 0) {
    const WindowHandle hwnd = desktop.Open(title, {.className = className, .exStyle = exStyle});
    log.NameWindow(hwnd, name);
    return hwnd;
  }

  void AddTag(int tag, const std::string& identification, WindowHandle hwnd) {
    MenuItem& entry = tags.mnuWindowParentList.Load(tag);
    entry.caption = "&" + std::to_string(tag) + "  " + identification;
    entry.tag = std::to_string(hwnd);
    TagClass(tags, entry) = desktop.Windows().Find(hwnd)->className;
  }

  std::string Press(const std::string& name) {
    return dispatch.udmProcessHotKey(name, true, false, "");
  }
  std::string Describe(const std::string& name) {
    return dispatch.udmProcessHotKey(name, false, false, "");
  }

  FakeHotKeyActions actions;
  HotKeyTable table{hotKeys, options, mainWindow};
  HotKeyToggle toggle{table, options, actions};
  FakeErrorReporters errors{log};
  HotKeyDispatch dispatch{routines, suspension, actions, toggle, errors};

  WindowHandle other = 0;
  WindowHandle target = 0;
  WindowHandle main = 0;
};

}  // namespace korvale

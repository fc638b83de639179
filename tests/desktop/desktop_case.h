#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/core/options.h"
#include "desktop/desktop.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_input.h"
#include "tests/fakes/fake_loaded_forms.h"
#include "tests/fakes/fake_main_window.h"
#include "tests/fakes/fake_message_boxes.h"

namespace korvale {

inline constexpr int kOurProcess = 1;

/// The routines of desktop/ on a fake desktop that holds the main window, called "Main" in the log,
/// and the hidden window that owns it, called "Owner".
class DesktopCase : public testing::Test {
 protected:
  DesktopCase() {
    options.Create();
    desktop.UseClock(clock);
    owner = desktop.Open("Owner",
                         {.className = "Korvale.Owner", .visible = false, .process = kOurProcess});
    mainWindow.handle = desktop.Open(
        "Main", {.className = "Korvale.frmMain", .owner = owner, .process = kOurProcess});
    mainWindow.caption = "Main";
    mainWindow.onCall = [this](const std::string& call) { log.Add(call); };
    MenuItem& first = tags.mnuWindowParentList.Load(0);
    first.caption = "&0  Previous Window";
    first.tag = "7";
  }

  MenuItem& AddTag(int tag, const std::string& text, const std::string& className = "") {
    MenuItem& entry = tags.mnuWindowParentList.Load(tag);
    entry.caption = "&" + std::to_string(tag) + "  " + text;
    entry.tag = "0";
    entry.visible = true;
    tags.ParentWindowClass.at(static_cast<std::size_t>(tag - 1)) = className;
    return entry;
  }

  std::string ClassOfTag(int tag) const {
    return tags.ParentWindowClass.at(static_cast<std::size_t>(tag - 1));
  }

  WindowHandle HandleOfTag(int tag) const { return TagHandle(*tags.mnuWindowParentList.Find(tag)); }

  WindowHandle FindByTitleAndClass(const std::string& title, const std::string& className) {
    return enumeration.FindByTitleAmong(enumeration.FindByClass(className), title);
  }

  /// The calls of `action`, reads included.
  std::vector<std::string> CallsOf(const std::function<void()>& action) {
    return log.TakeAllOf(action);
  }

  CallLog log;
  FakeClock clock;
  FakeDesktop desktop{log};
  FakeInput input{log, desktop.Windows()};
  FakeMainWindow mainWindow;
  FakeLoadedForms forms;
  FakeMessageBoxes messages;
  OptionsHolder options;
  PreviousWindow previous;
  MenuItem menu;
  Desktop routines{{desktop, desktop, input, mainWindow, forms, messages, previous, desktop},
                   clock,
                   options,
                   menu};
  TagList& tags = routines.tags;
  TagListPasses& passes = routines.tagPasses;
  WindowFilter& filter = routines.filter;
  WindowRequests& requests = routines.requests;
  WindowEnumeration& enumeration = routines.enumeration;
  WindowActions& actions = routines.actions;
  ForegroundTracker& tracker = routines.tracker;
  WindowHandle owner = 0;
};

using Calls = std::vector<std::string>;

}  // namespace korvale

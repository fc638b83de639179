#pragma once

#include "hotkeys/hot_key_dispatch.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_hot_key_actions.h"
#include "tests/fakes/fake_hot_keys.h"
#include "tests/fakes/fake_input.h"
#include "tests/fakes/fake_loaded_forms.h"
#include "tests/fakes/fake_main_window.h"
#include "tests/fakes/fake_message_boxes.h"

namespace korvale {

/// What the dispatcher of hot keys works with: a fake desktop and the real routines on it.
struct DispatchDesktop {
  DispatchDesktop() {
    options.Create();
    desktop.UseClock(clock);
    tags.mnuWindowParentList.Load(0).caption = "&0  Previous Window";
  }

  CallLog log;
  FakeDesktop desktop{log};
  FakeInput input{log, desktop.Windows()};
  FakeHotKeys hotKeys{log};
  FakeMainWindow mainWindow;
  FakeLoadedForms forms;
  OptionsHolder options;
  MenuItem windowMenu;
  FakeClock clock;
  PreviousWindow previous;
  Suspension suspension;
  FakeMessageBoxes messages;
  Desktop routines{{desktop, desktop, input, mainWindow, forms, messages, previous, desktop},
                   clock,
                   options,
                   windowMenu};
  TagList& tags = routines.tags;
  ForegroundTracker& tracker = routines.tracker;
};

}  // namespace korvale

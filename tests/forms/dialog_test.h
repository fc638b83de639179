#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "forms/form_display.h"
#include "hotkeys/suspension.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/desktop_bridge.h"
#include "tests/fakes/fake_clock.h"
#include "tests/fakes/fake_desktop.h"
#include "tests/fakes/fake_main_window.h"
#include "tests/fakes/fake_message_boxes.h"
#include "tests/fakes/headless_form_host.h"
#include "tests/fakes/headless_user.h"
#include "ui/form.h"
#include "ui/form_collection.h"

namespace korvale {

/// A desktop with the program's forms and a user.
class DialogTest : public testing::Test {
 protected:
  DialogTest() {
    host_.SetIdle([this] { return clock_.AdvanceToNextTick(); });
  }

  int Id(Form& form, std::string_view name, int index = -1) { return form.Find(name, index).Id(); }
  void Click(Form& form, std::string_view name, int index = -1) {
    user_.Click(form.Handle(), Id(form, name, index));
  }
  void Press(Form& form, int key, unsigned shift = kNoShift) {
    user_.PressKey(form.Handle(), key, shift);
  }
  std::string Text(Form& form, std::string_view name, int index = -1) {
    return user_.Text(form.Handle(), Id(form, name, index));
  }
  bool Shown(Form& form, std::string_view name, int index = -1) {
    return user_.IsShown(form.Handle(), Id(form, name, index));
  }
  const ControlState& Look(Form& form, std::string_view name, int index = -1) {
    return user_.Look(form.Handle(), Id(form, name, index));
  }
  /// Name of the control with the focus.
  std::string Focus(Form& form) {
    const int control = user_.Focus(form.Handle());
    return control == 0 ? "" : form.ById(control).Name();
  }

  CallLog log_;
  FakeClock clock_;
  FakeDesktop desktop_{log_};
  DesktopBridge windows_{desktop_.Windows(), 1};
  HeadlessFormHost host_{windows_, log_};
  HeadlessUser user_{host_, clock_};
  FormCollection forms_{host_, host_, host_, clock_};
  Suspension suspension_;
  bool alwaysOnTop_ = false;
  PreviousWindow previous_;
  FakeMainWindow mainWindow_;
  FakeMessageBoxes messages_;
  OptionsHolder options_;
  MenuItem windowMenu_;
  Desktop routines_{
      {desktop_, desktop_, host_, mainWindow_, forms_, messages_, previous_, desktop_},
      clock_,
      options_,
      windowMenu_};
  FormDisplay display_{forms_, routines_, suspension_, alwaysOnTop_};
};

}  // namespace korvale

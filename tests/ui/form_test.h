#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/contract/contract_form.h"
#include "tests/fakes/headless_user.h"
#include "tests/fakes/plain_desktop.h"

namespace korvale {

/// The program's forms alone on a screen, and a user.
class FormTest : public testing::Test {
 protected:
  using Lines = std::vector<std::string>;

  static int Id(Form& form, std::string_view name, int index = -1) {
    return form.Find(name, index).Id();
  }
  void Click(Form& form, std::string_view name, int index = -1) {
    user_.Click(form.Handle(), Id(form, name, index));
  }
  void Press(Form& form, int virtualKey, unsigned shift = kNoShift) {
    user_.PressKey(form.Handle(), virtualKey, shift);
  }
  const ControlState& Look(Form& form, std::string_view name, int index = -1) {
    return user_.Look(form.Handle(), Id(form, name, index));
  }
  std::string Focus(Form& form) {
    const int id = user_.Focus(form.Handle());
    return id == 0 ? "" : form.ById(id).Name();
  }

  CallLog log_;
  PlainDesktop desktop_;
  FakeClock clock_;
  HeadlessFormHost host_{desktop_, log_};
  HeadlessUser user_{host_, clock_};
  FormCollection forms_{host_, host_, host_, clock_};
  RecordingForm form_{kContractDesign, forms_};
};

/// A form without controls.
inline FormDesign Bare(const char* name) {
  return {.name = name, .caption = name, .place = {150, 150, 3000, 1500}};
}

}  // namespace korvale

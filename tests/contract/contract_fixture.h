#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/win32_constants.h"
#include "tests/contract/contract_form.h"
#include "tests/contract/user_hands.h"

namespace korvale {

/// A few words in each of many scripts, with marks, joiners and characters of other planes.
inline constexpr const char* kEveryScript[] = {"cafe\u0301 ệ",
                                               "Ωμέγα",
                                               "Работа",
                                               "ספר שָׁל",
                                               "كتاب مُ",
                                               "हिन्दी क्षि",
                                               "ภาษาไทย น้ำ",
                                               "தமிழ்",
                                               "會計𠮷",
                                               "日本か\u3099",
                                               "한글\u1112\u1161\u11ab",
                                               "ქართული",
                                               "Հայ",
                                               "አማርኛ",
                                               "👨‍👩‍👧🇩🇪👍🏽"};

/// One host, a form with every kind of control and two dialogs.
class FormHostContract : public testing::Test {
 protected:
  using Lines = std::vector<std::string>;

  FormHost& Host() { return under_->Host(); }
  MessageLoop& Loop() { return under_->Loop(); }
  ScreenQueries& Screen() { return under_->Screen(); }
  SystemDialogs& Dialogs() { return under_->Dialogs(); }
  UserHands& User() { return under_->User(); }
  WindowHandle Window() const { return form_.Handle(); }
  int Id(std::string_view name, int index = -1) { return form_.Find(name, index).Id(); }

  /// Shows the form with three sizes and three places in its lists and two tabs.
  void ShowForm() {
    form_.Load();
    for (const char* const size : {"Small", "Medium", "Large"}) form_.Find("cboSize").AddItem(size);
    for (const char* const place : {"Here", "There"}) form_.Find("cboPlace").AddItem(place);
    for (const char* const tab : {"One", "Two"}) form_.Find("tabPages").AddItem(tab);
    form_.Show();
    form_.Take();
  }

  void Click(std::string_view name, int index = -1) { User().Click(Window(), Id(name, index)); }
  void Press(int virtualKey, unsigned shift = kNoShift) {
    User().PressKey(Window(), virtualKey, shift);
  }
  void Type(std::string_view text) { User().TypeText(Window(), text); }
  void TypeWithAlt(std::string_view text) { User().TypeText(Window(), text, true); }
  std::string Text(std::string_view name) { return User().Text(Window(), Id(name)); }
  int Value(std::string_view name, int index = -1) {
    return User().Value(Window(), Id(name, index));
  }
  /// Name of the control that has the focus.
  std::string Focus() {
    const int id = User().Focus(Window());
    return id == 0 ? "" : form_.ById(id).Name();
  }
  void FocusOn(std::string_view name, int index = -1) { form_.Find(name, index).SetFocus(); }

  std::unique_ptr<HostUnderTest> under_ = MakeHostUnderTest();
  FormCollection forms_{Host(), Loop(), Screen(), under_->Timers()};
  RecordingForm form_{kContractDesign, forms_};
  RecordingForm dialog_{DialogDesign("frmDialog"), forms_};
  RecordingForm inner_{DialogDesign("frmInner"), forms_};
  RecordingForm strip_{kStripDesign, forms_};
};

/// The same with the form before the user.
class ShownFormContract : public FormHostContract {
 protected:
  ShownFormContract() { ShowForm(); }
};

}  // namespace korvale

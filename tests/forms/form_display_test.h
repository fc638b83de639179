#pragma once

#include <functional>
#include <string>

#include "forms/form_display.h"
#include "tests/forms/dialog_test.h"

namespace korvale {

inline constexpr ControlRow kSmallDialogControls[] = {
    {ControlKind::kButton, "cmdOK", -1, "OK", "", {60, 60, 1000, 300}},
};

inline constexpr FormDesign kDialogDesign = {.name = "frmDialog",
                                             .caption = "Dialog",
                                             .place = {0, 0, 3000, 2000},
                                             .controls = kSmallDialogControls};
inline constexpr FormDesign kSecondDesign = {.name = "frmSecond",
                                             .caption = "Second",
                                             .place = {0, 0, 1000, 1000},
                                             .controls = kSmallDialogControls};
inline constexpr FormDesign kOwnerDesign = {.name = "frmOwner",
                                            .caption = "Owner",
                                            .place = {6000, 4000, 4000, 3000},
                                            .border = BorderStyle::kSizable,
                                            .minimizeBox = true,
                                            .controls = kSmallDialogControls};

class Dialog : public Form {
 public:
  Dialog(const FormDesign& design, FormCollection& forms) : Form(design, forms) {
    WhenClicked("cmdOK", [this](int) {
      SetTag("OK");
      Unload();
    });
  }

  std::function<void()> whenActivated;

 protected:
  void Form_Activate() override {
    if (whenActivated) whenActivated();
  }
};

class FormDisplayTest : public DialogTest {
 protected:
  std::string ShowDialogModal(const PlaceHints& hints = {}, Form* owner = nullptr,
                              const DisplaySwitches& switches = {}) {
    return display_.ShowFormModal(dialog_, switches, 1000, hints, owner);
  }
  /// Shows the dialog modally; the user closes it after this.
  void WhileShown(const std::function<void(Form&)>& action) {
    host_.WhenModal("frmDialog", [&](Form& form) {
      action(form);
      form.Unload();
    });
    ShowDialogModal();
  }
  /// Shows the dialog modally and returns where it was.
  TwipsRect PlaceWhenShown(const PlaceHints& hints = {}, Form* owner = nullptr,
                           const DisplaySwitches& switches = {}) {
    TwipsRect place;
    host_.WhenModal("frmDialog", [&](Form& form) {
      place = user_.Place(form.Handle());
      form.Unload();
    });
    ShowDialogModal(hints, owner, switches);
    return place;
  }

  Dialog dialog_{kDialogDesign, forms_};
  Dialog second_{kSecondDesign, forms_};
  Dialog owner_{kOwnerDesign, forms_};
};

}  // namespace korvale

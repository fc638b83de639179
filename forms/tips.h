#pragma once

#include <cstdint>
#include <string>

#include "forms/form_display.h"
#include "forms/msg_tip_form.h"
#include "hotkeys/tip_number.h"

namespace korvale {

/// Shows tips that the user can silence one by one or all together.
class Tips {
 public:
  /// `displayTips` and `hiddenTips` are the live settings DisplayTips and Tips.
  Tips(frmMsgTip& form, FormDisplay& display, const bool& displayTips, std::string& hiddenTips);

  /// Shows a tip unless it is silenced. `title` "NO_TITLE" = no caption, "" = the application
  /// title, any other is put before it. `height` in twips, at least 2400.
  void ShowTip(TipNumber number, const std::string& text, const std::string& title,
               std::int16_t height, const PlaceHints& hints, Form* owner);

 private:
  frmMsgTip* form_;
  FormDisplay* display_;
  const bool* displayTips_;
  std::string* hiddenTips_;
};

}  // namespace korvale

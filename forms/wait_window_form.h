#pragma once

#include <cstdint>
#include <string>

#include "forms/form_display.h"
#include "ui/form.h"

namespace korvale {

/// A text that disappears by itself and never takes the keyboard focus.
class frmWaitWindow : public Form {
 public:
  frmWaitWindow(FormCollection& forms, FormDisplay& display);
  ~frmWaitWindow() override;

  /// Shows the text and returns when the time is up or the user has closed the window. Hot keys are
  /// suspended meanwhile. A text that is still shown is replaced by the new one.
  void ShowWaitWindow(const std::string& caption, const std::string& text,
                      std::uint32_t milliseconds);

 private:
  void tmrWait_Timer();

  FormDisplay* display_;
};

}  // namespace korvale

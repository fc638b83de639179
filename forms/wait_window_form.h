#pragma once

#include <cstdint>
#include <string>

#include "forms/form.h"
#include "forms/form_display.h"
#include "hotkeys/suspension.h"

namespace korvale {

/// A text that goes away by itself.
class frmWaitWindow : public Form {
 public:
  frmWaitWindow(FormCollection& forms, FormDisplay& display, const Suspension& suspension);

  /// Shows the text and returns when the time is over or the user has closed the window. Hot keys
  /// are suspended meanwhile. Stays as long as a message box is shown, which belongs to it.
  void ShowWaitWindow(const std::string& caption, const std::string& text,
                      std::uint32_t milliseconds);

 protected:
  void Form_KeyDown(int& key, unsigned shift) override;

 private:
  void tmrWait_Timer();

  FormDisplay* display_;
  const Suspension* suspension_;
};

}  // namespace korvale

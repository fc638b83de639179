#pragma once

#include <cstdint>
#include <string>

#include "forms/form.h"
#include "forms/form_display.h"

namespace korvale {

/// A text that goes away by itself.
class frmWaitWindow : public Form {
 public:
  frmWaitWindow(FormCollection& forms, FormDisplay& display);

  /// Shows the text and returns when the time is over or the user has closed the window. Hot keys
  /// are suspended meanwhile.
  void ShowWaitWindow(const std::string& caption, const std::string& text,
                      std::uint32_t milliseconds);

 protected:
  void Form_KeyDown(int& key, unsigned shift) override;

 private:
  FormDisplay* display_;
};

}  // namespace korvale

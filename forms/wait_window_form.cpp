#include "forms/wait_window_form.h"

#include "platform/win32_constants.h"

namespace korvale {
namespace {

using enum ControlKind;

constexpr ControlRow kWaitControls[] = {
    {kLabel,
     "lblMessage",
     -1,
     "",
     "",
     {150, 360, 4410, 270},
     "",
     -1,
     kCentered | kWordWrap | kNoPrefix},
    {kTimer, "tmrWait", -1, "", "", {}, "", -1, kDisabled},
};

constexpr FormDesign kDesign = {
    .name = "frmWaitWindow", .caption = "", .place = {0, 0, 4800, 1450}, .controls = kWaitControls};

}  // namespace

frmWaitWindow::frmWaitWindow(FormCollection& forms, FormDisplay& display,
                             const Suspension& suspension)
    : Form(kDesign, forms), display_(&display), suspension_(&suspension) {
  WhenClicked("tmrWait", [this](int) { tmrWait_Timer(); });
}

void frmWaitWindow::ShowWaitWindow(const std::string& caption, const std::string& text,
                                   std::uint32_t milliseconds) {
  Load();
  SetCaption(caption);
  Find("lblMessage").SetText(text);
  Control& tmrWait = Find("tmrWait");
  tmrWait.SetInterval(milliseconds);
  tmrWait.SetEnabled(true);
  display_->ShowFormModal(*this, {}, kForegroundWait, {}, nullptr);
}

void frmWaitWindow::Form_KeyDown(int& key, unsigned shift) {
  const bool closes =
      (key == win32::kVkEscape && shift == kNoShift) || (key == win32::kVkF4 && shift == kAlt);
  if (!closes) return;
  key = 0;
  Unload();
}

void frmWaitWindow::tmrWait_Timer() {
  // Windows would take the message box away together with its owner, unread.
  if (!suspension_->MessageBoxShown) Unload();
}

}  // namespace korvale

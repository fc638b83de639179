#include "forms/wait_window_form.h"

namespace korvale {
namespace {

using enum ControlKind;

constexpr ControlRow kWaitControls[] = {
    MakeRow(kLabel, "lblMessage", -1, "", "", {150, 360, 4410, 270},
            kCentered | kWordWrap | kNoPrefix),
    MakeRow(kTimer, "tmrWait", -1, "", "", {}, kDisabled),
};

constexpr FormDesign kWaitWindowDesign = {.name = "frmWaitWindow",
                                          .caption = "",
                                          .place = {0, 0, 4800, 1450},
                                          .aside = true,
                                          .role = FormRole::kAlert,
                                          .controls = kWaitControls};

}  // namespace

frmWaitWindow::frmWaitWindow(FormCollection& forms, FormDisplay& display)
    : Form(kWaitWindowDesign, forms), display_(&display) {
  WhenClicked("tmrWait", [this](int) { tmrWait_Timer(); });
}

frmWaitWindow::~frmWaitWindow() = default;

void frmWaitWindow::ShowWaitWindow(const std::string& caption, const std::string& text,
                                   std::uint32_t milliseconds) {
  Load();
  SetCaption(caption);
  Find("lblMessage").SetText(text);
  Control& tmrWait = Find("tmrWait");
  tmrWait.SetInterval(milliseconds);
  tmrWait.SetEnabled(true);
  display_->ShowFormAside(*this);
}

void frmWaitWindow::tmrWait_Timer() { Unload(); }

}  // namespace korvale

#include "forms/main_form.h"
#include "ui/readable_colors.h"

namespace korvale {

namespace {

constexpr std::int16_t kCustomizeColorsTipHeight = 3400;

}  // namespace

void frmMain::ApplyColors() {
  const auto paint = [this](const char* name, Color chosen) {
    const TextColors colors =
        OnChosenColor(Collection().Screen(), chosen, {kWindowColor, kWindowTextColor});
    Control& field = Find(name);
    field.SetBackColor(colors.back);
    field.SetForeColor(colors.text);
  };
  paint("txtWindow", parts_.startup.WI1BackColor);
  paint("txtWindowClass", parts_.startup.WI2BackColor);
}

void frmMain::Form_SysColorChange() { ApplyColors(); }

void frmMain::SetMousePointer(MousePointer pointer) {
  pointer_ = pointer;
  platform_->input.SetCursor(pointer);
}

void frmMain::mnuViewCustomizeColors_Click() {
  customizing_.Toggle();
  if (customizing_.On()) {
    ShowTip(TipNumber::kCustomizeColors,
            "To change the color of a Target Window/Class Label;  position the mouse over the "
            "Label, when the cursor has changed to a 'C' (the letter C within a black circle), "
            "click on the Label to change it's color.  To change the second Label to the same "
            "color, simply hold down the Alt key while clicking on the Label (Alt+Click).  When "
            "finished customizing colors, reselect this menu option to return the mouse cursor to "
            "normal.",
            "TIP", kCustomizeColorsTipHeight);
  }
  RefreshMenus("mnuViewCustomizeColors");
}

}  // namespace korvale

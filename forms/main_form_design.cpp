#include "forms/main_form_design.h"

#include <array>

#include "app/core/form_names.h"
#include "app/core/startup_settings.h"

namespace korvale {

namespace {

/// What a screen reader calls the text box that follows; nobody sees it.
constexpr ControlRow NameOfNext(const char* name, const char* text) {
  return MakeRow(ControlKind::kLabel, name, -1, text, "", {}, kHidden | kNoPrefix);
}

/// Until the fields are given the width of the window.
constexpr Twips kTitleWidth = 2600;

constexpr auto kStripControls = std::to_array<ControlRow>({
    NameOfNext("lblWindow", "Target Window"),
    MakeRow(ControlKind::kTextBox, "txtWindow", -1, "", " Target Window ",
            {kFieldMargin, kFieldMargin, kTitleWidth, kFieldHeight}, kReadOnly,
            kDefaultTargetColor),
    NameOfNext("lblWindowClass", "Class of Target Window"),
    MakeRow(ControlKind::kTextBox, "txtWindowClass", -1, "", " Class of Target Window ",
            {2 * kFieldMargin + kTitleWidth, kFieldMargin, 1600, kFieldHeight}, kReadOnly,
            kDefaultClassColor),
    MakeRow(ControlKind::kTimer, "tmrWindow", -1, "", "", {}, kDisabled),
});

constexpr auto kMenus = std::to_array<MenuRow>({
    {0, "mnuFile", -1, "&File"},
    {1, "mnuFileExit", -1, "E&xit"},
    {0, "mnuView", -1, "&View"},
    {1, "mnuViewMenu", -1, "&Menu"},
    {1, "mnuViewWindowInfo", -1, "&Target Window"},
    {1, "mnuViewSpace10", -1, "-"},
    {1, "mnuViewCustomizeColors", -1, "&Customize Colors - C"},
    {1, "mnuViewDefaultSettings", -1, "&Default Settings"},
    {2, "mnuViewDefaultSettingsWindowInfoColor", -1, "&Target Window/Class Colors"},
    {1, "mnuViewSpace20", -1, "-"},
    {1, "mnuViewOptions", -1, "O&ptions..."},
    {0, "mnuTools", -1, "&Tools"},
    {1, "mnuToolsToggleHotKeys", -1, "Deactivate &Hot Keys"},
    {1, "mnuToolsOptions", -1, "&Options..."},
    {0, "mnuWindow", -1, "&Window"},
    {1, "mnuWindowAlwaysOnTop", -1, "Korvale  Always &On Top"},
    {1, "mnuWindowPreviousWindowAlwaysOnTop", -1, ""},
    {1, "mnuWindowSpace20", -1, "-"},
    {1, "mnuWindowMinimizeAll", -1, "&Minimize All"},
    {1, "mnuWindowRestoreAll", -1, "&Restore All"},
    {1, "mnuWindowSpace30", -1, "-"},
    {1, "mnuWindowParentList", 0, ""},
    {1, "mnuWindowChildList", -1, ""},
    {1, "mnuWindowSpace40", -1, "-"},
    {1, "mnuWindowAddToList", kAddThisWindow, "Add  Korvale  to Window men&u..."},
    {1, "mnuWindowAddToList", kAddPreviousWindow, ""},
    {0, "mnuHelp", -1, "&Help"},
    {1, "mnuHelpDisplayTips", -1, "&Display Tip Messages"},
    {1, "mnuHelpSpace10", -1, "-"},
    {1, "mnuHelpHelp", -1, "web:  &Help"},
    {1, "mnuHelpHomePage", -1, "web:  Korvale Home &Page"},
    {1, "mnuHelpReadme", -1, "web:  &Readme"},
    {1, "mnuHelpSpace20", -1, "-"},
    {1, "mnuHelpAbout", -1, "&About Korvale"},
});

}  // namespace

FormDesign MainFormDesign() {
  FormDesign design{kMainForm, "", {3000, 1500, 4500, 1100}};
  design.border = BorderStyle::kSizable;
  design.minimizeBox = true;
  design.maximizeBox = true;
  design.modalFrame = false;
  design.inTaskbar = true;
  design.countsRealFrame = true;
  design.role = FormRole::kWindow;
  design.controls = kStripControls;
  design.menu = kMenus;
  return design;
}

}  // namespace korvale

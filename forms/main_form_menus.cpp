#include "forms/main_form.h"
#include "forms/main_form_design.h"
#include "platform/win32_constants.h"
#include "util/forms.h"
#include "util/system.h"

namespace korvale {

namespace {

/// The home page that ships beside the executable.
constexpr const char* kHomePage = "web\\index.html";

constexpr const char* kOptionsForm = "frmOptions";

/// Menu bar entries; the hidden menu takes them away and Alt+letter brings them back.
constexpr const char* kTopLevelMenus[] = {"mnuFile", "mnuView", "mnuTools", "mnuWindow", "mnuHelp"};

}  // namespace

void frmMain::BindMenus() {
  WhenMenuClicked("mnuFileExit", [this](int) { mnuFileExit_Click(); });
  WhenMenuClicked("mnuViewMenu", [this](int) { mnuViewMenu_Click(); });
  WhenMenuClicked("mnuViewWindowInfo", [this](int) { mnuViewWindowInfo_Click(); });
  WhenMenuClicked("mnuViewDefaultSettingsWindowInfoColor",
                  [this](int) { mnuViewDefaultSettingsWindowInfoColor_Click(); });
  WhenMenuClicked("mnuViewOptions", [this](int) { mnuToolsOptions_Click(); });
  WhenMenuOpens("mnuTools", [this](int) { RefreshToggleCaption(); });
  WhenMenuClicked("mnuToolsToggleHotKeys", [this](int) { mnuToolsToggleHotKeys_Click(); });
  WhenMenuClicked("mnuToolsOptions", [this](int) { mnuToolsOptions_Click(); });
  WhenMenuClicked("mnuHelpDisplayTips", [this](int) { mnuHelpDisplayTips_Click(); });
  WhenMenuClicked("mnuHelpHomePage", [this](int) { mnuHelpHomePage_Click(); });
  WhenMenuClicked("mnuHelpAbout", [this](int) { mnuHelpAbout_Click(); });
}

void frmMain::BindWindowMenu() {
  WhenMenuOpens("mnuWindow", [this](int) { windowMenu_.mnuWindow_Click(); });
  WhenMenuClicked("mnuWindowAlwaysOnTop",
                  [this](int) { windowMenu_.mnuWindowAlwaysOnTop_Click(); });
  WhenMenuClicked("mnuWindowPreviousWindowAlwaysOnTop",
                  [this](int) { windowMenu_.mnuWindowPreviousWindowAlwaysOnTop_Click(); });
  WhenMenuClicked("mnuWindowMinimizeAll",
                  [this](int) { windowMenu_.mnuWindowMinimizeAll_Click(); });
  WhenMenuClicked("mnuWindowRestoreAll", [this](int) { windowMenu_.mnuWindowRestoreAll_Click(); });
  WhenMenuClicked("mnuWindowParentList", [this](int index) {
    windowMenu_.mnuWindowParentList_Click(static_cast<std::int16_t>(index));
  });
  WhenMenuClicked("mnuWindowAddToList", [this](int index) {
    windowMenu_.mnuWindowAddToList_Click(static_cast<std::int16_t>(index));
  });
}

void frmMain::RefreshMenus(std::string_view source) {
  const bool fromMenu = source.starts_with("mnu");
  const bool shown = source == "Form_KeyDown" || parts_.startup.Menu;
  if (source != "Form_KeyDown") {
    Menu("mnuViewMenu").checked = parts_.startup.Menu;
  }
  Menu("mnuViewWindowInfo").checked = parts_.startup.WindowInfo;
  Menu("mnuHelpDisplayTips").checked = parts_.startup.DisplayTips;
  for (const char* name : kTopLevelMenus) {
    Menu(name).visible = shown;
  }
  SetMenuShown(shown);
  // A command can end while the program has already been taken down, with everything saved.
  if (fromMenu && !unloaded_) {
    udmSaveINI();
  }
}

void frmMain::mnuFileExit_Click() { Unload(); }

void frmMain::mnuToolsToggleHotKeys_Click() {
  parts_.toggle.ToggleHotKeys(kToggleFromMenu);
  RefreshMenus("mnu");
}

void frmMain::RefreshToggleCaption() {
  Menu("mnuToolsToggleHotKeys").caption =
      parts_.hotKeys.HotKeysActive() ? "Deactivate &Hot Keys" : "Activate &Hot Keys";
}

void frmMain::mnuToolsOptions_Click() {
  if (IsFormLoaded(Collection(), kOptionsForm)) {
    BringOptionsToFront();
  } else {
    udmOptions("LOAD_AND_OR_REFRESH");
  }
  RefreshMenus("mnu");
}

void frmMain::mnuHelpAbout_Click() {
  RefreshMenus("mnu");
  about_.ShowAbout(*this, parts_.display);
}

void frmMain::OpenHomePage() {
  OpenDocument(platform_->system, Handle(), parts_.identity.programFolder + kHomePage);
}

void frmMain::mnuHelpHomePage_Click() {
  OpenHomePage();
  RefreshMenus("mnu");
}

void frmMain::mnuHelpDisplayTips_Click() {
  StartupSettings& startup = parts_.startup;
  startup.DisplayTips = !startup.DisplayTips;
  if (startup.DisplayTips) {
    parts_.state.lastAnswer = parts_.messages.ShowMessageBox(
        "Tip Messages are now set to be displayed.\r\rDo you want to Reset Tip Messages (show all "
        "messages that you have previously chosen not to show) ?",
        win32::kMbYesNo | win32::kMbDefButton2, parts_.identity.messageTitle);
    if (parts_.state.lastAnswer == win32::kIdYes) {
      startup.Tips.clear();
    }
  }
  RefreshMenus("mnu");
}

}  // namespace korvale

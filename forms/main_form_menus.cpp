#include <algorithm>
#include <utility>

#include "app/core/form_names.h"
#include "forms/main_form.h"
#include "platform/win32_constants.h"
#include "ui/menu_width.h"
#include "util/forms.h"
#include "util/system.h"
#include "util/text.h"

namespace korvale {

namespace {

/// Menu bar entries; the hidden menu takes them away and Alt+letter brings them back.
constexpr const char* kTopLevelMenus[] = {"mnuFile", "mnuView", "mnuTools", "mnuWindow", "mnuHelp"};

/// Menu commands during which Customize Colors stays on.
constexpr std::string_view kCustomizingGoesOn[] = {
    "mnuViewRemoveIndividualButtons", "mnuViewCustomizeColors", "mnuViewColorCodedButtons_SPECIAL"};

}  // namespace

void frmMain::BindMenus() {
  WhenMenuClicked("mnuFileExit", [this](int) { mnuFileExit_Click(); });
  WhenMenuClicked("mnuViewMenu", [this](int) { mnuViewMenu_Click(); });
  WhenMenuClicked("mnuViewWindowInfo", [this](int) { mnuViewWindowInfo_Click(); });
  WhenMenuClicked("mnuViewCustomizeColors", [this](int) { mnuViewCustomizeColors_Click(); });
  WhenMenuClicked("mnuViewDefaultSettingsWindowInfoColor",
                  [this](int) { mnuViewDefaultSettingsWindowInfoColor_Click(); });
  WhenMenuClicked("mnuViewOptions", [this](int) { mnuToolsOptions_Click(); });
  WhenMenuOpens("mnuTools", [this](int) { RefreshToggleCaption(); });
  WhenMenuClicked("mnuToolsToggleHotKeys", [this](int) { mnuToolsToggleHotKeys_Click(); });
  WhenMenuClicked("mnuToolsOptions", [this](int) { mnuToolsOptions_Click(); });
  WhenMenuClicked("mnuHelpDisplayTips", [this](int) { mnuHelpDisplayTips_Click(); });
  WhenMenuClicked("mnuHelpHelp", [this](int) { mnuHelpWeb_Click(WebPage::kHelp); });
  WhenMenuClicked("mnuHelpHomePage", [this](int) { mnuHelpWeb_Click(WebPage::kHome); });
  WhenMenuClicked("mnuHelpReadme", [this](int) { mnuHelpWeb_Click(WebPage::kReadme); });
  WhenMenuClicked("mnuHelpAbout", [this](int) { mnuHelpAbout_Click(); });
  about_.SetWebSite(WebPageAddress(kWebBase, WebPage::kHome, ""),
                    [this] { OpenWebPage(WebPage::kHome); });
}

void frmMain::BindWindowMenu() {
  Menu("mnuWindowParentList", 0).caption = TagCaption(0, "Previous Window");
  WhenMenuOpens("mnuWindow", [this](int) {
    windowMenu_.mnuWindow_Click();
    FitMenuToScreen(platform_->screen, Handle(), Menu("mnuWindow"));
  });
  BindCommand("mnuWindowAlwaysOnTop", [this](int) { windowMenu_.mnuWindowAlwaysOnTop_Click(); });
  BindCommand("mnuWindowPreviousWindowAlwaysOnTop",
              [this](int) { windowMenu_.mnuWindowPreviousWindowAlwaysOnTop_Click(); });
  BindCommand("mnuWindowMinimizeAll", [this](int) { windowMenu_.mnuWindowMinimizeAll_Click(); });
  BindCommand("mnuWindowRestoreAll", [this](int) { windowMenu_.mnuWindowRestoreAll_Click(); });
  BindCommand("mnuWindowParentList", [this](int index) {
    windowMenu_.mnuWindowParentList_Click(static_cast<std::int16_t>(index));
  });
  BindCommand("mnuWindowAddToList", [this](int index) {
    windowMenu_.mnuWindowAddToList_Click(static_cast<std::int16_t>(index));
  });
}

void frmMain::BindCommand(std::string_view name, Handler command) {
  WhenMenuClicked(name, [this, command = std::move(command)](int index) {
    try {
      command(index);
    } catch (...) {
      RefreshMenus("mnu");
      throw;
    }
    RefreshMenus("mnu");
  });
}

void frmMain::RefreshMenus(std::string_view source) {
  const bool fromMenu = source.starts_with("mnu");
  if (fromMenu && std::ranges::find(kCustomizingGoesOn, source) == std::end(kCustomizingGoesOn)) {
    customizing_.End();
  }
  const bool fromKeyboard = Trim(source) == "Form_KeyDown";
  if (!fromKeyboard) Menu("mnuViewMenu").checked = parts_.startup.Menu;
  Menu("mnuViewWindowInfo").checked = parts_.startup.WindowInfo;
  Menu("mnuHelpDisplayTips").checked = parts_.startup.DisplayTips;
  ShowTopLevelMenus(fromKeyboard || parts_.startup.Menu);
  // A command can end while the program has already been taken down, with everything saved.
  if (fromMenu && !unloaded_ && !HoldsINI()) SaveOrTellOnce([this] { udmSaveINI(); });
}

void frmMain::ShowTopLevelMenus(bool shown) {
  for (const char* name : kTopLevelMenus) Menu(name).visible = shown;
  if (State().menuShown == shown) return;
  SetMenuShown(shown);
  // The window grows or shrinks by the bar.
  Form_Resize();
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
  // The session may end while a message is shown.
  if (!IsLoaded()) return;
  about_.ShowAbout(*this, parts_.display);
}

void frmMain::OpenWebPage(WebPage page) {
  OpenDocument(platform_->system, Handle(),
               WebPageAddress(kWebBase, page, parts_.identity.programFolder));
}

void frmMain::mnuHelpWeb_Click(WebPage page) {
  OpenWebPage(page);
  RefreshMenus("mnu");
}

void frmMain::mnuHelpDisplayTips_Click() {
  StartupSettings& startup = parts_.startup;
  startup.DisplayTips = !startup.DisplayTips;
  if (startup.DisplayTips) {
    parts_.state.lastAnswer = parts_.messages.ShowMessageBox(
        "Tip Messages are now set to be displayed.\r\rDo you want to Reset Tip Messages (show all "
        "messages that you have previously chosen not to show) ?",
        win32::kMbYesNo | win32::kMbDefButton2, kProductName);
    if (parts_.state.lastAnswer == win32::kIdYes) startup.Tips.clear();
  }
  RefreshMenus("mnu");
}

}  // namespace korvale

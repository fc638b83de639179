#include "forms/main_form.h"

#include <utility>

#include "app/core/error_reports.h"
#include "app/core/save_scope.h"
#include "desktop/tag_list_storage.h"
#include "forms/main_form_design.h"
#include "hotkeys/hot_key_names.h"
#include "platform/run_time_error.h"

namespace korvale {

frmMain::frmMain(Platform& platform, FormCollection& forms, ProgramLifetime& lifetime)
    : Form(MainFormDesign(), forms),
      platform_(&platform),
      lifetime_(&lifetime),
      parts_(platform, forms, *this, Menu("mnuWindow"), *this, [this] { udmUnload(false); }),
      tipForm_(forms),
      waitForm_(forms, parts_.display),
      about_(forms, platform.clock, parts_.identity),
      addWindow_(forms, AddWindowContext{platform.windows, *this, parts_.previous,
                                         parts_.desktop.tags, addWindowMode_}),
      optionsForm_(forms, *this),
      tips_(tipForm_, parts_.display, parts_.startup.DisplayTips, parts_.startup.Tips),
      windowMenu_(parts_.desktop, *this, parts_.startup.AlwaysOnTop,
                  [this](AddWindowMode mode) { ShowAddWindow(mode); }) {
  BindMenus();
  BindWindowMenu();
  WhenClicked("tmrWindow", [this](int) { parts_.desktop.tracker.tmrWindow_Timer(); });
}

frmMain::~frmMain() = default;

void frmMain::Form_Load() {
  // Present in the menu, but nothing fills it.
  Menu("mnuWindowChildList").visible = false;
  try {
    lifetime_->Initialise(*this, parts_);
  } catch (...) {
    // Told while the window still exists: shutting down takes hot keys and hook from it.
    const std::string description = DescribeCaught();
    udmFatalError(ErrorPlace::kProgramEntry, CurrentErrorNumber(), {description, "", ""});
  }
}

void frmMain::Form_Activate() { lifetime_->FirstActivation(*this, parts_); }

void frmMain::Form_QueryUnload(bool& /*cancel*/, CloseReason reason) {
  endsUnattended_ = reason == CloseReason::kSession || reason == CloseReason::kTaskManager;
}

void frmMain::Form_Unload() {
  // A start-up that is cut short by the end of the session has nothing to save yet.
  udmUnload(parts_.state.startUpFinished);
  platform_->loop.PostQuitMessage();
}

void frmMain::udmUnload(bool booNormalShutDown) {
  if (std::exchange(unloaded_, true)) return;
  lifetime_->Unload(*this, parts_, booNormalShutDown);
}

void frmMain::udmLoadOptions() { parts_.settings.LoadOptions(parts_.options.Get()); }

void frmMain::udmSaveOptions() { parts_.settings.SaveOptions(parts_.options.Get()); }

void frmMain::udmDeleteOptions() {
  // A failed deletion stops nothing, but the user must not mistake old values for defaults.
  SaveOrTell([this] { parts_.settings.DeleteOptions(); });
}

void frmMain::udmSaveINI() {
  parts_.settings.SaveINI(parts_.startup, TagsToStore(parts_.desktop.tags));
}

bool frmMain::HoldsINI() const {
  return parts_.settings.HoldsINI(parts_.startup, TagsToStore(parts_.desktop.tags));
}

void frmMain::KeepINI() {
  parts_.settings.KeepINI(parts_.startup, TagsToStore(parts_.desktop.tags));
}

void frmMain::SaveOrTell() {
  SaveOrTell([this] {
    SaveScope save(parts_.settings);
    udmSaveOptions();
    udmSaveINI();
    save.Commit();
  });
}

void frmMain::SaveOrTell(const std::function<void()>& save) {
  const bool told = std::exchange(refusalTold_, false);
  SaveOrTellOnce(save);
  refusalTold_ = refusalTold_ || told;
}

void frmMain::SaveOrTellOnce(const std::function<void()>& save) {
  try {
    save();
  } catch (const ProgramEnded&) {
    throw;
  } catch (...) {
    if (std::exchange(refusalTold_, true)) return;
    udmNonFatalError(ErrorPlace::kSaving, CurrentErrorNumber());
  }
}

void frmMain::LoadStartupSettings() {
  parts_.startup = parts_.settings.LoadStartup();
  RestoreTagList(parts_.desktop.tags, parts_.settings.LoadTagList());
  KeepINI();
}

void frmMain::UseSettings(const InstallationSettings& settings) {
  parts_.options.Get() = settings.options;
  parts_.startup = settings.startup;
  RestoreTagList(parts_.desktop.tags, settings.tags);
}

void frmMain::udmNonFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber) {
  // A message would keep the session from ending.
  if (!endsUnattended_) parts_.errors.udmNonFatalError(intErrorNumber, intVB_ErrNumber);
}

void frmMain::udmFatalError(ErrorPlace intErrorNumber, std::int16_t intVB_ErrNumber,
                            const FatalErrorTexts& texts) {
  parts_.errors.udmFatalError(intErrorNumber, intVB_ErrNumber, texts);
}

void frmMain::ReadIdentity() { parts_.identity = ReadProgramIdentity(platform_->system); }

void frmMain::udmTimersEnabled(bool booTrueFalse) {
  for (Control& control : Controls()) {
    if (control.State().kind != ControlKind::kTimer) continue;
    if (booTrueFalse) {
      control.SetEnabled(control.Tag() == "ON");
    } else {
      // What stops the timers rarely takes as long as a tick.
      control.Pause();
    }
  }
}

void frmMain::ShowTargetWindow(const std::string& title, const std::string& className) {
  Find("txtWindow").SetText(title);
  Find("txtWindowClass").SetText(className);
}

void frmMain::EnablePreviousWindowItems(bool enabled) {
  Menu("mnuWindowPreviousWindowAlwaysOnTop").enabled = enabled;
  Menu("mnuWindowParentList", 0).enabled = enabled;
  Menu("mnuWindowAddToList", kAddPreviousWindow).enabled = enabled;
}

void frmMain::CheckAlwaysOnTop(bool checked) { Menu("mnuWindowAlwaysOnTop").checked = checked; }

void frmMain::CheckPreviousWindowAlwaysOnTop(bool checked) {
  Menu("mnuWindowPreviousWindowAlwaysOnTop").checked = checked;
}

WindowHandle frmMain::PopUpWindowMenu() {
  parts_.desktop.selection.selected = 0;
  platform_->dialogs.TrackPopupMenuEx(Handle(), Menu("mnuWindow"));
  return parts_.desktop.selection.selected;
}

void frmMain::SetWindowMenuTag(const std::string& tag) {
  Menu("mnuWindow").tag = tag;
  if (!WindowMenuPoppedUp()) parts_.desktop.tracker.PopUpClosed();
}

bool frmMain::WindowMenuPoppedUp() {
  return parts_.desktop.comesForMenu || Menu("mnuWindow").tag == kHotKeyWindowMenuPopup;
}

void frmMain::ShowTip(TipNumber number, const std::string& text, const std::string& title,
                      std::int16_t height) {
  tips_.ShowTip(number, text, title, height, {}, IsLoaded() ? this : nullptr);
}

void frmMain::ShowWaitWindow(const std::string& caption, const std::string& text,
                             std::uint32_t milliseconds) {
  waitForm_.ShowWaitWindow(caption, text, milliseconds);
}

void frmMain::ShowAddWindow(AddWindowMode mode) {
  addWindowMode_ = mode;
  addWindow_.Load();
  addWindow_.PrepareForWindowMenu();
  parts_.display.ShowFormModal(addWindow_, {}, kForegroundWait, {}, this);
}

}  // namespace korvale

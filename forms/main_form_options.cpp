#include "app/core/identity.h"
#include "desktop/foreground_return.h"
#include "forms/main_form.h"
#include "util/raised_flag.h"

namespace korvale {

void frmMain::udmOptions(const std::string& strMode) {
  clsOptions& record = parts_.options.Get();
  if (strMode == "UPDATE_OPTIONS") {
    optionsForm_.UpdateInto(record);
    return;
  }
  if (strMode != "LOAD_AND_OR_REFRESH") return;
  if (!optionsForm_.IsLoaded()) {
    // When the dialog closes, the user must be back where they are now.
    parts_.desktop.tracker.LookAtForeground();
    optionsForm_.Load();
    optionsForm_.SetCaption(std::string(kProductName) + " - Options");
    openOptions_ = &optionsForm_;
  }
  optionsForm_.LoadFrom(record);
  ShowOptions(optionsForm_);
}

void frmMain::BringOptionsToFront() {
  parts_.desktop.tracker.LookAtForeground();
  ShowOptions(*openOptions_);
}

void frmMain::ShowOptions(frmOptions& dialog) {
  const RequestResult shown = parts_.display.ShowFormNonModal(dialog, {}, this);
  if (shown == RequestResult::kDenied) parts_.desktop.actions.ReportFailure();
}

void frmMain::OptionsDialogClosed() {
  openOptions_ = nullptr;
  // Windows would bring the main window forward, which owns the dialog.
  ReturnForegroundTo(platform_->windows, parts_.desktop.requests,
                     parts_.desktop.tracker.WindowBehind(optionsForm_.Handle()));
  parts_.desktop.tracker.ForgetVisit(optionsForm_.Handle());
}

void frmMain::HotKeysRegistered() {
  if (openOptions_ != nullptr) openOptions_->RefreshConflictLine();
}

std::optional<Color> frmMain::udmShowColorPalette(Color initial) {
  CollectedForm* owner = Collection().TopModal();
  if (owner == nullptr) {
    owner = openOptions_ != nullptr ? static_cast<CollectedForm*>(openOptions_) : this;
  }
  std::optional<Color> chosen;
  const RaisedFlag shown(parts_.suspension.DialogShown);
  Collection().RunSystemDialog(
      *owner, [&] { chosen = platform_->dialogs.ChooseColorW(owner->Handle(), initial); });
  if (chosen) parts_.startup.LastColorSelected = *chosen;
  return chosen;
}

}  // namespace korvale

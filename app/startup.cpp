#include "app/startup.h"

#include "app/core/error_reporting.h"
#include "app/core/form_names.h"
#include "app/core/identity.h"
#include "app/core/installation.h"
#include "app/core/save_scope.h"
#include "desktop/seen_window.h"
#include "forms/hot_key_lists.h"
#include "platform/win32_constants.h"
#include "util/raised_flag.h"

namespace korvale {
namespace {

constexpr const char* kWhitespace = " \t\r\n\v\f";

constexpr std::int16_t kOtherInstanceTipHeight = 5400;
constexpr std::int16_t kCommandLineTipHeight = 2700;
constexpr std::int16_t kRefusedHotKeysTipHeight = 3600;

}  // namespace

void StartUp::Initialise(frmMain& form, MainParts& parts) {
  form.SetCaption(parts.identity.mainCaption);
  otherCopy_.WaitFor(parts.desktop, parts.identity);
  if (!RunInstallation(form, parts)) {
    form.LoadStartupSettings();
    form.udmLoadOptions();
  }
  const WindowHandles copies = otherCopy_.FindAll(parts.desktop);
  if (otherCopy_.GiveWay(parts.desktop, copies)) EndBeforeStart(form);
  MentionOtherInstallation(form, parts.desktop.enumeration, copies);
  EndIfUnloaded(form);
  MentionCommandLine(form);
  EndIfUnloaded(form);
  if (!parts.state.firstRun && parts.options.Get().booSplashScreen) {
    form.About().ShowSplash(parts.display);
  }
  LayOut(form, parts.startup.AlwaysOnTop, parts.desktop.requests);
  PrepareMenusAndTimers(form);
  parts.hook.HookWindowProc("SET", form.Handle());
  parts.hotKeys.SetHotKeys("SET");
  form.RefreshMenus("Form_Load");
  parts.state.startUpFinished = true;
  const bool unchanged = form.HoldsINI();
  form.Form_Resize();
  // A place that fits this screen is no change by the user; it is saved at the end.
  if (unchanged) form.KeepINI();
  if (parts.state.firstRun) SaveFirstRun(form, parts.settings);
  // Before the main window comes up, since the user may be taken to another window then.
  MentionRefusedHotKeys(form, parts.hotKeys);
  EndIfUnloaded(form);
}

/// The session may end while a message is shown, or another program may end this one.
void StartUp::EndIfUnloaded(frmMain& form) {
  if (platform_->loop.QuitPosted()) form.Unload(CloseReason::kTaskManager);
  if (!form.IsLoaded()) throw ProgramEnded{};
}

void StartUp::EndBeforeStart(frmMain& form) {
  form.udmUnload(false);
  throw ProgramEnded{};
}

/// True when the settings in use were taken over from another installation: they must not be
/// loaded, since the store may have refused some of them.
bool StartUp::RunInstallation(frmMain& form, MainParts& parts) {
  parts.options.Create();
  parts.settings.SetAppName(parts.identity.mainCaption);
  if (!otherCopy_.Alone()) {
    // The rule is for the copy that runs; this one is about to end.
    return false;
  }
  parts.settings.FinishInterruptedSave();
  const InstallationResult result =
      RunInstallationRule(parts.identity, parts.settings, platform_->system, parts.messages);
  // The session may end while the question is shown.
  if (!result.takeOverFrom.empty() && form.IsLoaded()) {
    form.SaveOrTellOnce([&] {
      SaveScope save(parts.settings);
      form.UseSettings(TakeOver(parts.settings, result.takeOverFrom));
      save.Commit();
    });
  }
  EndIfUnloaded(form);
  parts.state.firstRun = result.firstRun;
  parts.state.lastAnswer = result.lastAnswer;
  if (result.mustEnd) EndBeforeStart(form);
  return !result.takeOverFrom.empty();
}

void StartUp::MentionOtherInstallation(frmMain& form, const WindowEnumeration& enumeration,
                                       const WindowHandles& copies) {
  if (enumeration.FindByTitleAmong(copies, kProductName) == 0) return;
  form.ShowTip(TipNumber::kOtherInstance,
               "Another instance of Korvale is currently running.  More than one instance of "
               "Korvale can be run to select different sets of windows.  For example, you can use "
               "Alt+0-9 to select one set of windows, and Ctrl+0-9 for another.\r\rWhen assigning "
               "hot keys to the various operations listed on the Hot Keys tab of the Options "
               "dialog box, be careful to avoid/fix any conflicts with hot keys from another "
               "instance of Korvale (or other programs).  After changing hot keys, they have to "
               "be registered properly with the operating system.  This is done automatically "
               "when you save changes from the Options dialog box (by pressing OK or Apply).  If "
               "you fix hot key conflicts by making changes in another instance of Korvale (or "
               "another program) you may have to deactivate, then re-activate the hot keys in "
               "this instance of Korvale to get the once conflicting hot keys registered properly "
               "with the operating system.  This can be done by using Korvale' "
               "Activate/Deactivate Hot Keys feature, or simply by restarting Korvale.",
               "TIP", kOtherInstanceTipHeight);
}

void StartUp::MentionCommandLine(frmMain& form) {
  const std::string arguments = platform_->system.GetCommandLineA();
  if (arguments.find_first_not_of(kWhitespace) == std::string::npos) return;
  form.ShowTip(TipNumber::kCommandLine, "Korvale does not accept command line arguments.", "TIP",
               kCommandLineTipHeight);
}

void StartUp::LayOut(frmMain& form, bool onTop, WindowRequests& requests) {
  form.ApplyPlacement();
  form.CheckAlwaysOnTop(onTop);
  if (onTop) requests.SetTopmost(form.Handle(), true);
  form.ApplyColors();
}

void StartUp::SaveFirstRun(frmMain& form, Settings& settings) {
  form.SaveOrTellOnce([&] {
    SaveScope save(settings);
    form.udmSaveINI();
    form.udmSaveOptions();
    save.Commit();
  });
}

void StartUp::PrepareMenusAndTimers(frmMain& form) {
  form.EnablePreviousWindowItems(false);
  form.tmrWindow().SetInterval(kTrackingInterval);
  form.tmrWindow().SetEnabled(true);
  form.tmrWindow().SetTag("ON");
}

void StartUp::MentionRefusedHotKeys(frmMain& form, const HotKeyTable& hotKeys) {
  const std::string refused = NotAvailableText(hotKeys.Registered());
  if (refused.empty()) return;
  form.ShowTip(
      TipNumber::kHotKeysRefused,
      "These hot keys are not available, because Windows or another program has them:  " + refused +
          ".\r\rIf you wish, other hot keys can be chosen on the Hot Keys tab of the "
          "Options dialog box  (Options... on the Tools menu).",
      "TIP", kRefusedHotKeysTipHeight);
}

void StartUp::FirstActivation(frmMain& form, MainParts& parts) {
  if (parts.state.firstActivation || firstActivationRuns_ || !form.Visible()) return;
  // It has yet to come: the user stays where they are.
  if (form.WindowMenuPoppedUp()) return;
  const RaisedFlag runs(firstActivationRuns_);
  const bool minimized = form.WindowState() == ShowState::kMinimized;
  if (parts.startup.AlwaysOnTop && !minimized) {
    parts.desktop.requests.SetTopmost(form.Handle(), true);
  }
  RecordPreviousWindow(form, parts.desktop, parts.options.Get());
  if (parts.state.firstRun) AskToReviewHotKeys(form, parts);
  parts.state.firstActivation = true;
}

void StartUp::RecordPreviousWindow(frmMain& form, Desktop& desktop, const clsOptions& options) {
  const WindowHandle before = desktop.enumeration.FindTopWindow(
      [&](SeenWindow& window) { return desktop.tracker.IsAccepted(window); });
  SeenWindow seen(platform_->windows, before);
  if (before != 0) desktop.tracker.FollowIfAccepted(seen);
  // The user has come to the main window from another one, as if they had clicked it; not to a
  // minimized one.
  if (form.WindowState() != ShowState::kMinimized) desktop.tracker.LookAnew();
  // Timers pause while a Tag is selected: one that names the main window leads no further.
  const bool chosen = !form.tmrWindow().Enabled();
  if (before != 0 && options.booSelectPrevWinOnStart && !chosen) desktop.selection.SelectAtStart();
}

void StartUp::AskToReviewHotKeys(frmMain& form, MainParts& parts) {
  parts.state.lastAnswer = parts.messages.ShowMessageBox(
      "Korvale is installed with Hot Keys active.  It is recommended that you review the Hot Keys "
      "before getting started.\r\rDo you want to review the Hot Keys now ?",
      win32::kMbYesNo, std::string(kProductName) + " - CAUTION");
  // The session may end while the question is shown.
  if (parts.state.lastAnswer == win32::kIdYes && form.IsLoaded()) {
    parts.startup.OptionsTab = kHotKeysPage;
    form.udmOptions("LOAD_AND_OR_REFRESH");
  }
}

void StartUp::Unload(frmMain& form, MainParts& parts, bool booNormalShutDown) {
  if (booNormalShutDown) {
    form.udmTimersEnabled(false);
    form.SaveOrTellOnce([&] { form.udmSaveINI(); });
  }
  parts.desktop.tagPasses.RemoveClosed();
  parts.hotKeys.SetHotKeys("REMOVE");
  parts.hook.HookWindowProc("REMOVE", form.Handle());
  form.Collection().UnloadAllExcept(kMainForm);
  parts.options.Release();
}

}  // namespace korvale

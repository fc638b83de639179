#pragma once

#include "app/other_copy.h"
#include "forms/main_form.h"
#include "platform/platform.h"

namespace korvale {

/// Start-up, first activation and shutdown of the program.
class StartUp : public ProgramLifetime {
 public:
  explicit StartUp(Platform& platform) : platform_(&platform), otherCopy_(platform) {}

  void Initialise(frmMain& form, MainParts& parts) override;
  void FirstActivation(frmMain& form, MainParts& parts) override;
  void Unload(frmMain& form, MainParts& parts, bool booNormalShutDown) override;

 private:
  void EndIfUnloaded(frmMain& form);
  [[noreturn]] static void EndBeforeStart(frmMain& form);
  bool RunInstallation(frmMain& form, MainParts& parts);
  void MentionOtherInstallation(frmMain& form, const WindowEnumeration& enumeration,
                                const WindowHandles& copies);
  void MentionCommandLine(frmMain& form);
  static void LayOut(frmMain& form, bool onTop, WindowRequests& requests);
  static void SaveFirstRun(frmMain& form, Settings& settings);
  void PrepareMenusAndTimers(frmMain& form);
  static void MentionRefusedHotKeys(frmMain& form, const HotKeyTable& hotKeys);
  void RecordPreviousWindow(frmMain& form, Desktop& desktop, const clsOptions& options);
  void AskToReviewHotKeys(frmMain& form, MainParts& parts);

  Platform* platform_;
  OtherCopy otherCopy_;
  /// The first activation shows a question, during which the form is activated again.
  bool firstActivationRuns_ = false;
};

}  // namespace korvale

#pragma once

#include "app/other_copy.h"
#include "forms/main_form.h"
#include "platform/platform.h"

namespace korvale {

/// Start-up, first activation and shutdown of the program.
class StartUp : public ProgramLifetime {
 public:
  explicit StartUp(Platform& platform) : platform_(&platform), otherCopy_(platform) {}

  void Initialise(frmMain& form) override;
  void FirstActivation(frmMain& form) override;
  void Unload(frmMain& form, bool booNormalShutDown) override;

 private:
  void EndIfUnloaded(frmMain& form);
  void FixIdentity(frmMain& form);
  bool RunInstallation(frmMain& form);
  void MentionOtherInstallation(frmMain& form);
  void MentionCommandLine(frmMain& form);
  void ShowSplash(frmMain& form);
  void LayOut(frmMain& form);
  void PrepareMenusAndTimers(frmMain& form);
  void InstallHotKeys(frmMain& form);
  static void MentionRefusedHotKeys(frmMain& form);
  void RecordPreviousWindow(frmMain& form);
  void SelectPreviousWindow(frmMain& form);
  void AskToReviewHotKeys(frmMain& form);

  Platform* platform_;
  OtherCopy otherCopy_;
  /// The first activation shows a question, during which the form is activated again.
  bool firstActivationRuns_ = false;
};

}  // namespace korvale

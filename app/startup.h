#pragma once

#include <memory>
#include <string>

#include "app/core/instance_lock.h"
#include "forms/main_form.h"
#include "platform/platform.h"

namespace korvale {

/// Start-up, first activation and shutdown of the program.
class StartUp : public ProgramLifetime {
 public:
  explicit StartUp(Platform& platform) : platform_(&platform) {}

  void Initialise(frmMain& form) override;
  void FirstActivation(frmMain& form) override;
  void Unload(frmMain& form, bool booNormalShutDown) override;

 private:
  void EndIfUnloaded(frmMain& form);
  void FixIdentity(frmMain& form);
  void RunInstallation(frmMain& form);
  void RefuseSecondCopy(frmMain& form);
  WindowHandle FindOtherCopy(frmMain& form);
  std::uint32_t PatienceWithOtherCopy(frmMain& form);
  void BringForward(frmMain& form, WindowHandle other);
  void WaitForOtherCopy(frmMain& form);
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
  std::unique_ptr<InstanceLock> instanceLock_;
  /// No other copy of this installation runs or is about to.
  bool alone_ = false;
  /// The first activation shows a question, during which the form is activated again.
  bool firstActivationRuns_ = false;
};

}  // namespace korvale

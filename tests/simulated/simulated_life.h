#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "tests/program/dice.h"
#include "tests/program/kept.h"
#include "tests/program/korvale_world.h"
#include "tests/simulated/life_script.h"
#include "tests/simulated/simulated_programs.h"
#include "tests/simulated/simulated_steps.h"
#include "tests/simulated/worked_in.h"

namespace korvale {

/// What is told when Windows refuses something.
inline constexpr const char* kRefusal =
    "The window operation was not successful.  Please try again.";

/// A user who does anything at any time, with Korvale and with the programs around it, while
/// programs, Windows and disk misbehave. After each of their steps everything is checked that must
/// always hold.
class SimulatedLife : public KorvaleWorld {
 public:
  /// Something that is done after each step, such as to break a rule on purpose.
  using AfterStep = std::function<void(SimulatedLife&)>;

  explicit SimulatedLife(AfterStep afterStep = {}) : afterStep_(std::move(afterStep)) {}

  /// Lives through the steps, or until `failed` tells of a failed check.
  void Live(const LifeScript& script, const std::function<bool()>& failed);

  /// The row of the step at which the life ended early; nothing before the first step.
  std::optional<std::size_t> LastRow() const { return lastRow_; }
  int StepsTaken() const { return stepsTaken_; }
  /// How often each row of the table has really been taken.
  const std::vector<int>& Taken() const { return taken_; }
  /// What happened, in words.
  const std::vector<std::string>& Journal() const { return journal_; }
  /// The main window.
  WindowHandle Main() { return korvale_->Handle(); }

 private:
  friend const std::vector<SimulatedStep>& SimulatedSteps();

  /// What a selection may depend on, right before it.
  struct Before {
    int tag = 0;
    WindowHandle foreground = 0;
    /// Where the user works, 0 when that is not certain.
    WindowHandle present = 0;
    std::size_t boxes = 0;
    /// Windows refuses every change of the foreground.
    bool locked = false;
    /// The windows that the user knows whatever their titles say now.
    std::set<WindowHandle> known = {};
    /// The windows that nobody can bring to where the user is.
    std::set<WindowHandle> stuck = {};
  };
  /// Modifiers and key.
  using Combination = std::pair<std::uint32_t, std::uint32_t>;
  struct HotKey {
    std::string name;
    Combination combination;
  };

  void TestBody() override {}

  // simulated_life.cpp
  void TakeStep(const ScriptStep& step);
  void Note(std::string what);
  void StartKorvale();
  void SetUpScreen(HeadlessFormHost& host);
  void Forget(KorvaleCopy& copy);
  std::int16_t AnswerBox(const ShownMessage& box);
  void CheckBox(const ShownMessage& box);
  bool LiveInDialog();
  void UseAddWindow(Form& dialog);
  void CloseTip(Form& tip);
  void Meanwhile();
  void Wait(int milliseconds);

  // simulated_steps.cpp
  static std::vector<SimulatedStep> StepsOfTheUser();
  static std::vector<SimulatedStep> StepsOfPrograms();
  static std::vector<SimulatedStep> StepsOfWindows();
  static std::vector<SimulatedStep> AllSteps();
  template <std::string (SimulatedPrograms::*Act)()>
  void LetProgram();

  // user_steps.cpp
  std::optional<HotKey> Working(const std::string& name);
  void Press(const HotKey& hotKey);
  void PressTagKey();
  void PressTagKeyInSlowWindows();
  void PressHeldKey();
  void PressActionKey();
  WindowHandle SizableInFront(std::int32_t box);
  void PressToggleKey();
  void PopUpWindowMenu();
  std::string ChooseFromPopUp(const std::vector<ShownMenuItem>& items);
  bool LeadsOn();
  void GoToKorvale();
  void UseMenu(const std::vector<std::string>& path);
  std::string SomeEntry(const std::vector<ShownMenuItem>& items);
  void UseWindowMenu();
  void UseViewMenu();
  void ToggleFromMenu();
  void MoveKorvale();
  void MinimizeKorvale();

  // life_and_death_steps.cpp
  void Restart();
  void Kill();
  void KillDuringSave();
  void SpoilValue();
  void EndSession();
  void RefuseSessionEnd();
  void StartSameCopy();
  void StartOtherCopy();
  static void AttendTo(KorvaleCopy& copy, std::vector<std::string>& boxes);
  void TickIn(KorvaleCopy* other);
  void StartAgain(const Kept& before);

  // windows_steps.cpp
  void TakeCombination();
  void ReleaseCombination();
  void StartShellKeys();
  void WakeComputer();
  void UnlockSession();
  void SwitchDesktopSlowly();
  bool BeginRefusal(const std::string& what);
  void RefuseStore();
  void FillDisk();
  void AcceptStore();
  void ChangeDpi();
  void ChangeTextSize();
  void ChangeWorkArea();
  void ChangeColors();
  void RefuseOptionsDialog();
  void PassTime();
  void MeetFateAtKey();

  // options_steps.cpp
  void UseOptions();
  void OpenOptions();
  void UseOptionsDialog(Form& dialog);
  void UseHotKeysPage(Form& dialog);
  void EndOptions(Form& dialog);

  // selection_checks.cpp
  Before LookBefore(int tag);
  void CheckSelection(const Before& before);
  void CheckSelectedTag(const Before& before, const MenuItem& entry);
  std::set<WindowHandle> JustWorkedIn();
  void KnowTargetWindow();
  void CheckReason(const std::string& text);
  void CheckRefusedReturn();
  std::vector<WindowHandle> WindowsOf(const MenuItem& entry);
  void CheckPreviousSelected(const Before& before);

  // what_the_user_sees.cpp
  static std::string TitleOf(const FakeWindow& window);
  bool IsOnDesktop(WindowHandle hwnd);
  bool IsSuspended(WindowHandle hwnd);
  bool IsLost(WindowHandle hwnd);
  bool IsOptions(WindowHandle hwnd);
  bool IsFollowed(WindowHandle hwnd);
  bool CanBeSelected(WindowHandle hwnd);
  bool CannotBeRestored(WindowHandle hwnd);
  bool IsStuck(WindowHandle hwnd);
  bool IsExcused(const Before& before, WindowHandle hwnd);

  // standing_checks.cpp
  void CheckAlways();
  void CheckStrip();
  void CheckHotKeys();
  void HotKeysRegistered();
  std::vector<HotKey> WantedHotKeys();
  std::vector<HotKey> WorkingHotKeys();
  void CheckSaving();
  void KeepBook();
  void ExpectKept(const Kept& before);

  AfterStep afterStep_;
  WorkedIn workedIn_{desktop.Windows()};
  /// The user may have been in one of these before.
  std::vector<WindowHandle> thereAtStart_;
  Dice dice_{0};
  SimulatedPrograms programs_{desktop, dice_};
  KorvaleCopy* korvale_ = nullptr;

  std::vector<std::string> journal_;
  std::vector<int> taken_;
  std::optional<std::size_t> lastRow_;
  int stepsTaken_ = 0;

  /// The selection that is under way.
  std::optional<Before> selecting_;
  /// A selection that was chosen from the pop-up menu.
  std::optional<Before> poppedUp_;
  bool popUpAwaited_ = false;
  /// Something waited for the user, who took their time.
  bool userWasAsked_ = false;
  std::int16_t lastAnswer_ = 0;
  int noticesUp_ = 0;
  /// Text of the one error that may be told now.
  std::string expectedError_;

  int dpi_ = 96;
  int textPercent_ = 100;
  TwipsRect workArea_ = {0, 0, 15360, 11100};
  bool dark_ = false;
  bool highContrast_ = false;

  bool hotKeysOn_ = true;
  /// Windows tells Korvale when the user comes back.
  bool isTold_ = true;
  /// What other programs have taken.
  std::set<Combination> foreign_;
  /// What they had when Korvale asked last.
  std::set<Combination> refused_;

  Kept saved_;
  /// Since the store refuses something, what may be found in it.
  bool storeRefuses_ = false;
  std::vector<Kept> mayBeKept_;
};

}  // namespace korvale

#include "tests/simulated/simulated_life.h"

namespace korvale {
namespace {

constexpr const char* kNothing = "nothing of Korvale";
constexpr const char* kFollowed = "once they have worked in it, Tag 0 leads back to it";
constexpr const char* kLed = "the window of the Tag is in front, or a true reason is told";

}  // namespace

template <std::string (SimulatedPrograms::*Act)()>
void SimulatedLife::LetProgram() {
  const std::string told = (programs_.*Act)();
  if (told.empty()) return;
  Note("a program " + told);
  if (!dice_.OneIn(3)) Wait(100);
}

std::vector<SimulatedStep> SimulatedLife::StepsOfTheUser() {
  using Life = SimulatedLife;
  return {
      {"a Tag's key", 200, &Life::PressTagKey, kLed},
      {"a Tag's key, Windows is slow", 20, &Life::PressTagKeyInSlowWindows, kLed},
      {"a key held while Korvale is busy", 10, &Life::PressHeldKey,
       "each press does what one does"},
      {"the keys for the window in front", 40, &Life::PressActionKey,
       "it is minimized, or its zoom changes, within 250 ms"},
      {"the toggle's key", 8, &Life::PressToggleKey, "all other keys go off or on"},
      {"the pop-up menu", 50, &Life::PopUpWindowMenu, "the menu, or that Windows refuses it"},
      {"the Window menu", 30, &Life::UseWindowMenu, kLed},
      {"the View menu", 8, &Life::UseViewMenu, "what is chosen is kept"},
      {"the toggle's menu entry", 5, &Life::ToggleFromMenu, "all other keys go off or on"},
      {"the Options dialog", 30, &Life::UseOptions, "what is chosen is kept, keys work at once"},
      {"Korvale is moved", 6, &Life::MoveKorvale, "it stands there after the next start"},
      {"Korvale is minimized", 3, &Life::MinimizeKorvale, "keys work on"},
      {"Korvale is ended and started", 2, &Life::Restart, "all that it kept, where it stood"},
      {"Korvale is killed", 1, &Life::Kill, "options and Tags as they were last"},
      {"Korvale is killed in the middle of a save", 1, &Life::KillDuringSave,
       "options and Tags of before or after, nothing in between"},
      {"a value of the store cannot be read", 1, &Life::SpoilValue,
       "its default, all else as it was"},
      {"the session ends, or a task manager ends it", 1, &Life::EndSession,
       "no message, all is kept"},
      {"another program refuses the end of the session", 1, &Life::RefuseSessionEnd,
       "Korvale goes on, all is kept"},
      {"the same copy is started again", 2, &Life::StartSameCopy, "the first comes forward"},
      {"another copy runs for a while", 2, &Life::StartOtherCopy, "settings and keys as they were"},
      {"time passes", 150, &Life::PassTime, kFollowed, true},
  };
}

std::vector<SimulatedStep> SimulatedLife::StepsOfPrograms() {
  using Life = SimulatedLife;
  using Programs = SimulatedPrograms;
  return {
      {"a window opens", 120, &Life::LetProgram<&Programs::OpenWindow>, kFollowed, true},
      {"a handle is used again", 40, &Life::LetProgram<&Programs::ReuseHandle>,
       "no Tag leads to the wrong window", true},
      {"a message box of a program opens", 35, &Life::LetProgram<&Programs::OpenDialog>,
       "Tag 0 leads to the box", true},
      {"a window closes", 100, &Life::LetProgram<&Programs::CloseWindow>,
       "Tag 0 leads to one that is there", true},
      {"a window closes or changes while a key works", 25, &Life::MeetFateAtKey,
       "no error, no wrong window"},
      {"a title changes", 80, &Life::LetProgram<&Programs::RenameWindow>, kLed, true},
      {"a title changes with each reading", 5, &Life::LetProgram<&Programs::CountInTitle>, kLed,
       true},
      {"a window is disabled", 40, &Life::LetProgram<&Programs::EnableOrDisable>,
       "the user is told that it is not enabled", true},
      {"the user goes to a window", 320, &Life::LetProgram<&Programs::GoToWindow>, kFollowed, true},
      {"the mouse minimizes a window", 50, &Life::LetProgram<&Programs::Minimize>,
       "a key brings it back", true},
      {"the mouse maximizes a window", 20, &Life::LetProgram<&Programs::Maximize>, kFollowed, true},
      {"the mouse restores a window", 20, &Life::LetProgram<&Programs::Restore>, kFollowed, true},
      {"a window is hidden", 50, &Life::LetProgram<&Programs::HideOrReveal>,
       "Tag 0 leads to one that can be seen", true},
      {"a window hangs", 30, &Life::LetProgram<&Programs::HangOrRecover>, "done within 250 ms",
       true},
      {"Windows shows a ghost", 8, &Life::LetProgram<&Programs::ShowGhost>, "done within 250 ms",
       true},
      {"a window is busy", 20, &Life::LetProgram<&Programs::BeBusy>, "done within 250 ms", true},
      {"a Store program is suspended", 25, &Life::LetProgram<&Programs::SuspendOrWake>,
       "Tag 0 passes it over", true},
      {"a program cloaks its window", 8, &Life::LetProgram<&Programs::CloakItself>,
       "Tag 0 passes it over", true},
  };
}

std::vector<SimulatedStep> SimulatedLife::StepsOfWindows() {
  using Life = SimulatedLife;
  using Programs = SimulatedPrograms;
  return {
      {"nothing is in front", 20, &Life::LetProgram<&Programs::LeaveNothingInFront>, kLed, true},
      {"the foreground is locked", 20, &Life::LetProgram<&Programs::LockForeground>,
       "the user is told", true},
      {"taskbar, desktop and Start", 70, &Life::LetProgram<&Programs::VisitShell>,
       "they are no windows", true},
      {"another virtual desktop", 40, &Life::LetProgram<&Programs::SwitchDesktop>, kLed, true},
      {"a key while Windows still shows the desktop left", 10, &Life::SwitchDesktopSlowly, kLed},
      {"no manager of virtual desktops", 4, &Life::LetProgram<&Programs::LoseVirtualDesktops>, kLed,
       true},
      {"Explorer goes and comes", 4, &Life::LetProgram<&Programs::EndOrStartShell>, kNothing, true},
      {"another program takes a key", 10, &Life::TakeCombination, "all other keys work"},
      {"another program gives a key back", 10, &Life::ReleaseCombination,
       "it works after the next registration"},
      {"Explorer takes its keys", 1, &Life::StartShellKeys, "all other keys work"},
      {"the computer sleeps", 4, &Life::WakeComputer, "keys that are free now work"},
      {"the session is unlocked", 4, &Life::UnlockSession, "keys that are free now work"},
      {"the store refuses changes", 2, &Life::RefuseStore, "one message; old or new, never half"},
      {"the disk is full", 2, &Life::FillDisk, "one message; old or new, never half"},
      {"the store accepts changes again", 8, &Life::AcceptStore, kNothing},
      {"another dpi", 3, &Life::ChangeDpi, "all controls can be reached"},
      {"another size of text", 3, &Life::ChangeTextSize, "all controls can be reached"},
      {"another monitor or work area", 3, &Life::ChangeWorkArea, "all controls can be reached"},
      {"another theme", 4, &Life::ChangeColors, "the strip can be read"},
      {"no memory for a dialog", 2, &Life::RefuseOptionsDialog, "one message, Korvale goes on"},
  };
}

std::vector<SimulatedStep> SimulatedLife::AllSteps() {
  std::vector<SimulatedStep> all = StepsOfTheUser();
  for (const auto& steps : {StepsOfPrograms(), StepsOfWindows()}) {
    all.insert(all.end(), steps.begin(), steps.end());
  }
  return all;
}

const std::vector<SimulatedStep>& SimulatedSteps() {
  static const std::vector<SimulatedStep> steps = SimulatedLife::AllSteps();
  return steps;
}

}  // namespace korvale

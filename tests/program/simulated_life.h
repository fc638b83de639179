#pragma once

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "desktop/previous_window.h"
#include "tests/program/dice.h"
#include "tests/program/kept.h"
#include "tests/program/korvale_world.h"
#include "tests/program/simulated_programs.h"
#include "tests/program/worked_in.h"

namespace korvale {

/// A user who does anything at any time, with Korvale and with the programs around it. After each
/// of their steps everything is checked that must always hold.
class SimulatedLife : public KorvaleWorld {
 protected:
  /// Lives through `steps` steps or up to the first failed check; then reports the last of them.
  void Live(std::uint32_t seed, int steps);

 private:
  struct Step {
    int weight;
    void (SimulatedLife::*act)();
  };
  /// What a selection may depend on, right before it.
  struct Before {
    int tag = 0;
    WindowHandle foreground = 0;
    /// Where the user works, 0 when that is not certain.
    WindowHandle present = 0;
    std::size_t boxes = 0;
    bool locked = false;
    /// The windows that the user has just been in.
    std::set<WindowHandle> known = {};
    std::set<WindowHandle> hidden = {};
  };
  /// Modifiers and key.
  using Combination = std::pair<std::uint32_t, std::uint32_t>;
  struct HotKey {
    std::string name;
    Combination combination;
  };

  // simulated_life.cpp
  void TakeStep();
  void Note(std::string what);
  void StartKorvale();
  void ForgetKorvale();
  void WaitForBoxes();
  std::int16_t AnswerBox(const ShownMessage& box);
  bool LiveInDialog();
  void UseAddWindow(Form& dialog);
  void CloseTip(Form& tip);
  void Meanwhile();

  // simulated_life_steps.cpp
  static const std::vector<Step>& Steps();
  void OtherPrograms();
  void PassTime();
  void Wait(int milliseconds);
  void TakeCombination();
  std::optional<HotKey> Working(const std::string& name);
  void Press(const HotKey& hotKey);
  void PressTagKey();
  void PressActionKey();
  void PressToggleKey();
  void PopUpWindowMenu();
  void GoToKorvale();
  void UseMenu(const std::vector<std::string>& path);
  std::string SomeEntry(const std::vector<ShownMenuItem>& items);
  void UseWindowMenu();
  void UseOtherMenu();
  void MoveKorvale();
  void Restart();
  void Kill();
  void ExpectKept(const Kept& before);

  // simulated_life_options.cpp
  void UseOptions();
  void OpenOptions();
  void UseOptionsDialog(Form& dialog);
  void UseHotKeysPage(Form& dialog);
  void EndOptions(Form& dialog);

  // simulated_life_checks.cpp
  Before LookBefore(int tag);
  void CheckSelection(const Before& before);
  void CheckSelectedTag(const Before& before, const MenuItem& entry);
  void CheckPreviousSelected(const Before& before);
  bool IsOnDesktop(WindowHandle hwnd);
  bool IsSuspended(WindowHandle hwnd);
  bool IsOptions(WindowHandle hwnd);
  bool IsFollowed(WindowHandle hwnd);
  bool CanBeSelected(WindowHandle hwnd);
  bool IsExcused(const Before& before, WindowHandle hwnd);
  void CheckAlways();
  void CheckHotKeys();
  std::vector<HotKey> WantedHotKeys();
  std::vector<HotKey> WorkingHotKeys();
  void CheckSaving();

  WorkedIn workedIn_{desktop.Windows()};
  std::unique_ptr<Dice> dice_;
  std::unique_ptr<SimulatedPrograms> programs_;
  KorvaleCopy* korvale_ = nullptr;
  std::deque<std::string> lastSteps_;
  /// A selection that was chosen from the pop-up menu.
  std::optional<Before> poppedUp_;
  /// What other programs have taken; Korvale may not have asked again since.
  std::set<Combination> taken_;
  Kept saved_;
  bool noMoreBoxes_ = false;
};

}  // namespace korvale

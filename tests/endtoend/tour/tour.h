#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "tests/endtoend/harness/add_window_dialog.h"
#include "tests/endtoend/harness/color_dialog.h"
#include "tests/endtoend/harness/files.h"
#include "tests/endtoend/harness/installation.h"
#include "tests/endtoend/harness/options_dialog.h"
#include "tests/endtoend/harness/real_program.h"
#include "tests/endtoend/harness/running_korvale.h"
#include "tests/endtoend/harness/test_program.h"
#include "tests/endtoend/tour/report.h"

namespace korvale::endtoend {

/// What a new user does with Korvale, on programs that others wrote.
class Tour {
 public:
  explicit Tour(Report& report) : report_(report) {}

  /// The whole tour; stops early when Korvale or a program does not start.
  void Run();

 private:
  void OpenPrograms();
  void OpenOthers();
  /// Opens Notepad with a document of that name and text.
  void OpenNotepad(const std::string& name, const std::string& text);
  bool StartKorvale();
  void TagNotepad();
  void TagMineGame();
  void UseTheTag();
  void MinimizeAndMaximize();
  void UseThePopUp();
  void CloseAndReopen();
  void SwitchOffAndOn();
  void GoRound();
  void StartAgain();
  void ChangeTheModifier();
  void HideTheMenu();
  void CustomizeColors();
  void OpenAbout();

  /// Brings the window forward and waits until Korvale has seen it.
  void WorkIn(const std::string& name, Window window);
  /// Waits until Korvale shows the window as the Target Window, and as long as its timer needs.
  bool Seen(Window window) const;
  AddWindowDialog OpenAddWindow(const std::string& picture);
  void Toggle(const std::string& what);
  /// Chooses from the menu bar: the menu's letter with Alt, then the letters of the entries.
  bool Choose(UINT menu, std::initializer_list<UINT> entries);
  OptionsDialog OpenOptions();
  void SetTagModifier(const OptionsDialog& dialog, const std::string& modifier);
  /// Turns the mode for colours on and reads its tip.
  void BeginCustomizing();
  /// Moves the mouse from where it is an arrow over the box to where it is a C.
  bool PointsWithC(Window box);
  /// False when Korvale asks for a colour all the same.
  bool AltClick(Window box);
  void ColorTheBoxes(Rgb color);

  Report& report_;
  TemporaryFolder documents_;
  Installation installation_{"Tour"};
  std::optional<TestProgram> others_;
  std::optional<RealProgram> notepad_;
  std::optional<RealProgram> wordpad_;
  std::optional<RealProgram> regedit_;
  std::optional<RealProgram> mines_;
  std::optional<RunningKorvale> korvale_;
};

}  // namespace korvale::endtoend

#pragma once

#include <initializer_list>
#include <optional>
#include <string>

#include "tests/endtoend/harness/installation.h"
#include "tests/endtoend/harness/options_dialog.h"
#include "tests/endtoend/harness/real_program.h"
#include "tests/endtoend/harness/running_korvale.h"
#include "tests/endtoend/harness/test_program.h"
#include "tests/endtoend/pictures/photographer.h"

namespace korvale::endtoend {

/// Every window that Korvale has, opened as a user opens it and pictured. Throws when one of them
/// does not come.
class Gallery {
 public:
  explicit Gallery(Photographer& photographer) : photographer_(photographer) {}

  void Run();

 private:
  void Prepare();
  void TakeMainWindow();
  void TakeMenus();
  void TakePopUp();
  void TakeAddWindow();
  void TakeOptions();
  /// Leaves the hot keys switched off.
  void TakeNotice();
  void TakeConflicts();
  void TakeColors();
  void TakeAbout();
  void TakeMessages();

  /// Brings the window to the front and waits until Korvale shows it as the Target Window.
  void WorkIn(Window window) const;
  /// Opens a menu of the menu bar with Alt and its letter.
  Window OpenMenu(UINT letter) const;
  void Choose(UINT menu, std::initializer_list<UINT> entries) const;
  void CloseMenu() const;
  /// The form, in front.
  Window Form(const std::string& name) const;
  OptionsDialog OpenOptions() const;
  Window Main() const;

  Photographer& photographer_;
  TemporaryFolder folder_;
  Installation installation_{"Work"};
  TestProgram holder_;
  std::optional<RealProgram> wordpad_;
  std::optional<RealProgram> notepad_;
  std::optional<RunningKorvale> korvale_;
};

}  // namespace korvale::endtoend

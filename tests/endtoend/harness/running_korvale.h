#pragma once

#include <string>
#include <vector>

#include "tests/endtoend/harness/installation.h"
#include "tests/endtoend/harness/other_paths.h"
#include "tests/endtoend/harness/process.h"
#include "tests/endtoend/harness/window.h"

namespace korvale::endtoend {

/// One running copy of Korvale.exe, seen from outside.
class RunningKorvale {
 public:
  explicit RunningKorvale(const Installation& installation, const std::string& arguments = "");

  /// Starts a copy by another path to its program.
  RunningKorvale(const Installation& installation, const OtherPath& path);

  Process& process() { return process_; }

  /// The main window, waited for until it is visible.
  Window Main() const;
  /// A form by its name, such as "frmGetWindow", waited for until it is visible.
  Window Form(const std::string& name) const;
  /// True when no such form is on the screen.
  bool HasForm(const std::string& name) const;

  /// The hidden window that owns the main window, waited for.
  Window HiddenOwner() const;

  /// The message box on the screen, waited for.
  Window MessageBox() const;
  /// All message boxes with that title.
  std::vector<Window> MessageBoxes(const std::string& title) const;
  bool HasMessageBox() const;

  /// What the two boxes of the main window show.
  std::string TargetTitle() const;
  std::string TargetClass() const;

  /// Moves the mouse over the control until that tool tip is shown; false when it never is.
  bool ShowsToolTip(Window control, const std::string& text) const;

  /// The menu on the screen, waited for.
  Window OpenMenu() const;
  bool HasMenu() const;

 private:
  Window Wait(const std::string& class_name) const;
  Window Find(const std::string& class_name) const;

  Process process_;
};

/// The text of a message box or of the first label of a form.
std::string LabelText(Window dialog);

/// Presses the button with that identifier (IDOK, IDYES, IDNO) and waits until the box is gone
/// and its program has gone on.
bool AnswerBox(Window box, int button);

}  // namespace korvale::endtoend

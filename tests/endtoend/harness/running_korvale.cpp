#include "tests/endtoend/harness/running_korvale.h"

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr char kBoxClass[] = "#32770";
constexpr char kMenuClass[] = "#32768";

/// Windows gives the only button of a message the number of Cancel, so that Esc presses it.
Window ButtonOf(Window box, int button) {
  const Window found(GetDlgItem(box.handle(), button));
  if (found || button != IDOK || box.Controls("Button").size() != 1) return found;
  return Window(GetDlgItem(box.handle(), IDCANCEL));
}

}  // namespace

RunningKorvale::RunningKorvale(const Installation& installation, const std::string& arguments)
    : process_(Quoted(installation.program()) + arguments, installation.folder()) {}

RunningKorvale::RunningKorvale(const Installation& installation, const OtherPath& path)
    : process_(Quoted(path.folder + "Korvale.exe"), installation.folder()) {}

Window RunningKorvale::HiddenOwner() const {
  return WaitForTopLevel([&](Window window) {
    return window.ProcessId() == process_.id() && window.ClassName() == "Korvale.Owner";
  });
}

Window RunningKorvale::Find(const std::string& class_name) const {
  return FindTopLevel([&](Window window) {
    return window.ProcessId() == process_.id() && window.Visible() &&
           window.ClassName() == class_name;
  });
}

Window RunningKorvale::Wait(const std::string& class_name) const {
  Window found;
  WaitFor([&] { return (found = Find(class_name)) || !process_.Running(); });
  return found;
}

Window RunningKorvale::Main() const { return Wait("Korvale.frmMain"); }

Window RunningKorvale::Form(const std::string& name) const { return Wait("Korvale." + name); }

bool RunningKorvale::HasForm(const std::string& name) const {
  return static_cast<bool>(Find("Korvale." + name));
}

Window RunningKorvale::MessageBox() const { return Wait(kBoxClass); }

bool RunningKorvale::HasMessageBox() const { return static_cast<bool>(Find(kBoxClass)); }

std::vector<Window> RunningKorvale::MessageBoxes(const std::string& title) const {
  std::vector<Window> boxes = TopLevelWindows();
  std::erase_if(boxes, [&](Window window) {
    return window.ProcessId() != process_.id() || window.ClassName() != kBoxClass ||
           window.Title() != title || !window.Visible();
  });
  return boxes;
}

std::string RunningKorvale::TargetTitle() const {
  const std::vector<Window> boxes = Main().Controls("Edit");
  return boxes.size() < 2 ? "" : boxes[0].Text();
}

std::string RunningKorvale::TargetClass() const {
  const std::vector<Window> boxes = Main().Controls("Edit");
  return boxes.size() < 2 ? "" : boxes[1].Text();
}

bool RunningKorvale::ShowsToolTip(Window control, const std::string& text) const {
  MoveMouse(control, {20, 8});
  return WaitFor([&] {
    const Window tip = Find("tooltips_class32");
    return tip && tip.Text() == text;
  });
}

Window RunningKorvale::OpenMenu() const { return Wait(kMenuClass); }

bool RunningKorvale::HasMenu() const { return static_cast<bool>(Find(kMenuClass)); }

std::string LabelText(Window dialog) {
  std::string text;
  WaitFor([&] {
    for (const Window label : dialog.Controls("Static")) {
      if (text.empty()) text = label.Text();
    }
    return !text.empty();
  });
  return text;
}

bool AnswerBox(Window box, int button) {
  const Window control = ButtonOf(box, button);
  const auto at_hand = [&] { return control.Visible() && control.Enabled(); };
  if (!WaitFor(at_hand) || !BringToFront(box)) return false;
  Click(control);
  if (!WaitFor([&] { return !box.Exists() || !box.Visible(); })) return false;
  LetProgramsFinish();
  return true;
}

}  // namespace korvale::endtoend

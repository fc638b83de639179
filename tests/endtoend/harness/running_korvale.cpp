#include "tests/endtoend/harness/running_korvale.h"

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

constexpr char kBoxClass[] = "#32770";
constexpr char kMenuClass[] = "#32768";

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
  const auto shown = [&] {
    const Window tip = Find("tooltips_class32");
    return tip && tip.Text() == text;
  };
  for (int place = 20; place < 25; ++place) {
    MoveMouse(control, {place, 8});
    if (WaitFor(shown, std::chrono::milliseconds(2000))) return true;
  }
  return false;
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
  const Window control(GetDlgItem(box.handle(), button));
  if (!WaitFor([&] { return control.Visible() && control.Enabled(); })) return false;
  const auto gone = [&] { return !box.Exists() || !box.Visible(); };
  // A window that comes forward late can lie over the button when it is clicked; click again then.
  // Wine can refuse the foreground to a box that lies on top of all; the click activates it.
  for (int attempt = 0; attempt < 5; ++attempt) {
    if (gone()) return true;
    BringToFront(box, std::chrono::milliseconds(2000));
    Click(control);
    if (WaitFor(gone, std::chrono::milliseconds(2000))) return true;
  }
  return false;
}

}  // namespace korvale::endtoend

#include "tests/endtoend/harness/add_window_dialog.h"

#include "tests/endtoend/harness/keyboard.h"
#include "tests/endtoend/harness/wait.h"

namespace korvale::endtoend {
namespace {

bool HasButtonType(Window button, LONG_PTR first, LONG_PTR second) {
  const LONG_PTR type = button.Style() & BS_TYPEMASK;
  return type == first || type == second;
}

std::vector<Window> Buttons(Window form, LONG_PTR first, LONG_PTR second) {
  std::vector<Window> buttons = form.Controls("Button");
  std::erase_if(buttons, [&](Window button) { return !HasButtonType(button, first, second); });
  return buttons;
}

}  // namespace

std::vector<Window> AddWindowDialog::Choices() const {
  return Buttons(form_, BS_RADIOBUTTON, BS_AUTORADIOBUTTON);
}

Window AddWindowDialog::PushButton(size_t index) const {
  const std::vector<Window> buttons = Buttons(form_, BS_PUSHBUTTON, BS_DEFPUSHBUTTON);
  return index < buttons.size() ? buttons[index] : Window();
}

Window AddWindowDialog::Control(const char* class_name, size_t index) const {
  const std::vector<Window> controls = form_.Controls(class_name);
  return index < controls.size() ? controls[index] : Window();
}

bool AddWindowDialog::SelectTag(int tag) const {
  const char digit = static_cast<char>('0' + tag);
  if (!BringToFront(form_)) return false;
  if (!WaitFor([this] { return FocusOf(form_) == TagList(); })) return false;
  Type(std::string(1, digit));
  return WaitFor([&] { return SelectedTag().starts_with(digit); });
}

bool AddWindowDialog::Choose(size_t choice) const {
  const std::vector<Window> choices = Choices();
  if (choice >= choices.size()) return false;
  Click(choices[choice]);
  return WaitFor([&] { return choices[choice].Send(BM_GETCHECK) == BST_CHECKED; });
}

bool AddWindowDialog::Leave(UINT key) const {
  if (!BringToFront(form_)) return false;
  Press({0, key});
  if (!WaitFor([this] { return !form_.Exists() || !form_.Visible(); })) return false;
  LetProgramsFinish();
  return true;
}

bool AddWindowDialog::Confirm() const { return Leave(VK_RETURN); }

bool AddWindowDialog::Cancel() const { return Leave(VK_ESCAPE); }

}  // namespace korvale::endtoend

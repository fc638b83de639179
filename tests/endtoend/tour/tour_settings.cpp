#include "tests/endtoend/harness/wait.h"
#include "tests/endtoend/tour/tour.h"

namespace korvale::endtoend {

void Tour::StartAgain() {
  report_.Headline("Exit, and start again");
  BringToFront(korvale_->Main());
  Press({MOD_ALT, VK_F4});
  report_.Step("Alt+F4 ends Korvale", korvale_->process().WaitForExit() == 0U);
  korvale_.emplace(installation_);
  report_.Step("it starts again with its splash", static_cast<bool>(korvale_->Form("frmMsgBox2")));
  report_.Picture("splash");
  report_.Step("and asks nothing", korvale_->Main() && !korvale_->HasMessageBox());
  WorkIn("WordPad", wordpad_->window());
  report_.KeyToFront("Alt+3: the Tags were kept", TagKey(3), notepad_->window());
  Seen(notepad_->window());
}

OptionsDialog Tour::OpenOptions() {
  Press(kDefaultOptionsKey);
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  report_.Step("Windows+O shows the options",
               dialog.form() && WaitFor([&] { return Foreground() == dialog.form(); }));
  return dialog;
}

void Tour::SetTagModifier(const OptionsDialog& dialog, const std::string& modifier) {
  const auto list = OptionsDialog::List::kTagModifier;
  const bool focused = dialog.Focus(list);
  Press({0, static_cast<UINT>(modifier.front())});
  report_.Step(modifier + " instead of " + (modifier == "Alt" ? "Ctrl" : "Alt"),
               focused && WaitFor([&] { return dialog.Chosen(list) == modifier; }));
}

void Tour::ChangeTheModifier() {
  constexpr Chord kNewKey{MOD_CONTROL, '3'};
  report_.Headline("Another modifier for the Tags");
  WorkIn("WordPad", wordpad_->window());
  const OptionsDialog dialog = OpenOptions();
  report_.Step("Ctrl+Tab goes to the hot keys", dialog.GoTo(OptionsDialog::Page::kHotKeys));
  report_.Picture("options");
  SetTagModifier(dialog, "Ctrl");
  Press({MOD_ALT, 'A'});
  report_.Step("Alt+A applies it", WaitFor([] { return HotKeyIsFree(TagKey(3)); }));
  WorkIn("WordPad", wordpad_->window());
  report_.KeyToFront("Ctrl+3: Notepad", kNewKey, notepad_->window());
  Seen(notepad_->window());
  WorkIn("WordPad", wordpad_->window());
  report_.KeyDoesNothing("Alt+3 does nothing any more", TagKey(3));
  SetTagModifier(OpenOptions(), "Alt");
  report_.Step("Enter puts it back", dialog.Confirm() && HotKeyIsFree(kNewKey));
  WorkIn("WordPad", wordpad_->window());
  report_.KeyToFront("Alt+3: Notepad", TagKey(3), notepad_->window());
  Seen(notepad_->window());
}

}  // namespace korvale::endtoend

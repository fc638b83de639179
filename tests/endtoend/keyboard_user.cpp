#include "tests/endtoend/keyboard_user.h"

#include <algorithm>

#include "tests/endtoend/harness/main_window.h"
#include "tests/endtoend/harness/menu_picture.h"

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

void KeyboardUser::SetUp() { PutPointer({1200, 900}); }

AssertionResult KeyboardUser::FocusIs(Window form, Window control) {
  const auto has_focus = [&] {
    return HasInput(form) && FocusOf(form) == control && control.Visible() && control.Enabled();
  };
  if (WaitFor(has_focus)) return AssertionSuccess();
  return AssertionFailure() << Describe(Foreground()) << " is in front with the focus on "
                            << Describe(FocusOf(form)) << ", not on " << Describe(control);
}

AssertionResult KeyboardUser::ShowsFocusFrame(Window control) {
  if ((control.Send(WM_QUERYUISTATE) & UISF_HIDEFOCUS) == 0) return AssertionSuccess();
  return AssertionFailure() << Describe(control) << " hides the focus";
}

AssertionResult KeyboardUser::TabTo(Window form, Window control) {
  Press({0, VK_TAB});
  const AssertionResult there = FocusIs(form, control);
  return there ? ShowsFocusFrame(control) : there;
}

AssertionResult KeyboardUser::GoTo(int tag, Window window) {
  Press(TagKey(tag));
  const AssertionResult came = InFront(window);
  // Wine takes Alt for held in the window that the user has left.
  for (const Window left : {main(), alpha_, beta_, letter_}) ForgetKeys(left);
  return came;
}

AssertionResult KeyboardUser::OpenPopUp(Chord chord) {
  // All at once, as PopUpWindowMenu() does.
  PressAtOnce(chord);
  if (korvale_->OpenMenu()) return AssertionSuccess();
  return AssertionFailure() << "no menu pops up";
}

AddWindowDialog KeyboardUser::AddWindow() {
  const AddWindowDialog dialog(korvale_->Form("frmGetWindow"));
  EXPECT_TRUE(FocusIs(dialog.form(), dialog.TagList()));
  return dialog;
}

OptionsDialog KeyboardUser::OpenOptionsPage(UINT menu, UINT entry, Page page) {
  EXPECT_TRUE(Choose(menu, {entry}));
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  EXPECT_TRUE(InFront(dialog.form()));
  EXPECT_TRUE(dialog.GoTo(page));
  return dialog;
}

AssertionResult KeyboardUser::Leave(Window form, UINT key) {
  const AssertionResult left = LeaveTo(main(), form, key);
  return left ? FocusIs(main(), MainWindow(main()).TitleBox()) : left;
}

AssertionResult KeyboardUser::LeaveTo(Window window, Window form, UINT key) {
  Press({0, key});
  if (!WaitFor([&] { return !form.Exists() || !form.Visible(); })) {
    return AssertionFailure() << Describe(form) << " stays";
  }
  return InFront(window);
}

int KeyboardUser::Checked(UINT menu, size_t entries) {
  Press({MOD_ALT, menu});
  const std::vector<SeenEntry> seen = MenuEntries(korvale_->OpenMenu(), entries);
  EXPECT_EQ(seen.size(), entries);
  Press({0, VK_ESCAPE});
  Press({0, VK_ESCAPE});
  EXPECT_TRUE(WaitFor([this] { return !korvale_->HasMenu(); }));
  return static_cast<int>(std::ranges::count_if(seen, &SeenEntry::checked));
}

AssertionResult KeyboardUser::HasColor(Window box, Rgb color) {
  if (WaitFor([&] { return ColorOnScreen(box) == color; })) return AssertionSuccess();
  return AssertionFailure() << "its colour is " << StoredColor(ColorOnScreen(box));
}

}  // namespace korvale::endtoend

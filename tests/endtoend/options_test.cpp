#include "tests/endtoend/options_test.h"

#include <stdexcept>

namespace korvale::endtoend {

using ::testing::AssertionFailure;
using ::testing::AssertionResult;
using ::testing::AssertionSuccess;

OptionsDialog OptionsTest::WaitForOptions() {
  const OptionsDialog dialog(korvale_->Form("frmOptions"));
  if (!dialog.form()) throw std::runtime_error("the Options dialog did not come");
  if (!InFront(dialog.form())) throw std::runtime_error("the Options dialog is not in front");
  return dialog;
}

OptionsDialog OptionsTest::OpenOptions() {
  // All at once, as PopUpWindowMenu() does.
  PressAtOnce(kOptionsKey);
  return WaitForOptions();
}

OptionsDialog OptionsTest::OpenOptionsByMenu() {
  EXPECT_TRUE(Choose('T', {'O'}));
  return WaitForOptions();
}

OptionsDialog OptionsTest::StartWithOptions(Page page) {
  settings().Set("Startup", "OptionsTab", std::to_string(static_cast<int>(page)));
  Start();
  return OpenOptions();
}

AssertionResult OptionsTest::TakesKeys(const OptionsDialog& dialog) {
  const Page page = dialog.CurrentPage();
  const Page other = page == Page::kGeneral ? Page::kHotKeys : Page::kGeneral;
  if (dialog.GoTo(other) && dialog.GoTo(page)) return AssertionSuccess();
  return AssertionFailure() << "the dialog takes no keys";
}

AssertionResult OptionsTest::Apply(const OptionsDialog& dialog) {
  if (!BringToFront(dialog.form())) return AssertionFailure() << "the dialog does not come";
  // The last key that a save writes shows that it has come this far.
  settings().DeleteValue("Startup", "WindowInfo");
  const auto saved = [this] { return settings().Get("Startup", "WindowInfo").has_value(); };
  Press({MOD_ALT, 'A'});
  if (!WaitFor(saved)) return AssertionFailure() << "nothing is saved";
  return TakesKeys(dialog);
}

AssertionResult OptionsTest::Pick(const OptionsDialog& dialog, List list, UINT key,
                                  const std::string& entry) {
  if (!dialog.Focus(list)) return AssertionFailure() << "the list does not get the focus";
  Press({0, key});
  return Shows(dialog, list, entry);
}

AssertionResult OptionsTest::Shows(const OptionsDialog& dialog, List list,
                                   const std::string& entry) {
  if (WaitFor([&] { return dialog.Chosen(list) == entry; })) return AssertionSuccess();
  return AssertionFailure() << "the list shows '" << dialog.Chosen(list) << "', not '" << entry
                            << "'";
}

}  // namespace korvale::endtoend

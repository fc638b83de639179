#pragma once

#include "tests/endtoend/harness/options_dialog.h"
#include "tests/endtoend/store_test.h"

namespace korvale::endtoend {

/// Opens the Options dialog and looks at the results.
class OptionsTest : public StoreTest {
 protected:
  using Page = OptionsDialog::Page;
  using List = OptionsDialog::List;

  /// Opens the dialog with its hot key; throws, and so ends the test, when it does not come.
  OptionsDialog OpenOptions();
  /// Opens the dialog with the Tools menu, which works while the hot keys are off.
  OptionsDialog OpenOptionsByMenu();
  /// Starts the installation and opens the dialog on that page.
  OptionsDialog StartWithOptions(Page page);

  /// Turns to another page with the keyboard and back: the keys wait until the dialog has finished
  /// what it was told before. A sent message would come in earlier, and trying the hot keys then
  /// gets in the way of their registration.
  ::testing::AssertionResult TakesKeys(const OptionsDialog& dialog);
  /// Presses Alt+A and waits until everything has been saved and registered.
  ::testing::AssertionResult Apply(const OptionsDialog& dialog);
  /// Chooses an entry of a list by typing.
  ::testing::AssertionResult Pick(const OptionsDialog& dialog, List list, UINT key,
                                  const std::string& entry);
  /// Waits until the list shows that entry.
  ::testing::AssertionResult Shows(const OptionsDialog& dialog, List list,
                                   const std::string& entry);

 private:
  OptionsDialog WaitForOptions();
};

}  // namespace korvale::endtoend

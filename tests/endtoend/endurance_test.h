#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/endtoend/options_test.h"

namespace korvale::endtoend {

/// A user who does the same things again and again. Each begins and ends with a tagged window in
/// front and nothing else open, and throws std::runtime_error when it does not go as it should.
class EnduranceTest : public OptionsTest {
 protected:
  /// Starts Korvale with Tags 1 to 3 open and Tag 4 not.
  void StartWithTags();

  void GoByTagKey();
  void GoByTagKeyToAReopenedWindow();
  void BeToldThatATagIsNotOpen();
  void BeToldThatHotKeysAreSuspended();
  void GoToThePreviousWindow();
  void PopUpAndEscape();
  void PopUpAndChoose();
  void MaximizeAndRestore();
  void MinimizeAndComeBack();
  void MinimizeAllAndRestoreAll();
  void ToggleHotKeys();
  void WalkThroughOptions();
  void ConfirmOptions();
  void ResetAndApplyOptions();
  void LookAtAddWindow();
  void TagAndRemove();
  void LookAtAbout();
  void ReadTipAndChooseColor();
  void PutTheColorsBack();
  void HideAndShowTheTarget();
  void HideAndShowTheMenu();
  void SwitchAlwaysOnTop();
  void SizeTheMainWindow();
  void MinimizeTheMainWindow();
  void ReadToolTip();
  void LookForTheHelpPage();
  void SwitchTipsOffAndOn();
  void WorkInAnotherWindow();
  void ChangeSystemColors();
  void ChangeTextSize();
  void BeToldOfTheSameDots();
  void WakeUpAndUnlock();
  void ReadTheMainWindowAloud();
  void StartASecondCopy();
  void SaveInAStoreThatRefuses();

  int tag_ = 0;

 private:
  /// The tagged window after the one of the last call.
  int NextTag();
  Window Tagged(int tag) const { return tagged_.at(static_cast<size_t>(tag - 1)); }
  Window OpenTagged(int tag, int show);
  static void Need(const ::testing::AssertionResult& held);
  /// Ends the operation unless that held. Waits until the programs have done what comes with it, so
  /// nothing is under way when the next key is pressed.
  static void Need(const char* what, bool held);
  /// The same with what comes a moment later.
  static void NeedThat(const char* what, const std::function<bool()>& condition);
  void PressFor(const char* what, Chord chord, const std::function<bool()>& outcome);
  void PressForWindow(Chord chord, Window window);
  void NeedInFront(Window window);
  /// Leaves a dialog by a key.
  void Leave(UINT key, Window form);
  /// Reads a message and presses Enter.
  void Dismiss(Window message);
  void PopUp();
  void ChooseInPopUp(UINT entry);
  /// From the main window's menu bar.
  void ChooseInBar(UINT menu, UINT entry);

  std::vector<Window> tagged_;
  Window other_;
  int changes_ = 0;
  int color_ = 0;
  bool told_of_lost_save_ = false;
};

}  // namespace korvale::endtoend

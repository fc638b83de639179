#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "tests/program/start_test.h"

namespace korvale {

/// A program that shows something to the user while something else happens to it.
class BoxesUp : public StartTest {
 public:
  using Meanwhile = std::function<void()>;

  // Each shows itself, lets `meanwhile` happen, and goes.
  void ShowMessage(const Meanwhile& meanwhile);
  void ShowNotice(const Meanwhile& meanwhile);
  void ShowTip(const Meanwhile& meanwhile);
  void ShowNoticeOverTip(const Meanwhile& meanwhile);
  void ShowOptionsQuestion(const Meanwhile& meanwhile);
  void ShowAddWindow(const Meanwhile& meanwhile);
  void ShowNoticeOverAddWindow(const Meanwhile& meanwhile);
  void ShowColorDialog(const Meanwhile& meanwhile);
  void ShowWaitWindow(const Meanwhile& meanwhile);
  void ShowTipOfTheStart(const Meanwhile& meanwhile);
  void ShowReviewQuestion(const Meanwhile& meanwhile);
  void ShowImportQuestion(const Meanwhile& meanwhile);
  void ShowErrorOfTheExit(const Meanwhile& meanwhile);
  void ShowAbout(const Meanwhile& meanwhile);
  void ShowSplash(const Meanwhile& meanwhile);
  void CustomizeColors(const Meanwhile& meanwhile);

 protected:
  KorvaleCopy* korvale_ = nullptr;
  WindowHandle beta_ = 0;
  WindowHandle gamma_ = 0;
  std::size_t hotKeyCount_ = kAllHotKeys;
  bool starting_ = false;
  bool exiting_ = false;
  bool mainIsUsable_ = false;
  bool hotKeysWork_ = false;

  void Answer(const Meanwhile& meanwhile, std::int16_t button);

 private:
  void OpenWindows();
  void StartAmongWindows();
  void CloseAfter(const char* name, const Meanwhile& meanwhile);
  void UnloadIfOpen(const char* name);
  /// The notice that holds a hot key.
  void HoldAHotKey(const Meanwhile& meanwhile);
};

}  // namespace korvale

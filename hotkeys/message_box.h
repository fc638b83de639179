#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "app/core/message_boxes.h"
#include "desktop/desktop.h"
#include "desktop/window_readers.h"
#include "hotkeys/suspension.h"
#include "platform/system_dialogs.h"

namespace korvale {

/// Shows the program's message boxes and suspends the hot keys meanwhile.
class SuspendingMessageBoxes : public MessageBoxes {
 public:
  /// `dialogOnTop` gives the window of the dialog that is shown on top of the main window, 0 when
  /// there is none.
  SuspendingMessageBoxes(Desktop& desktop, SystemDialogs& dialogs, Suspension& suspension,
                         std::function<WindowHandle()> dialogOnTop);

  /// Besides what every message box does: when the outermost box closes, Windows brings another
  /// program to the front over the disabled main window, or the main window over the program where
  /// the user works; the window that was in front before is put there again
  /// (SetForegroundWindow), or the one last worked in when that is not possible. A box over another
  /// one or over a dialog brings these to the virtual desktop where the user is. An inner box
  /// belongs to the one below it, which cannot be answered before and comes to the front behind it.
  /// Error 6 beyond 32767 nested boxes.
  std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                              const std::string& title) override;

 private:
  /// What is restored when the outermost box closes.
  struct Remembered {
    bool timerEnabled = false;
    std::string timerTag;
    KnownWindow foreground;
  };

  Remembered Remember();
  void Suspend();
  void Resume(const Remembered& before);
  std::int16_t ShowOutermost(const std::string& prompt, std::int32_t buttons,
                             const std::string& title);
  std::int16_t Show(const std::string& prompt, std::int32_t buttons, const std::string& title);
  WindowHandle Owner();
  void GiveForegroundBack(const KnownWindow& before);

  Desktop* desktop_;
  SystemDialogs* dialogs_;
  Suspension* suspension_;
  std::function<WindowHandle()> dialogOnTop_;
};

}  // namespace korvale

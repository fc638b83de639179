#pragma once

#include <cstdint>
#include <string>

#include "app/core/message_boxes.h"
#include "desktop/main_window.h"
#include "hotkeys/suspension.h"
#include "platform/form_host.h"
#include "platform/window_api.h"

namespace korvale {

/// Shows the program's message boxes and suspends the hot keys meanwhile.
class SuspendingMessageBoxes : public MessageBoxes {
 public:
  SuspendingMessageBoxes(FormHost& host, WindowQueries& windows, WindowCommands& commands,
                         MainWindow& mainWindow, Suspension& suspension);

  std::int16_t ShowMessageBox(const std::string& prompt, std::int32_t buttons,
                              const std::string& title) override;

 private:
  FormHost* host_;
  WindowQueries* windows_;
  WindowCommands* commands_;
  MainWindow* mainWindow_;
  Suspension* suspension_;
};

}  // namespace korvale

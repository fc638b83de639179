#pragma once

#include <string>

#include "platform/input_devices.h"
#include "tests/fakes/call_log.h"
#include "tests/fakes/fake_windows.h"

namespace korvale {

/// Logs what the program does with mouse and keyboard.
class FakeInput : public InputDevices {
 public:
  FakeInput(CallLog& log, FakeWindows& windows) : log_(&log), windows_(&windows) {}

  void SetCursor(MousePointer /*pointer*/) override {}
  void SendInput(WindowHandle hwnd, int virtualKey, unsigned shift) override {
    log_->Add("SendInput(" + log_->Window(hwnd) + ", " + std::to_string(virtualKey) + ", " +
              std::to_string(shift) + ")");
  }
  void SendMouseInput() override {
    log_->Add("SendMouseInput()");
    windows_->TakeInput();
  }

 private:
  CallLog* log_;
  FakeWindows* windows_;
};

}  // namespace korvale

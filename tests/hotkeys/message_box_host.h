#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "platform/form_host.h"
#include "tests/fakes/call_log.h"
#include "util/text.h"

namespace korvale {

/// A host that shows nothing but message boxes; every other call fails the running test.
class MessageBoxHost : public FormHost {
 public:
  explicit MessageBoxHost(CallLog& log) : log_(&log) {}

  std::int16_t MessageBoxW(WindowHandle owner, const std::string& text, const std::string& title,
                           std::int32_t style) override {
    log_->Add("MessageBoxW(" + log_->Window(owner) + ", \"" + text + "\", \"" + title + "\", " +
              DecimalText(style) + ")");
    if (whileShown) whileShown(text);
    return answer;
  }

  WindowHandle CreateWindowExW(const FormState&, FormEvents&) override {
    Unexpected();
    return 0;
  }
  void DestroyWindow(WindowHandle) override { Unexpected(); }
  void UpdateControl(WindowHandle, int, ControlProperty) override { Unexpected(); }
  void SetWindowTextW(WindowHandle) override { Unexpected(); }
  void MoveWindow(WindowHandle) override { Unexpected(); }
  void DrawMenuBar(WindowHandle) override { Unexpected(); }
  void EnableWindow(WindowHandle, bool) override { Unexpected(); }
  void ShowWindow(WindowHandle, int) override { Unexpected(); }
  void SetFocus(WindowHandle, int) override { Unexpected(); }
  int GetFocus(WindowHandle) override { return Unexpected(); }
  TextSelection GetSelection(WindowHandle, int) override { return {Unexpected(), 0}; }
  void SetSelection(WindowHandle, int, TextSelection) override { Unexpected(); }
  TwipsRect AdjustWindowRectEx(const FormState&) override { return {Unexpected(), 0, 0, 0}; }
  TwipsRect GetMonitorInfoW(WindowHandle) override { return {Unexpected(), 0, 0, 0}; }
  void TrackPopupMenuEx(WindowHandle, MenuItem&) override { Unexpected(); }
  void RunMessageLoop(const std::function<bool()>&) override { Unexpected(); }
  void DoEvents() override { Unexpected(); }
  void PostQuitMessage() override { Unexpected(); }
  bool QuitPosted() override { return Unexpected() != 0; }

  std::int16_t answer = 1;
  /// Called while a box stands on the screen; may throw.
  std::function<void(const std::string&)> whileShown;

 private:
  static int Unexpected() {
    ADD_FAILURE() << "Only message boxes are shown here.";
    return 0;
  }

  CallLog* log_;
};

}  // namespace korvale

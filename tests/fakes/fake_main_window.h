#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/main_window.h"
#include "platform/types.h"

namespace korvale {

class FakeTimer : public TimerControl {
 public:
  bool Enabled() const override { return enabled; }
  void SetEnabled(bool value) override { enabled = value; }
  const std::string& Tag() const override { return tag; }
  void SetTag(std::string_view value) override { tag = value; }
  void SetInterval(std::uint32_t milliseconds) override { intervals.push_back(milliseconds); }

  bool enabled = true;
  std::string tag = "ON";
  /// Every interval that was set, oldest first.
  std::vector<std::uint32_t> intervals;
};

/// A main window that keeps what it is told and logs the calls that change it.
class FakeMainWindow : public MainWindow {
 public:
  WindowHandle MainHandle() const override { return handle; }
  std::string MainCaption() const override { return caption; }
  std::string FocusTag() const override { return focusTag; }
  void SetFocusTag(std::string_view tag) override { focusTag = tag; }
  bool WindowMenuPoppedUp() override { return windowMenuPoppedUp; }
  void SetMainEnabled(bool enabled) override {
    mainEnabled = enabled;
    Log(enabled ? "SetMainEnabled(true)" : "SetMainEnabled(false)");
  }
  TimerControl& tmrWindow() override { return timer; }
  void udmTimersEnabled(bool booTrueFalse) override {
    timer.enabled = booTrueFalse && timer.tag == "ON";
    Log(booTrueFalse ? "udmTimersEnabled(true)" : "udmTimersEnabled(false)");
  }
  void ShowTargetWindow(const std::string& title, const std::string& className) override {
    txtWindow = title;
    txtWindowClass = className;
    Log("ShowTargetWindow(\"" + title + "\", \"" + className + "\")");
  }
  void EnablePreviousWindowItems(bool enabled) override {
    previousWindowItems = enabled;
    Log(enabled ? "EnablePreviousWindowItems(true)" : "EnablePreviousWindowItems(false)");
  }
  void CheckAlwaysOnTop(bool checked) override { alwaysOnTop = checked; }
  void CheckPreviousWindowAlwaysOnTop(bool checked) override { previousAlwaysOnTop = checked; }

  WindowHandle handle = 0;
  std::string caption = "Korvale - Work";
  std::string focusTag;
  bool windowMenuPoppedUp = false;
  bool mainEnabled = true;
  FakeTimer timer;
  std::string txtWindow;
  std::string txtWindowClass;
  bool previousWindowItems = false;
  bool alwaysOnTop = false;
  bool previousAlwaysOnTop = false;

  std::vector<std::string> log;
  /// Gets every logged call too, for an order across fakes.
  std::function<void(const std::string&)> onCall;

 private:
  void Log(const std::string& call) {
    log.push_back(call);
    if (onCall) onCall(call);
  }
};

}  // namespace korvale

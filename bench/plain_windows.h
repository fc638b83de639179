#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/win32_constants.h"
#include "platform/window_api.h"
#include "util/text.h"

namespace korvale {

/// Windows whose reading costs the same however many there are, so that what grows with their
/// number is the program's own work. Their handles count from 1.
class PlainWindows : public WindowQueries {
 public:
  explicit PlainWindows(int count) {
    for (int number = 1; number <= count; ++number) titles_.push_back(Title(number));
  }

  static std::string Title(int number) {
    return "Document " + DecimalText(number) + ", second draft - Editor " + DecimalText(number);
  }

  const std::vector<std::string>& Titles() const { return titles_; }

  void EnumWindows(const std::function<bool(WindowHandle)>& visit) override {
    for (std::size_t at = 1; at <= titles_.size(); ++at) {
      if (!visit(static_cast<WindowHandle>(at))) return;
    }
  }
  WindowHandle GetWindow(WindowHandle hwnd, std::uint32_t command) override {
    return command == win32::kGwChild && IsWindow(hwnd) ? kChild : 0;
  }
  WindowHandle GetParent(WindowHandle) override { return 0; }
  WindowHandle GetLastActivePopup(WindowHandle hwnd) override { return hwnd; }
  std::int32_t GetWindowLongA(WindowHandle hwnd, int index) override {
    return index == win32::kGwlStyle && IsWindow(hwnd)
               ? static_cast<std::int32_t>(win32::kWsVisible)
               : 0;
  }
  int GetWindowTextLengthA(WindowHandle hwnd) override {
    return IsWindow(hwnd) ? static_cast<int>(TitleOf(hwnd).size()) : 0;
  }
  int GetWindowTextA(WindowHandle hwnd, std::span<char> buffer) override {
    return IsWindow(hwnd) ? Copy(TitleOf(hwnd), buffer) : 0;
  }
  int GetClassNameA(WindowHandle hwnd, std::span<char> buffer) override {
    return IsWindow(hwnd) ? Copy("Editor", buffer) : 0;
  }
  bool IsWindow(WindowHandle hwnd) override {
    return hwnd != 0 && static_cast<std::size_t>(hwnd) <= titles_.size();
  }
  bool IsWindowVisible(WindowHandle hwnd) override { return IsWindow(hwnd); }
  std::uint32_t DwmGetWindowAttribute(WindowHandle) override { return 0; }
  bool IsWindowEnabled(WindowHandle hwnd) override { return IsWindow(hwnd); }
  bool IsIconic(WindowHandle) override { return false; }
  bool IsZoomed(WindowHandle) override { return false; }
  std::uint32_t GetWindowThreadProcessId(WindowHandle) override { return 1; }
  bool IsHungAppWindow(WindowHandle) override { return false; }
  WindowHandle GetForegroundWindow() override { return 1; }
  WindowHandle GetShellWindow() override { return 0; }
  WindowHandle FindWindowA(const std::string&) override { return 0; }

 private:
  static constexpr WindowHandle kChild = 0x7FFFFFF0;

  const std::string& TitleOf(WindowHandle hwnd) const {
    return titles_[static_cast<std::size_t>(hwnd) - 1];
  }

  static int Copy(std::string_view text, std::span<char> buffer) {
    if (buffer.empty()) return 0;
    const std::size_t length = std::min(text.size(), buffer.size() - 1);
    std::copy_n(text.begin(), length, buffer.begin());
    buffer[length] = '\0';
    return static_cast<int>(length);
  }

  std::vector<std::string> titles_;
};

}  // namespace korvale

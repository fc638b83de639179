#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "platform/types.h"
#include "platform/win32_constants.h"
#include "tests/contract/desktop_under_test.h"

namespace korvale {

using Handles = std::vector<WindowHandle>;

/// Opens windows on the desktop under test and reads them.
class DesktopContract : public testing::Test {
 protected:
  WindowHandle Open(const ContractWindow& window) {
    const WindowHandle hwnd = desktop_->Open(window);
    opened_.push_back(hwnd);
    desktop_->Settle();
    return hwnd;
  }
  WindowHandle OpenPlain(const std::string& title) { return Open({.title = title}); }
  void Close(WindowHandle hwnd) {
    desktop_->Close(hwnd);
    desktop_->Settle();
  }

  bool Show(WindowHandle hwnd, int command) {
    const bool result = commands_.ShowWindow(hwnd, command);
    desktop_->Settle();
    return result;
  }
  bool SetForeground(WindowHandle hwnd) {
    const bool result = commands_.SetForegroundWindow(hwnd);
    desktop_->Settle();
    return result;
  }
  bool SetTopmost(WindowHandle hwnd, bool topmost) {
    const bool result =
        commands_.SetWindowPos(hwnd, topmost ? win32::kHwndTopmost : win32::kHwndNoTopmost, 0, 0, 0,
                               0, win32::kSwpNoMove | win32::kSwpNoSize);
    desktop_->Settle();
    return result;
  }

  std::string Title(WindowHandle hwnd, std::size_t bufferSize = 256) {
    std::string buffer(bufferSize, '?');
    buffer.resize(static_cast<std::size_t>(queries_.GetWindowTextA(hwnd, buffer)));
    return buffer;
  }
  std::string ClassName(WindowHandle hwnd, std::size_t bufferSize = 256) {
    std::string buffer(bufferSize, '?');
    buffer.resize(static_cast<std::size_t>(queries_.GetClassNameA(hwnd, buffer)));
    return buffer;
  }
  bool HasStyle(WindowHandle hwnd, int index, std::int32_t bits) {
    return (queries_.GetWindowLongA(hwnd, index) & bits) == bits;
  }
  /// The windows of this test as the enumeration meets them.
  std::vector<WindowHandle> Enumerated() {
    std::vector<WindowHandle> met;
    queries_.EnumWindows([&](WindowHandle hwnd) {
      if (std::ranges::find(opened_, hwnd) != opened_.end()) met.push_back(hwnd);
      return true;
    });
    return met;
  }

  std::unique_ptr<DesktopUnderTest> desktop_ = MakeDesktopUnderTest();
  WindowQueries& queries_ = desktop_->Queries();
  WindowCommands& commands_ = desktop_->Commands();
  VirtualDesktops& desktops_ = desktop_->Desktops();
  std::vector<WindowHandle> opened_;
};

}  // namespace korvale

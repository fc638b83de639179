#pragma once

#include <string>

#include "platform/screen_queries.h"

namespace korvale {

class WindowsScreen : public ScreenQueries {
 public:
  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override;
  TwipsRect MonitorFromPoint() override;
  TwipsRect GetWindowRect(WindowHandle hwnd) override;
  int GetDpiForWindow(WindowHandle hwnd) override;
  Twips GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) override;
  Color GetSysColor(Color color) override;
  bool HighContrast() override;
};

}  // namespace korvale

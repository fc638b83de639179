#pragma once

#include <string>

#include "platform/screen_queries.h"
#include "platform/windows/system_library.h"
#include "ui/windows/open_forms.h"

namespace korvale {

class WindowsScreen : public ScreenQueries {
 public:
  explicit WindowsScreen(const OpenForms& forms) : forms_(&forms) {}

  TwipsRect GetMonitorInfoW(WindowHandle hwnd) override;
  TwipsRect MonitorFromPoint() override;
  int GetDpiForMonitor() override;
  TwipsRect GetWindowRect(WindowHandle hwnd) override;
  int GetDpiForWindow(WindowHandle hwnd) override;
  int GetDpiOfForm(WindowHandle hwnd) override;
  Twips GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) override;
  Color GetSysColor(Color color) override;
  bool HighContrast() override;

 private:
  const OpenForms* forms_;
  SystemLibrary shcore_{L"shcore.dll"};
};

}  // namespace korvale

#pragma once

#include <string>

#include "platform/types.h"

namespace korvale {

/// Reads the screen: its monitors, colours and measures, and where windows are on it.
class ScreenQueries {
 public:
  virtual ~ScreenQueries() = default;

  /// The work area, in twips, of the monitor that shows the window or is nearest to it
  /// (MonitorFromWindow, GetMonitorInfoW); of the primary monitor when there is no such window.
  virtual TwipsRect GetMonitorInfoW(WindowHandle hwnd) = 0;
  /// The work area, in twips, of the monitor under the mouse pointer (MonitorFromPoint).
  virtual TwipsRect MonitorFromPoint() = 0;
  /// The dots per inch of that monitor (GetDpiForMonitor); those of the system when Windows cannot
  /// tell.
  virtual int GetDpiForMonitor() = 0;
  /// Where the form really is, place and size in twips of the system's dots per inch, as the work
  /// areas count them (GetWindowRect).
  virtual TwipsRect GetWindowRect(WindowHandle hwnd) = 0;
  /// The dots per inch of the monitor of a form, in which its frame and menus are drawn
  /// (GetDpiForWindow).
  virtual int GetDpiForWindow(WindowHandle hwnd) = 0;
  /// The dots per inch by which the places and sizes of a form become pixels: those of its monitor,
  /// others where the user has chosen bigger text.
  virtual int GetDpiOfForm(WindowHandle hwnd) = 0;
  /// The width of a text in the menus of a form, in twips of the system's dots per inch; 0 when
  /// Windows cannot tell.
  virtual Twips GetTextExtentPoint32W(WindowHandle hwnd, const std::string& text) = 0;
  /// The colour that is shown on this screen, 0x00BBGGRR; colours other than system colours are
  /// returned unchanged (GetSysColor).
  virtual Color GetSysColor(Color color) = 0;
  /// The user wants high contrast (SystemParametersInfoW with SPI_GETHIGHCONTRAST).
  virtual bool HighContrast() = 0;
};

}  // namespace korvale

#include "desktop/show_window.h"

namespace korvale {

bool ShowDesktopWindow(WindowQueries& windows, WindowCommands& commands, WindowHandle hwnd,
                       int command) {
  if (windows.IsHungAppWindow(hwnd)) return commands.ShowWindowAsync(hwnd, command);
  return commands.ShowWindow(hwnd, command);
}

}  // namespace korvale

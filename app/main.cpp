#include <windows.h>
// After windows.h, which it needs.
#include <commctrl.h>

#include "app/program.h"
#include "platform/windows/windows_clock.h"
#include "platform/windows/windows_crash_api.h"
#include "platform/windows/windows_hot_key_api.h"
#include "platform/windows/windows_settings_store.h"
#include "platform/windows/windows_system_api.h"
#include "platform/windows/windows_virtual_desktops.h"
#include "platform/windows/windows_window_api.h"
#include "ui/windows/message_guard.h"
#include "ui/windows/windows_ui.h"

int WINAPI wWinMain(HINSTANCE instance, HINSTANCE /*previous*/, PWSTR /*commandLine*/,
                    int /*show*/) {
  // Whatever lies beside a downloaded program must not be taken for one of Windows' libraries.
  SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
  const INITCOMMONCONTROLSEX controls{sizeof(controls), ICC_STANDARD_CLASSES | ICC_TAB_CLASSES};
  InitCommonControlsEx(&controls);
  korvale::WindowsWindowApi windows;
  korvale::WindowsHotKeyApi hotKeys;
  korvale::WindowsSettingsStore store;
  korvale::WindowsSystemApi system;
  korvale::WindowsCrashApi crashes;
  korvale::WindowsClock clock;
  korvale::WindowsTimers timers;
  korvale::WindowsUi ui(instance);
  korvale::WindowsVirtualDesktops virtualDesktops(korvale::WatchQueue);
  korvale::Platform platform{windows,   windows,    hotKeys,  store,          system,
                             crashes,   clock,      timers,   ui.host,        ui.loop,
                             ui.screen, ui.dialogs, ui.input, virtualDesktops};
  return korvale::RunProgram(platform);
}

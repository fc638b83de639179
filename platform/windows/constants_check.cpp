#include <windows.h>
// After windows.h, which it needs.
#include <dwmapi.h>

#include "platform/form_host.h"
#include "platform/win32_constants.h"
#include "platform/windows/handles.h"

// The numbers that portable code passes must be those of the system.
namespace korvale::win32 {

static_assert(kErrorFileNotFound == ERROR_FILE_NOT_FOUND);
static_assert(kErrorPathNotFound == ERROR_PATH_NOT_FOUND);
static_assert(kGwOwner == GW_OWNER);
static_assert(kGwChild == GW_CHILD);
static_assert(kGwlStyle == GWL_STYLE);
static_assert(kGwlExStyle == GWL_EXSTYLE);
static_assert(kWsChild == WS_CHILD);
static_assert(kWsMinimizeBox == WS_MINIMIZEBOX);
static_assert(kWsMaximizeBox == WS_MAXIMIZEBOX);
static_assert(kDsModalFrame == DS_MODALFRAME);
static_assert(kDsSysModal == DS_SYSMODAL);
static_assert(kWsExTopmost == WS_EX_TOPMOST);
static_assert(kWsExToolWindow == WS_EX_TOOLWINDOW);
static_assert(kDwmCloakedApp == DWM_CLOAKED_APP);
static_assert(kDwmCloakedShell == DWM_CLOAKED_SHELL);
static_assert(kDwmCloakedInherited == DWM_CLOAKED_INHERITED);
static_assert(kSwHide == SW_HIDE);
static_assert(kSwShowNormal == SW_SHOWNORMAL);
static_assert(kSwMaximize == SW_MAXIMIZE);
static_assert(kSwShow == SW_SHOW);
static_assert(kSwMinimize == SW_MINIMIZE);
static_assert(kSwShowNoActivate == SW_SHOWNOACTIVATE);
static_assert(kSwShowMinNoActive == SW_SHOWMINNOACTIVE);
static_assert(kSwShowNa == SW_SHOWNA);
static_assert(kSwRestore == SW_RESTORE);
static_assert(kSwpNoSize == SWP_NOSIZE);
static_assert(kSwpNoMove == SWP_NOMOVE);
static_assert(kSwpAsyncWindowPos == SWP_ASYNCWINDOWPOS);
static_assert(kModAlt == MOD_ALT);
static_assert(kModControl == MOD_CONTROL);
static_assert(kModShift == MOD_SHIFT);
static_assert(kModWin == MOD_WIN);
static_assert(kWmNull == WM_NULL);
static_assert(kWmPowerBroadcast == WM_POWERBROADCAST);
static_assert(kPbtApmResumeSuspend == PBT_APMRESUMESUSPEND);
static_assert(kPbtApmResumeAutomatic == PBT_APMRESUMEAUTOMATIC);
static_assert(kWmWtsSessionChange == WM_WTSSESSION_CHANGE);
static_assert(kWtsConsoleConnect == WTS_CONSOLE_CONNECT);
static_assert(kWtsRemoteConnect == WTS_REMOTE_CONNECT);
static_assert(kWtsSessionUnlock == WTS_SESSION_UNLOCK);
static_assert(kWmHotKey == WM_HOTKEY);
static_assert(kMbOk == MB_OK);
static_assert(kMbOkCancel == MB_OKCANCEL);
static_assert(kMbYesNo == MB_YESNO);
static_assert(kMbDefButton2 == MB_DEFBUTTON2);
static_assert(kMbSetForeground == MB_SETFOREGROUND);
static_assert(kMbTopmost == MB_TOPMOST);
static_assert(kIdOk == IDOK);
static_assert(kIdCancel == IDCANCEL);
static_assert(kIdYes == IDYES);
static_assert(kIdNo == IDNO);
static_assert(kVerPlatformWin32Windows == VER_PLATFORM_WIN32_WINDOWS);
static_assert(kVerPlatformWin32Nt == VER_PLATFORM_WIN32_NT);
static_assert(kVkTab == VK_TAB);
static_assert(kVkReturn == VK_RETURN);
static_assert(kVkMenu == VK_MENU);
static_assert(kVkPause == VK_PAUSE);
static_assert(kVkEscape == VK_ESCAPE);
static_assert(kVkSpace == VK_SPACE);
static_assert(kVkEnd == VK_END);
static_assert(kVkHome == VK_HOME);
static_assert(kVkLeft == VK_LEFT);
static_assert(kVkUp == VK_UP);
static_assert(kVkRight == VK_RIGHT);
static_assert(kVkDown == VK_DOWN);
static_assert(kVkF1 == VK_F1);
static_assert(kVkF4 == VK_F4);

static_assert(sizeof(OSVERSIONINFOA) == 148);

}  // namespace korvale::win32

#include "forms/windows/message_guard.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace korvale {
namespace {

constexpr UINT kFirstRegistered = 0xC000;

// Windows sends these; in a queue they can only be another program's.
constexpr UINT kNeverQueued[] = {WM_CREATE,
                                 WM_DESTROY,
                                 WM_MOVE,
                                 WM_SIZE,
                                 WM_ACTIVATE,
                                 WM_SETFOCUS,
                                 WM_KILLFOCUS,
                                 WM_ENABLE,
                                 WM_SHOWWINDOW,
                                 WM_ACTIVATEAPP,
                                 WM_CANCELMODE,
                                 WM_GETMINMAXINFO,
                                 WM_DRAWITEM,
                                 WM_MEASUREITEM,
                                 WM_DELETEITEM,
                                 WM_COMPAREITEM,
                                 WM_WINDOWPOSCHANGING,
                                 WM_COPYDATA,
                                 WM_NOTIFY,
                                 WM_HELP,
                                 WM_STYLECHANGED,
                                 WM_WINDOWPOSCHANGED,
                                 WM_STYLECHANGING,
                                 WM_NCCREATE,
                                 WM_NCDESTROY,
                                 WM_NCCALCSIZE,
                                 WM_NCACTIVATE,
                                 WM_INITDIALOG,
                                 WM_INITMENU,
                                 WM_INITMENUPOPUP,
                                 WM_MENUSELECT,
                                 WM_MENUCHAR,
                                 WM_ENTERMENULOOP,
                                 WM_EXITMENULOOP,
                                 WM_CTLCOLORMSGBOX,
                                 WM_CTLCOLOREDIT,
                                 WM_CTLCOLORLISTBOX,
                                 WM_CTLCOLORBTN,
                                 WM_CTLCOLORDLG,
                                 WM_CTLCOLORSCROLLBAR,
                                 WM_NEXTMENU,
                                 WM_CTLCOLORSTATIC,
                                 WM_SIZING,
                                 WM_CAPTURECHANGED,
                                 WM_MOVING,
                                 WM_ENTERSIZEMOVE,
                                 WM_EXITSIZEMOVE,
                                 WM_DPICHANGED,
                                 WM_PARENTNOTIFY,
                                 WM_UNINITMENUPOPUP};

bool IsOurs(HWND window) {
  constexpr std::wstring_view kOurClasses = L"Korvale.";
  std::array<wchar_t, 64> name{};
  const int length =
      GetClassNameW(GetAncestor(window, GA_ROOT), name.data(), static_cast<int>(name.size()));
  return std::wstring_view(name.data(), static_cast<std::size_t>(length)).starts_with(kOurClasses);
}

bool CanOnlyBeForged(const MSG& message) {
  // Our timers call no procedure; this one would be called at whatever address it names.
  if (message.message == WM_TIMER) return message.lParam != 0;
  return IsPrivateMessage(message.message) ||
         std::ranges::find(kNeverQueued, message.message) != std::end(kNeverQueued);
}

LRESULT CALLBACK SeeQueued(int code, WPARAM wParam, LPARAM lParam) {
  auto& message = *reinterpret_cast<MSG*>(lParam);
  if (code == HC_ACTION && CanOnlyBeForged(message) && IsOurs(message.hwnd)) {
    message.message = WM_NULL;
    message.wParam = 0;
    message.lParam = 0;
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

MessageGuard::MessageGuard()
    : hook_(SetWindowsHookExW(WH_GETMESSAGE, SeeQueued, nullptr, GetCurrentThreadId())) {}

bool IsSentByOthers() {
  return (InSendMessageEx(nullptr) & (ISMEX_SEND | ISMEX_NOTIFY | ISMEX_CALLBACK)) != 0;
}

bool IsLifeMessage(UINT message) {
  return message == WM_CREATE || message == WM_DESTROY || message == WM_NCCREATE ||
         message == WM_NCDESTROY;
}

bool IsPrivateMessage(UINT message) { return message >= WM_USER && message < kFirstRegistered; }

bool IsForgedActivation(HWND window, UINT message, WPARAM wParam) {
  return message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE && GetActiveWindow() != window;
}

bool ReadParameter(LPARAM address, RECT& value) {
  SIZE_T read = 0;
  return ReadProcessMemory(GetCurrentProcess(), reinterpret_cast<LPCVOID>(address), &value,
                           sizeof(value), &read) != FALSE &&
         read == sizeof(value);
}

}  // namespace korvale

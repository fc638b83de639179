#include "ui/windows/message_guard.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

#include "ui/windows/window_classes.h"

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
                                 WM_GETDPISCALEDSIZE,
                                 WM_PARENTNOTIFY,
                                 WM_UNINITMENUPOPUP};

/// What a message is meant for. Windows keeps other windows in our thread for its own purposes,
/// such as those of input methods, which get messages that we know nothing about.
enum class Recipient { kForm, kToolTip, kList, kDialogOfWindows, kOther };

Recipient OfClass(HWND window) {
  std::array<wchar_t, 64> buffer{};
  const int length = GetClassNameW(window, buffer.data(), static_cast<int>(buffer.size()));
  const std::wstring_view name(buffer.data(), static_cast<std::size_t>(length));
  if (name.starts_with(kClassPrefix)) return Recipient::kForm;
  if (name == TOOLTIPS_CLASSW) return Recipient::kToolTip;
  if (name == L"ComboLBox") return Recipient::kList;
  return name == L"#32770" ? Recipient::kDialogOfWindows : Recipient::kOther;
}

/// A control counts as the top-level window that it is in.
Recipient RecipientOf(HWND window) { return OfClass(GetAncestor(window, GA_ROOT)); }

/// Messages to text boxes, lists and static controls are sent; many hold addresses or sizes.
bool IsForAControl(UINT message) {
  return (message >= EM_GETSEL && message <= EM_GETIMESTATUS) ||
         (message >= CB_GETEDITSEL && message <= CB_GETCOMBOBOXINFO) ||
         (message >= STM_SETICON && message <= STM_GETIMAGE) ||
         (message >= LB_ADDSTRING && message <= LB_GETLISTBOXINFO);
}

bool IsNeverQueued(UINT message) {
  return std::ranges::find(kNeverQueued, message) != std::end(kNeverQueued);
}

bool CanOnlyBeForged(const MSG& message) {
  const bool timer = message.message == WM_TIMER;
  const bool forControls = IsPrivateMessage(message.message) || IsForAControl(message.message);
  // Most messages are neither, so their window need not be looked up.
  if (!timer && !forControls && !IsNeverQueued(message.message)) return false;
  const Recipient recipient = RecipientOf(message.hwnd);
  if (recipient == Recipient::kOther) return false;
  // Our timers call no procedure; this one would be called at whatever address it names.
  if (timer) return recipient == Recipient::kForm && message.lParam != 0;
  // Windows may notify its own dialogs this way, but never with a pointer to follow.
  const bool counts = recipient != Recipient::kDialogOfWindows || message.lParam != 0;
  return !forControls || counts || IsNeverQueued(message.message);
}

/// Hooks know nothing but their thread.
MessageGuard*& GuardOfThread() {
  static thread_local MessageGuard* guard = nullptr;
  return guard;
}

LRESULT CALLBACK SeeQueued(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HC_ACTION) MessageGuard::Disarm(*reinterpret_cast<MSG*>(lParam));
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK GuardedProcedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam,
                                  UINT_PTR id, DWORD_PTR /*data*/) {
  if (NamesAnAddress(message) || IsForgedForClass(hwnd, message, wParam, lParam != 0)) return 0;
  if (message == WM_NCDESTROY) RemoveWindowSubclass(hwnd, GuardedProcedure, id);
  return DefSubclassProc(hwnd, message, wParam, lParam);
}

/// True for a window that Windows makes for us and whose messages pass no procedure of ours.
bool IsMadeForUs(HWND window, const CREATESTRUCTW& creation) {
  // Where the new window belongs is not known yet: a list is first made inside its combo box.
  const Recipient recipient = OfClass(window);
  const bool child = (creation.style & WS_CHILD) != 0;
  return recipient == Recipient::kDialogOfWindows || recipient == Recipient::kList ||
         (child && RecipientOf(creation.hwndParent) == Recipient::kDialogOfWindows);
}

LRESULT CALLBACK SeeWindows(int code, WPARAM wParam, LPARAM lParam) {
  if (code == HCBT_CREATEWND || code == HCBT_SYSCOMMAND || code == HCBT_MOVESIZE) WatchQueue();
  const auto window = reinterpret_cast<HWND>(wParam);
  if (code == HCBT_CREATEWND) {
    const CREATESTRUCTW& creation = *reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs;
    // While another program's message is being handled, all that Windows sends counts as sent by
    // others, and a window that comes up meanwhile could not even be made.
    if (!IsSentByOthers() && IsMadeForUs(window, creation)) {
      SetWindowSubclass(window, GuardedProcedure, 0, 0);
    }
  } else if (code == HCBT_DESTROYWND) {
    RemoveWindowSubclass(window, GuardedProcedure, 0);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

MessageGuard::MessageGuard()
    : windows_(SetWindowsHookExW(WH_CBT, SeeWindows, nullptr, GetCurrentThreadId())) {
  GuardOfThread() = this;
  Watch();
}

MessageGuard::~MessageGuard() { GuardOfThread() = nullptr; }

void MessageGuard::Watch() {
  if (!Rests()) return;
  queued_.Reset(SetWindowsHookExW(WH_GETMESSAGE, SeeQueued, nullptr, GetCurrentThreadId()));
}

void MessageGuard::Rest() { queued_.Reset(); }

void MessageGuard::Disarm(MSG& message) {
  if (!CanOnlyBeForged(message)) return;
  message.message = WM_NULL;
  message.wParam = 0;
  message.lParam = 0;
}

void WatchQueue() {
  if (MessageGuard* const guard = GuardOfThread()) guard->Watch();
}

bool IsOnlyOurLoop() {
  const MessageGuard* const guard = GuardOfThread();
  return guard != nullptr && guard->Rests();
}

bool IsSentByOthers() {
  return (InSendMessageEx(nullptr) & (ISMEX_SEND | ISMEX_NOTIFY | ISMEX_CALLBACK)) != 0;
}

bool IsLifeMessage(UINT message) {
  return message == WM_CREATE || message == WM_DESTROY || message == WM_NCCREATE ||
         message == WM_NCDESTROY;
}

bool IsPrivateMessage(UINT message) { return message >= WM_USER && message < kFirstRegistered; }

bool NamesAnAddress(UINT message) {
  return message == EM_SETWORDBREAKPROC || message == EM_SETHANDLE;
}

bool IsForgedActivation(HWND window, UINT message, WPARAM wParam) {
  return message == WM_ACTIVATE && LOWORD(wParam) != WA_INACTIVE && GetActiveWindow() != window;
}

bool IsForgedForClass(HWND window, UINT message, WPARAM wParam, bool privateToo) {
  if (!IsSentByOthers()) return false;
  if (message == WM_ACTIVATE) return IsForgedActivation(window, message, wParam);
  if (message == WM_SETFOCUS) return GetFocus() != window;
  return IsLifeMessage(message) || message == WM_INITDIALOG ||
         (privateToo && IsPrivateMessage(message));
}

bool ReadParameter(LPARAM address, void* value, std::size_t size) {
  SIZE_T read = 0;
  return ReadProcessMemory(GetCurrentProcess(), reinterpret_cast<LPCVOID>(address), value, size,
                           &read) != FALSE &&
         read == size;
}

}  // namespace korvale

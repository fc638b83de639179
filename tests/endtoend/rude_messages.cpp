#include "tests/endtoend/rude_messages.h"

// After windows.h, which it needs.
#include <commctrl.h>

#include <cstdint>
#include <random>

namespace korvale::endtoend {
namespace {

/// A message that has the same effect as an action of the user.
bool MayBeMeant(const Rude& rude) {
  const bool button = rude.message == WM_COMMAND && LOWORD(rude.wparam) >= IDOK &&
                      LOWORD(rude.wparam) <= IDCONTINUE;
  const bool menuEntry = rude.message == WM_COMMAND && rude.lparam == 0 &&
                         LOWORD(rude.wparam) >= 0x1000 && LOWORD(rude.wparam) < 0xE000;
  return button || menuEntry;
}

}  // namespace

std::vector<UINT> Queued() {
  std::vector<UINT> messages = {
      WM_CREATE,          WM_DESTROY,        WM_MOVE,          WM_SIZE,
      WM_ACTIVATE,        WM_SETFOCUS,       WM_GETMINMAXINFO, WM_DRAWITEM,
      WM_MEASUREITEM,     WM_DELETEITEM,     WM_COMPAREITEM,   WM_WINDOWPOSCHANGING,
      WM_COPYDATA,        WM_NOTIFY,         WM_HELP,          WM_NCCREATE,
      WM_NCDESTROY,       WM_COMMAND,        WM_TIMER,         WM_HOTKEY,
      WM_INITMENUPOPUP,   WM_MENUSELECT,     WM_ENTERMENULOOP, WM_CTLCOLOREDIT,
      WM_CTLCOLORBTN,     WM_CTLCOLORSTATIC, WM_SIZING,        WM_DPICHANGED,
      WM_SETCURSOR,       WM_SYSCOLORCHANGE, WM_APP,           WM_APP + 1,
      TTM_ADDTOOLW,       TTM_RELAYEVENT,    TCM_INSERTITEMW,  TCM_SETITEMW,
      BCM_GETIDEALSIZE,   EM_SETCUEBANNER,   CB_SETCUEBANNER,  EM_SETWORDBREAKPROC,
      WM_INITDIALOG,      CB_SETITEMHEIGHT,  CB_INITSTORAGE,   CB_GETCOMBOBOXINFO,
      CB_SETDROPPEDWIDTH, STM_SETICON,       STM_SETIMAGE,     LB_INITSTORAGE};
  messages.push_back(RegisterWindowMessageW(L"Korvale.ListClosed"));
  return messages;
}

std::vector<UINT> Sent() {
  std::vector<UINT> messages = {
      WM_DESTROY,       WM_NCDESTROY,     WM_ACTIVATE,        WM_SETFOCUS,
      WM_COMMAND,       WM_TIMER,         WM_HOTKEY,          WM_MENUSELECT,
      WM_ENTERMENULOOP, WM_CTLCOLOREDIT,  WM_CTLCOLORSTATIC,  WM_DPICHANGED,
      WM_APP,           WM_APP + 1,       TCM_INSERTITEMW,    TCM_SETITEMW,
      TCM_GETITEMW,     BCM_GETIDEALSIZE, EM_SETCUEBANNER,    TTM_ADDTOOLW,
      TTM_GETTEXTW,     WM_INITDIALOG,    EM_SETWORDBREAKPROC};
  messages.push_back(RegisterWindowMessageW(L"Korvale.ListClosed"));
  return messages;
}

std::vector<Rude> WithEachValue(const std::vector<UINT>& messages, bool control) {
  std::vector<std::uint64_t> values = {64, ~std::uint64_t{0}};
  if (!control) {
    std::mt19937_64 dice(20);
    for (const std::uint64_t more : {0ULL, 1ULL, 19ULL, 0x7FFFFFFFULL, dice() >> 32U, dice()}) {
      values.push_back(more);
    }
  }
  std::vector<Rude> all;
  for (const UINT message : messages) {
    for (const std::uint64_t first : values) {
      for (const std::uint64_t second : values) {
        const Rude rude{message, first, static_cast<LPARAM>(second)};
        if (!MayBeMeant(rude)) all.push_back(rude);
      }
    }
  }
  return all;
}

}  // namespace korvale::endtoend

// Reads menus within the program that shows them, as the part of a screen reader does that it has
// in every program: Wine tells other programs nothing of them.

#include "tests/endtoend/menu_reader/menu_reader.h"

namespace korvale::endtoend {
namespace {

constexpr UINT kGetMenuHandle = 0x01E1;  // MN_GETHMENU

/// The menu that the window is, or the one of its bar.
HMENU MenuOf(HWND window) {
  auto* const menu = reinterpret_cast<HMENU>(SendMessageW(window, kGetMenuHandle, 0, 0));
  return menu != nullptr ? menu : GetMenu(window);
}

void Read(HMENU menu, MenuAnswer& answer) {
  const int count = GetMenuItemCount(menu);
  const int room = static_cast<int>(answer.items.size());
  answer.count = count < room ? count : room;
  for (int position = 0; position < answer.count; ++position) {
    MenuAnswerItem& item = answer.items[static_cast<size_t>(position)];
    MENUITEMINFOW info{};
    info.cbSize = sizeof(info);
    info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING | MIIM_SUBMENU;
    info.dwTypeData = item.text.data();
    info.cch = static_cast<UINT>(item.text.size());
    GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
    item.type = info.fType;
    item.state = info.fState;
    item.opensMenu = info.hSubMenu != nullptr ? TRUE : FALSE;
  }
}

void Answer(HWND window) {
  const HANDLE memory = OpenFileMappingW(FILE_MAP_WRITE, FALSE, kMenuAnswer);
  if (memory == nullptr) return;
  auto* const answer =
      static_cast<MenuAnswer*>(MapViewOfFile(memory, FILE_MAP_WRITE, 0, 0, sizeof(MenuAnswer)));
  if (answer != nullptr) {
    Read(MenuOf(window), *answer);
    UnmapViewOfFile(answer);
  }
  CloseHandle(memory);
}

}  // namespace
}  // namespace korvale::endtoend

extern "C" __declspec(dllexport) LRESULT CALLBACK
    HearMessage(int code, WPARAM wParam, LPARAM lParam) {
  using namespace korvale::endtoend;
  const auto* const sent = reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (code == HC_ACTION && sent->message == RegisterWindowMessageW(kMenuQuestion)) {
    Answer(sent->hwnd);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

#include "tests/endtoend/contract/menu_reader.h"

#include <algorithm>

#include "platform/windows/text.h"

namespace korvale {
namespace {

constexpr UINT kGetMenuHandle = 0x01E1;  // MN_GETHMENU

ShownMenuItem ReadEntry(HMENU menu, UINT position) {
  std::wstring text(1024, L'\0');
  MENUITEMINFOW info{};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_STRING;
  info.dwTypeData = text.data();
  info.cch = static_cast<UINT>(text.size());
  GetMenuItemInfoW(menu, position, TRUE, &info);
  ShownMenuItem item;
  item.checked = (info.fState & MFS_CHECKED) != 0;
  item.enabled = (info.fState & MFS_GRAYED) == 0;
  if ((info.fType & MFT_SEPARATOR) != 0) {
    item.caption = "-";
    return item;
  }
  std::wstring drawn;
  for (UINT at = 0; at < info.cch; ++at) {
    const bool mark = text[at] == L'&' && at + 1 < info.cch;
    if (mark) ++at;
    if (mark && text[at] != L'&') item.accessKey = ToUtf8(text.substr(at, 1));
    drawn.push_back(text[at]);
  }
  item.caption = ToUtf8(drawn);
  return item;
}

}  // namespace

std::vector<ShownMenuItem> ReadMenu(HMENU menu) {
  std::vector<ShownMenuItem> items;
  const int count = std::max(GetMenuItemCount(menu), 0);
  for (int position = 0; position < count; ++position) {
    items.push_back(ReadEntry(menu, static_cast<UINT>(position)));
  }
  return items;
}

int FindEntry(HMENU menu, const std::string& caption) {
  const std::vector<ShownMenuItem> items = ReadMenu(menu);
  const auto found = std::ranges::find(items, caption, &ShownMenuItem::caption);
  return found == items.end() ? -1 : static_cast<int>(found - items.begin());
}

std::vector<HWND> OpenMenus() {
  std::vector<HWND> menus;
  HWND menu = nullptr;
  while ((menu = FindWindowExW(nullptr, menu, L"#32768", nullptr)) != nullptr) {
    const bool ours = GetWindowThreadProcessId(menu, nullptr) == GetCurrentThreadId();
    if (ours && IsWindowVisible(menu) != FALSE) menus.push_back(menu);
  }
  // The topmost one, which is found first, was opened last.
  std::ranges::reverse(menus);
  return menus;
}

HMENU MenuOf(HWND menuWindow) {
  return reinterpret_cast<HMENU>(SendMessageW(menuWindow, kGetMenuHandle, 0, 0));
}

bool InMenu() {
  GUITHREADINFO info{};
  info.cbSize = sizeof(info);
  return GetGUIThreadInfo(GetCurrentThreadId(), &info) != FALSE &&
         (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

}  // namespace korvale

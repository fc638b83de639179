#include "ui/windows/form_menu.h"

#include <algorithm>
#include <string>

#include "platform/windows/text.h"
#include "ui/menu_text.h"

namespace korvale {
namespace {

// Between the numbers of controls and the commands of the window menu (SC_SIZE and so on).
constexpr UINT kFirstCommand = 0x1000;
constexpr UINT kLastCommand = 0xDFFF;

/// Finds an entry by its address, which may be stale: nothing is read from it.
MenuItem* FindLive(const MenuItem& menu, const MenuItem* wanted) {
  for (const auto& item : menu.items) {
    if (item.get() == wanted) return item.get();
    if (MenuItem* const found = FindLive(*item, wanted)) return found;
  }
  return nullptr;
}

UniqueMenu MakeEmptyPopup(const MenuItem& model) {
  UniqueMenu menu(CreatePopupMenu());
  MENUINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = MIM_MENUDATA;
  info.dwMenuData = reinterpret_cast<ULONG_PTR>(&model);
  SetMenuInfo(menu.Get(), &info);
  return menu;
}

void Empty(HMENU menu) {
  while (GetMenuItemCount(menu) > 0) DeleteMenu(menu, 0, MF_BYPOSITION);
}

}  // namespace

void FormMenu::ShowBar(HWND window) {
  UniqueMenu bar;
  if (form_->ShowsMenuBar()) {
    bar.Reset(CreateMenu());
    Fill(bar.Get(), form_->menu.Root());
  }
  SetMenu(window, bar.Get());
  ::DrawMenuBar(window);
  bar_ = std::move(bar);
}

void FormMenu::DropBar(HWND window) {
  SetMenu(window, nullptr);
  bar_.Reset();
}

UniqueMenu FormMenu::MakePopup(MenuItem& menu) {
  UniqueMenu popup = MakeEmptyPopup(menu);
  Fill(popup.Get(), menu);
  return popup;
}

MenuItem* FormMenu::Opening(HMENU menu) const {
  MENUINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = MIM_MENUDATA;
  if (GetMenuInfo(menu, &info) == FALSE || info.dwMenuData == 0) return nullptr;
  return FindLive(form_->menu.Root(), reinterpret_cast<const MenuItem*>(info.dwMenuData));
}

void FormMenu::Refill(HMENU menu, MenuItem& model) {
  Empty(menu);
  Fill(menu, model);
}

MenuItem* FormMenu::Chosen(UINT command) const {
  const auto found = std::ranges::find_if(
      commands_, [command](const auto& entry) { return entry.second == command; });
  return found == commands_.end() ? nullptr : FindLive(form_->menu.Root(), found->first);
}

UINT FormMenu::CommandOf(const MenuItem& item) {
  const auto found = commands_.find(&item);
  if (found != commands_.end()) return found->second;
  if (nextCommand_ < kFirstCommand || nextCommand_ >= kLastCommand) {
    commands_.clear();
    nextCommand_ = kFirstCommand;
  }
  return commands_[&item] = nextCommand_++;
}

void FormMenu::Fill(HMENU menu, const MenuItem& model) {
  for (const auto& item : model.items) {
    if (item->visible) Append(menu, *item);
  }
}

void FormMenu::Append(HMENU menu, MenuItem& item) {
  std::wstring caption = ToUtf16(MenuText(item));
  MENUITEMINFOW info{};
  info.cbSize = sizeof(info);
  info.fMask = MIIM_FTYPE | MIIM_STATE | MIIM_ID;
  info.wID = CommandOf(item);
  if (item.IsSeparator()) {
    info.fType = MFT_SEPARATOR;
  } else {
    info.fMask |= MIIM_STRING;
    info.fState = (item.checked ? MFS_CHECKED : 0U) | (item.enabled ? 0U : MFS_GRAYED);
    info.dwTypeData = caption.data();
  }
  if (!item.items.empty()) {
    UniqueMenu submenu = MakePopup(item);
    info.fMask |= MIIM_SUBMENU;
    info.hSubMenu = submenu.Release();  // Belongs to `menu` from now on.
  }
  const auto end = static_cast<UINT>(GetMenuItemCount(menu));
  if (InsertMenuItemW(menu, end, TRUE, &info) == FALSE && info.hSubMenu != nullptr) {
    DestroyMenu(info.hSubMenu);
  }
}

}  // namespace korvale

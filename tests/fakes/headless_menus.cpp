#include <algorithm>

#include "platform/win32_constants.h"
#include "tests/fakes/headless_user.h"
#include "ui/access_key.h"
#include "ui/menu_text.h"
#include "util/characters.h"

namespace korvale {
namespace {

MenuItem* FindShown(const MenuItem& menu, const std::string& caption) {
  const auto found = std::ranges::find_if(menu.items, [&](const auto& item) {
    return item->visible && DrawItem(*item).caption == caption;
  });
  return found == menu.items.end() ? nullptr : found->get();
}

std::vector<MenuItem*> ShownItems(const MenuItem& menu) {
  std::vector<MenuItem*> shown;
  for (const auto& item : menu.items) {
    if (item->visible && !item->IsSeparator()) shown.push_back(item.get());
  }
  return shown;
}

}  // namespace

std::vector<ShownMenuItem> HeadlessUser::MenuBarItems(WindowHandle hwnd) {
  std::vector<ShownMenuItem> shown;
  for (const DrawnMenu& menu : host_->Window(hwnd).bar) shown.push_back(menu.drawn);
  return shown;
}

DrawnMenu* HeadlessUser::FindInBar(HeadlessWindow& window, const std::string& caption) {
  const auto found = std::ranges::find_if(
      window.bar, [&](const DrawnMenu& menu) { return menu.drawn.caption == caption; });
  return found == window.bar.end() ? nullptr : &*found;
}

MenuItem& HeadlessUser::WalkMenus(WindowHandle hwnd, const std::vector<std::string>& path) {
  HeadlessWindow& window = Reach(hwnd, "open the menu " + path.front());
  host_->Desktop().Activate(hwnd);
  DrawnMenu* const first = FindInBar(window, path.front());
  if (first == nullptr) {
    FailTest("form " + window.form->name + " shows no menu \"" + path.front() + "\"");
  }
  MenuItem* item = first->menu;
  for (std::size_t step = 1;; ++step) {
    if (!item->enabled) FailTest("the menu entry \"" + path[step - 1] + "\" is disabled");
    if (!item->items.empty()) {
      host_->Tell(hwnd, [&](FormEvents& events) { events.OnMenuOpened(*item); });
    }
    if (step == path.size()) return *item;
    MenuItem* const next = FindShown(*item, path[step]);
    if (next == nullptr) {
      FailTest("the menu \"" + path[step - 1] + "\" has no entry \"" + path[step] + "\"");
    }
    item = next;
  }
}

std::vector<ShownMenuItem> HeadlessUser::MenuItems(WindowHandle hwnd,
                                                   const std::vector<std::string>& path) {
  return DrawItems(WalkMenus(hwnd, path));
}

void HeadlessUser::ChooseMenu(WindowHandle hwnd, const std::vector<std::string>& path) {
  MenuItem& item = WalkMenus(hwnd, path);
  if (!item.items.empty()) FailTest("\"" + path.back() + "\" is a menu, no entry to choose");
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnMenuClicked(item); });
}

std::vector<ShownMenuItem> HeadlessUser::OpenMenuItems() const {
  return openMenus_.empty() ? std::vector<ShownMenuItem>() : DrawItems(*openMenus_.back());
}

bool HeadlessUser::OpenMenuByKey(WindowHandle hwnd, std::string_view character) {
  if (character.empty()) return false;
  const char32_t key = FirstCharacter(character).codePoint;
  for (const DrawnMenu& menu : host_->Window(hwnd).bar) {
    if (!menu.drawn.enabled || menu.drawn.accessKey.empty()) continue;
    if (UpperCase(FirstCharacter(menu.drawn.accessKey).codePoint) != UpperCase(key)) continue;
    OpenMenu(hwnd, *menu.menu);
    return true;
  }
  return false;
}

void HeadlessUser::OpenMenu(WindowHandle hwnd, MenuItem& menu) {
  if (menu.items.empty()) {
    ChooseItem(hwnd, menu);
    return;
  }
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnMenuOpened(menu); });
  openMenus_.push_back(&menu);
  const std::vector<MenuItem*> shown = ShownItems(menu);
  highlighted_ = shown.empty() ? nullptr : shown.front();
}

void HeadlessUser::ChooseItem(WindowHandle hwnd, MenuItem& item) {
  openMenus_.clear();
  highlighted_ = nullptr;
  host_->Tell(hwnd, [&](FormEvents& events) { events.OnMenuClicked(item); });
}

void HeadlessUser::MoveInMenu(int step) {
  const std::vector<MenuItem*> shown = ShownItems(*openMenus_.back());
  if (shown.empty()) return;
  const int count = static_cast<int>(shown.size());
  const auto at = std::ranges::find(shown, highlighted_);
  const int here = at == shown.end() ? -1 : static_cast<int>(at - shown.begin());
  highlighted_ = shown[static_cast<std::size_t>((here + step + count) % count)];
}

void HeadlessUser::PressInMenu(WindowHandle hwnd, const Key& key) {
  MenuItem* target = nullptr;
  switch (key.virtualKey) {
    case win32::kVkEscape:
      openMenus_.pop_back();
      highlighted_ = nullptr;
      return;
    case win32::kVkDown:
      return MoveInMenu(1);
    case win32::kVkUp:
      return MoveInMenu(-1);
    case win32::kVkReturn:
      target = highlighted_;
      break;
    default:
      for (MenuItem* const item : ShownItems(*openMenus_.back())) {
        const bool matches = !key.character.empty() &&
                             HasAccessKey(MenuText(*item), FirstCharacter(key.character).codePoint);
        if (matches && target == nullptr) target = item;
      }
  }
  if (target == nullptr || !target->enabled) return;
  OpenMenu(hwnd, *target);
}

}  // namespace korvale

#include "platform/menu_model.h"

#include <algorithm>
#include <utility>

#include "platform/run_time_error.h"

namespace korvale {
namespace {

MenuItem* FindBelow(const MenuItem& menu, std::string_view name, int index) {
  for (const auto& item : menu.items) {
    if (item->name == name && item->index == index) return item.get();
    if (MenuItem* const found = FindBelow(*item, name, index)) return found;
  }
  return nullptr;
}

std::unique_ptr<MenuItem> MakeItem(const MenuRow& row) {
  auto item = std::make_unique<MenuItem>();
  item->name = row.name;
  item->index = row.index;
  item->caption = row.caption;
  return item;
}

}  // namespace

MenuBar::MenuBar(std::span<const MenuRow> rows) {
  // The entry that last stood at each depth; path[d] takes the rows of depth d.
  std::vector<MenuItem*> path = {&root_};
  for (const MenuRow& row : rows) {
    const auto depth = static_cast<std::size_t>(std::max(row.depth, 0));
    path.resize(std::min(path.size(), depth + 1));
    path.push_back(path.back()->items.emplace_back(MakeItem(row)).get());
  }
}

bool MenuBar::AnyVisible() const {
  return std::ranges::any_of(root_.items, [](const auto& menu) { return menu->visible; });
}

MenuItem* MenuBar::Find(std::string_view name, int index) { return FindBelow(root_, name, index); }

MenuItemArray::MenuItemArray(MenuItem& menu, std::string name)
    : menu_(&menu), name_(std::move(name)) {}

MenuItem* MenuItemArray::Find(int index) const {
  const auto found = std::ranges::find_if(
      menu_->items, [&](const auto& item) { return item->name == name_ && item->index == index; });
  return found == menu_->items.end() ? nullptr : found->get();
}

MenuItem& MenuItemArray::Load(int index) const {
  if (Find(index) != nullptr) throw RunTimeError(RunTimeError::kObjectAlreadyLoaded);
  auto place = menu_->items.end();
  for (auto at = menu_->items.begin(); at != menu_->items.end(); ++at) {
    if ((*at)->name != name_) continue;
    if ((*at)->index > index) {
      place = at;
      break;
    }
    place = std::next(at);
  }
  auto item = std::make_unique<MenuItem>();
  item->name = name_;
  item->index = index;
  item->visible = false;
  return **menu_->items.insert(place, std::move(item));
}

void MenuItemArray::Unload(int index) const {
  MenuItem* const item = Find(index);
  if (item == nullptr) {
    throw RunTimeError(RunTimeError::kNoSuchControlArrayElement, std::to_string(index));
  }
  if (index == 0) throw RunTimeError(RunTimeError::kCannotUnloadDesignControl);
  std::erase_if(menu_->items, [&](const auto& candidate) { return candidate.get() == item; });
}

void MenuItemArray::ForEach(const std::function<void(MenuItem&)>& visit) const {
  for (const int index : Indexes()) visit(*Find(index));
}

std::vector<int> MenuItemArray::Indexes() const {
  std::vector<int> indexes;
  for (const auto& item : menu_->items) {
    if (item->name == name_) indexes.push_back(item->index);
  }
  std::ranges::sort(indexes);
  return indexes;
}

}  // namespace korvale

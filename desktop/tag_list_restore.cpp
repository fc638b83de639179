#include "desktop/tag_list_restore.h"

#include <string>

namespace korvale {

namespace {

/// 1-9, or 0 for a text that is no Tag number.
int TagNumberOf(const std::string& key) {
  const bool isTag = key.size() == 1 && key[0] >= '1' && key[0] <= '9';
  return isTag ? key[0] - '0' : 0;
}

}  // namespace

void RestoreTagList(TagList& tags, const SettingsStore::Pairs& captions,
                    const SettingsStore::Pairs& classes) {
  const MenuItemArray& list = tags.mnuWindowParentList;
  for (const int index : list.Indexes()) {
    if (index > 0) {
      list.Unload(index);
    }
  }
  tags.ParentWindowClass.fill("");
  for (const auto& [key, caption] : captions) {
    const int tag = TagNumberOf(key);
    if (tag == 0 || !caption.starts_with("&" + key + "  ") || list.Find(tag) != nullptr) {
      continue;
    }
    MenuItem& entry = list.Load(tag);
    entry.caption = caption;
    entry.literalFrom = kTagPrefixLength;
    entry.tag = "0";
    entry.visible = true;
  }
  for (const auto& [key, className] : classes) {
    const int tag = TagNumberOf(key);
    if (tag != 0 && list.Find(tag) != nullptr) {
      tags.ParentWindowClass[static_cast<std::size_t>(tag - 1)] = className;
    }
  }
}

}  // namespace korvale

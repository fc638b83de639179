#include "desktop/tag_list_storage.h"

namespace korvale {

StoredTagList TagsToStore(const TagList& tags) {
  StoredTagList stored;
  tags.mnuWindowParentList.ForEach([&](const MenuItem& entry) {
    if (IsTag(entry.index)) stored.push_back({entry.index, entry.caption, TagClass(tags, entry)});
  });
  return stored;
}

void RestoreTagList(TagList& tags, const StoredTagList& stored) {
  for (const int index : tags.mnuWindowParentList.Indexes()) {
    if (index > 0) tags.mnuWindowParentList.Unload(index);
  }
  tags.ParentWindowClass.fill("");
  for (const StoredTag& tag : stored) {
    TagClass(tags, AddTagEntry(tags, tag.number, tag.caption)) = tag.className;
  }
}

}  // namespace korvale

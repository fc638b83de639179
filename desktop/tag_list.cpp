#include "desktop/tag_list.h"

#include <cstddef>

#include "util/text.h"

namespace korvale {

std::string IdentificationText(const MenuItem& entry) { return WithoutTagPrefix(entry.caption); }

WindowHandle TagHandle(const MenuItem& entry) { return ParseInt32(entry.tag).value_or(0); }

bool HasTagCaption(const TagList& tags, int tag) {
  const MenuItem* const entry = tags.mnuWindowParentList.Find(tag);
  return entry != nullptr && entry->caption.starts_with('&');
}

std::string& TagClass(TagList& tags, int tag) {
  return tags.ParentWindowClass.at(static_cast<std::size_t>(tag - 1));
}

std::string& TagClass(TagList& tags, const MenuItem& entry) { return TagClass(tags, entry.index); }

const std::string& TagClass(const TagList& tags, const MenuItem& entry) {
  return tags.ParentWindowClass.at(static_cast<std::size_t>(entry.index - 1));
}

MenuItem& AddTagEntry(TagList& tags, int number, const std::string& caption) {
  MenuItem& entry = tags.mnuWindowParentList.Load(number);
  entry.caption = caption;
  entry.literalFrom = kTagPrefixLength;
  entry.tag = "0";
  entry.visible = true;
  return entry;
}

}  // namespace korvale

#include "desktop/tag_list.h"

#include <cstddef>

#include "desktop/seen_window.h"
#include "desktop/tag_matching.h"
#include "util/text.h"

namespace korvale {
namespace {

template <typename Visit>
void ForEachTag(const TagList& tags, Visit visit) {
  for (const int index : tags.mnuWindowParentList.Indexes()) {
    MenuItem* const entry = tags.mnuWindowParentList.Find(index);
    if (IsTag(index) && entry != nullptr) visit(*entry);
  }
}

}  // namespace

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

TagListPasses::TagListPasses(TagList& tags, WindowQueries& windows,
                             VirtualDesktops& virtualDesktops)
    : tags_(&tags), windows_(&windows), virtualDesktops_(&virtualDesktops) {}

std::int16_t TagListPasses::TagListPass(TagListMode mode, std::int16_t tagNumber,
                                        WindowHandle hwnd) {
  switch (mode) {
    case TagListMode::kExists:
      if (tagNumber == 0) return 1;
      return IsTag(tagNumber) && tags_->mnuWindowParentList.Find(tagNumber) != nullptr ? 1 : -1;
    case TagListMode::kUnresolve:
      ForEachTag(*tags_, [](MenuItem& entry) { entry.tag = "0"; });
      break;
    case TagListMode::kMatch: {
      SeenWindow window(*windows_, hwnd);
      BeginMatching().Match(window);
      break;
    }
    case TagListMode::kUnload:
      ForEachTag(*tags_,
                 [&](const MenuItem& entry) { tags_->mnuWindowParentList.Unload(entry.index); });
      break;
  }
  return -1;
}

TagMatching TagListPasses::BeginMatching() { return {*tags_, *windows_, *virtualDesktops_}; }

void TagListPasses::RemoveClosed() {
  ForEachTag(*tags_, [&](const MenuItem& entry) {
    if (!windows_->IsWindow(TagHandle(entry))) tags_->mnuWindowParentList.Unload(entry.index);
  });
}

}  // namespace korvale

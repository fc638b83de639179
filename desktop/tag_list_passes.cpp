#include "desktop/tag_list_passes.h"

#include "desktop/seen_window.h"

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

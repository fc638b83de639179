#include "desktop/tag_list.h"

#include <cstddef>

#include "desktop/title_match.h"
#include "desktop/window_readers.h"
#include "desktop/window_visibility.h"
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

std::string& TagClass(TagList& tags, const MenuItem& entry) {
  return tags.ParentWindowClass.at(static_cast<std::size_t>(entry.index - 1));
}

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
    case TagListMode::kMatch:
      ForEachTag(*tags_, [&](MenuItem& entry) { Match(entry, hwnd); });
      break;
    case TagListMode::kUnload:
      ForEachTag(*tags_,
                 [&](const MenuItem& entry) { tags_->mnuWindowParentList.Unload(entry.index); });
      break;
  }
  return -1;
}

void TagListPasses::RemoveClosed() {
  ForEachTag(*tags_, [&](const MenuItem& entry) {
    if (!windows_->IsWindow(TagHandle(entry))) tags_->mnuWindowParentList.Unload(entry.index);
  });
}

void TagListPasses::Match(MenuItem& entry, WindowHandle hwnd) {
  if (TagHandle(entry) != 0) return;
  std::string& storedClass = TagClass(*tags_, entry);
  if (!storedClass.empty() && storedClass != GetWindowClass(*windows_, hwnd)) return;
  if (!TitleMatches(entry.caption, GetWindowTitle(*windows_, hwnd), true)) return;
  // Only a window with at least one child window counts.
  if (GetRelatedWindow(*windows_, hwnd, 1) == 0) return;
  const int index = entry.index;
  if (IsPutAway(*windows_, *virtualDesktops_, hwnd)) return;
  // The question may have let the user remove the Tag.
  MenuItem* const matched = tags_->mnuWindowParentList.Find(index);
  if (matched == nullptr) return;
  matched->tag = DecimalText(hwnd);
  if (storedClass.empty()) storedClass = GetWindowClass(*windows_, hwnd);
}

}  // namespace korvale

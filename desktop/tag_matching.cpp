#include "desktop/tag_matching.h"

#include <algorithm>

#include "desktop/title_match.h"
#include "desktop/window_visibility.h"
#include "util/text.h"

namespace korvale {

TagMatching::TagMatching(TagList& tags, WindowQueries& windows, VirtualDesktops& virtualDesktops)
    : tags_(&tags), windows_(&windows), virtualDesktops_(&virtualDesktops) {
  Prepare();
}

void TagMatching::Prepare() {
  unresolved_.clear();
  tags_->mnuWindowParentList.ForEach([this](const MenuItem& entry) {
    if (IsTag(entry.index) && TagHandle(entry) == 0) {
      unresolved_.push_back({entry.index, IdentificationText(entry)});
    }
  });
}

bool TagMatching::LooksFor(int tag, SeenWindow& window) const {
  return std::ranges::any_of(unresolved_, [&](const UnresolvedTag& unresolved) {
    return unresolved.number == tag &&
           TitleMatches(unresolved.identification, window.Title(), false);
  });
}

void TagMatching::Match(SeenWindow& window) {
  const auto fits = [&](const UnresolvedTag& tag) { return Fits(tag, window); };
  // Only a window with at least one child window counts.
  if (std::ranges::none_of(unresolved_, fits) || window.FirstChild() == 0) return;
  if (window.Cloak() != 0) {
    const bool putAway = IsCloakedWindowPutAway(*windows_, *virtualDesktops_, window.Handle());
    // The question may have let the user change the Tags.
    Prepare();
    if (putAway) return;
  }
  std::erase_if(unresolved_, [&](const UnresolvedTag& tag) {
    const bool resolved = fits(tag);
    if (resolved) Resolve(tag.number, window);
    return resolved;
  });
}

bool TagMatching::Fits(const UnresolvedTag& tag, SeenWindow& window) const {
  const std::string& storedClass = TagClass(*tags_, tag.number);
  return (storedClass.empty() || storedClass == window.ClassName()) &&
         TitleMatches(tag.identification, window.Title(), false);
}

void TagMatching::Resolve(int number, SeenWindow& window) {
  MenuItem* const entry = tags_->mnuWindowParentList.Find(number);
  if (entry == nullptr) return;
  entry->tag = DecimalText(window.Handle());
  std::string& storedClass = TagClass(*tags_, number);
  if (storedClass.empty()) storedClass = window.ClassName();
}

}  // namespace korvale

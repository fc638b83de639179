#include "desktop/tag_matching.h"

#include <algorithm>
#include <utility>

#include "desktop/title_match.h"
#include "desktop/window_visibility.h"
#include "util/text.h"

namespace korvale {

TagMatching::TagMatching(TagList& tags, WindowQueries& windows, VirtualDesktops& virtualDesktops)
    : tags_(&tags),
      windows_(&windows),
      virtualDesktops_(&virtualDesktops),
      unresolved_(Unresolved()) {}

std::vector<TagMatching::UnresolvedTag> TagMatching::Unresolved() const {
  std::vector<UnresolvedTag> unresolved;
  tags_->mnuWindowParentList.ForEach([&](const MenuItem& entry) {
    if (IsTag(entry.index) && TagHandle(entry) == 0) {
      unresolved.push_back({entry.index, IdentificationText(entry)});
    }
  });
  return unresolved;
}

const TagMatching::UnresolvedTag* TagMatching::Find(int tag) const {
  const auto found = std::ranges::find(unresolved_, tag, &UnresolvedTag::number);
  return found == unresolved_.end() ? nullptr : &*found;
}

bool TagMatching::FitsByTitle(int tag, SeenWindow& window) const {
  const UnresolvedTag* const unresolved = Find(tag);
  // The title of a hidden window is not worth reading.
  return unresolved != nullptr && (window.HasReadTitle() || window.IsVisible()) &&
         TitleMatches(unresolved->identification, window.Title(), false) && window.IsVisible();
}

/// The question may let the user change the Tags.
bool TagMatching::IsPutAway(SeenWindow& window) {
  if (window.Cloak() == 0) return false;
  const bool putAway = IsCloakedWindowPutAway(*windows_, *virtualDesktops_, window.Handle());
  const std::vector<UnresolvedTag> before = std::exchange(unresolved_, Unresolved());
  changed_ = changed_ || unresolved_ != before;
  return putAway;
}

bool TagMatching::Match(SeenWindow& window) {
  const auto fits = [&](const UnresolvedTag& tag) { return Fits(tag, window); };
  // Only a window with at least one child window counts.
  if (std::ranges::none_of(unresolved_, fits) || window.FirstChild() == 0) return true;
  if (IsPutAway(window)) return false;
  std::erase_if(unresolved_, [&](const UnresolvedTag& tag) {
    const bool resolved = fits(tag);
    if (resolved) Resolve(tag.number, window);
    return resolved;
  });
  return true;
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

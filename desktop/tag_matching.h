#pragma once

#include <string>
#include <vector>

#include "desktop/seen_window.h"
#include "desktop/tag_list.h"
#include "platform/virtual_desktops.h"
#include "platform/window_api.h"

namespace korvale {

/// Matches one window after the other against the Tags that are unresolved when it begins.
class TagMatching {
 public:
  TagMatching(TagList& tags, WindowQueries& windows, VirtualDesktops& virtualDesktops);

  /// No Tag is unresolved any more.
  bool IsDone() const { return unresolved_.empty(); }
  /// The Tag is still unresolved, the window is visible, and its title fits the identification.
  bool FitsByTitle(int tag, SeenWindow& window) const;
  /// The Tag is still unresolved, and neither it nor any other was changed since this began.
  bool HasLookedFor(int tag) const { return !changed_ && Find(tag) != nullptr; }

  /// Resolves every unresolved Tag that the window fits: by the stored class, by the title, and by
  /// having a child window, unless Windows keeps it off the screen for good: then it gives false.
  bool Match(SeenWindow& window);

 private:
  struct UnresolvedTag {
    int number;
    std::string identification;

    friend bool operator==(const UnresolvedTag&, const UnresolvedTag&) = default;
  };

  std::vector<UnresolvedTag> Unresolved() const;
  const UnresolvedTag* Find(int tag) const;
  bool IsPutAway(SeenWindow& window);
  bool Fits(const UnresolvedTag& tag, SeenWindow& window) const;
  void Resolve(int number, SeenWindow& window);

  TagList* tags_;
  WindowQueries* windows_;
  VirtualDesktops* virtualDesktops_;
  std::vector<UnresolvedTag> unresolved_;
  bool changed_ = false;
};

}  // namespace korvale

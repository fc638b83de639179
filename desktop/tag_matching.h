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
  /// The Tag is still unresolved, and its identification fits the window's title.
  bool LooksFor(int tag, SeenWindow& window) const;

  /// Resolves every unresolved Tag that the window fits: by the stored class, by the title, and by
  /// having a child window, unless Windows keeps it off the screen for good.
  void Match(SeenWindow& window);

 private:
  struct UnresolvedTag {
    int number;
    std::string identification;
  };

  void Prepare();
  bool Fits(const UnresolvedTag& tag, SeenWindow& window) const;
  void Resolve(int number, SeenWindow& window);

  TagList* tags_;
  WindowQueries* windows_;
  VirtualDesktops* virtualDesktops_;
  std::vector<UnresolvedTag> unresolved_;
};

}  // namespace korvale

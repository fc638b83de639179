#pragma once

#include <string>
#include <string_view>

#include "platform/system_api.h"

namespace korvale {

/// What makes a folder the same under every drive letter, link, share and short name.
struct FolderIdentity {
  /// The path with long names and without a closing backslash.
  std::string path;
  /// Numbers of the volume and the folder; "" when the volume has none.
  std::string fileId;

  /// True when the paths (in any case) or the numbers are the same.
  bool IsSameAs(const FolderIdentity& other) const;
};

/// The identity of a folder; for one that cannot be reached, only the path as given.
FolderIdentity ReadFolderIdentity(SystemApi& system, std::string_view folder);

/// kAway = unknown, since its drive or computer cannot be reached at the moment.
enum class FolderPresence { kThere, kGone, kAway };

FolderPresence LookForFolder(SystemApi& system, std::string_view folder);

/// The folder without closing backslashes.
std::string WithoutClosingBackslash(std::string_view folder);

}  // namespace korvale

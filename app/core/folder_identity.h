#pragma once

#include <string>
#include <string_view>

#include "platform/system_api.h"

namespace korvale {

/// What makes a folder the same under every drive letter, link, share and short name.
struct FolderIdentity {
  /// With its long names and without a closing backslash.
  std::string path;
  /// Number of volume and folder, "" where the volume has none.
  std::string fileId;

  /// True when path (in any case) or number are the same.
  bool IsSameAs(const FolderIdentity& other) const;
};

/// The identity of a folder that can be reached; the path as it was given for any other.
FolderIdentity ReadFolderIdentity(SystemApi& system, std::string_view folder);

/// kAway = nobody can tell: its drive or computer cannot be reached at the moment.
enum class FolderPresence { kThere, kGone, kAway };

FolderPresence LookForFolder(SystemApi& system, std::string_view folder);

/// The folder without closing backslashes.
std::string WithoutClosingBackslash(std::string_view folder);

}  // namespace korvale

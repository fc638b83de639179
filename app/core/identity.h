#pragma once

#include <string>
#include <string_view>

#include "app/core/folder_identity.h"
#include "platform/system_api.h"

namespace korvale {

/// Also the title of every message box, followed by a suffix such as " - ERROR".
inline constexpr const char* kProductName = "Korvale";

/// What the program knows about itself, fixed at start-up.
struct ProgramIdentity {
  /// The executable's folder with a closing backslash.
  std::string programFolder;
  /// The same folder under every drive letter, link, share or short name.
  FolderIdentity installation;
  /// The last component of the executable's folder, by its long name.
  std::string installationFolderName;
  /// Major.minor.revision as in 1.10.0695.
  std::string versionText;
  std::string legalNotice;
  std::string fileDescription;
  /// "Korvale - Work" for a copy in a folder named Work; also the settings application name.
  std::string mainCaption;
  /// File name of the executable without its folder.
  std::string executableName;
};

/// The last component of a folder, ignoring closing backslashes: "Work" for "D:\Tools\Work\", "C:"
/// for a drive's root.
std::string FolderName(std::string_view folder);

/// Reads the executable's path and version resource.
ProgramIdentity ReadProgramIdentity(SystemApi& system);

}  // namespace korvale
